#include "app/Program_Screens.h"

#include "catalogue/Catalogue_Screens.h"
#include "cellar/Cellar_Screens.h"
#include "main_window/Main_Window_Screens.h"
#include "pairing/Pairing_Screens.h"
#include "search/Search_Screens.h"

void Register_Program_Screens() {
  Register_Main_Window_Screens();
  Register_Cellar_Screens();
  Register_Catalogue_Screens();
  Register_Pairing_Screens();
  Register_Search_Screens();
}

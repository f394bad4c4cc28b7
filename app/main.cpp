#include "cellar/Cellar_Screens.h"
#include "core/Gereral_Processes.h"
#include "main_window/Main_Window_Screens.h"
#include "pairing/Pairing_Screens.h"
#include "platform/forms/Application.h"
#include "platform/forms/Screens.h"
#include "search/Search_Screens.h"

int main(int argc, char** argv) {
  Forms::Application application(argc, argv);
  if (!application.Is_Only_One_On(Own_Data_File())) return 0;
  Register_Main_Window_Screens();
  Register_Cellar_Screens();
  Register_Pairing_Screens();
  Register_Search_Screens();
  return application.Run([] { Forms::Screen("Wine_Cellar_Form").Open(); });
}

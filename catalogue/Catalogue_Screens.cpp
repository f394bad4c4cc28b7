#include "catalogue/Catalogue_Screens.h"

#include "catalogue/Classification_Form.h"
#include "catalogue/Label_Form.h"
#include "catalogue/List_Screens.h"
#include "catalogue/Regions_Add_Mod_Varieties_Form.h"
#include "catalogue/Regions_Form.h"
#include "catalogue/Wineries_Form.h"
#include "platform/forms/Screens.h"

void Register_Catalogue_Screens() {
  Forms::Screens::Register<Classification_Form>("Classification_Form");
  Forms::Screens::Register<Label_Form>("Label_Form");
  Forms::Screens::Register<Regions_Add_Mod_Varieties_Form>("Regions_Add_Mod_Varieties_Form");
  Forms::Screens::Register<Regions_Form>("Regions_Form");
  Forms::Screens::Register<Wineries_Form>("Wineries_Form");
  Register_List_Screens();
}

#include "main_window/Main_Window_Screens.h"

#include "main_window/Cellar_Names_Form.h"
#include "main_window/Wine_Cellar_Form.h"
#include "platform/forms/Screens.h"

void Register_Main_Window_Screens() {
  Forms::Screens::Register<Wine_Cellar_Form>("Wine_Cellar_Form");
  Forms::Screens::Set_Main("Wine_Cellar_Form");
  Forms::Screens::Register<Cellar_Names_Form>("Cellar_Names_Form");
}

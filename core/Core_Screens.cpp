#include "core/Core_Screens.h"

#include "core/Cellar_Names_Form.h"
#include "core/Wine_Cellar_Form.h"
#include "platform/forms/Screens.h"

void Register_Core_Screens() {
  Forms::Screens::Register<Wine_Cellar_Form>("Wine_Cellar_Form");
  Forms::Screens::Set_Main("Wine_Cellar_Form");
  Forms::Screens::Register<Cellar_Names_Form>("Cellar_Names_Form");
}

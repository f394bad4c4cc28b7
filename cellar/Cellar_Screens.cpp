#include "cellar/Cellar_Screens.h"

#include "cellar/Wine_Form.h"
#include "platform/forms/Screens.h"

void Register_Cellar_Screens() { Forms::Screens::Register<Wine_Form>("Wine_Form"); }

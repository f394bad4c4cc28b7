#include "cellar/Cellar_Screens.h"
#include "core/Core_Screens.h"
#include "platform/forms/Application.h"
#include "platform/forms/Screens.h"

int main(int argc, char** argv) {
  Forms::Application application(argc, argv);
  Register_Core_Screens();
  Register_Cellar_Screens();
  return application.Run([] { Forms::Screen("Wine_Cellar_Form").Open(); });
}

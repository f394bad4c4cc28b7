#include "app/Program_Screens.h"
#include "core/Gereral_Processes.h"
#include "platform/forms/Application.h"
#include "platform/forms/Screens.h"

int main(int argc, char** argv) {
  Forms::Application application(argc, argv);
  if (!application.Is_Only_One_On(Own_Data_File())) return 0;
  Register_Program_Screens();
  return application.Run([] { Forms::Screen("Wine_Cellar_Form").Open(); });
}

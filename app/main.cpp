#include <iostream>
#include <string_view>

#include "app/Program_Screens.h"
#include "core/Gereral_Processes.h"
#include "core/Known_Faults.h"
#include "platform/forms/Application.h"
#include "platform/forms/Screens.h"

namespace {

constexpr int wrong_use = 2;

// What the toolkit left of the command line. False for anything but the one option.
bool Take_Options(int argc, char** argv) {
  for (int option = 1; option < argc; ++option) {
    if (std::string_view(argv[option]) != "--mended") return false;
    Mend_Known_Faults();
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  Forms::Application application(argc, argv);
  if (!Take_Options(argc, argv)) {
    std::cerr << "usage: wine_cellar [--mended]\n";
    return wrong_use;
  }
  if (!application.Is_Only_One_On(Own_Data_File())) return 0;
  Register_Program_Screens();
  return application.Run([] { Forms::Screen("Wine_Cellar_Form").Open(); });
}

// The main of every test that opens windows.
#include <gtest/gtest.h>

#include <cstdlib>

#include "platform/forms/Application.h"
#include "tests/support/Temporary_Folder.h"

int main(int argc, char** argv) {
  // The smallest desktop that the program is made for.
  setenv("QT_QPA_PLATFORM", "offscreen:configfile=" SCREEN_FILE, 0);
  const Temporary_Folder settings;  // never the user's
  setenv("XDG_CONFIG_HOME", settings.Path().c_str(), 1);
  testing::InitGoogleTest(&argc, argv);
  const Forms::Application application(argc, argv);
  return RUN_ALL_TESTS();
}

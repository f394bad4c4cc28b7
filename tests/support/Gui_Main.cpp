// The main of every test that opens windows.
#include <gtest/gtest.h>

#include <cstdlib>

#include "platform/forms/Application.h"

int main(int argc, char** argv) {
  // The smallest desktop that the program is made for.
  setenv("QT_QPA_PLATFORM", "offscreen:configfile=" SCREEN_FILE, 0);
  testing::InitGoogleTest(&argc, argv);
  const Forms::Application application(argc, argv);
  return RUN_ALL_TESTS();
}

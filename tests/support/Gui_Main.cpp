// The main of every test that opens windows.
#include <gtest/gtest.h>

#include "platform/forms/Application.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const Forms::Application application(argc, argv);
  return RUN_ALL_TESTS();
}

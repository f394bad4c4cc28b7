// What the screen shows and allows in each of its modes, from its opening to the pick and the
// button.
#include <gmock/gmock.h>

#include "tests/cellar/Cellar_Program.h"

namespace {

using Modes = Cellar_Program;

TEST_F(Modes, A_wine_filled_in_can_be_saved) {
  const Long wine = Put_Wine(Sample_Wine());
  Put_Mark(wine, "Taste", 2);
  Start_With("Wine_Add");
  EXPECT_EQ(Row_of(wine), 0);
  Box_Script boxes;
  Fill_Add();
  EXPECT_TRUE(Is_Usable("Multi_Functional_Command"));
  Click("Multi_Functional_Command");
  EXPECT_THAT(boxes.Texts(),
              testing::ElementsAre("This Wine was successfully ADDED to your Wine Cellar."));
  EXPECT_EQ(Stored("SELECT Wine_ID FROM Wines", 1).size(), 2U);
}

}  // namespace

// The pickers: how entries are chosen and handed on.
#include <gmock/gmock.h>

#include "tests/pairing/Pairing_Program.h"

namespace {

using Pickers = Pairing_Program;

TEST_F(Pickers, An_entry_is_chosen_once_and_taken_out) {
  Start();
  Pick("Pairing_Search_Cellar");
  Add(Food(0).name);
  Add(Food(0).name);
  EXPECT_THAT(Lines("SelectList"), testing::ElementsAre(Food(0).name));
  Double_Click_Line("SelectList", Food(0).name);
  EXPECT_THAT(Lines("SelectList"), testing::IsEmpty());
}

}  // namespace

#include "tests/pairing/Pickers_Program.h"

#include <algorithm>

#include "platform/record_store/Text_Order.h"

Pickers_Program::Texts Pickers_Program::In_Order(const Text& statement) const {
  Texts texts = Stored(statement, 1);
  std::ranges::stable_sort(texts,
                           [](const Text& a, const Text& b) { return Compare_Texts(a, b) < 0; });
  return texts;
}

void Maridages_Picker::SetUp() {
  Stand_In("Varieties_Form", {suggested, suggested_keys});
  Stand_In("Cheeses_Form", {foods, food_keys});
}

void Maridages_Picker::Open(const char* command) {
  Start();
  Variety_Pairings_Changed = Cheese_Foods_Changed = false;
  Open_Screen_Under(maridages, command);
}

void Maridages_Picker::Expect_State(const Texts& chosen, bool add, bool remove) {
  EXPECT_EQ(Lines("SelectList"), chosen);
  EXPECT_EQ(Shown_Text("Selected_Number"), std::to_string(chosen.size()));
  EXPECT_EQ(Is_Usable("Add_Command"), add);
  EXPECT_EQ(Is_Usable("Remove_Command"), remove);
  EXPECT_EQ(Is_Usable("MultSelect"), !chosen.empty());
}

Text Maridages_Picker::Used(int food) const {
  return Stored("SELECT Used FROM Maridages WHERE Maridage_ID = " + Food(food).id, 1)[0];
}

// The pickers, beside stand-ins for the screens that hand over to them.
#pragma once

#include "links/Varieties_Processes.h"
#include "platform/record_store/Text_Order.h"
#include "tests/support/Pairing_Program.h"

class Pickers_Program : public Pairing_Program {
 protected:
  static constexpr const char* maridages = "Select_Mult_Maridages_Form";
  static constexpr const char* varieties = "Select_Mult_Varieties_Form";
  static constexpr const char* wines = "Select_Mult_Wines_Form";

  /// Unloaded, and this screen is the one that is seen.
  static void Expect_Left(const char* picker, const char* to) {
    EXPECT_FALSE(Forms::Screen(picker).Is_Loaded());
    EXPECT_TRUE(Is_Seen(to)) << to;
    EXPECT_TRUE(Wait_Until([to] { return Find(to).isActiveWindow(); })) << to;
  }
  /// The texts of one field, in the one order of texts.
  Texts In_Order(const Text& statement) const {
    Texts texts = Stored(statement);
    std::ranges::stable_sort(texts,
                             [](const Text& a, const Text& b) { return Compare_Texts(a, b) < 0; });
    return texts;
  }
};

/// The picker of pairings, whose entries are handed to the stand-ins of the grapes and the cheeses.
class Maridages_Picker : public Pickers_Program {
 protected:
  static constexpr const char* suggested = "Suggested_Pairings_List";
  static constexpr const char* suggested_keys = "Suggested_Pairings_Index_List";
  static constexpr const char* foods = "Food_Parings_List";
  static constexpr const char* food_keys = "Food_Parings_Index_List";

  void SetUp() override {
    Stand_In("Varieties_Form", {suggested, suggested_keys});
    Stand_In("Cheeses_Form", {foods, food_keys});
  }
  void Open(const char* command = "VarietyAdd") {
    Start();
    Variety_Pairings_Changed = Cheese_Foods_Changed = false;
    Open_Under(maridages, command);
  }
  /// What is chosen, its number, whether Add and Remove can be used; PROCEED goes with the number.
  static void Expect_State(const Texts& chosen, bool add, bool remove) {
    EXPECT_EQ(Lines("SelectList"), chosen);
    EXPECT_EQ(Shown_Text("Selected_Number"), std::to_string(chosen.size()));
    EXPECT_EQ(Is_Usable("Add_Command"), add);
    EXPECT_EQ(Is_Usable("Remove_Command"), remove);
    EXPECT_EQ(Is_Usable("MultSelect"), !chosen.empty());
  }
};

// How entries are chosen, taken out and handed on: what all pickers do, on the one of pairings.
#include "tests/pairing/Pickers_Program.h"

namespace {

using Pickers = Maridages_Picker;

TEST_F(Pickers, The_pairings_in_the_order_of_the_language_and_their_number) {
  for (const int use : {0, 1, 4, 2, 3}) {
    const Text name = "Émile " + std::to_string(use);
    Put("Maridages", {{"English", name}, {"German", name}, {"Japanese", name}, {"Multiuse", use}});
  }
  for (const auto& [language, field] :
       {std::pair<Integer, Text>{english, "English"}, {german, "German"}, {japanese, "Japanese"}}) {
    Set_Language(language);
    Start_With("Pairing_Search_Cellar");
    const Texts expected =
        In_Order("SELECT " + field + " FROM Maridages WHERE Multiuse = 2 OR Multiuse = 3");
    EXPECT_EQ(Lines("Cat_List"), expected);
    EXPECT_EQ(Shown_Text("Cat_Number"), std::to_string(expected.size()));
    Expect_State({}, false, false);
    Add(expected[40]);
    Told_By([] { Click("MultSelect"); });
    EXPECT_THAT(Selection(),
                ElementsAre(One("SELECT " + field + " || '|' || Maridage_ID FROM Maridages WHERE " +
                                field + " = '" + expected[40] + "'")));
  }
}

TEST_F(Pickers, By_keys_alone_and_the_buttons_follow) {
  Open();
  const Text a = Food(0).name, b = Food(1).name, c = Food(2).name;
  EXPECT_EQ(Focused(), "Cat_List");
  Press("Return");
  Press("Delete");
  Expect_State({}, false, false);
  for (const Text& name : {a, b, c}) {
    Type_Anew(name.c_str());
    Press("Return");
  }
  Expect_State({a, b, c}, true, false);
  EXPECT_EQ(Focused(), "Cat_List");
  Find("SelectList").setFocus();
  Press("Home");
  Expect_State({a, b, c}, true, true);
  Press("Return");  // adds and takes out nothing here
  Press("Delete");
  Expect_State({b, c}, true, true);
  Press("Delete");
  Expect_State({c}, true, true);
  Press("Delete");
  Press("Delete");
  Expect_State({}, true, false);
}

TEST_F(Pickers, By_mouse_and_what_is_taken_out_is_the_current_entry) {
  Open();
  const Text a = Food(0).name, b = Food(1).name, c = Food(2).name;
  Add(a);
  Double_Click_Line("Cat_List", b);
  Double_Click_Line("Cat_List", c);
  Expect_State({a, b, c}, true, false);
  Click_Line("SelectList", b);
  Expect_State({a, b, c}, true, true);
  Click("Remove_Command");
  Expect_State({a, c}, true, false);
  EXPECT_EQ(Focused(), "SelectList");
  Click_Line("SelectList", c);
  Press("Delete");  // the last one: the one before it is next
  Expect_State({a}, true, true);
  Click("Cat_List");
  Add(b);
  Double_Click_Line("SelectList", a);
  Expect_State({b}, true, false);
  Click("MultSelect");
  EXPECT_THAT(Selection(), ElementsAre(b + "|" + Food(1).id));
}

TEST_F(Pickers, A_double_by_text_or_by_key_is_refused_without_a_word_or_by_key_alone) {
  const Text same = Food(0).name + "  ";
  Put("Maridages", {{"English", same}, {"Multiuse", 3}});
  for (const bool mended : {false, true}) {
    const Faults_Mended faults(mended);
    Start();
    Give("Varieties_Form", suggested, suggested_keys, "An older name", Food(1).id);
    Open_Under(maridages, "VarietyMod");
    Expect_State({"An older name"}, false, false);
    const Box_Script boxes;
    Add(Food(0).name);
    Add(Food(0).name);
    Add(same);
    Add(Food(1).name);
    Double_Click_Line("Cat_List", Food(1).name);
    Press("Return");
    Texts chosen{"An older name", Food(0).name};
    if (mended) chosen.push_back(same);
    EXPECT_EQ(Lines("SelectList"), chosen);
    EXPECT_THAT(boxes.Boxes(), IsEmpty());
    Double_Click_Line("SelectList", "An older name");
    Add(Food(1).name);
    chosen.erase(chosen.begin());
    chosen.push_back(Food(1).name);
    EXPECT_EQ(Lines("SelectList"), chosen);
  }
}

TEST_F(Pickers, A_hundred_are_handed_on_and_one_more_is_taken_or_refused_in_words) {
  for (const bool mended : {false, true}) {
    const Faults_Mended faults(mended);
    const int most = mended ? 100 : 101;
    Open();
    Box_Script boxes;
    Click_Row("Cat_List", 0);
    Press("Return");
    for (int entry = 2; entry <= most; ++entry) {
      Press("Down");
      Press("Return");
    }
    EXPECT_THAT(boxes.Boxes(), IsEmpty());
    Texts all = Lines("Cat_List");
    all.resize(static_cast<std::size_t>(most));
    Expect_State(all, true, false);
    const QAbstractItemView& chosen = View_Of("SelectList");
    const QRect last = chosen.visualRect(chosen.model()->index(most - 1, 0));
    EXPECT_TRUE(chosen.viewport()->rect().contains(last.center()));
    Press("Down");
    Press("Return");
    Click("Add_Command");
    const Text refusal = mended ? "NO ROOM FOR MORE: 100 entries are chosen, and more cannot be. "
                                  "Take one out first."
                                : ": \r  100";
    EXPECT_THAT(boxes.Said(), ElementsAre(refusal, refusal));
    EXPECT_EQ(boxes.Boxes()[0].sign, Forms::Sign::Warning);
    boxes.Forget();
    Add(all[0]);  // a double is refused before the number is looked at
    EXPECT_THAT(boxes.Boxes(), IsEmpty());
    if (!mended) {
      Expect_End(9, [] { Click("MultSelect"); });
      Double_Click_Line("SelectList", all[0]);
      all.erase(all.begin());
    }
    Click("MultSelect");
    Expect_Left(maridages, "Varieties_Form");
    EXPECT_EQ(Selected_Count, 100);
    for (int entry = 1; entry <= 100; ++entry) {
      EXPECT_EQ(Selected_Names[entry], all[static_cast<std::size_t>(entry) - 1]);
    }
    EXPECT_TRUE(Variety_Pairings_Changed);
  }
}

}  // namespace

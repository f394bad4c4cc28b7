// The picker of pairings under each of its commands: for a grape, a cheese, a wine, and the
// searches that find nothing.
#include "platform/run_time/Guard.h"
#include "tests/pairing/Pickers_Program.h"

namespace {

// Whose list it is, what it begins with, and what PROCEED sets: for a grape or a cheese.
TEST_F(Maridages_Picker, For_a_grape_or_a_cheese) {
  struct Case {
    const char *command, *screen, *word, *name, *caption;
    bool copied;
    const bool& flag;
  };
  const char* design = "Select Recipe's Categories";
  for (const Case& use :
       {Case{"VarietyAdd", "Varieties_Form", "Grape Variety:", "Malbec", design, false,
             Variety_Pairings_Changed},
        {"VarietyMod", "Varieties_Form", "Grape Variety:", "Malbec",
         "MODIFY Maridages of Grape Variety", true, Variety_Pairings_Changed},
        {"VarietyPairings", "Varieties_Form", "Grape Variety:", "Malbec", design, true,
         Variety_Pairings_Changed},
        {"CheeseAdd", "Cheeses_Form", "Cheese: ", "Brie", design, false, Cheese_Foods_Changed},
        {"CheeseMod", "Cheeses_Form", "Cheese: ", "Brie", "MODIFY Maridages of Grape Cheeses", true,
         Cheese_Foods_Changed}}) {
    SCOPED_TRACE(use.command);
    Start();
    Variety_Pairings_Changed = Cheese_Foods_Changed = false;
    Varieties.Variety_Name = "Malbec";
    Cheeses.Cheese_Name = "Brie";
    Give("Varieties_Form", suggested, suggested_keys, "Of a grape", "11");
    Give("Cheeses_Form", foods, food_keys, "Of a cheese", "22");
    Open_Under(maridages, use.command);
    EXPECT_EQ(Shown_Text(maridages), use.caption);
    EXPECT_EQ(Shown_Text("MSelectLab3"), use.word);
    EXPECT_EQ(Shown_Text("Recipe_Name"), use.name);
    EXPECT_TRUE(Is_Seen("MSelectLab3") && Is_Seen("Recipe_Name"));
    const bool grape = Text(use.screen) == "Varieties_Form";
    const Text first = grape ? "Of a grape" : "Of a cheese";
    Expect_State(use.copied ? Texts{first} : Texts{}, false, false);
    Varieties.Variety_Name = Cheeses.Cheese_Name = "Another name";
    Current_Command = "WineAdd";  // of a screen that was in front meanwhile
    Run_Guarded([] { Forms::Screen(maridages).Show(); });
    EXPECT_EQ(Shown_Text("Recipe_Name"), "Another name");
    EXPECT_EQ(Current_Command, use.command);
    Add(Food(0).name);
    Click("MultSelect");
    Texts expected{Food(0).name + "|" + Food(0).id};
    if (use.copied) expected.insert(expected.begin(), first + (grape ? "|11" : "|22"));
    EXPECT_EQ(Selection(), expected);
    EXPECT_TRUE(use.flag);
    EXPECT_NE(Variety_Pairings_Changed, Cheese_Foods_Changed);
    Expect_Left(maridages, use.screen);
  }
}

TEST_F(Maridages_Picker, For_a_wine_of_the_cellar) {
  const Long wine = Put_Wine(Sample_Wine());
  Put_Pairing(wine, Food(0));
  Start_With("Wine_Mod");
  Pick_Wine(wine);
  Open_Under(maridages, "WineMod");
  Expect_State({Food(0).name}, false, false);
  Add(Food(2).name);
  Click("MultCancel");
  Expect_Left(maridages, "Wine_Form");
  EXPECT_THAT(Lines("Pairing_List"), ElementsAre(Food(0).name));
  Open_Under(maridages, "WineMod");
  Expect_State({Food(0).name}, false, false);
  Add(Food(2).name);
  Click("MultSelect");
  EXPECT_THAT(Selection(),
              ElementsAre(Food(0).name + "|" + Food(0).id, Food(2).name + "|" + Food(2).id));
  EXPECT_THAT(Lines("Pairing_List"), ElementsAre(Food(0).name, Food(2).name));
}

TEST_F(Maridages_Picker, Cancel_hands_nothing_on_and_leads_to_the_caller) {
  const auto by_button = [] { Click("MultCancel"); };
  const auto by_key = [] { Press("Esc"); };
  const auto by_frame = [] { Close_Window(maridages); };
  for (const auto& [command, to, leave] :
       {std::tuple<const char*, const char*, std::function<void()>>{"WineSearch",
                                                                    "Wine_Cellar_Form", by_key},
        {"MobileSearch", "Wine_Cellar_Form", by_frame},
        {"WineSearch", "Wine_Cellar_Form", by_button},
        {"VarietyPairings", "Varieties_Form", by_button},
        {"VarietyAdd", "Varieties_Form", by_frame},
        {"CheeseAdd", "Cheeses_Form", by_button},
        {"CheeseMod", "Cheeses_Form", by_key}}) {
    SCOPED_TRACE(command);
    Open(command);
    Expect_State({}, false, false);
    Selected_Count = 1;
    std::tie(Selected_Names[1], Selected_IDs[1]) = std::pair{"Before", "5"};
    Add(Food(0).name);
    leave();
    Expect_Left(maridages, to);
    EXPECT_THAT(Selection(), ElementsAre("Before|5"));
    EXPECT_FALSE(Variety_Pairings_Changed || Cheese_Foods_Changed);
  }
}

TEST_F(Maridages_Picker, A_search_that_finds_nothing_in_the_cellar_leaves_the_picker_as_it_is) {
  const auto used = [this] { return std::tuple(Used(Food(0)), Used(Food(1)), Used(Food(2))); };
  const auto [first, second, third] = used();
  Put_Pairing(Put_Wine(Sample_Wine()), Food(2));
  Start_With("Pairing_Search_Cellar");
  EXPECT_FALSE(Is_Seen("MSelectLab3") || Is_Seen("Recipe_Name") || Is_Seen("MSelectLab2"));
  Add(Food(0).name);
  Add(Food(1).name);
  EXPECT_THAT(
      Told_By([] { Click("MultSelect"); }),
      ElementsAre("NO Wines found: There are NO wines with\rANY of the pairings selected !!!",
                  "NO WINES PAIRINGS: Thera are NO wines matching any of your pairings."));
  EXPECT_TRUE(Is_Seen(maridages));
  EXPECT_FALSE(Is_Seen("Wine_Cellar_Form"));
  EXPECT_FALSE(Forms::Screen("Wine_Search_Results_Form").Is_Loaded());
  Expect_State({Food(0).name, Food(1).name}, true, false);
  EXPECT_EQ(used(), std::tuple(first + 1, second + 1, third));
  Press("Esc");
  Pick("Pairing_Search_Cellar");
  Expect_State({}, false, false);
}

TEST_F(Maridages_Picker, A_search_that_finds_nothing_in_the_general_list_ends_in_the_main_window) {
  const int used = Used(Food(0));
  Remove_Rows("Maridages_Per_Mobile_Wines");
  Set_Language(german);
  Start_With("Pairing_Search_General");
  EXPECT_FALSE(Is_Seen("MSelectLab3") || Is_Seen("Recipe_Name"));
  Add(One("SELECT German FROM Maridages WHERE Maridage_ID = " + Food(0).id));
  EXPECT_THAT(
      Told_By([] { Click("MultSelect"); }),
      ElementsAre(
          "NO Wines found: There are NO Wines with\rANY of the pairings selected !!!",
          "KEINE PASSENDEN WEINE: Es gibt KEINE Weine, die zu einer Ihrer Speisen passen."));
  Expect_Left(maridages, "Wine_Cellar_Form");
  EXPECT_EQ(Used(Food(0)), used);
}

}  // namespace

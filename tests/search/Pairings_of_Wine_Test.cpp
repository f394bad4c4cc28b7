// The pairings of a wine: chosen beside the wine's screen, stored by group, and shown again.

#include <QWidget>

#include "tests/search/Search_Program.h"

namespace {

constexpr const char* chooser = "Select_Maridages_for_Wines_Form";
constexpr const char* options = "Selection_Option_List";

class Pairings_of_Wine : public Search_Program {
 protected:
  void Start_With_Picked(Long wine) {
    Start_With("Wine_Mod");
    Pick_Wine(wine);
  }
  static void Choose_Pairings() { Click("Pairings_Add_Command"); }
  static void Commit(const char* title) {
    EXPECT_THAT(Told_By([] { Click(button); }), ElementsAre(StartsWith(title)));
  }
  static void Save() { Commit("WINE ADDITION SUCCESSFULLY"); }
  static void Modify() { Commit("WINE INFORMATION UPDATED"); }
  static void Remove(const Text& name) {
    Click_Line("SelectList", name);
    Click("Remove_Command");
  }
  Texts Offered(const Text& language) const {
    return Stored("SELECT " + language + " FROM Maridages WHERE Multiuse IN (2, 3) ORDER BY " +
                  language);
  }
  /// The pairings that a grape suggests, in a language, as its link rows tell them.
  Texts Suggested(const Text& grape, const char* language) const {
    return Stored("SELECT m." + Text(language) +
                  " FROM Varieties v JOIN Maridages_Per_Variety l ON l.Variety_ID = v.Variety_ID "
                  "JOIN Maridages m ON m.Maridage_Group = l.[GROUP] / 10 AND "
                  "substr('0000000000' || l.SUBCATEGO, -m.Maridage_SubGr, 1) = '1' "
                  "WHERE v.Variety_Name = '" +
                  grape + "' ORDER BY l.rowid, m.Maridage_SubGr DESC");
  }
};

// ---- what is offered ----

TEST_F(Pairings_of_Wine, The_chooser_offers_every_pairing_then_those_of_each_ticked_grape) {
  Start_With("Wine_Add");
  New_Wine wine;
  wine.ticks = {1, 3};
  wine.label = Sample().label;
  Fill_Add(wine);
  const Texts grapes = Ticked_Rows("Variety_Combo");
  Choose_Pairings();
  EXPECT_EQ(Shown_Text(chooser), "Parings for Wines");
  EXPECT_EQ(Shown_Text("Wine_Name_Text"), Sample().name + " - " + Sample().label);
  EXPECT_THAT(Lines(options), ElementsAre("Complete Pairing List", grapes.at(0), grapes.at(1)));
  EXPECT_EQ(Shown_Text("Pairings_Label"), "All available Pairings");
  EXPECT_EQ(Lines("Cat_List"), Offered("English"));
  EXPECT_THAT(Lines("SelectList"), IsEmpty());
  EXPECT_EQ(Focused(), "Cat_List");
  for (const char* command : {"Add_Command", "Remove_Command", "MultSelect", "Display_Command"}) {
    EXPECT_FALSE(Is_Usable(command)) << command;
  }
  for (const int grape : {1, 2}) {
    Click_Row(options, grape);
    EXPECT_EQ(Shown_Text("Pairings_Label"), "Suggestred Pairings for this Grape");
    EXPECT_THAT(Lines("Cat_List"), Not(IsEmpty()));
    EXPECT_EQ(Lines("Cat_List"), Suggested(grapes.at(grape - 1), "English"));
    EXPECT_FALSE(Is_Usable("Add_Command"));
  }
  const Text first = Lines("Cat_List").front();
  Add(first);
  Click_Row(options, 0);
  EXPECT_THAT(Lines("SelectList"), ElementsAre(first));
}

// ---- a new wine ----

TEST_F(Pairings_of_Wine, What_is_chosen_for_a_new_wine_is_stored_with_it_by_group) {
  const Sample_Pairing &one = Food_at(0, 1), &three = Food_at(0, 3), &other = Food(1);
  const int used = Used(three);
  Start_With("Wine_Add");
  Fill_Add();
  Choose_Pairings();
  for (const Sample_Pairing& pairing : {one, other, other, three}) Add(pairing.name);
  Remove(other.name);
  EXPECT_THAT(Lines("SelectList"), ElementsAre(one.name, three.name));
  Click("MultSelect");
  EXPECT_FALSE(Is_There(chooser));
  EXPECT_THAT(Lines("Pairing_List"), ElementsAre(one.name, three.name));
  EXPECT_THAT(Lines("Pairing_Index_List"), ElementsAre(one.id, three.id));
  EXPECT_EQ(Tag_of("Pairing_List") + Tag_of("Pairings_Add_Command"), "10");
  EXPECT_EQ(Color_of("Pairing_List"), "open");
  Choose_Pairings();  // begins anew, and takes the place of what was chosen before
  EXPECT_THAT(Lines("SelectList"), IsEmpty());
  for (const Sample_Pairing& pairing : {other, one, three}) Add(pairing.name);
  Remove(other.name);
  Add(other.name);
  Click("MultSelect");
  EXPECT_THAT(Lines("Pairing_Index_List"), ElementsAre(one.id, three.id, other.id));
  Save();
  EXPECT_THAT(Links_of(1), ElementsAre(Link(one, "101"), Link(other, "1")));
  EXPECT_EQ(Used(three), used + 1);
  EXPECT_THAT(Lines("Pairing_List"), IsEmpty());
  Fill_Add({}, 1);
  Save();
  EXPECT_THAT(Links_of(2), IsEmpty());
  EXPECT_EQ(Used(three), used + 1);
}

TEST_F(Pairings_of_Wine, Mended_the_chooser_of_a_new_wine_begins_with_what_it_has) {
  const Faults_Mended faults;
  Start_With("Wine_Add");
  Fill_Add();
  Choose_Pairings();
  for (const int food : {0, 1}) Add(Food(food).name);
  Click("MultSelect");
  Choose_Pairings();
  EXPECT_THAT(Lines("SelectList"), ElementsAre(Food(0).name, Food(1).name));
  Click_Row(options, 1);  // the suggestions take the place of the selection
  Remove(Food(0).name);
  Click_Row(options, 0);
  Add(Food(2).name);
  Click("MultSelect");
  EXPECT_THAT(Lines("Pairing_Index_List"), ElementsAre(Food(1).id, Food(2).id));
  Choose_Pairings();
  for (const int food : {1, 2}) Remove(Food(food).name);
  Click("MultSelect");
  EXPECT_THAT(Lines("Pairing_List"), IsEmpty());
  Save();
  EXPECT_THAT(Links_of(1), IsEmpty());
}

// ---- a wine that is corrected ----

TEST_F(Pairings_of_Wine, A_modify_stores_the_list_of_this_wine_however_often_it_was_chosen) {
  const Sample_Pairing &kept = Food_at(0, 2), &gone = Food_at(1, 2), &come = Food_at(0, 3);
  const Long before = Put_Wine_with({kept});
  const Long wine = Put_Wine_with({kept, gone});
  const Long after = Put_Wine_with({gone});
  const int used_kept = Used(kept);
  const int used_gone = Used(gone);
  Start_With_Picked(wine);
  Choose_Pairings();
  EXPECT_EQ(Shown_Text("Wine_Name_Text"), Sample().name + " - " + Sample().label);
  EXPECT_THAT(Lines(options), ElementsAre("Complete Pairing List", Sample().varieties[0]));
  EXPECT_THAT(Lines("SelectList"), ElementsAre(kept.name, gone.name));
  EXPECT_TRUE(Is_Usable("MultSelect"));
  Remove(kept.name);
  Add(come.name);
  Click("MultSelect");
  EXPECT_THAT(Lines("Pairing_List"), ElementsAre(gone.name, come.name));
  // Now the keys beside the list begin with those of the stored pairings.
  Choose_Pairings();
  Remove(gone.name);
  Add(kept.name);
  Click("MultSelect");
  Modify();
  EXPECT_THAT(Links_of(wine), ElementsAre(Link(kept, "110")));
  EXPECT_THAT(Links_of(before), ElementsAre(Link(kept, "10")));
  EXPECT_THAT(Links_of(after), ElementsAre(Link(gone, "10")));
  EXPECT_EQ(Used(kept), used_kept + 1);
  EXPECT_EQ(Used(gone), used_gone);
}

TEST_F(Pairings_of_Wine, An_empty_list_can_be_handed_back_and_leaves_what_is_stored) {
  const Long wine = Put_Wine_with({Food(0), Food(1)});
  const int used = Used(Food(0));
  Start_With_Picked(wine);
  Choose_Pairings();
  Click_Line("SelectList", Food(0).name);
  Press("Delete");
  Press("Delete");
  EXPECT_THAT(Lines("SelectList"), IsEmpty());
  EXPECT_FALSE(Is_Usable("Remove_Command"));
  Click("MultSelect");
  EXPECT_THAT(Lines("Pairing_List"), IsEmpty());
  Modify();
  EXPECT_THAT(Links_of(wine), ElementsAre(Link(Food(0), "1"), Link(Food(1), "1")));
  EXPECT_EQ(Used(Food(0)), used);
}

TEST_F(Pairings_of_Wine, Leaving_the_chooser_otherwise_changes_nothing) {
  const std::vector<Sample_Pairing> pairings{Food(0), Food(1)};
  const Long wine = Put_Wine_with(pairings);
  Start_With_Picked(wine);
  const std::vector<std::function<void()>> ways{[] { Click("MultCancel"); }, [] { Press("Esc"); },
                                                [] { Close_Window(chooser); }};
  for (const auto& leave : ways) {
    Choose_Pairings();
    Remove(Food(0).name);
    Click_Row(options, 1);
    ASSERT_NE(Selection(), Selection_of(pairings));  // the suggestions have taken its place
    Add(Lines("Cat_List").front());
    leave();
    EXPECT_FALSE(Is_There(chooser));
    EXPECT_TRUE(Is_Usable(button));
    EXPECT_THAT(Lines("Pairing_List"), ElementsAre(Food(0).name, Food(1).name));
    EXPECT_EQ(Selection(), Selection_of(pairings));
  }
  Modify();
  EXPECT_THAT(Links_of(wine), ElementsAre(Link(Food(0), "1"), Link(Food(1), "1")));
}

// ---- a stored wine ----

TEST_F(Pairings_of_Wine, A_picked_wine_shows_its_pairings_in_the_language_and_in_every_mode) {
  const std::vector<Sample_Pairing> pairings{Food_at(0, 3), Food_at(0, 1), Food(1)};
  const Long wine = Put_Wine_with({pairings[1], Food(1)});
  Set("Maridages_Per_Wines", {{"SUBCATEGO", 101}});  // both subgroups in one row
  const Long without = Put_Wine_with({});
  for (const auto& [number, language] :
       {std::pair{3, "English"}, {8, "Japanese"}, {9, "Portuguese"}}) {
    Set_Language(static_cast<Integer>(number));
    Texts names;
    for (const Sample_Pairing& pairing : pairings) {
      names.push_back(
          Stored("SELECT " + Text(language) + " FROM Maridages WHERE Maridage_ID = " + pairing.id)
              .front());
    }
    Start_With_Picked(wine);
    Choose_Pairings();
    EXPECT_EQ(Lines("SelectList"), names);
    EXPECT_EQ(Lines("Cat_List"), Offered(language));
    Click_Row(options, 1);
    EXPECT_EQ(Lines("Cat_List"), Suggested(Sample().varieties[0], language));
    Click("MultCancel");
    Click("Exit_Command");
    for (const char* entry : {"Wine_Mod", "Cellar1_View", "Wine_Uncork", "Wine_Del"}) {
      SCOPED_TRACE(Text(entry) + " in " + language);
      Pick(entry);
      Pick_Wine(wine);
      EXPECT_EQ(Lines("Pairing_List"), names);
      EXPECT_THAT(Lines("Pairing_Index_List"),
                  ElementsAre(pairings[0].id, pairings[1].id, pairings[2].id));
      const Texts selection = Selection();
      EXPECT_EQ(selection.size(), 3U);
      Pick_Wine(without);
      EXPECT_THAT(Lines("Pairing_List"), IsEmpty());
      EXPECT_EQ(Selection(), selection);
      Click("Exit_Command");
    }
  }
}

TEST_F(Pairings_of_Wine, A_wine_without_pairings_gets_none_of_the_wine_that_was_picked_before) {
  const Long with = Put_Wine_with({Food(0), Food(1)});
  const Long without = Put_Wine_with({});
  Start_With_Picked(with);
  Pick_Wine(without);
  Choose_Pairings();
  EXPECT_THAT(Lines("SelectList"), IsEmpty());
  Add(Food(2).name);
  Click("MultSelect");
  Modify();
  EXPECT_THAT(Links_of(without), ElementsAre(Link(Food(2), "1")));
  EXPECT_EQ(Links_of(with).size(), 2U);
}

// ---- for a grape variety ----

class Pairings_of_Variety : public Search_Program {
 protected:
  static constexpr const char* suggested = "Suggested_Pairings_List";
  static constexpr const char* suggested_keys = "Suggested_Pairings_Index_List";

  Pairings_of_Variety() {
    // What the chooser asks of the screen of the varieties.
    Stand_In("Varieties_Form", {"Variety_Name_Text", suggested, suggested_keys});
    Varieties.Variety_Name = "Carménère";
    Variety_Pairings_Changed = false;
  }
  // The variety has two pairings, and its name is being changed.
  void Open_Chooser(const char* command) {
    Start();
    Open_Under("Varieties_Form", command);
    for (const Sample_Pairing& food : {Food(1), Food(0)}) {
      Give("Varieties_Form", suggested, suggested_keys, food.name, food.id);
    }
    Type_Into("Variety_Name_Text", "Grande Vidure");
    Open_Under(chooser, command);
  }
};

TEST_F(Pairings_of_Variety, They_begin_as_they_are_and_cheeses_are_offered_beside_everything) {
  for (const auto& [command, name] :
       {std::pair{"VarietyMod", "Carménère"}, {"VarietyAdd", "Grande Vidure"}}) {
    SCOPED_TRACE(command);
    Open_Chooser(command);
    EXPECT_EQ(Shown_Text("Wine_Name_Text"), name);
    EXPECT_THAT(Lines(options), ElementsAre("Complete Pairing List", "Complete Cheeses List"));
    EXPECT_THAT(Lines("SelectList"), ElementsAre(Food(1).name, Food(0).name));
    Click_Row(options, 1);
    EXPECT_EQ(Shown_Text("Pairings_Label"), "All available Cheeses");
    const Texts cheeses =
        Stored("SELECT English FROM Maridages WHERE Cheese_ID <> -1 ORDER BY English");
    EXPECT_EQ(Lines("Cat_List"), cheeses);
    Click("MultCancel");
    EXPECT_FALSE(Variety_Pairings_Changed);
    EXPECT_TRUE(Is_Seen("Varieties_Form"));
    Open_Under(chooser, command);
    Click_Row(options, 1);
    Double_Click_Line("Cat_List", cheeses[1]);
    Double_Click_Line("SelectList", Food(1).name);
    Click("MultSelect");
    EXPECT_TRUE(std::exchange(Variety_Pairings_Changed, false));
    EXPECT_TRUE(Is_Seen("Varieties_Form"));
    EXPECT_FALSE(Is_There(chooser));
    const Text key = Stored(
        "SELECT Maridage_ID FROM Maridages WHERE Cheese_ID <> -1 "
        "ORDER BY English")[1];
    EXPECT_THAT(Selection(), ElementsAre(Selection_of({Food(0)})[0], cheeses[1] + "|" + key));
  }
}

}  // namespace

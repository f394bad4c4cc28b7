// Additions to the catalogue of pairings, and changes in it.
#include "core/tables/Cellar_DB_Processes.h"
#include "tests/pairing/Catalogue_Program.h"

namespace {

constexpr const char* assumption =
    "PAIRING LANGUAGE ASSUMPTION: Since you did not input the other language information , the "
    "main language information"
    "will be used also as the other language input.";
constexpr const char* added =
    "NEW PAIRING ADDED SUCCESSFULLY: New Pairing was added to the currently available list";

Text Copies(const char* letter, int count) {
  Text text;
  for (int copy = 0; copy < count; ++copy) text += letter;
  return text;
}

class Catalogue_Changes : public Catalogue {
 protected:
  static Texts Add_Pairing(const Two_Names& names) {
    Type_Names(names);
    return Told_By([] { Click("Cat_Add_Now"); });
  }
  static bool Last_Row_Is_In_Sight() {
    const QAbstractItemView& view = View_Of(list);
    const int last = view.model()->rowCount() - 1;
    return view.viewport()->rect().contains(view.visualRect(view.model()->index(last, 0)).center());
  }
};

TEST_F(Catalogue_Changes, An_addition_is_stored_whole_and_comes_into_the_list) {
  Set("Wine_System", {{"Installation_ID", "  77 "}});
  Open("Pairing_Add");
  const std::size_t rows = Shown_Column(list, 0).size();
  EXPECT_THAT(Add_Pairing({"Pie, é la crème", "Pastel"}), ElementsAre(added));
  EXPECT_THAT(Added("Maridage_Group, Maridage_SubGr, Maridage_Name, SERIAL_NUMBER, English, "
                    "Spanish, French, German, Italian, Japanese, Portuguese, Multiuse, Used"),
              ElementsAre("1000000|1|Pie, é la crème|CUS77-06-15-2026|Pie, é la crème|Pastel|x|x|x|"
                          "x|x|3|0"));
  ASSERT_EQ(Shown_Column(list, 0).size(), rows + 1);
  EXPECT_EQ(Shown_Column(list, 0).back(), "Pie, é la crème");
  EXPECT_EQ(Shown_Column(list, 1).back(), "Pastel");
  EXPECT_TRUE(Last_Row_Is_In_Sight());
  EXPECT_THAT(Boxes(), ElementsAre("Pie, é la crème", "Pastel"));
  EXPECT_TRUE(Is_Usable("Cat_Add_Now"));
  Type("Tart");
  Told_By([] { Press("Return"); });
  EXPECT_THAT(Boxes(), ElementsAre("Tart", "Pastel"));
  EXPECT_EQ(Shown_Column(list, 0).back(), "Tart");
  Click("Cat_Add_Cancel");
  Pick("Pairing_Search_Cellar");
  Add("Pie, é la crème");
  EXPECT_THAT(Lines("SelectList"), ElementsAre("Pie, é la crème"));
}

// Behind the highest place of the highest group, wherever that row stands; a row of a hidden use
// counts too.
TEST_F(Catalogue_Changes, A_new_place_follows_the_highest_one) {
  for (const auto& [group, subgroup] :
       {std::pair{1000007, 4}, {1000007, 9}, {1000007, 2}, {1000003, 10}, {999999, 1}}) {
    Maridages_Record pairing = Made_Up("Old " + std::to_string(group + subgroup));
    std::tie(pairing.Maridage_Group, pairing.Maridage_SubGr, pairing.Multiuse) =
        std::tuple{group, subgroup, Integer{1}};
    Put_Pairing(pairing);
  }
  Open("Pairing_Add");
  for (const char* name : {"One", "Two"}) Add_Pairing({name, name});
  const Texts places = Added("Maridage_Group, Maridage_SubGr");
  ASSERT_EQ(places.size(), 6U);
  EXPECT_THAT(Texts(places.begin() + 4, places.end()), ElementsAre("1000007|10", "1000008|1"));
}

TEST_F(Catalogue_Changes, A_double_in_the_language_in_force_is_refused_whatever_is_answered) {
  Put_Pairing(Made_Up("Pie"));
  Open("Pairing_Add");
  const Texts before = Whole_Catalogue();
  for (const bool answer : {false, true}) {
    const Box_Script boxes({answer});
    Type_Names({answer ? "PIE EN" : "Pie en", "Otro"});
    Click("Cat_Add_Now");
    EXPECT_THAT(boxes.Said(),
                ElementsAre("PAIRING ALREADY EXISTS? This pairing is already in the list of "
                            "available pairings.\rDo you want to type another one?"));
    EXPECT_EQ(boxes.Boxes()[0].by_enter, Forms::Answer::Yes);
  }
  EXPECT_EQ(Whole_Catalogue(), before);
  EXPECT_THAT(Boxes(), ElementsAre("PIE EN", "Otro"));
  Add_Pairing({"Pie es", "Pie en"});  // names of it in other languages
  EXPECT_THAT(Add_Pairing({"Pié en", "Pie en"}), ElementsAre(added));
  EXPECT_THAT(Added("English, Spanish"), ElementsAre("Pie es|Pie en", "Pié en|Pie en"));
}

TEST_F(Catalogue_Changes, In_another_language_the_words_the_test_and_the_columns_are_of_it) {
  Put_Pairing(Made_Up("Pie"));
  Open("Pairing_Add", german);
  EXPECT_THAT(Add_Pairing({"pie DE", "Anything"}),
              ElementsAre("SPEISE BEREITS VORHANDEN? Diese Speise steht bereits in der Liste der "
                          "vorhandenen Speisen.\rMöchten Sie eine andere eingeben?"));
  Add_Pairing({"Pie en", "Pie en"});
  const Text fields = "Maridage_Name, English, Spanish, French, German, Japanese";
  EXPECT_THAT(Added(fields), ElementsAre("Pie en|Pie en|x|x|Pie en|x"));
  EXPECT_EQ(Shown_Rows(list).back().substr(0, 15), "Pie en | Pie en");
  const Faults_Mended faults;
  Open("Pairing_Add", german);
  Add_Pairing({"Torte", "Tart"});
  EXPECT_EQ(Added(fields).back(), "Torte|Tart|Torte|Torte|Torte|Torte");
}

TEST_F(Catalogue_Changes, A_missing_other_name_is_taken_from_the_first_one_and_said) {
  Put_Pairing(Made_Up("Pie"));
  Open("Pairing_Add", spanish);
  for (const char* nothing : {"", "   "}) {
    const Text name = Text("Sopa") + nothing + "!";
    EXPECT_THAT(Add_Pairing({name, nothing}), ElementsAre(assumption, added));
    EXPECT_THAT(Boxes(), ElementsAre(name, name));
  }
  EXPECT_THAT(Added("English, Spanish"), ElementsAre("Sopa!|Sopa!", "Sopa   !|Sopa   !"));
  // The double is told after it.
  EXPECT_THAT(Add_Pairing({"Pie es", ""}),
              ElementsAre(assumption, StartsWith("EL MARIDAJE YA EXISTE? ")));
}

// The record read last: the end of the list, or what was clicked in it.
TEST_F(Catalogue_Changes, Cheese_and_category_come_from_the_record_read_last) {
  Put_Pairing(Made_Up("Pie"));
  Maridages_Record last = Made_Up("Cheese of no use");
  last.Multiuse = 0;
  last.Cheese_ID = 7;
  last.CAT_ID = 5;
  Put_Pairing(last);
  Open("Pairing_Add");
  Add_Pairing({"After the list", "a"});
  Click_Pairing("Pie en");
  Add_Pairing({"After a click", "b"});
  EXPECT_THAT(Added("Cheese_ID, CAT_ID"), ElementsAre("7|5", "-1|0"));
  Put_Pairing(last);
  const Faults_Mended faults;
  Open("Pairing_Add");
  Add_Pairing({"After the list again", "c"});
  EXPECT_EQ(Added("Cheese_ID, CAT_ID").back(), "-1|0");
}

TEST_F(Catalogue_Changes, A_long_name_is_kept_whole_in_its_language_and_cut_for_the_master_text) {
  Open("Pairing_Add");
  const Text name = Copies("é", 99) + "ab" + Copies("語", 40);
  const Text other = Copies("ñ", 130);
  Add_Pairing({name, other});
  EXPECT_THAT(Added("Maridage_Name, English, Spanish"),
              ElementsAre(Copies("é", 99) + "a|" + name + "|" + other));
  EXPECT_EQ(Shown_Column(list, 0).back(), name);
}

TEST_F(Catalogue_Changes, A_change_writes_sixty_characters_of_two_names_and_nothing_else) {
  const Text key = Put_Pairing(Made_Up("Pie"));
  const Text names =
      "SELECT English, Spanish, French, German, Italian, Japanese, Portuguese FROM Maridages "
      "WHERE Maridage_ID = " +
      key;
  const Text rest =
      "SELECT Maridage_Name, Maridage_Group, Maridage_SubGr, SERIAL_NUMBER, Multiuse,"
      " CAT_ID, Used, Cheese_ID FROM Maridages WHERE Maridage_ID = " +
      key;
  const Texts others_before = Stored("SELECT * FROM Maridages WHERE Maridage_ID <> " + key);
  const Texts rest_before = Stored(rest);
  const Text long_name = Copies("é", 59) + "a", cut = "zzz";
  Text first_cell = "Pie en";
  for (const auto& [language, expected] :
       {std::pair<Integer, Text>{english, long_name + "|Two|Pie fr|Pie de|Pie it|Pie ja|Pie pt"},
        {spanish, "Two|" + long_name + "|Pie fr|Pie de|Pie it|Pie ja|Pie pt"},
        {french, "Two|" + long_name + "|" + long_name + "|Pie de|Pie it|Pie ja|Pie pt"}}) {
    Open("Pairing_Mod", language);
    Click_Pairing(first_cell);
    Type_Names({long_name + cut, "Two"});
    EXPECT_THAT(
        Told_By([] { Click("Cat_Add_Now"); }),
        ElementsAre("PAIRING MODIFY: Pairing was MODIFIED in the currently available list"));
    EXPECT_THAT(Stored(names), ElementsAre(expected));
    first_cell = Shown_Column(list, 0).back();
    EXPECT_EQ(first_cell, expected.substr(0, expected.find('|')));
    EXPECT_TRUE(Last_Row_Is_In_Sight());
  }
  Open("Pairing_Mod");
  Click_Pairing(first_cell);
  Type_Names({"Two", Copies("ñ", 61)});
  Told_By([] { Click("Cat_Add_Now"); });
  EXPECT_EQ(Stored(names)[0].substr(0, 4 + 120 + 1), "Two|" + Copies("ñ", 60) + "|");
  EXPECT_EQ(Stored(rest), rest_before);
  EXPECT_EQ(Stored("SELECT * FROM Maridages WHERE Maridage_ID <> " + key), others_before);
}

TEST_F(Catalogue_Changes, A_change_of_nothing_picked_or_of_what_has_gone_ends_the_run) {
  const Text key = Put_Pairing(Made_Up("Pie"));
  for (const bool picked : {false, true}) {
    Open("Pairing_Mod");
    if (picked) Click_Pairing("Pie en");
    Type_Names({"New", "Nuevo"});
    if (picked) {
      Remove_Rows("Maridages", [&](const auto& row) { return row.Fields(0).As_Text() == key; });
    }
    const Texts before = Whole_Catalogue();
    Expect_End(3021, [] { Click("Cat_Add_Now"); });
    Stop();
    EXPECT_EQ(Whole_Catalogue(), before);
  }
  const Faults_Mended faults;
  Open("Pairing_Mod");
  Type_Names({"New", "Nuevo"});
  EXPECT_EQ(Color_of("CatText"), "open");
  EXPECT_FALSE(Is_Usable("Cat_Add_Now"));
  Click_Row(list, 0);
  Type_Names({"New", "Nuevo"});
  EXPECT_TRUE(Is_Usable("Cat_Add_Now"));
}

}  // namespace

// Additions to the catalogue of pairings, and changes in it.
#include "core/tables/Cellar_DB_Processes.h"
#include "tests/forms/Row_Clicks.h"
#include "tests/pairing/Catalogue_Program.h"

namespace {

using testing::ElementsAre;
using Texts = std::vector<Text>;

constexpr const char* assumption =
    "Since you did not input the other language information , the main language information"
    "will be used also as the other language input.";
constexpr const char* added = "New Pairing was added to the currently available list";

void Expect_Box(const Forms::Box& box, const Text& title, const Text& text) {
  EXPECT_EQ(box.title, title);
  EXPECT_EQ(box.text, text);
}

Text Copies(const char* letter, int count) {
  Text text;
  for (int copy = 0; copy < count; ++copy) text += letter;
  return text;
}

class Catalogue_Changes : public Catalogue {
 protected:
  void Add_Pairing(const Two_Names& names) {
    Type_Names(names);
    Click("Cat_Add_Now");
  }
  static bool Last_Row_Is_In_Sight() {
    const QAbstractItemView& view = View_Of(list);
    const int last = view.model()->rowCount() - 1;
    return view.viewport()->rect().contains(view.visualRect(view.model()->index(last, 0)).center());
  }
};

TEST_F(Catalogue_Changes, An_addition_is_stored_whole_and_comes_into_the_list) {
  Change([](Record_Store::Database& file) {
    Record_Store::Recordset system = file.OpenRecordset("Wine_System");
    system.Edit();
    system.Fields("Installation_ID") = "  77 ";
    system.Update();
  });
  Open("Pairing_Add");
  const std::size_t rows = Column(0).size();
  Box_Script boxes;
  Add_Pairing({"Pie, é la crème", "Pastel"});
  ASSERT_EQ(boxes.Boxes().size(), 1U);
  Expect_Box(boxes.Boxes()[0], "NEW PAIRING ADDED SUCCESSFULLY", added);
  EXPECT_THAT(Added("Maridage_Group, Maridage_SubGr, Maridage_Name, SERIAL_NUMBER, English, "
                    "Spanish, French, German, Italian, Japanese, Portuguese, Multiuse, Used",
                    13),
              ElementsAre("1000000|1|Pie, é la crème|CUS77-06-15-2026|Pie, é la crème|Pastel|x|x|x|"
                          "x|x|3|0"));
  ASSERT_EQ(Column(0).size(), rows + 1);
  EXPECT_EQ(Column(0).back(), "Pie, é la crème");
  EXPECT_EQ(Column(1).back(), "Pastel");
  EXPECT_TRUE(Last_Row_Is_In_Sight());
  EXPECT_THAT(Boxes(), ElementsAre("Pie, é la crème", "Pastel"));
  EXPECT_TRUE(Is_Usable("Cat_Add_Now"));
  Type("Tart");
  Press("Return");
  EXPECT_THAT(Boxes(), ElementsAre("Tart", "Pastel"));
  EXPECT_EQ(Column(0).back(), "Tart");
  Click("Cat_Add_Cancel");
  Pick("Pairing_Search_Cellar");
  Add("Pie, é la crème");
  EXPECT_THAT(Lines("SelectList"), ElementsAre("Pie, é la crème"));
}

TEST_F(Catalogue_Changes, A_group_of_the_user_holds_ten) {
  Maridages_Record last = Made_Up("The last delivered one");
  last.Maridage_Group = 999999;
  last.Maridage_SubGr = 3;
  Put(last);
  Open("Pairing_Add");
  Box_Script boxes;
  Texts expected;
  for (int pairing = 1; pairing <= 11; ++pairing) {
    const Text name = "Dish " + std::to_string(pairing);
    Add_Pairing({name, name});
    expected.push_back(pairing < 11 ? "1000000|" + std::to_string(pairing) : "1000001|1");
  }
  EXPECT_EQ(Added("Maridage_Group, Maridage_SubGr", 2), expected);
}

// Behind the highest place of the highest group, wherever that row stands; a row of a hidden use
// counts too.
TEST_F(Catalogue_Changes, A_new_place_follows_the_highest_one) {
  for (const auto& [group, subgroup] :
       {std::pair{1000007, 4}, {1000007, 9}, {1000007, 2}, {1000003, 10}, {999999, 1}}) {
    Maridages_Record pairing = Made_Up("Old " + std::to_string(group + subgroup));
    std::tie(pairing.Maridage_Group, pairing.Maridage_SubGr, pairing.Multiuse) =
        std::tuple{group, subgroup, Integer{1}};
    Put(pairing);
  }
  Open("Pairing_Add");
  Box_Script boxes;
  for (const char* name : {"One", "Two"}) Add_Pairing({name, name});
  const Texts places = Added("Maridage_Group, Maridage_SubGr", 2);
  ASSERT_EQ(places.size(), 6U);
  EXPECT_THAT(Texts(places.begin() + 4, places.end()), ElementsAre("1000007|10", "1000008|1"));
}

TEST_F(Catalogue_Changes, A_double_in_the_language_in_force_is_refused_whatever_is_answered) {
  Put(Made_Up("Pie"));
  Open("Pairing_Add");
  const Texts before = Whole_Catalogue();
  Box_Script boxes({false, true});
  for (const char* name : {"Pie en", "PIE EN"}) Add_Pairing({name, "Otro"});
  ASSERT_EQ(boxes.Boxes().size(), 2U);
  for (const Forms::Box& box : boxes.Boxes()) {
    Expect_Box(box, "PAIRING ALREADY EXISTS",
               "This pairing is already in the list of available pairings.\r"
               "Do you want to type another one?");
    EXPECT_TRUE(box.asks);
  }
  EXPECT_EQ(Whole_Catalogue(), before);
  EXPECT_THAT(Boxes(), ElementsAre("PIE EN", "Otro"));
  Add_Pairing({"Pie es", "Pie en"});  // names of it in other languages
  Add_Pairing({"Pié en", "Pie en"});
  EXPECT_THAT(Added("English, Spanish", 2), ElementsAre("Pie es|Pie en", "Pié en|Pie en"));
  EXPECT_EQ(boxes.Texts().back(), added);
}

TEST_F(Catalogue_Changes, In_another_language_the_words_the_test_and_the_columns_are_of_it) {
  Put(Made_Up("Pie"));
  Open("Pairing_Add", german);
  Box_Script boxes;
  Add_Pairing({"pie DE", "Anything"});
  ASSERT_EQ(boxes.Boxes().size(), 1U);
  Expect_Box(boxes.Boxes()[0], "SPEISE BEREITS VORHANDEN",
             "Diese Speise steht bereits in der Liste der vorhandenen Speisen.\r"
             "Möchten Sie eine andere eingeben?");
  Add_Pairing({"Pie en", "Pie en"});
  EXPECT_THAT(Added("Maridage_Name, English, Spanish, French, German, Japanese", 6),
              ElementsAre("Pie en|Pie en|x|x|Pie en|x"));
  EXPECT_EQ(Shown_Rows(list).back().substr(0, 15), "Pie en | Pie en");
}

TEST_F(Catalogue_Changes, A_missing_other_name_is_taken_from_the_first_one_and_said) {
  Put(Made_Up("Pie"));
  Open("Pairing_Add", spanish);
  Box_Script boxes;
  for (const char* nothing : {"", "   "}) {
    boxes.Forget();
    const Text name = Text("Sopa") + nothing + "!";
    Add_Pairing({name, nothing});
    ASSERT_EQ(boxes.Boxes().size(), 2U);
    Expect_Box(boxes.Boxes()[0], "PAIRING LANGUAGE ASSUMPTION", assumption);
    EXPECT_EQ(boxes.Boxes()[1].text, added);
    EXPECT_THAT(Boxes(), ElementsAre(name, name));
  }
  EXPECT_THAT(Added("English, Spanish", 2), ElementsAre("Sopa!|Sopa!", "Sopa   !|Sopa   !"));
  boxes.Forget();
  Add_Pairing({"Pie es", ""});  // the double is told after it
  ASSERT_EQ(boxes.Boxes().size(), 2U);
  EXPECT_EQ(boxes.Boxes()[0].text, assumption);
  EXPECT_EQ(boxes.Boxes()[1].title, "EL MARIDAJE YA EXISTE");
}

// The record read last: the end of the list, or what was clicked in it.
TEST_F(Catalogue_Changes, Cheese_and_category_come_from_the_record_read_last) {
  Put(Made_Up("Pie"));
  Maridages_Record last = Made_Up("Cheese of no use");
  last.Multiuse = 0;
  last.Cheese_ID = 7;
  last.CAT_ID = 5;
  Put(last);
  Open("Pairing_Add");
  Box_Script boxes;
  Add_Pairing({"After the list", "a"});
  Click_Pairing("Pie en");
  Add_Pairing({"After a click", "b"});
  EXPECT_THAT(Added("Cheese_ID, CAT_ID", 2), ElementsAre("7|5", "-1|0"));
}

TEST_F(Catalogue_Changes, A_long_name_is_kept_whole_in_its_language_and_cut_for_the_master_text) {
  Open("Pairing_Add");
  Box_Script boxes;
  const Text name = Copies("é", 99) + "ab" + Copies("語", 40);
  const Text other = Copies("ñ", 130);
  Add_Pairing({name, other});
  EXPECT_THAT(Added("Maridage_Name, English, Spanish", 3),
              ElementsAre(Copies("é", 99) + "a|" + name + "|" + other));
  EXPECT_EQ(Column(0).back(), name);
}

TEST_F(Catalogue_Changes, A_change_writes_sixty_characters_of_two_names_and_nothing_else) {
  const Text key = Put(Made_Up("Pie"));
  const Text names =
      "SELECT English, Spanish, French, German, Italian, Japanese, Portuguese FROM Maridages "
      "WHERE Maridage_ID = " +
      key;
  const Text rest =
      "SELECT Maridage_Name, Maridage_Group, Maridage_SubGr, SERIAL_NUMBER, Multiuse,"
      " CAT_ID, Used, Cheese_ID FROM Maridages WHERE Maridage_ID = " +
      key;
  const Texts others_before = Stored("SELECT * FROM Maridages WHERE Maridage_ID <> " + key, 16);
  const Texts rest_before = Stored(rest, 8);
  Box_Script boxes;
  const Text long_name = Copies("é", 59) + "a", cut = "zzz";
  Text first_cell = "Pie en";
  for (const auto& [language, expected] :
       {std::pair<Integer, Text>{english, long_name + "|Two|Pie fr|Pie de|Pie it|Pie ja|Pie pt"},
        {spanish, "Two|" + long_name + "|Pie fr|Pie de|Pie it|Pie ja|Pie pt"},
        {french, Text("Two|").append(long_name).append("|").append(long_name).append(
                     "|Pie de|Pie it|Pie ja|Pie pt")}}) {
    Open("Pairing_Mod", language);
    Click_Pairing(first_cell);
    Type_Names({long_name + cut, "Two"});
    boxes.Forget();
    Click("Cat_Add_Now");
    ASSERT_EQ(boxes.Boxes().size(), 1U);
    Expect_Box(boxes.Boxes()[0], "PAIRING MODIFY",
               "Pairing was MODIFIED in the currently available list");
    EXPECT_THAT(Stored(names, 7), ElementsAre(expected));
    first_cell = Column(0).back();
    EXPECT_EQ(first_cell, expected.substr(0, expected.find('|')));
    EXPECT_TRUE(Last_Row_Is_In_Sight());
    Stop();
    Set_Language(english);
  }
  Open("Pairing_Mod");
  Click_Pairing(first_cell);
  Type_Names({"Two", Copies("ñ", 61)});
  Click("Cat_Add_Now");
  EXPECT_EQ(Stored(names, 7)[0].substr(0, 4 + 120 + 1), "Two|" + Copies("ñ", 60) + "|");
  EXPECT_EQ(Stored(rest, 8), rest_before);
  EXPECT_EQ(Stored("SELECT * FROM Maridages WHERE Maridage_ID <> " + key, 16), others_before);
}

// What is left in the boxes goes to other columns than it came from.
TEST_F(Catalogue_Changes, Under_a_third_language_the_names_shown_go_to_it_and_to_English) {
  const Text key = Put(Made_Up("Pie"));
  Put(Made_Up("Cake"));
  Open("Pairing_Mod", french);
  Click_Pairing("Cake en");
  Click_Pairing("Pie en");
  Box_Script boxes;
  Click("Cat_Add_Now");
  EXPECT_THAT(Stored("SELECT English, Spanish, French FROM Maridages "
                     "WHERE English LIKE 'Pie %' OR English LIKE 'Cake %' ORDER BY Maridage_ID",
                     3),
              ElementsAre("Pie es|Pie es|Pie en", "Cake en|Cake es|Cake fr"));
  Type_Into("CatText", "Cake fr");  // a double is no matter here, and the pick still holds
  Click("Cat_Add_Now");
  EXPECT_THAT(Stored("SELECT French FROM Maridages WHERE Maridage_ID = " + key, 1),
              ElementsAre("Cake fr"));
}

TEST_F(Catalogue_Changes, A_change_of_nothing_picked_or_of_what_has_gone_ends_the_run) {
  const Text key = Put(Made_Up("Pie"));
  for (const bool picked : {false, true}) {
    Open("Pairing_Mod");
    if (picked) Click_Pairing("Pie en");
    Type_Names({"New", "Nuevo"});
    if (picked) {
      Change([&](Record_Store::Database& file) {
        Record_Store::Recordset rows = file.OpenRecordset("Maridages");
        rows.MoveLast();
        rows.Delete();
      });
    }
    const Texts before = Whole_Catalogue();
    Box_Script boxes;
    const End_Watch end;
    Click("Cat_Add_Now");
    EXPECT_EQ(end.Status(), 1);
    EXPECT_THAT(boxes.Texts(), ElementsAre("Run-time error '3021':\n\nNo current record."));
    Stop();
    EXPECT_EQ(Whole_Catalogue(), before);
  }
}

}  // namespace

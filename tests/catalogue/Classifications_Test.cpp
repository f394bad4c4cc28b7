// The classifications, and the lists that work unseen.
#include "tests/catalogue/Catalogue_Places_Program.h"

namespace {

constexpr const char* list = "Classification_ListView";
constexpr const char* next = "Classification_Form_Next_Command";
constexpr const char* previous = "Classification_Form_Previous_Command";

class Classifications : public Catalogue_Places_Program {
 protected:
  static Texts Fields_on_Show() {
    return {Shown_Text("Name_Text"), Shown_Text("Description_Text")};
  }
  static void Expect_at_Row(int row, int rows) {
    EXPECT_EQ(Chosen_Row(list), row);
    EXPECT_EQ(Fields_on_Show()[0], Shown_Column(list, 0)[static_cast<std::size_t>(row)]);
    EXPECT_EQ(Is_Usable(previous), row > 0);
    EXPECT_EQ(Is_Usable(next), row < rows - 1);
  }
};

TEST_F(Classifications, Each_is_explained_in_the_language_and_paging_goes_from_end_to_end) {
  Classification_Record unexplained;
  Classification_Description.Init(unexplained);
  unexplained.Description = "Unexplained";
  unexplained.Country = "DEU";
  unexplained.Glossary_ID = -1;
  Put(Classification_Description, unexplained);
  for (const bool mended : {false, true}) {
    const Faults_Mended faults(mended);
    Open("Classification_View", german);
    EXPECT_EQ(Shown_Text("Classification_Form"), "DISPLAY a Country Classification");
    EXPECT_FALSE(Is_Seen("General_Command"));
    EXPECT_FALSE(Is_Usable(previous) || Is_Usable(next));
    const Texts row = Cells_of(One(
        "SELECT Classification.Description, Country, German, Classification_ID FROM Classification "
        "JOIN Glossary ON ID = Glossary_ID WHERE Country = 'DEU' ORDER BY Classification_ID"));
    Click_Line(list, row[0]);
    EXPECT_EQ(Shown_Rows(list)[static_cast<std::size_t>(Chosen_Row(list))],
              row[0] + " | Deutschland | " + row[3] + " | DEU");
    EXPECT_THAT(Fields_on_Show(), ElementsAre(row[0], row[2]));
    EXPECT_EQ(Current_Country_Short, "DEU");
    EXPECT_EQ(Shown_Text("Country_Combo"), mended ? "Deutschland" : "");
    Click_Line(list, "Unexplained");
    EXPECT_THAT(Fields_on_Show(), ElementsAre("Unexplained", ""));
    const int rows = static_cast<int>(Shown_Rows(list).size());
    std::vector<Texts> orders;
    for (const int header : {0, 0, 3}) {  // the last one turns the order alone
      Click_Header(list, header);
      orders.push_back(Shown_Column(list, 0));
      Click_Row(list, 1);
      Click(previous);
      Expect_at_Row(0, rows);
      Click_Row(list, rows - 2);
      Click(next);
      Expect_at_Row(rows - 1, rows);
    }
    EXPECT_NE(orders[0], orders[1]);
    EXPECT_EQ(orders[0], orders[2]);
    Click_Header(list, 0);
    Expect_at_Row(0, rows);
    Press("Esc");
    EXPECT_TRUE(Is_Seen("Wine_Cellar_Form"));
  }
}

TEST_F(Classifications, Only_a_list_that_was_seen_brings_the_main_window_back) {
  const Forms::Screen hidden("Wineries_List_Form");
  Open("Labels_Add");
  hidden.Load();
  hidden.Unload();
  EXPECT_FALSE(Is_Seen("Wine_Cellar_Form"));
  hidden.Show();
  Click_Header("Wineries_ListView", 2);  // turns the order alone
  EXPECT_EQ(hidden.Get<Forms::List_View>("Wineries_ListView").SortKey(), 1);
  Close_Window("Wineries_List_Form");
  EXPECT_TRUE(Is_Seen("Wine_Cellar_Form"));
}

}  // namespace

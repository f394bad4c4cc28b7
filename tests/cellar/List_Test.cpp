// The list of the cellar: its columns, its order, and the wine that a pick means.

#include "tests/support/Cellar_Program.h"
#include "tests/support/Faults_Mended.h"

namespace {

constexpr const char* list = "Wine_Cellar_ListView";
constexpr int stock = 8;
constexpr int id = 9;

class Cellar_List : public Cellar_Program {
 protected:
  static Texts Column(int column) { return Shown_Column(list, static_cast<std::size_t>(column)); }
  static bool Something_Is_Selected() {
    return Forms::Screen("Wine_Form").Get<Forms::List_View>(list).Has_Selection();
  }
  // Three wines that differ in every column but one.
  void Put_Three_Wines() const {
    struct Row {
      int winery;
      const char *label, *variety, *color;
      Integer vintage, ranking, peak, bottles;
    };
    for (const Row& row : {Row{0, nullptr, nullptr, "Red", 2016, 90, 2021, 3},
                           {1, nullptr, "alvarinho", "White", 1999, 100, 2007, 10},
                           {0, "x", "Zinfandel", "rosé", 2024, -1, 2030, 0}}) {
      Wines_Record wine = Sample_Wine(row.winery);
      if (row.label != nullptr) wine.Label = row.label;
      if (row.variety != nullptr) wine.Variety = row.variety;
      wine.Color = row.color;
      std::tie(wine.Vintage, wine.Ranking, wine.Peak, wine.Total_Bottles) =
          std::tie(row.vintage, row.ranking, row.peak, row.bottles);
      Put_Wine(wine);
    }
  }
};

TEST_F(Cellar_List, A_row_tells_the_wine_and_each_cellar_has_its_own) {
  Start_With("Cellar1_View");
  EXPECT_THAT(Shown_Rows(list), IsEmpty());
  Click("Exit_Command");
  Put_Three_Wines();
  Pick("Cellar2_View");
  EXPECT_THAT(Shown_Rows(list), IsEmpty());
  Click("Exit_Command");
  Wines_Record other = Sample_Wine(1);
  other.Cellar_ID = 2;
  Put_Wine(other);
  const auto row = [this](int winery, const Text& vintage, const Text& label, const Text& rest) {
    return vintage + " | " + Sample(winery).name + " | " + label + " | " + Sample(winery).region +
           " | " + rest;
  };
  const auto rest = [this](int winery, const char* key) {
    return Sample(winery).varieties[0] + " | Red | 90 | 2021 | 3 | " + key;
  };
  Pick("Cellar1_View");
  EXPECT_EQ(Shown_Text("Wine_Cellar_Name_Label"), "Home");
  EXPECT_EQ(Shown_Text("Current_Cellar_Label"), "Current Cellar List");
  EXPECT_THAT(
      Shown_Rows(list),
      ElementsAre(row(0, "2016", Sample().label, rest(0, "1")),
                  row(1, "1999", Sample(1).label, "alvarinho | White | 100 | 2007 | 10 | 2"),
                  row(0, "2024", "", "Zinfandel | rosé |  | 2030 | 0 | 3")));
  EXPECT_FALSE(Something_Is_Selected());
  Click("Exit_Command");
  Pick("Cellar2_View");
  EXPECT_EQ(Shown_Text("Wine_Cellar_Name_Label"), "Office");
  EXPECT_THAT(Shown_Rows(list), ElementsAre(row(1, "2016", Sample(1).label, rest(1, "4"))));
}

TEST_F(Cellar_List, A_second_cellar_named_x_shows_its_name_where_that_is_mended) {
  Change([](Record_Store::Database& file) {
    Record_Store::Recordset cellars = file.OpenRecordset("Cellars");
    cellars.MoveNext();
    cellars.Edit();
    cellars.Fields("Cellar_Name") = "x";
    cellars.Update();
  });
  for (const bool mended : {false, true}) {
    const Faults_Mended faults(mended);
    Start_With("Cellar2_View");
    EXPECT_EQ(Shown_Text("Wine_Cellar_Name_Label"), mended ? "x" : "");
  }
}

TEST_F(Cellar_List, Headers_sort_by_text_and_turn_the_order_at_each_click) {
  Put_Three_Wines();
  Start_With("Cellar1_View");
  bool descending = false;
  for (const int column : {0, 1, 2, 3, 4, 5, 6, 7, stock, 4, 4}) {
    Click_Header(list, column);
    descending = !descending;
    EXPECT_TRUE(Is_Sorted(Column(column), descending)) << column;
  }
  Click_Header(list, stock);
  EXPECT_THAT(Column(stock), ElementsAre("0", "10", "3"));
  Click_Header(list, id);
  EXPECT_THAT(Column(stock), ElementsAre("3", "10", "0"));
  EXPECT_THAT(Column(id), ElementsAre("1", "2", "3"));
}

TEST_F(Cellar_List,
       A_pick_in_a_sorted_list_means_the_wine_of_its_row_and_a_fill_forgets_the_order) {
  Put_Three_Wines();
  Start_With("Wine_Uncork");
  Click_Header(list, id);  // sorts by the vintage, latest first
  EXPECT_THAT(Column(id), ElementsAre("3", "1", "2"));
  Click_Row(list, 2);
  EXPECT_EQ(Shown_Text("Winery_Combo"), Sample(1).name);
  EXPECT_EQ(Shown_Text("Total_Bottles_Text"), "10");
  Box_Script boxes;
  Click("Multi_Functional_Command");
  EXPECT_THAT(Column(id), ElementsAre("1", "2", "3"));
  EXPECT_THAT(Column(stock), ElementsAre("3", "9", "0"));
  EXPECT_EQ(Forms::Screen("Wine_Form").Get<Forms::List_View>(list).SelectedItem().Index(), 2);
  Click_Header(list, 0);
  EXPECT_THAT(Column(0), ElementsAre("2024", "2016", "1999"));
}

// The stock of the first wine is the number of the second; only the numbers of wines are searched.
TEST_F(Cellar_List, A_requested_wine_is_found_by_its_number_alone) {
  Wines_Record wine = Sample_Wine();
  wine.Total_Bottles = 2;
  Put_Wine(wine);
  Put_Wine(Sample_Wine(1));
  Start();
  for (const auto& [requested, winery] : {std::pair<Text, Text>{"2", Sample(1).name},
                                          {"1", Sample().name},
                                          {"2016", "New Winery"},
                                          {"", "New Winery"}}) {
    Requested_Wine_Text = requested;
    Open_Under("Wine_Form", "CheeseParingsCellar");
    EXPECT_EQ(Shown_Text("Winery_Combo"), winery) << requested;
    EXPECT_EQ(Something_Is_Selected(), winery != "New Winery") << requested;
  }
}

TEST_F(Cellar_List, A_wine_number_beyond_16_bits_and_a_winery_that_has_gone_end_the_run) {
  Change([this](Record_Store::Database& file) {
    Record_Store::Recordset wines = file.OpenRecordset("Wines");
    for (int number = 1; number < 32767; ++number) wines.AddNew();  // dropped: the number is gone
    for (int wine = 0; wine < 2; ++wine) {
      wines.AddNew();
      Wines_Description.Write(wines, Sample_Wine());
    }
  });
  Start_With("Cellar1_View");
  Pick_Wine(32767);
  EXPECT_EQ(Shown_Text("Winery_Combo"), Sample().name);
  Expect_End(6, [] { Pick_Wine(32768); });
  Wines_Record wine = Sample_Wine();
  wine.Winery_ID = 999999;
  Put_Wine(wine);
  Start();
  Expect_End(3021, [] { Pick("Cellar1_View"); });
}

}  // namespace

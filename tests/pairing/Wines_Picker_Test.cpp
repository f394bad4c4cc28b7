// The picker of general wines: the three lists that narrow it down, and what it hands on.
#include "tests/pairing/Pickers_Program.h"

namespace {

constexpr const char* list = "Mobile_Wines_ListView";

class Wines_Picker : public Pickers_Program {
 protected:
  /// Five wines alone; Alpha twice, of which one has all colours, and one wine of no grape.
  void Put_Wines() {
    Remove_Rows("Mobile_Wines");
    struct Wine {
      const char *name, *country;
      std::array<const char*, 3> colors;
      const char* grape;
    };
    for (const Wine& wine : {Wine{"Alpha", "FRA", {"RED", "ROSE", "x"}, "Malbec"},
                             {"Gamma", "ITA", {"RED", "x", "x"}, "Merlot"},
                             {"Beta", "FRA", {"WHITE", "RED", "x"}, "Merlot"},
                             {"Delta", "ALL", {"ROSE", "x", "RED"}, ""},
                             {"Alpha", "ITA", {"FORTIFIED", "x", "x"}, "Malbec"}}) {
      Mobile_Wines_Record row;
      Mobile_Wines_Description.Init(row);
      row.Mobile_Wine_Name = wine.name;
      row.Mobile_Wine_Country = wine.country;
      std::tie(row.Mobile_Wine_Color, row.Mobile_Wine_Color_2, row.Mobile_Wine_Color_3) =
          std::tie(wine.colors[0], wine.colors[1], wine.colors[2]);
      row.Mobile_Wine_Variety_ID = Grape(wine.grape);
      Put(Mobile_Wines_Description, row);
    }
  }
  Long Grape(const Text& name) const {
    if (name.empty()) return -1;
    return To_Long(One("SELECT Variety_ID FROM Varieties WHERE Variety_Name = '" + name + "'"));
  }
  void Open(const char* command = "CheeseAdd") {
    Start();
    Cheese_Wines_Changed = false;
    Open_Under(wines, command);
  }
  /// The rows without their keys.
  static Texts Rows() {
    Texts rows = Lines(list);
    for (Text& row : rows) row.resize(row.rfind(" | "));
    return rows;
  }
  /// Picks the first row that begins so.
  static void Click_Wine(const Text& begin) {
    const Texts rows = Rows();
    const auto row =
        std::ranges::find_if(rows, [&](const Text& r) { return r.starts_with(begin); });
    ASSERT_NE(row, rows.end()) << begin << " is not listed";
    Click_Row(list, static_cast<int>(row - rows.begin()));
  }
};

TEST_F(Wines_Picker, A_colour_looks_at_all_three_a_country_at_the_first_alone) {
  Put_Wines();
  Open();
  Choose("Wine_Color_Combo", "RED");
  const auto all_red = ElementsAre("Alpha | FRA | RED | Malbec", "Gamma | ITA | RED | Merlot",
                                   "Beta | FRA | RED | Merlot", "Delta | ALL | RED | ");
  EXPECT_THAT(Rows(), all_red);
  EXPECT_EQ(Shown_Text("Wines_Number"), "4");
  EXPECT_EQ(Focused(), "Wine_Color_Combo");
  Choose("Country_Combo", "France");
  EXPECT_THAT(Rows(), ElementsAre("Alpha | FRA | RED | Malbec"));
  EXPECT_THAT(Lines("Grape_Variety_Combo"), ElementsAre("ALL VARIETIES", "Malbec"));
  Choose("Grape_Variety_Combo", "ALL VARIETIES");  // the grape: all three, though its list stays
  EXPECT_THAT(Rows(), ElementsAre("Alpha | FRA | RED | Malbec", "Beta | FRA | RED | Merlot"));
  EXPECT_THAT(Lines("Grape_Variety_Combo"), ElementsAre("ALL VARIETIES", "Malbec"));
  Choose("Wine_Color_Combo", "RED");
  EXPECT_THAT(Rows(), ElementsAre("Alpha | FRA | RED | Malbec", "Beta | FRA | RED | Merlot"));
  Choose("Country_Combo", "ALL");
  EXPECT_THAT(Rows(), ElementsAre("Alpha | FRA | RED | Malbec", "Gamma | ITA | RED | Merlot"));
  Choose("Wine_Color_Combo", "ROSE");
  EXPECT_THAT(Rows(), ElementsAre("Alpha | FRA | ROSE | Malbec", "Delta | ALL | ROSE | "));
  Choose("Country_Combo", "France");
  EXPECT_THAT(Rows(), IsEmpty());
  EXPECT_EQ(Shown_Text("Wines_Number"), "0");
  Choose("Wine_Color_Combo", "ALL");
  EXPECT_THAT(Rows(), ElementsAre("Alpha | FRA | RED | Malbec", "Beta | FRA | WHITE | Merlot"));
}

TEST_F(Wines_Picker, A_chosen_grape_stays_where_it_is_still_offered) {
  Put_Wines();
  Open();
  Choose("Grape_Variety_Combo", "Merlot");
  EXPECT_THAT(Rows(), ElementsAre("Gamma | ITA | RED | Merlot", "Beta | FRA | WHITE | Merlot"));
  Choose("Country_Combo", "Italy");
  EXPECT_EQ(Shown_Text("Grape_Variety_Combo"), "Merlot");
  EXPECT_THAT(Rows(), ElementsAre("Gamma | ITA | RED | Merlot"));
  Choose("Wine_Color_Combo", "RED");
  EXPECT_THAT(Rows(), ElementsAre("Gamma | ITA | RED | Merlot"));
  Choose("Country_Combo", "France");
  EXPECT_EQ(Shown_Text("Grape_Variety_Combo"), "ALL VARIETIES");
  EXPECT_THAT(Rows(), ElementsAre("Alpha | FRA | RED | Malbec"));
}

TEST_F(Wines_Picker, For_a_cheese_the_wines_are_handed_on_each_name_and_key_once) {
  Put_Wines();
  Stand_In("Cheeses_Form", {"Wine_Parings_List", "Wine_Parings_Index_List"});
  const Texts keys = Stored("SELECT Mobile_Wine_ID FROM Mobile_Wines ORDER BY Mobile_Wine_ID");
  for (const bool change : {false, true}) {
    Start();
    Cheese_Wines_Changed = Cheese_Foods_Changed = false;
    Give("Cheeses_Form", "Wine_Parings_List", "Wine_Parings_Index_List", "Old name", keys[2]);
    Open_Under(wines, change ? "CheeseMod" : "CheeseAdd");
    EXPECT_EQ(Lines("SelectList"), change ? Texts{"Old name"} : Texts{});
    EXPECT_EQ(Is_Usable("MultSelect"), change);
    EXPECT_THAT(Lines("Country_Combo"), ElementsAre("ALL", "France", "Italy"));
    for (const char* wine : {"Alpha | FRA", "Alpha | ITA", "Beta"}) {
      Click_Wine(wine);
      Click("Add_Command");
    }
    Click("MultSelect");
    Expect_Left(wines, "Cheeses_Form");
    EXPECT_EQ(Selection(), change ? (Texts{"Old name|" + keys[2], "Alpha|" + keys[0]})
                                  : (Texts{"Alpha|" + keys[0], "Beta|" + keys[2]}));
    EXPECT_TRUE(Cheese_Wines_Changed);
    EXPECT_FALSE(Cheese_Foods_Changed);
  }
}

}  // namespace

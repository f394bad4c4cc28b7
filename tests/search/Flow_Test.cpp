// From the menu to the wines that go with the foods asked for, and back to ask again; and from
// foods to grapes and their regions.

#include <numeric>

#include "tests/search/Search_Program.h"

namespace {

constexpr const char* picker = "Select_Mult_Maridages_Form";
constexpr const char* general = "Search_General_Pairings_Form";
const Text none_found = "NO Wines found: There are NO wines with\rANY of the pairings selected !!!";

using Pairing_Search = Search_Program;

TEST_F(Pairing_Search, Finds_every_wine_that_goes_with_any_of_the_foods_once) {
  const Sample_Pairing &low = Food_at(0, 2), &high = Food_at(1, 2);
  Wines_Record other_cellar = Sample_Wine(1);
  other_cellar.Cellar_ID = 2;
  other_cellar.Total_Bottles = 0;
  const Long with_high = Put_Wine_with({high});
  Put_Wine_with({Food_at(0, 1), Food_at(1, 3), Food(2)});  // of the groups, not of the foods
  const Long elsewhere = Put_Wine_with({low}, other_cellar);
  Put_Pairing(4321, low);  // its wine was removed
  const Long with_both = Put_Wine_with({high, low});
  const int used = Used(low);
  Start();
  Search_for({high, low});
  // By the groups, the smallest first; in a group by the rows of the link table.
  EXPECT_THAT(Wines_Listed(), ElementsAre(elsewhere, with_both, with_high));
  EXPECT_THAT(Lines("Requested_Pairings_List"), ElementsAre(high.name, low.name));
  EXPECT_EQ(Shown_Text("Wines_Number"), "3");
  EXPECT_EQ(Shown_Text(results), "Results of Pairings with Wine in your Home Cellar");
  EXPECT_EQ(Shown_Text("Current_Cellar_Label"), "Wines Matching the Request");
  EXPECT_FALSE(Is_Seen(picker));
  EXPECT_FALSE(Is_Seen("Wine_Cellar_Form"));
  EXPECT_EQ(Used(low), used + 2);  // to see whether there is one, and to show them
  const Faults_Mended faults;
  Start();
  Search_for({high, low});
  EXPECT_THAT(Wines_Listed(), ElementsAre(with_high, elsewhere, with_both));  // as in the cellar
  EXPECT_THAT(Shown_Column(list, 9), ElementsAre("Home", "Office", "Home"));
  EXPECT_EQ(Shown_Text("Wines_Number"), "3");
  EXPECT_FALSE(Is_Seen("Message_Label"));
  Click("Exit_Command");
  Remove_Rows("Wines");
  EXPECT_THAT(Told_By([] { Click("MultSelect"); }), ElementsAre(none_found, testing::_));
}

TEST_F(Pairing_Search, Exit_leads_back_to_what_was_chosen_and_the_next_results_begin_anew) {
  const Long first = Put_Wine_with({Food(0), Food(1)});
  const Long second = Put_Wine_with({Food(2)});
  const Long third = Put_Wine_with({Food(3)});
  Start();
  Search_for({Food(0), Food(2)});
  EXPECT_THAT(Wines_Listed(), ElementsAre(first, second));
  Pick_Wine(first);
  ASSERT_EQ(Selection(), Selection_of({Food(0), Food(1)}));
  Click("Exit_Command");
  EXPECT_FALSE(Is_There(results));
  EXPECT_TRUE(Is_Seen(picker));
  EXPECT_THAT(Lines("SelectList"), ElementsAre(Food(0).name, Food(2).name));
  Double_Click_Line("SelectList", Food(0).name);
  Add(Food(3).name);
  Click("MultSelect");
  EXPECT_THAT(Wines_Listed(), ElementsAre(second, third));
  EXPECT_THAT(Lines("Requested_Pairings_List"), ElementsAre(Food(2).name, Food(3).name));
  EXPECT_EQ(Shown_Text("Winery_Combo"), "");
  EXPECT_THAT(Lines("Pairing_List"), IsEmpty());
  EXPECT_FALSE(Is_Usable("Multi_Functional_Command"));
  for (const auto& leave : {std::function<void()>([] { Press("Esc"); }),
                            std::function<void()>([] { Close_Window(results); })}) {
    leave();
    EXPECT_THAT(Lines("SelectList"), ElementsAre(Food(2).name, Food(3).name));
    Click("MultSelect");
    ASSERT_TRUE(Is_Seen(results));
  }
  Click("Exit_Command");
  Click("MultCancel");
  EXPECT_FALSE(Is_There(picker));
  Pick("Pairing_Search_Cellar");
  EXPECT_THAT(Lines("SelectList"), IsEmpty());
}

TEST_F(Pairing_Search, Stops_before_the_hundredth_wine_or_finds_all) {
  Put_Wines_with(Food(0), 100);
  for (const bool mended : {false, true}) {
    const Faults_Mended faults(mended);
    Start();
    Search_for({Food(0)});
    std::vector<Long> first_ones(mended ? 100 : 99);
    std::iota(first_ones.begin(), first_ones.end(), 1);
    EXPECT_EQ(Wines_Listed(), first_ones);
    EXPECT_EQ(Shown_Text("Wines_Number"), mended ? "100" : "99+");
  }
}

// ---- from foods to grapes ----

class Foods_to_Grapes : public Search_Program {
 protected:
  Texts Grapes_of(const Text& ids) const {
    return Stored(
        "SELECT v.Variety_Name, v.Variety_Color, v.Variety_ID FROM "
        "Varieties_Per_Maridage p JOIN Varieties v ON v.Variety_ID = p.Variety_ID "
        "WHERE p.Maridage_ID IN (" +
        ids + ")");
  }
  Texts Regions_of(const Text& variety_ids) const {
    return Stored(
        "SELECT DISTINCT r.Region_Name FROM Regions_Per_Variety p JOIN Regions r ON "
        "r.Region_ID = p.Region_ID WHERE p.Variety_ID IN (" +
        variety_ids + ")");
  }
  static Texts Rows(const char* name) {
    Texts rows = Shown_Rows(name);
    for (Text& row : rows) {
      const Texts cells = Cells_of(row, " | ");
      row = cells.at(0) + "|" + cells.at(1) + "|" + cells.at(2);
    }
    return rows;
  }
  static Texts Without_Doubles(Texts texts) {
    std::ranges::sort(texts);
    texts.erase(std::unique(texts.begin(), texts.end()), texts.end());
    return texts;
  }
};

TEST_F(Foods_to_Grapes, Foods_lead_to_grapes_and_a_grape_to_its_regions) {
  // Two foods that share a grape.
  const Texts shared = Stored(
      "SELECT a.Maridage_ID, b.Maridage_ID FROM Varieties_Per_Maridage a JOIN "
      "Varieties_Per_Maridage b ON a.Variety_ID = b.Variety_ID AND a.Maridage_ID < b.Maridage_ID "
      "ORDER BY 1, 2");
  const Text one = Cells_of(shared.at(0))[0], other = Cells_of(shared[0])[1];
  const auto name_of = [this](const Text& id) {
    return One("SELECT English FROM Maridages WHERE Maridage_ID = " + id);
  };
  const auto id_of = [](const Text& row) { return Cells_of(row).at(2); };
  const Text second = id_of(Grapes_of(one).at(1));
  // The second grape has one region twice.
  Put("Regions_Per_Variety",
      {{"Variety_ID", second},
       {"Region_ID",
        One("SELECT Region_ID FROM Regions_Per_Variety WHERE Variety_ID = " + second)}});
  Start();
  Open_Under(general, "GeneralPairings");
  EXPECT_EQ(Shown_Text(general), "General Pairings");
  EXPECT_EQ(Lines("Cat_List"),
            Stored("SELECT English FROM Maridages WHERE Multiuse >= 2 ORDER BY English"));
  Add(name_of(one));
  Click("MultSelect");
  EXPECT_EQ(Rows("Variety_Name_ListView"), Grapes_of(one));
  Add(name_of(other));
  Click("MultSelect");
  const Texts grapes = Rows("Variety_Name_ListView");
  const Texts both = Grapes_of(one + "," + other);
  EXPECT_LT(grapes.size(), both.size());
  EXPECT_EQ(Without_Doubles(grapes), Without_Doubles(both));
  EXPECT_EQ(grapes.size(), Without_Doubles(grapes).size());
  Text ids = "-1";
  for (const Text& grape : grapes) ids += "," + id_of(grape);
  const Texts regions = Shown_Column("Regions_ListView", 0);
  EXPECT_EQ(regions.size(), Without_Doubles(regions).size());
  EXPECT_EQ(Without_Doubles(regions), Without_Doubles(Regions_of(ids)));
  Click_Row("Variety_Name_ListView", 1);
  EXPECT_EQ(Shown_Text("Recipe_Name"), Shown_Column("Variety_Name_ListView", 0).at(1));
  EXPECT_EQ(Rows("Regions_ListView"),
            Stored("SELECT r.Region_Name, r.Country, r.Region_ID FROM Regions_Per_Variety p JOIN "
                   "Regions r ON r.Region_ID = p.Region_ID WHERE p.Variety_ID = " +
                   second + " ORDER BY p.rowid"));
  Click("MultCancel");
  EXPECT_TRUE(Is_Seen("Wine_Cellar_Form"));
}

TEST_F(Foods_to_Grapes, Under_the_search_they_lead_to_the_wines_of_the_cellar) {
  const Long wine = Put_Wine_with({Food(1)});
  Start();
  Open_Under(general, "WineSearch");
  Add(Food(0).name);
  EXPECT_THAT(Told_By([] { Click("MultSelect"); }), ElementsAre(none_found));
  EXPECT_TRUE(Is_Seen(general));
  EXPECT_FALSE(Is_There(results));
  Add(Food(1).name);
  Click("MultSelect");
  EXPECT_THAT(Wines_Listed(), ElementsAre(wine));
  EXPECT_THAT(Lines("Variety_Name_ListView"), IsEmpty());
}

}  // namespace

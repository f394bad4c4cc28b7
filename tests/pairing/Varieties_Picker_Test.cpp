// The picker of grape varieties: for a region, a cheese and a wine.
#include <map>

#include "tests/pairing/Pickers_Program.h"

namespace {

class Varieties_Picker : public Pickers_Program {
 protected:
  /// As from the screen of the region, whose memory record holds it.
  void Open_For_Region(const Text& region_id) {
    Regions.Region_ID = To_Long(region_id);
    Regions.Region_Name = Sample().region;
    Regions.Country = Sample().country;
    Varieties_Changed_Flag = false;
    Open_Under(varieties, "VarietiesAddRegion");
  }
  /// The group link rows, "group|mask" by group, that hold these varieties.
  Texts Rows_For(const Texts& names) const {
    std::map<Long, std::int64_t> masks;
    for (const Text& name : names) {
      const Texts at =
          Cells_of(One("SELECT Variety_Group, Variety_SubGr FROM Varieties WHERE Variety_Name = '" +
                       name + "'"));
      masks[To_Long(at[0])] += Subgroup_Mask(To_Long(at[1]));
    }
    Texts rows;
    for (const auto& [group, mask] : masks) {
      rows.push_back(std::to_string(group * 10) + "|" + std::to_string(mask));
    }
    return rows;
  }
  Texts Rows(const char* table, const Text& owner) const {
    return Stored("SELECT \"GROUP\", SUBCATEGO FROM " + Text(table) + " WHERE " + owner +
                  " ORDER BY \"GROUP\"");
  }
};

TEST_F(Varieties_Picker, The_varieties_of_a_region_come_up_chosen_and_what_is_left_is_stored) {
  const Text of_region = "Region_ID = " + Sample().region_id;
  const Texts others = Rows("Varieties_Per_Region", "NOT " + of_region);
  Start();
  Open_For_Region(Sample().region_id);
  EXPECT_EQ(Shown_Text(varieties), "Select Region's Grape Varieties");
  EXPECT_EQ(Shown_Text("MSelectLab3"), "Region:");
  EXPECT_EQ(Shown_Text("Recipe_Name"), Sample().country_name + " - " + Sample().region);
  Texts chosen = Lines("SelectList");
  EXPECT_THAT(chosen, UnorderedElementsAreArray(Sample().varieties));
  EXPECT_EQ(Shown_Text("Selected_Number"), std::to_string(chosen.size()));
  EXPECT_TRUE(Is_Usable("MultSelect"));
  EXPECT_EQ(Rows("Varieties_Per_Region", of_region), Rows_For(chosen));
  Double_Click_Line("SelectList", chosen.front());
  chosen.erase(chosen.begin());
  EXPECT_THAT(
      Told_By([] { Click("MultSelect"); }),
      ElementsAre("VARIETIES MATCHED TO REGION: Vaieties were added to the selected Region."));
  EXPECT_TRUE(Varieties_Changed_Flag);
  Expect_Left(varieties, "Wine_Cellar_Form");
  EXPECT_EQ(Rows("Varieties_Per_Region", of_region), Rows_For(chosen));
  EXPECT_EQ(Rows("Varieties_Per_Region", "NOT " + of_region), others);
  Open_For_Region(Sample().region_id);
  EXPECT_THAT(Lines("SelectList"), UnorderedElementsAreArray(chosen));
}

TEST_F(Varieties_Picker, The_varieties_of_a_new_cheese_take_the_place_of_its_rows) {
  Remove_Rows("Varieties_Per_Cheeses");
  for (const int cheese : {7, 7, 8}) {
    Put("Varieties_Per_Cheeses", {{"Cheese_ID", cheese}, {"GROUP", 10}, {"SUBCATEGO", 1}});
  }
  Stand_In("Cheeses_Form", {});
  Start();
  Cheeses.Cheese_ID = 7;
  Cheeses.Cheese_Name = "Brie";
  Open_Under(varieties, "CheeseAdd");
  EXPECT_EQ(Shown_Text("MSelectLab3"), "Cheese: ");
  EXPECT_EQ(Shown_Text("Recipe_Name"), "Brie");
  EXPECT_THAT(Lines("SelectList"), IsEmpty());
  Add(Sample().varieties[0]);
  Add(Sample().varieties[1]);
  EXPECT_THAT(
      Told_By([] { Click("MultSelect"); }),
      ElementsAre("VARIETIES MATCHED TO CHEESE: Vaieties were added to the selected Cheese."));
  Expect_Left(varieties, "Cheeses_Form");
  EXPECT_EQ(Rows("Varieties_Per_Cheeses", "Cheese_ID = 7"),
            Rows_For({Sample().varieties[0], Sample().varieties[1]}));
  EXPECT_THAT(Rows("Varieties_Per_Cheeses", "Cheese_ID = 8"), ElementsAre("10|1"));
}

TEST_F(Varieties_Picker, For_a_wine_the_grapes_are_handed_to_its_screen) {
  Start_With("Wine_Add");
  for (const char* command : {"WineAdd", "WineMod"}) {
    Forms::Screen("Wine_Form").Control("Variety_Combo").Set_Tag("");
    Open_Under(varieties, command);
    Add(Sample().varieties[0]);
    Click("MultCancel");
    Expect_Left(varieties, "Wine_Form");
    EXPECT_EQ(Tag_of("Variety_Combo"), "");
    Open_Under(varieties, command);
    Add(Sample().varieties[1]);
    Click("MultSelect");
    Expect_Left(varieties, "Wine_Form");
    EXPECT_THAT(Selection(), ElementsAre(Sample().varieties[1] + "|" + Sample().variety_ids[1]));
    EXPECT_EQ(Tag_of("Variety_Combo"), "1");
    EXPECT_EQ(Tag_of("Variety_Add_Command"), "1");
  }
}

}  // namespace

// The picker of grape varieties: for a region, a cheese and a wine.
#include <map>

#include "core/Globals.h"
#include "core/tables/Geography_Tables.h"
#include "core/tables/Pairing_Tables.h"
#include "platform/run_time/Conversions.h"
#include "tests/pairing/Pickers_Program.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAreArray;

class Varieties_Picker : public Pickers_Program {
 protected:
  /// As from the screen of the region, whose memory record holds it.
  void Open_For_Region(const Text& region_id) {
    Regions.Region_ID = To_Long(region_id);
    Regions.Region_Name = Sample().region;
    Regions.Country = Sample().country;
    Varieties_Changed_Flag = false;
    Open_Screen_Under(varieties, "VarietiesAddRegion");
  }
  /// The group link rows, "group|mask" by group, that hold these varieties.
  Texts Rows_For(const Texts& names) const {
    std::map<Long, std::int64_t> masks;
    for (const Text& name : names) {
      const Text address = Stored(
          "SELECT Variety_Group, Variety_SubGr FROM Varieties "
          "WHERE Variety_Name = '" +
              name + "'",
          2)[0];
      std::int64_t mask = 1;
      for (Long place = To_Long(address.substr(address.find('|') + 1)); place > 1; --place) {
        mask *= 10;
      }
      masks[To_Long(address.substr(0, address.find('|')))] += mask;
    }
    Texts rows;
    for (const auto& [group, mask] : masks) {
      rows.push_back(std::to_string(group * 10) + "|" + std::to_string(mask));
    }
    return rows;
  }
  Texts Rows(const char* table, const Text& owner) const {
    return Stored("SELECT \"GROUP\", SUBCATEGO FROM " + Text(table) + " WHERE " + owner +
                      " ORDER BY \"GROUP\"",
                  2);
  }
};

TEST_F(Varieties_Picker, Every_variety_by_name_whatever_the_language) {
  const Texts expected = In_Order("SELECT Variety_Name FROM Varieties");
  for (const Integer language : {english, japanese}) {
    Set_Language(language);
    Start();
    Open_For_Region(Sample().region_id);
    EXPECT_EQ(Lines("Cat_List"), expected);
    EXPECT_EQ(Shown_Text("Cat_Number"), std::to_string(expected.size()));
    EXPECT_FALSE(Is_Usable("Add_Command"));
    EXPECT_EQ(Focused(), "Cat_List");
    Stop();
  }
}

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
  Box_Script boxes;
  Click("MultSelect");
  ASSERT_EQ(boxes.Boxes().size(), 1U);
  EXPECT_EQ(boxes.Boxes()[0].title, "VARIETIES MATCHED TO REGION");
  EXPECT_EQ(boxes.Boxes()[0].text, "Vaieties were added to the selected Region.");
  EXPECT_TRUE(Varieties_Changed_Flag);
  Expect_Left(varieties, "Wine_Cellar_Form");
  EXPECT_EQ(Rows("Varieties_Per_Region", of_region), Rows_For(chosen));
  EXPECT_EQ(Rows("Varieties_Per_Region", "NOT " + of_region), others);
  Open_For_Region(Sample().region_id);
  EXPECT_THAT(Lines("SelectList"), UnorderedElementsAreArray(chosen));
}

TEST_F(Varieties_Picker, A_region_without_varieties_begins_empty_and_Cancel_stores_nothing) {
  Empty_Table("Varieties_Per_Region");
  Start();
  Decoded_Count = 3;  // of another list
  Open_For_Region(Sample().region_id);
  EXPECT_THAT(Lines("SelectList"), IsEmpty());
  EXPECT_FALSE(Is_Usable("MultSelect"));
  Add(Sample().varieties[0]);
  Press("Esc");
  Expect_Left(varieties, "Wine_Cellar_Form");
  EXPECT_FALSE(Varieties_Changed_Flag);
  EXPECT_THAT(Rows("Varieties_Per_Region", "1 = 1"), IsEmpty());
}

TEST_F(Varieties_Picker, The_varieties_of_a_new_cheese_take_the_place_of_its_rows) {
  Change([](Record_Store::Database& file) {
    Record_Store::Recordset rows = file.OpenRecordset("Varieties_Per_Cheeses");
    for (; !rows.Eof(); rows.MoveNext()) rows.Delete();
    for (const Long cheese : {7, 7, 8}) {
      rows.AddNew();
      rows.Fields("Cheese_ID") = cheese;
      rows.Fields("GROUP") = Long{10};
      rows.Fields("SUBCATEGO") = Long{1};
      rows.Update();
    }
  });
  for (const bool screen_is_there : {false, true}) {
    if (screen_is_there) Stand_In("Cheeses_Form", {});
    Start();
    Cheeses.Cheese_ID = 7;
    Cheeses.Cheese_Name = "Brie";
    Open_Screen_Under(varieties, "CheeseAdd");
    EXPECT_EQ(Shown_Text("MSelectLab3"), "Cheese: ");
    EXPECT_EQ(Shown_Text("Recipe_Name"), "Brie");
    EXPECT_THAT(Lines("SelectList"), IsEmpty());
    Add(Sample().varieties[0]);
    Add(Sample().varieties[1]);
    Box_Script boxes;
    Click("MultSelect");
    ASSERT_EQ(boxes.Boxes().size(), 1U);
    EXPECT_EQ(boxes.Boxes()[0].title, "VARIETIES MATCHED TO CHEESE");
    EXPECT_EQ(boxes.Boxes()[0].text, "Vaieties were added to the selected Cheese.");
    Expect_Left(varieties, screen_is_there ? "Cheeses_Form" : "Wine_Cellar_Form");
    EXPECT_EQ(Rows("Varieties_Per_Cheeses", "Cheese_ID = 7"),
              Rows_For({Sample().varieties[0], Sample().varieties[1]}));
    EXPECT_THAT(Rows("Varieties_Per_Cheeses", "Cheese_ID = 8"), ElementsAre("10|1"));
    Stop();
  }
}

TEST_F(Varieties_Picker, For_a_wine_the_grapes_are_handed_to_its_screen) {
  Start_With("Wine_Add");
  for (const char* command : {"WineAdd", "WineMod"}) {
    Forms::Screen("Wine_Form").Control("Variety_Combo").Set_Tag("");
    Open_Screen_Under(varieties, command);
    Add(Sample().varieties[0]);
    Click("MultCancel");
    Expect_Left(varieties, "Wine_Form");
    EXPECT_EQ(Tag_of("Variety_Combo"), "");
    Open_Screen_Under(varieties, command);
    Add(Sample().varieties[1]);
    Click("MultSelect");
    Expect_Left(varieties, "Wine_Form");
    EXPECT_THAT(Handed_Over(), ElementsAre(Sample().varieties[1] + "|" + Sample().variety_ids[1]));
    EXPECT_EQ(Tag_of("Variety_Combo"), "1");
    EXPECT_EQ(Tag_of("Variety_Add_Command"), "1");
  }
}

TEST_F(Varieties_Picker, A_search_looks_for_regions_and_stays) {
  Start();
  Open_Screen_Under(varieties, "WineSearch");
  Add(Sample().varieties[0]);
  Box_Script boxes;
  Click("MultSelect");
  EXPECT_THAT(boxes.Boxes(), IsEmpty());
  EXPECT_GT(Found_Count, 0);
  EXPECT_TRUE(Is_Seen(varieties));
  Press("Esc");
  Stop();
  Empty_Table("Varieties_Per_Region");
  const Text used = "SELECT Used FROM Varieties WHERE Variety_ID = " + Sample().variety_ids[0];
  const Text before = Stored(used, 1)[0];
  Start();
  Open_Screen_Under(varieties, "WineSearch");
  Add(Sample().varieties[0]);
  Click("MultSelect");
  ASSERT_EQ(boxes.Boxes().size(), 1U);
  EXPECT_EQ(boxes.Boxes()[0].title, "NO Regions found");
  EXPECT_EQ(boxes.Boxes()[0].text, "There are NO Regions with\rANY of the varieties selected !!!");
  EXPECT_TRUE(Is_Seen(varieties));
  EXPECT_EQ(Stored(used, 1)[0], std::to_string(std::stoi(before) + 1)) << "counted all the same";
}

}  // namespace

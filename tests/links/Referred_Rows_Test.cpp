// What refers to a row, and what goes with it.
#include "links/Referred_Rows.h"

#include "tests/links/Linked_Rows.h"
#include "tests/support/Faults_Mended.h"

namespace {

class Referred_Rows : public Linked_Rows {
 protected:
  Referred_Rows() {
    Regions = {};
    Regions.Region_ID = 30001;
    Wineries = {};
    Wineries.Winery_ID = "30002";
    Labels = {};
    Labels.Label_ID = 30003;
    Classification = {};
    Classification.Classification_ID = 30004;
  }
};

TEST_F(Referred_Rows, Each_way_of_referring_to_a_row_alone_counts_and_none_does_not) {
  const Long winery = Add("Wineries", {{"Region_ID", 30009}, {"Country", "ITA"}});
  const Long label = Add("Labels", {{"Label_Name", "l'O\"range"}, {"Region_ID", 30009}});
  const Long grade =
      Add("Classification", {{"Country", "ITA"}, {"Description", "Höchste 'Stufe'"}});
  Labels.Label_ID = label;
  Classification.Classification_ID = grade;
  // Near ones: the label's name of another region's winery, the class's of another country's.
  const Long elsewhere = Add("Wineries", {{"Region_ID", 30008}, {"Country", "FRA"}});
  Add("Wines",
      {{"Winery_ID", elsewhere}, {"Label", "l'O\"range"}, {"Clasification", "Höchste 'Stufe'"}});
  struct Way {
    bool (*is_referred_to)();
    const char* table;
    Row cells;
  };
  for (const Way& way : std::vector<Way>{
           {Is_Region_Referred_To, "Labels", {{"Region_ID", 30001}}},
           {Is_Region_Referred_To, "Wineries", {{"Region_ID", 30001}}},
           {Is_Region_Referred_To, "Regions", {{"Sub_Region_Of", 30001}}},
           {Is_Winery_Referred_To, "Wines", {{"Winery_ID", 30002}}},
           {Is_Winery_Referred_To, "Mobile_Wines", {{"Mobile_Wine_Winery_ID", 30002}}},
           {Is_Label_Referred_To, "Wines", {{"Winery_ID", winery}, {"Label", "l'O\"range"}}},
           {Is_Label_Referred_To, "Mobile_Wines", {{"Mobile_Wine_Label_ID", label}}},
           {Is_Label_Referred_To, "Labels_per_Winery", {{"Winery_ID", 7}, {"Label_ID", label}}},
           {Is_Classification_Referred_To,
            "Wines",
            {{"Winery_ID", winery}, {"Clasification", "Höchste 'Stufe'"}}},
           {Is_Classification_Referred_To, "Labels", {{"Appellation_ID", grade}}}}) {
    SCOPED_TRACE(way.table + way.cells.back().value);
    EXPECT_FALSE(way.is_referred_to());
    Add(way.table, way.cells);
    EXPECT_TRUE(way.is_referred_to());
    Record_Store::Recordset rows = Wine_Cellar_DB->OpenRecordset(way.table);
    rows.MoveLast();
    rows.Delete();
  }
}

TEST_F(Referred_Rows, Wines_follow_the_name_of_their_label_where_mended) {
  const Long here = Add("Wineries", {{"Region_ID", 30009}});
  const Long there = Add("Wineries", {{"Region_ID", 30008}});
  Labels.Label_ID = Add("Labels", {{"Label_Name", "Old's"}, {"Region_ID", 30009}});
  for (const Long winery : {here, there, here}) {
    Add("Wines", {{"Winery_ID", winery}, {"Label", "Old's"}});
  }
  Add("Wines", {{"Winery_ID", here}, {"Label", "Other"}});
  const auto labels = [] { return Rows("SELECT Label FROM Wines ORDER BY Wine_ID DESC LIMIT 4"); };
  Rename_Label_in_Wines("New");
  EXPECT_THAT(labels(), ElementsAre("Other", "Old's", "Old's", "Old's"));
  const Faults_Mended faults;
  Rename_Label_in_Wines("New");
  EXPECT_THAT(labels(), ElementsAre("Other", "New", "Old's", "New"));
}

TEST_F(Referred_Rows, Only_what_is_the_rows_own_goes_with_it) {
  const Long grape = Add_Variety(900001, 1, 4);
  Texts texts;
  for (int text = 0; text < 4; ++text)
    texts.push_back(To_Text(Add("Words_for_Data", {{"English", "told"}})));
  Text photo = "1000";
  for (const char* of : {"Region", "Winery", "Label"}) {
    for (const char* key : {"30001", "30002", "30003"}) {
      photo = To_Text(To_Long(photo) + 1);
      Add("Photos", {{"Photo_ID", photo}, {"Photo_of", of}, {"Relation_ID", key}});
    }
  }
  for (const Long region : {30001, 30002}) {
    Add("Varieties_Per_Region", {{"Region_ID", region}, {"GROUP", 9000010}, {"SUBCATEGO", 1}});
    Add("Regions_Per_Variety", {{"Region_ID", region}, {"Variety_ID", grape}});
    Add("Labels_per_Winery", {{"Winery_ID", region}, {"Label_ID", 7}});
  }
  Regions.Description = static_cast<Integer>(To_Long(texts[0]));
  Regions.History = static_cast<Integer>(To_Long(texts[1]));
  const auto left = [&](const char* table, const char* field, const Text& keys) {
    return Rows("SELECT " + Text(field) + " FROM " + table + " WHERE " + field + " IN (" + keys +
                ") ORDER BY 1");
  };
  Remove_Rows_of_Region();
  Wineries.History = texts[2];
  Remove_Rows_of_Winery();
  Wineries.History = "x";
  Remove_Rows_of_Winery();
  Remove_Rows_of_Label();
  const Text all_texts = texts[0] + "," + texts[1] + "," + texts[2] + "," + texts[3];
  EXPECT_THAT(left("Words_for_Data", "Multi_Language_ID", all_texts), ElementsAre(texts[3]));
  EXPECT_THAT(left("Varieties_Per_Region", "Region_ID", "30001,30002"), ElementsAre("30002"));
  EXPECT_THAT(left("Regions_Per_Variety", "Region_ID", "30001,30002"), ElementsAre("30002"));
  EXPECT_THAT(left("Labels_per_Winery", "Winery_ID", "30001,30002"), ElementsAre("30001"));
  EXPECT_THAT(left("Photos", "Photo_ID", "1001,1002,1003,1004,1005,1006,1007,1008,1009"),
              ElementsAre("1002", "1003", "1004", "1006", "1007", "1008"));
  EXPECT_EQ(Used("Varieties", "Variety_ID", grape), "3");
}

}  // namespace

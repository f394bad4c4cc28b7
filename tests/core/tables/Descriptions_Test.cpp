// The one description of each table: what stands in the file and in which order.
#include <map>
#include <sstream>

#include "tests/core/tables/New_Data_File.h"

namespace {

using Descriptions = New_Data_File;
using Record_Store::Recordset;

Recordset Open(std::string_view table) {
  Recordset rows;
  Open_Table(rows, table);
  return rows;
}

// The screens reach these columns by number.
TEST_F(Descriptions, Columns_Reached_By_Ordinal_Stand_There) {
  const struct {
    const char* table;
    int first;
    const char* columns;
  } cases[] = {
      {"Words", 0, "ID Program Variable"},
      {"Words", 3, "English Spanish French German Italian Japanese Portuguese types_variable"},
      {"Glossary", 0, "ID Keyword Country_of_Origin"},
      {"Glossary", 3, "English Spanish French German Italian Japanese Portuguese"},
      {"Maridages", 5, "English Spanish French German Italian Japanese Portuguese"},
      {"Words_for_Data", 0, "Multi_Language_ID English Spanish French German Italian Japanes"},
      {"Words_for_Data", 7, "Portuguese ID"},
      {"World_Contries", 0, "Short_Name Long_Name Spanish_Name"},
      {"World_Contries", 9, "French German Italian Japanese Portuguese"},
  };
  for (const auto& expected : cases) {
    const Recordset rows = Open(expected.table);
    std::istringstream columns(expected.columns);
    int ordinal = expected.first;
    for (std::string column; columns >> column; ++ordinal)
      EXPECT_EQ(rows.Ordinal(column), ordinal) << expected.table << "." << column;
  }
}

TEST_F(Descriptions, Group_Index_Of_The_Pairings_Has_Two_Fields) {
  Recordset rows = Open("Maridages");
  Maridages_Description.Init(Maridages);
  for (Long subgroup : {2, 1}) {
    Maridages.Maridage_Group = 7;
    Maridages.Maridage_SubGr = subgroup;
    rows.AddNew();
    Maridages_Description.Write(rows, Maridages);
  }
  rows.Index("Maridage_GROUP");
  rows.Seek("=", 7);
  EXPECT_EQ(rows.Fields("Maridage_SubGr").As_Long(), 1);
  rows.Seek("=", 7, 2);
  EXPECT_EQ(rows.Fields("Maridage_ID").As_Long(), 1);
}

// Keys of photos' owners share a column, cellar wines and general wines the table of marks.
TEST_F(Descriptions, First_Numbers_Of_The_Counters) {
  const std::map<std::string, Long> others = {
      {"Wineries", 10001}, {"Labels", 20001}, {"Mobile_Wines", 20001}};
  int counters = 0;
  Tables::For_Each_Table([&](const auto& table) {
    for (const auto& field : table.Fields()) {
      if (!field.Schema().counter) continue;
      ++counters;
      Recordset rows = Open(table.Name());
      rows.AddNew();
      const auto expected = others.find(table.Name());
      EXPECT_EQ(rows[field.Schema().name].As_Long(),
                expected == others.end() ? 1 : expected->second)
          << table.Name();
    }
  });
  EXPECT_EQ(counters, 22);
}

TEST_F(Descriptions, Key_Of_A_Long_Text_Stands_Twice) {
  Recordset rows = Open("Words_for_Data");
  for (int i = 0; i < 2; ++i) {
    rows.AddNew();
    Words_for_Data_Description.Init(Words_for_Data);
    Words_for_Data_Description.Write(rows, Words_for_Data);
  }
  rows.MoveLast();
  EXPECT_EQ(rows["Multi_Language_ID"].As_Long(), 2);
  EXPECT_EQ(rows["ID"].As_Long(), 2);
}

// The numbers of a wine's pairings are given by the program, several rows with one number.
TEST_F(Descriptions, Number_Of_A_General_Wines_Pairing_Is_A_Plain_Field) {
  Recordset rows = Open("Mobile_Wines_per_Maridage");
  Mobile_Wines_per_Maridage.Mobile_Wines_per_Maridage_ID = 41;
  for (int i = 0; i < 2; ++i) {
    rows.AddNew();
    Mobile_Wines_per_Maridage_Description.Write(rows, Mobile_Wines_per_Maridage);
  }
  rows.MoveLast();
  EXPECT_EQ(rows["Mobile_Wines_per_Maridage_ID"].As_Integer(), 41);
  EXPECT_EQ(rows.RecordCount(), 2);
}

}  // namespace

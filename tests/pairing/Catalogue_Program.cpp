#include "tests/pairing/Catalogue_Program.h"

#include <algorithm>

void Catalogue::Open(const char* entry, Integer language) {
  if (language != english) Set_Language(language);
  Start();
  Pick(entry);
}

Maridages_Record Catalogue::Made_Up(const Text& name) {
  Maridages_Record pairing;
  Maridages_Description.Init(pairing);
  pairing.Maridage_Name = name;
  pairing.English = name + " en";
  pairing.Spanish = name + " es";
  pairing.French = name + " fr";
  pairing.German = name + " de";
  pairing.Italian = name + " it";
  pairing.Japanese = name + " ja";
  pairing.Portuguese = name + " pt";
  pairing.Maridage_Group = 900000;
  pairing.Maridage_SubGr = 1;
  pairing.SERIAL_NUMBER = "SYS";
  pairing.Multiuse = 3;
  return pairing;
}

Text Catalogue::Put(const Maridages_Record& pairing) const {
  Text key;
  Change([&](Record_Store::Database& file) {
    Record_Store::Recordset rows = file.OpenRecordset("Maridages");
    rows.AddNew();
    key = rows.Fields("Maridage_ID").As_Text();
    Maridages_Description.Write(rows, pairing);
  });
  return key;
}

Text Catalogue::State_of(const char* control) {
  const Forms::Color color =
      Forms::Screen("Cate_Add_Form").Get<Forms::Placed_Control>(control).BackColor();
  if (color == Forms::Window_Color) return "open";
  if (color == Forms::Required_Color) return "required";
  return color == Forms::Locked_Color ? "locked" : "another colour";
}

void Catalogue::Click_Pairing(const Text& first_cell) {
  const std::vector<Text> cells = Column(0);
  const auto found = std::ranges::find(cells, first_cell);
  ASSERT_NE(found, cells.end()) << first_cell << " is not listed";
  Click_Row(list, static_cast<int>(found - cells.begin()));
}

std::vector<Text> Catalogue::Column(std::size_t column) {
  std::vector<Text> cells;
  for (const Text& row : Shown_Rows(list)) {
    std::size_t begin = 0;
    for (std::size_t skipped = 0; skipped < column; ++skipped) begin = row.find(" | ", begin) + 3;
    cells.push_back(row.substr(begin, row.find(" | ", begin) - begin));
  }
  return cells;
}

std::vector<Text> Catalogue::Boxes() {
  return {Shown_Text("CatText"), Shown_Text("CAT_Other_Language_Text")};
}

void Catalogue::Type_Names(const Two_Names& names) {
  Type_Into("CatText", names.first);
  Type_Into("CAT_Other_Language_Text", names.second);
}

std::vector<Text> Catalogue::Added(const Text& fields, int count) const {
  return Stored(
      "SELECT " + fields + " FROM Maridages WHERE Maridage_Group >= 1000000 ORDER BY Maridage_ID",
      count);
}

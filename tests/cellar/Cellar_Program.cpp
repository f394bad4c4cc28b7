#include "tests/cellar/Cellar_Program.h"

#include <QApplication>

#include "cellar/Cellar_Screens.h"
#include "core/Globals.h"
#include "core/tables/Text_Tables.h"
#include "platform/forms/Forms.h"
#include "platform/forms/Screens.h"
#include "platform/run_time/Guard.h"

namespace {

const Forms::Screen screen("Wine_Form");

std::vector<Text> Cut(const Text& line) {
  std::vector<Text> parts(1);
  for (const char letter : line) {
    if (letter == '|') {
      parts.emplace_back();
    } else {
      parts.back() += letter;
    }
  }
  return parts;
}

// Names that stand once, so that a click on the name means this one.
constexpr const char* wineries_with_everything =
    "SELECT w.Winery_ID, w.Winery_Name, w.Region_ID, w.Region, w.Country, c.Long_Name "
    "FROM Wineries w JOIN World_Contries c ON c.Short_Name = w.Country "
    "WHERE (SELECT count(*) FROM Wineries o WHERE o.Winery_Name = w.Winery_Name) = 1 "
    "AND (SELECT count(*) FROM Regions_Per_Variety v WHERE v.Region_ID = w.Region_ID) >= 3 "
    "AND EXISTS (SELECT 1 FROM Labels l WHERE l.Region_ID = w.Region_ID "
    "AND l.Wine_Color = 'White') "
    "AND EXISTS (SELECT 1 FROM Classification k WHERE k.Country = w.Country) "
    "ORDER BY w.Winery_ID";

}  // namespace

Cellar_Program::Cellar_Program() {
  Register_Cellar_Screens();
  Set_Locale("en_US");
  Set_Clock_For_Tests(&now_);
  QApplication::setDoubleClickInterval(20);  // for how long a list takes no click once it is open
  Name_Cellars_In_File();
}

Cellar_Program::~Cellar_Program() {
  Set_Clock_For_Tests(nullptr);
  Set_Locale("");
}

const Sample_Winery& Cellar_Program::Sample(int number) const {
  static const std::vector<Sample_Winery> samples = [this] {
    std::vector<Sample_Winery> found;
    for (const Text& line : Stored(wineries_with_everything, 6)) {
      const std::vector<Text> part = Cut(line);
      if (!found.empty() && found.back().country == part[4]) continue;
      found.push_back({part[0], part[1], part[2], part[3], part[4], part[5], {}, {}, {}, {}});
      Sample_Winery& winery = found.back();
      winery.label =
          Stored("SELECT Label_Name FROM Labels WHERE Wine_Color = 'White' AND Region_ID = " +
                     winery.region_id + " ORDER BY Label_ID",
                 1)
              .front();
      winery.classification = Stored("SELECT Description FROM Classification WHERE Country = '" +
                                         winery.country + "' ORDER BY Classification_ID",
                                     1)
                                  .front();
      for (const Text& grape :
           Stored("SELECT v.Variety_ID, v.Variety_Name FROM Regions_Per_Variety r JOIN Varieties v "
                  "ON v.Variety_ID = r.Variety_ID WHERE r.Region_ID = " +
                      winery.region_id + " ORDER BY v.Variety_ID",
                  2)) {
        winery.variety_ids.push_back(Cut(grape)[0]);
        winery.varieties.push_back(Cut(grape)[1]);
      }
      if (found.size() == 2) break;
    }
    return found;
  }();
  return samples.at(static_cast<std::size_t>(number));
}

Wines_Record Cellar_Program::Sample_Wine(int number) const {
  const Sample_Winery& winery = Sample(number);
  Wines_Record wine;
  Wines_Description.Init(wine);
  wine.Winery_ID = To_Long(winery.id);
  wine.Label = winery.label;
  wine.Variety = winery.varieties[0];
  wine.Variety_ID = To_Long(winery.variety_ids[0]);
  wine.Vintage = static_cast<Integer>(now_.Year() - 10);
  wine.Peak = static_cast<Integer>(now_.Year() - 5);
  wine.Value_Guide = To_Currency("12.5");
  wine.Ranking = 90;
  wine.Total_Bottles = 3;
  wine.Bottle_Size = "1.5 Lt";
  wine.Color = "Red";
  wine.Alcohol = 13.5;
  wine.Clasification = winery.classification;
  wine.Date_Added = Date::Of(2020, 1, 31, 9, 15);
  wine.Cellar_ID = 1;
  return wine;
}

Long Cellar_Program::Put_Wine(const Wines_Record& wine,
                              const std::vector<Text>& variety_ids) const {
  Long key = 0;
  Change([&](Record_Store::Database& file) {
    Record_Store::Recordset wines = file.OpenRecordset("Wines");
    wines.AddNew();
    key = wines.Fields("Wine_ID").As_Long();
    Wines_Description.Write(wines, wine);
    Record_Store::Recordset varieties = file.OpenRecordset("Varieties_of_Wines");
    for (const Text& variety : variety_ids) {
      varieties.AddNew();
      varieties.Fields("Wine_ID") = key;
      varieties.Fields("Variety_ID") = variety;
      varieties.Update();
    }
  });
  return key;
}

void Cellar_Program::Put_Mark(Long wine, const char* kind, int box, bool cellar_wine) const {
  Change([&](Record_Store::Database& file) {
    Record_Store::Recordset marks = file.OpenRecordset("Wine_Tasting");
    marks.AddNew();
    Wine_Tasting_Description.Write(
        marks, {static_cast<Integer>(box), kind, static_cast<Integer>(wine), cellar_wine});
  });
}

Long Cellar_Program::Put_Text(const char* english) const {
  Long key = 0;
  Change([&](Record_Store::Database& file) {
    Record_Store::Recordset texts = file.OpenRecordset("Words_for_Data");
    texts.AddNew();
    key = texts.Fields("Multi_Language_ID").As_Long();
    Words_for_Data_Record text;
    Words_for_Data_Description.Init(text);
    text.English = english;
    Words_for_Data_Description.Write(texts, text);
  });
  return key;
}

void Cellar_Program::Empty_Table(const char* table) const {
  Change([&](Record_Store::Database& file) {
    Record_Store::Recordset rows = file.OpenRecordset(table);
    for (; !rows.Eof(); rows.MoveNext()) rows.Delete();
  });
}

void Cellar_Program::Start_With(const char* entry) {
  Start();
  Pick(entry);
}

void Cellar_Program::Open_Under(const char* command) {
  Current_Command = command;
  Run_Guarded([] { screen.Open(); });
  Settle_Events();
}

void Cellar_Program::Choose_Winery(int winery) const {
  Choose("Country_Combo", Sample(winery).country_name);
  Choose("Winery_Combo", Sample(winery).name);
}

// The colour last: a number of bottles counts once its field has lost the focus.
void Cellar_Program::Fill_Add(const New_Wine& wine, int winery) const {
  Choose_Winery(winery);
  Choose("Label_Combo", wine.label);
  Choose("Classification_Combo", wine.classification);
  for (const int row : wine.ticks) Click_Tick("Variety_Combo", row);
  Choose("Bottle_Size_Combo", wine.bottle_size);
  Type_Into("Total_Bottles_Text", wine.total_bottles);
  Choose("Color_Combo", wine.color);
}

int Cellar_Program::Row_of(Long wine) {
  const std::string end = " | " + std::to_string(wine);
  const std::vector<std::string> rows = Shown_Rows("Wine_Cellar_ListView");
  for (std::size_t row = 0; row < rows.size(); ++row) {
    if (rows[row].ends_with(end)) return static_cast<int>(row);
  }
  return -1;
}

Text Cellar_Program::Tag_of(const char* control) { return screen.Control(control).Tag(); }

Text Cellar_Program::Color_of(const char* control) {
  const Forms::Color color = screen.Get<Forms::Placed_Control>(control).BackColor();
  if (color == Forms::Window_Color) return "open";
  if (color == Forms::Required_Color) return "required";
  if (color == Forms::Locked_Color) return "locked";
  return color == Forms::Open_Check_Color ? "check" : "another colour";
}

bool Cellar_Program::Is_Locked(const char* control) {
  return screen.Get<Forms::Lockable_Control>(control).Locked();
}

bool Cellar_Program::Is_Ticked(const Text& check_box) {
  return screen.Get<Forms::Check_Box>(check_box).Value() == 1;
}

std::vector<Text> Cellar_Program::Ticked_Boxes() {
  std::vector<Text> ticked;
  for (const auto& [kind, last] : {std::pair{"Taste_Check_", 5}, {"Aroma_Check_", 7}}) {
    for (int box = 0; box <= last; ++box) {
      const Text name = kind + std::to_string(box);
      if (Is_Ticked(name)) ticked.push_back(name);
    }
  }
  return ticked;
}

std::vector<Text> Cellar_Program::Ticked_Varieties() {
  const Forms::Check_List& list = screen.Get<Forms::Check_List>("Variety_Combo");
  std::vector<Text> ticked;
  for (int row = 0; row < list.ListCount(); ++row) {
    if (list.Selected(row)) ticked.push_back(list.List(row));
  }
  return ticked;
}

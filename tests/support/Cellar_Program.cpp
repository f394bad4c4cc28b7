#include "tests/support/Cellar_Program.h"

#include <QAbstractItemView>
#include <QApplication>

#include "cellar/Cellar_Screens.h"

namespace {

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
    for (const Text& line : Stored(wineries_with_everything)) {
      const Texts part = Cells_of(line);
      if (!found.empty() && found.back().country == part[4]) continue;
      const auto grapes = [&](const Text& field) {
        return Stored("SELECT v." + field +
                      " FROM Regions_Per_Variety r JOIN Varieties v ON v.Variety_ID = r.Variety_ID "
                      "WHERE r.Region_ID = " +
                      part[2] + " ORDER BY v.Variety_ID");
      };
      found.push_back(
          {part[0], part[1], part[2], part[3], part[4], part[5],
           One("SELECT Label_Name FROM Labels WHERE Wine_Color = 'White' AND Region_ID = " +
               part[2] + " ORDER BY Label_ID"),
           One("SELECT Description FROM Classification WHERE Country = '" + part[4] +
               "' ORDER BY Classification_ID"),
           grapes("Variety_ID"), grapes("Variety_Name")});
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

Long Cellar_Program::Put_Wine(const Wines_Record& wine, const Texts& variety_ids) const {
  const Long key = Put(Wines_Description, wine);
  for (const Text& variety : variety_ids) {
    Put("Varieties_of_Wines", {{"Wine_ID", key}, {"Variety_ID", variety}});
  }
  return key;
}

void Cellar_Program::Put_Mark(Long wine, const char* kind, int box, bool cellar_wine) const {
  Put(Wine_Tasting_Description,
      {static_cast<Integer>(box), kind, static_cast<Integer>(wine), cellar_wine});
}

Long Cellar_Program::Put_Text(const char* in_english, const char* in_spanish) const {
  Words_for_Data_Record text;
  Words_for_Data_Description.Init(text);
  text.English = in_english;
  text.Spanish = in_spanish;
  return Put(Words_for_Data_Description, text);
}

void Cellar_Program::Choose_Winery(int winery) const {
  Choose("Wine_Form/Country_Combo", Sample(winery).country_name);
  Choose("Winery_Combo", Sample(winery).name);
}

void Cellar_Program::Fill_Add(const New_Wine& wine, int winery) const {
  Choose_Winery(winery);
  Fill_Bottle(wine);
}

// The colour last: a number of bottles counts once its field has lost the focus.
void Cellar_Program::Fill_Bottle(const New_Wine& wine) {
  Choose("Label_Combo", wine.label);
  Choose("Classification_Combo", wine.classification);
  for (const int row : wine.ticks) Click_Tick("Variety_Combo", row);
  Choose("Bottle_Size_Combo", wine.bottle_size);
  Type_Into("Total_Bottles_Text", wine.total_bottles);
  Choose("Color_Combo", wine.color);
}

std::size_t Cellar_Program::Key_Column(const char* list) {
  const auto& view = dynamic_cast<const QAbstractItemView&>(Find(list));
  return static_cast<std::size_t>(view.model()->columnCount()) - 1;
}

Texts Cellar_Program::Ticked_Boxes(const Text& form) {
  Texts ticked;
  for (const auto& [kind, last] : {std::pair{"Taste_Check_", 5}, {"Aroma_Check_", 7}}) {
    for (int box = 0; box <= last; ++box) {
      const Text name = kind + std::to_string(box);
      if (Is_Ticked(form + name)) ticked.push_back(name);
    }
  }
  return ticked;
}

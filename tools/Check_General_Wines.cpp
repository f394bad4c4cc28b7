// The general list: wines, their marks, and the numbering of their pairings.
#include <set>

#include "tools/Compile_Library.h"
#include "tools/Grapes.h"
#include "tools/Vocabulary.h"

namespace Data_Compiler {

namespace {

/// The rows' keys are of 16 bits, and the user's own wines go on from the last.
constexpr std::size_t Pairing_Rows = 25000;

/// The place of a wine's colour among the five; their number for any other text.
std::size_t Color_Of(const Mobile_Wines_Record& wine) {
  return static_cast<std::size_t>(
      std::find(Wine_Colors.begin(), Wine_Colors.end(), wine.Mobile_Wine_Color) -
      Wine_Colors.begin());
}

void Check_Wine(const Library& library, const Mobile_Wines_Record& wine, Problems& problems) {
  const std::size_t color = Color_Of(wine);
  const Text& second = wine.Mobile_Wine_Color_2;
  if (color == Wine_Colors.size() || (second != "x" && !Is_One_Of(Wine_Colors, second)))
    problems.Report(library.Where(wine),
                    "unknown colour '" + wine.Mobile_Wine_Color + "', '" + second + "'");
  if (second == wine.Mobile_Wine_Color)
    problems.Report(library.Where(wine), "the second colour is the first");
  if (wine.Mobile_Wine_Type == "VA" && color > 1)
    problems.Report(library.Where(wine), "the screens offer RED and WHITE alone for a grape");
  if (!Is_One_Of(Wine_Types, wine.Mobile_Wine_Type))
    problems.Report(library.Where(wine), "unknown type '" + wine.Mobile_Wine_Type + "'");
  if ((wine.Mobile_Wine_Type == "VA") != (wine.Mobile_Wine_Country == "ALL"))
    problems.Report(library.Where(wine), "variety wines alone are of all countries");
  const auto* label = library.Find<Labels_Record>(wine.Mobile_Wine_Label_ID);
  if (label && label->Wine_Color != "x" && color < Colors.size() &&
      (label->Wine_Color != Colors[color] || second != "x"))
    problems.Report(library.Where(wine), "its label is " + label->Wine_Color + ", the wine " +
                                             wine.Mobile_Wine_Color +
                                             (second == "x" ? "" : " and " + second));
  const auto* main = library.Find<Varieties_Record>(wine.Mobile_Wine_Variety_ID);
  if (main && color == 0 && main->Variety_Color == "White")
    problems.Report(library.Where(wine), "a red wine of the white grape " + main->Variety_Name);
}

/// A wine by variety has the grape's name, any other its label's.
void Check_Name(const Library& library, const Mobile_Wines_Record& wine, Problems& problems) {
  const auto* label = library.Find<Labels_Record>(wine.Mobile_Wine_Label_ID);
  const auto* variety = library.Find<Varieties_Record>(wine.Mobile_Wine_Variety_ID);
  const Text& name = wine.Mobile_Wine_Name;
  if (wine.Mobile_Wine_Type == "VA" ? !variety || variety->Variety_Name != name
                                    : label && label->Label_Name != name)
    problems.Report(library.Where(wine), "'" + name + "' is not the name of its grape or label");
}

/// A wine of a region holds what grows there.
void Check_Grapes(const Library& library, Problems& problems) {
  const Grapes grapes(library);
  for (const Varieties_of_Mobile_Wines_Record& row :
       library.Of<Varieties_of_Mobile_Wines_Record>()) {
    const auto* wine = library.Find<Mobile_Wines_Record>(row.Mobile_Wine_ID);
    const auto* variety = library.Find<Varieties_Record>(row.Variety_ID);
    const auto* label = wine ? library.Find<Labels_Record>(wine->Mobile_Wine_Label_ID) : nullptr;
    if (!label || !variety || grapes.Of(label->Region_ID).contains(row.Variety_ID)) continue;
    const auto* region = library.Find<Regions_Record>(label->Region_ID);
    problems.Report(library.Where(*wine), variety->Variety_Name + " does not grow in " +
                                              (region ? region->Region_Name : Text("x")));
  }
}

void Check_Wine_Names(const Library& library, Problems& problems) {
  std::set<std::pair<Text, Text>> seen;
  std::set<Text> available;
  for (const auto& row : library.Of<Mobile_Wines_Available_Countries_Record>())
    available.insert(row.Country_Short_Name);
  for (const Mobile_Wines_Record& wine : library.Of<Mobile_Wines_Record>()) {
    if (!seen.emplace(wine.Mobile_Wine_Name, wine.Mobile_Winery_Name).second)
      problems.Report(library.Where(wine),
                      "no winery tells '" + wine.Mobile_Wine_Name + "' from another wine");
    if (wine.Mobile_Wine_Country != "ALL" && !available.contains(wine.Mobile_Wine_Country))
      problems.Report(library.Where(wine),
                      wine.Mobile_Wine_Country + " is missing from the countries of the list");
  }
}

using Boxes = std::set<Integer>;

/// The taste boxes of a colour that exclude each other, as the wine screens untick them.
std::vector<Boxes> Exclusive_Boxes(std::size_t color) {
  switch (color) {
    case 0:
      return {{0, 1, 2}, {3, 4, 5}};
    case 1:
    case 2:
      return {{0, 1, 2}};
    case 3:
      return {{0, 1, 2, 3, 4, 5}};
    default:
      return {};
  }
}

/// How many boxes of a kind a colour opens.
Integer Open_Boxes(const Library& library, std::size_t color, const Text& type) {
  Integer open = 0;
  for (const Wine_Taste_Type_Record& row : library.Of<Wine_Taste_Type_Record>())
    if (row.Color == Colors[color] && row.Type == type) ++open;
  return open;
}

void Check_Marks(const Library& library, Problems& problems) {
  std::map<Long, Boxes> tastes;
  std::set<std::tuple<Long, Text, Integer>> seen;
  for (const Wine_Tasting_Record& mark : library.Of<Wine_Tasting_Record>()) {
    const auto* wine = library.Find<Mobile_Wines_Record>(mark.Wine_ID);
    if (!wine || Color_Of(*wine) == Wine_Colors.size()) continue;
    if (mark.Description < 0 ||
        mark.Description >= Open_Boxes(library, Color_Of(*wine), mark.Type_Taste))
      problems.Report(library.Where(mark), "a mark of a box that the colour does not open");
    if (!seen.emplace(mark.Wine_ID, mark.Type_Taste, mark.Description).second)
      problems.Report(library.Where(mark), "the mark stands twice");
    if (mark.Type_Taste == "Taste") tastes[mark.Wine_ID].insert(mark.Description);
  }
  for (const auto& [key, boxes] : tastes) {
    const auto& wine = *library.Find<Mobile_Wines_Record>(key);
    for (const Boxes& exclusive : Exclusive_Boxes(Color_Of(wine)))
      if (std::count_if(boxes.begin(), boxes.end(),
                        [&](Integer box) { return exclusive.contains(box); }) > 1)
        problems.Report(library.Where(wine), "tastes that exclude each other");
  }
}

void Check_Numbering(const Library& library, Problems& problems) {
  const auto& rows = library.Of<Mobile_Wines_per_Maridage_Record>();
  const std::string table = "Mobile_Wines_per_Maridage";
  if (rows.empty())
    problems.Report(table,
                    "the table is empty: a user's wine could not go on from "
                    "its last number");
  if (rows.size() > Pairing_Rows) problems.Report(table, "more than 25000 rows");
  for (std::size_t i = 1; i < rows.size(); ++i)
    if (rows[i].Mobile_Wines_per_Maridage_ID <= rows[i - 1].Mobile_Wines_per_Maridage_ID) {
      problems.Report(
          table, "out of order at number " + std::to_string(rows[i].Mobile_Wines_per_Maridage_ID));
      return;
    }
}

}  // namespace

void Check_General_Wines(const Library& library, Problems& problems) {
  for (const Mobile_Wines_Record& wine : library.Of<Mobile_Wines_Record>()) {
    Check_Wine(library, wine, problems);
    Check_Name(library, wine, problems);
  }
  Check_Grapes(library, problems);
  Check_Wine_Names(library, problems);
  Check_Marks(library, problems);
  Check_Numbering(library, problems);
}

}  // namespace Data_Compiler

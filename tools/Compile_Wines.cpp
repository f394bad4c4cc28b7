// The general wines with their marks.
#include <algorithm>
#include <span>

#include "tools/Compilation.h"
#include "tools/Vocabulary.h"

namespace Data_Compiler {

namespace {

/// How a list shows and a cell names a wine that has a winery.
std::string Full_Name(const Mobile_Wines_Record& wine) {
  return wine.Mobile_Wine_Name + " - [" + wine.Mobile_Winery_Name + "]";
}

/// Label, region and winery belong to a wine by its type: none to a variety wine, no winery to an
/// appellation wine.
void Find_Origin(Compilation& c, const Source_Row& row, Mobile_Wines_Record& wine) {
  const bool by_variety = wine.Mobile_Wine_Type == "VA";
  const bool by_label = wine.Mobile_Wine_Type == "LE";
  if (row.Given("Label") == by_variety || row.Given("Region") == by_variety ||
      row.Given("Winery") != by_label || (wine.Mobile_Wine_Country == "ALL") != by_variety)
    c.problems.Report(row.Where(), "type " + wine.Mobile_Wine_Type +
                                       " does not fit country, region, label and winery");
  if (by_variety) return;
  c.countries.Find(wine.Mobile_Wine_Country, row.Where(), c.problems);
  const Long region =
      c.regions.Find(Name_Within(row["Region"], wine.Mobile_Wine_Country), row.Where(), c.problems);
  wine.Mobile_Wine_Label_ID =
      c.labels.Find(Label_Within(row["Label"], region), row.Where(), c.problems);
  if (by_label)
    wine.Mobile_Wine_Winery_ID = c.wineries.Find(
        Name_Within(row["Winery"], wine.Mobile_Wine_Country), row.Where(), c.problems);
}

Mobile_Wines_Record Wine_From(Compilation& c, const Source_Row& row) {
  Mobile_Wines_Record wine;
  Mobile_Wines_Description.Init(wine);
  wine.Mobile_Wine_Name = row["Name"];
  wine.Mobile_Wine_Type = row["Type"];
  wine.Mobile_Wine_Country = row["Country"];
  wine.Mobile_Winery_Name = row["Winery"];
  wine.Mobile_Wine_Color = row["Color"];
  wine.Mobile_Wine_Color_2 = row["Color_2"];
  if (row.Given("Main_Variety"))
    wine.Mobile_Wine_Variety_ID = c.varieties.Find(row["Main_Variety"], row.Where(), c.problems);
  Find_Origin(c, row, wine);
  return wine;
}

/// The grapes in the line's order; the main one alone where no others are told.
void Add_Grapes(Compilation& c, const Source_Row& row, Long wine, Long main) {
  std::vector<Long> grapes = c.Keys_In(row, "Varieties", c.varieties);
  if (grapes.empty() && main != -1) grapes = {main};
  if (std::find(grapes.begin(), grapes.end(), main) == grapes.end() && main != -1)
    c.problems.Report(row.Where(), "the main variety is not among the varieties");
  for (Long grape : grapes)
    c.library.Add(Varieties_of_Mobile_Wines_Record{wine, grape, 0}, row.Where());
}

void Add_Marks(Compilation& c, const Source_Row& row, Long wine, std::string_view type,
               std::span<const std::string_view> boxes) {
  for (const std::string& word : row.List(type)) {
    const auto box = std::find(boxes.begin(), boxes.end(), word);
    if (box == boxes.end()) {
      c.problems.Report(row.Where(), std::string(type) + " has no mark '" + word + "'");
      continue;
    }
    Wine_Tasting_Record mark;
    mark.Description = static_cast<Integer>(box - boxes.begin());
    mark.Type_Taste = type;
    mark.Wine_ID = static_cast<Integer>(wine);
    mark.Cellar_Wine = false;
    c.library.Add(std::move(mark), row.Where());
  }
}

void Add_Name(Compilation& c, const Mobile_Wines_Record& wine, const Place& place) {
  if (wine.Mobile_Winery_Name != Not_Given)
    c.wines.Add(Full_Name(wine), wine.Mobile_Wine_ID, place, c.problems);
  else
    c.wines.Add(wine.Mobile_Wine_Name, wine.Mobile_Wine_ID, place, c.problems);
}

/// The countries of the wines, by their English names.
void Add_Available_Countries(Compilation& c) {
  std::map<Text, Text> available;
  for (const Countries_Record& country : c.library.Of<Countries_Record>())
    for (const Mobile_Wines_Record& wine : c.library.Of<Mobile_Wines_Record>())
      if (wine.Mobile_Wine_Country == country.Short_Name)
        available[country.Long_Name] = country.Short_Name;
  for (const auto& [name, country] : available)
    c.library.Add(Mobile_Wines_Available_Countries_Record{country});
}

}  // namespace

void Read_General_Wines(Compilation& c) {
  const Source_Table file(c.folder, "?general_wines.tsv",
                          "Name Type Country Winery Label Region Color Color_2 Main_Variety "
                          "Varieties Taste Aroma Pairings Cheeses",
                          c.problems);
  for (const Source_Row& row : file.Rows()) {
    const auto& wine = c.library.Add(Wine_From(c, row), row.Where());
    const Long key = wine.Mobile_Wine_ID;
    Add_Name(c, wine, row.Where());
    Add_Grapes(c, row, key, wine.Mobile_Wine_Variety_ID);
    Add_Marks(c, row, key, "Taste", Taste_Marks);
    Add_Marks(c, row, key, "Aroma", Aroma_Marks);
    c.pairings_of_wines[key] = c.Keys_In(row, "Pairings", c.pairings);
    for (Long cheese : c.Keys_In(row, "Cheeses", c.cheeses))
      c.cheeses_of_wines[key].push_back(cheese);
  }
  Add_Available_Countries(c);
}

}  // namespace Data_Compiler

// Varieties, pairings and cheeses.
#include <set>

#include "core/Languages.h"
#include "platform/record_store/Text_Order.h"
#include "platform/run_time/Conversions.h"
#include "tools/Compile_Library.h"
#include "tools/Source_Table.h"
#include "tools/Vocabulary.h"

namespace Data_Compiler {

namespace {

/// What the pick lists of pairings show of a name without cutting it.
constexpr Long Name_Length = 60;

struct By_Key {
  bool operator()(const Text& a, const Text& b) const { return Compare_Keys(a, b) < 0; }
};

void Check_Names(const Library& library, std::string_view language, Text Maridages_Record::*member,
                 Problems& problems) {
  std::set<Text, By_Key> seen;
  for (const Maridages_Record& row : library.Of<Maridages_Record>()) {
    const Text& name = row.*member;
    if (Len(name) > Name_Length)
      problems.Report(library.Where(row), "'" + name + "' is longer than 60 characters");
    if (!seen.insert(name).second)
      problems.Report(library.Where(row),
                      "'" + name + "' stands twice in " + std::string(language));
  }
}

/// The pairings that some variety, wine or cheese goes with.
std::set<Long> Suggested(const Library& library) {
  std::set<Long> suggested;
  for (const auto& row : library.Of<Varieties_Per_Maridage_Record>())
    suggested.insert(row.Maridage_ID);
  for (const auto& row : library.Of<Mobile_Wines_per_Maridage_Record>())
    suggested.insert(row.Maridage_ID);
  for (const auto& row : library.Of<Cheeses_Per_Maridage_Record>())
    suggested.insert(row.Maridage_ID);
  return suggested;
}

void Check_Pairing_Rows(const Library& library, Problems& problems) {
  const auto& pairings = library.Of<Maridages_Record>();
  const std::set<Long> suggested = Suggested(library);
  std::set<Long> cheeses;
  for (const Maridages_Record& row : pairings) {
    if (!suggested.contains(row.Maridage_ID))
      problems.Report(library.Where(row), "nothing suggests " + row.Maridage_Name);
    if (row.Multiuse < 0 || row.Multiuse > 3)
      problems.Report(library.Where(row), "Multiuse is not 0 to 3");
    if (row.Cheese_ID != -1 && !cheeses.insert(row.Cheese_ID).second)
      problems.Report(library.Where(row), "its cheese has another pairing already");
  }
  // The program takes over the Cheese_ID of the pairing it read last.
  if (!pairings.empty() && pairings.back().Cheese_ID != -1)
    problems.Report(library.Where(pairings.back()), "the last pairing must be a food, no cheese");
}

void Check_Cheeses(const Library& library, Problems& problems) {
  std::set<Text> closed;
  Text current;
  for (const Cheeses_Record& cheese : library.Of<Cheeses_Record>()) {
    if (!Is_One_Of(Cheese_Types, cheese.Cheese_Type))
      problems.Report(library.Where(cheese), "unknown type '" + cheese.Cheese_Type + "'");
    if (!Is_One_Of(Milk_Types, cheese.Type_Milk))
      problems.Report(library.Where(cheese), "unknown milk '" + cheese.Type_Milk + "'");
    if (cheese.Cheese_Description == "-1") problems.Report(library.Where(cheese), "no description");
    if (cheese.Cheese_Country == current) continue;
    // The list of cheese countries names a country once for each run of its rows.
    if (!closed.insert(cheese.Cheese_Country).second)
      problems.Report(library.Where(cheese),
                      "the cheeses of " + cheese.Cheese_Country + " do not stand together");
    current = cheese.Cheese_Country;
  }
}

void Check_Taste_Types(const Library& library, Problems& problems) {
  std::map<std::pair<Text, Text>, std::size_t> boxes;
  for (const Wine_Taste_Type_Record& row : library.Of<Wine_Taste_Type_Record>()) {
    const std::size_t count = ++boxes[{row.Color, row.Type}];
    if (!Is_One_Of(Colors, row.Color) || (row.Type != "Taste" && row.Type != "Aroma"))
      problems.Report(library.Where(row), "unknown colour or kind of mark");
    if (count > (row.Type == "Taste" ? Taste_Marks.size() : Aroma_Marks.size()))
      problems.Report(library.Where(row), "more marks than the screens have boxes");
  }
  for (std::string_view color : Colors)
    if (!boxes.contains({Text(color), "Taste"}) || !boxes.contains({Text(color), "Aroma"}))
      problems.Report("wine_taste_type.tsv", "no marks for " + std::string(color));
}

/// A grape has one line: what it is called elsewhere stands beside its name.
void Check_Varieties(const Library& library, Problems& problems) {
  std::set<Text, By_Key> names;
  for (const Varieties_Record& variety : library.Of<Varieties_Record>())
    names.insert(variety.Variety_Name);
  for (const Varieties_Record& variety : library.Of<Varieties_Record>()) {
    if (!Is_One_Of(Colors, variety.Variety_Color))
      problems.Report(library.Where(variety), "unknown colour '" + variety.Variety_Color + "'");
    for (const std::string& other : Split(variety.Other_Names, ", "))
      if (names.contains(other))
        problems.Report(library.Where(variety), "'" + other + "' has a line of its own");
  }
}

}  // namespace

void Check_Pairings(const Library& library, Problems& problems) {
  constexpr auto members = Language_Members<Maridages_Record>();
  for (std::size_t i = 0; i < Languages.size(); ++i)
    Check_Names(library, Languages[i], members[i], problems);
  Check_Pairing_Rows(library, problems);
  Check_Cheeses(library, problems);
  Check_Taste_Types(library, problems);
  Check_Varieties(library, problems);
}

}  // namespace Data_Compiler

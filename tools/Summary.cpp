#include <array>
#include <iomanip>

#include "tools/Reports.h"

namespace Data_Compiler {

namespace {

/// The columns of the summary by country. Sub_Region and Text count regions that are counted
/// already.
enum Column {
  Region,
  Sub_Region,
  Text_Of_Region,
  Label,
  Class,
  Winery,
  Cheese,
  Wine,
  Term,
  Columns
};
constexpr std::array<const char*, Columns> Headings = {
    "Regions", "Sub", "Texts", "Labels", "Classes", "Wineries", "Cheeses", "Wines", "Terms"};

using Counts = std::array<int, Columns>;

void Count_Regions(const Library& library, std::map<Text, Counts>& counts) {
  for (const auto& row : library.Of<Regions_Record>()) {
    Counts& of_country = counts[row.Country];
    ++of_country[Region];
    if (row.Sub_Region_Of != -1) ++of_country[Sub_Region];
    if (row.Description != -1) ++of_country[Text_Of_Region];
  }
}

void Count_Terms(const Library& library, std::map<Text, Counts>& counts) {
  std::map<Text, Text> short_names;
  for (const auto& row : library.Of<Countries_Record>())
    short_names[row.Long_Name] = row.Short_Name;
  for (const auto& row : library.Of<Glossary_Record>()) {
    const auto found = short_names.find(row.Country_of_Origin);
    ++counts[found == short_names.end() ? "ALL" : found->second][Term];
  }
}

std::map<Text, Counts> Count_By_Country(const Library& library) {
  std::map<Text, Counts> counts;
  Count_Regions(library, counts);
  Count_Terms(library, counts);
  for (const auto& row : library.Of<Labels_Record>())
    if (const auto* region = library.Find<Regions_Record>(row.Region_ID))
      ++counts[region->Country][Label];
  for (const auto& row : library.Of<Classification_Record>()) ++counts[row.Country][Class];
  for (const auto& row : library.Of<Wineries_Record>()) ++counts[row.Country][Winery];
  for (const auto& row : library.Of<Cheeses_Record>()) ++counts[row.Cheese_Country][Cheese];
  for (const auto& row : library.Of<Mobile_Wines_Record>()) ++counts[row.Mobile_Wine_Country][Wine];
  return counts;
}

template <class Row>
void Print_Row(const char* head, const Row& row, std::ostream& out) {
  out << "  " << std::left << std::setw(9) << head << std::right;
  for (const auto& cell : row) out << std::setw(9) << cell;
  out << '\n';
}

}  // namespace

void Print_Summary(const Library& library, std::ostream& out) {
  out << "Rows by table\n";
  Tables::For_Each_Table([&]<class Record>(const Tables::Table<Record>& table) {
    out << "  " << std::left << std::setw(34) << table.Name() << std::right << std::setw(6)
        << library.Of<Record>().size() << '\n';
  });
  out << "\nBy country\n";
  Print_Row("Country", Headings, out);
  Counts countries{};
  for (const auto& [country, row] : Count_By_Country(library)) {
    Print_Row(country.c_str(), row, out);
    for (std::size_t i = 0; i < row.size(); ++i)
      if (row[i] > 0 && country != "ALL") ++countries[i];
  }
  Print_Row("Countries", countries, out);
}

}  // namespace Data_Compiler

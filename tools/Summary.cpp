#include <array>
#include <iomanip>

#include "tools/Reports.h"

namespace Data_Compiler {

namespace {

/// The columns of the summary by country.
enum Column { Region, Label, Class, Winery, Cheese, Wine, Columns };

using Counts = std::map<Text, std::array<int, Columns>>;

Counts Count_By_Country(const Library& library) {
  Counts counts;
  for (const auto& row : library.Of<Regions_Record>()) ++counts[row.Country][Region];
  for (const auto& row : library.Of<Labels_Record>())
    if (const auto* region = library.Find<Regions_Record>(row.Region_ID))
      ++counts[region->Country][Label];
  for (const auto& row : library.Of<Classification_Record>()) ++counts[row.Country][Class];
  for (const auto& row : library.Of<Wineries_Record>()) ++counts[row.Country][Winery];
  for (const auto& row : library.Of<Cheeses_Record>()) ++counts[row.Cheese_Country][Cheese];
  for (const auto& row : library.Of<Mobile_Wines_Record>()) ++counts[row.Mobile_Wine_Country][Wine];
  return counts;
}

}  // namespace

void Print_Summary(const Library& library, std::ostream& out) {
  out << "Rows by table\n";
  Tables::For_Each_Table([&]<class Record>(const Tables::Table<Record>& table) {
    out << "  " << std::left << std::setw(34) << table.Name() << std::right << std::setw(6)
        << library.Of<Record>().size() << '\n';
  });
  out << "\nBy country\n  Country  Regions   Labels  Classes Wineries  Cheeses    Wines\n";
  for (const auto& [country, row] : Count_By_Country(library)) {
    out << "  " << std::left << std::setw(7) << country << std::right;
    for (int count : row) out << std::setw(9) << count;
    out << '\n';
  }
}

}  // namespace Data_Compiler

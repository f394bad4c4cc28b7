#include "tests/pairing/Pairing_Program.h"

#include <algorithm>

#include "core/Globals.h"
#include "core/tables/Catalogue.h"
#include "pairing/Pairing_Screens.h"
#include "platform/forms/Screens.h"
#include "platform/run_time/Conversions.h"
#include "platform/run_time/Guard.h"
#include "search/Search_Screens.h"
#include "tests/forms/Row_Clicks.h"

namespace {

int Line_of(const std::string& list, const Text& text) {
  const std::vector<std::string> lines = Shown_Rows(list);
  const auto found = std::ranges::find(lines, text);
  EXPECT_NE(found, lines.end()) << list << " has no line \"" << text << '"';
  return static_cast<int>(found - lines.begin());
}

}  // namespace

Pairing_Program::Pairing_Program() {
  Register_Pairing_Screens();
  Register_Search_Screens();
}

const std::vector<Sample_Pairing>& Pairing_Program::Foods() const {
  static const std::vector<Sample_Pairing> foods = [this] {
    std::vector<Sample_Pairing> found;
    for (const Text& line : Stored("SELECT Maridage_ID, Maridage_Group, Maridage_SubGr, English "
                                   "FROM Maridages WHERE Multiuse >= 2 AND Cheese_ID = -1 "
                                   "ORDER BY Maridage_Group, Maridage_SubGr",
                                   4)) {
      const auto first = line.find('|');
      const auto second = line.find('|', first + 1);
      const auto third = line.find('|', second + 1);
      found.push_back({line.substr(0, first), line.substr(third + 1),
                       To_Long(line.substr(first + 1, second - first - 1)),
                       To_Long(line.substr(second + 1, third - second - 1))});
    }
    return found;
  }();
  return foods;
}

const Sample_Pairing& Pairing_Program::Food(int number) const {
  const std::vector<Sample_Pairing>& foods = Foods();
  for (std::size_t place = 0; place + 2 < foods.size(); ++place) {
    if (foods[place].subgroup != 1 || foods[place + 2].group != foods[place].group) continue;
    if (number-- == 0) return foods[place];
  }
  throw std::out_of_range("the delivered file has no such group of foods");
}

void Pairing_Program::Put_Pairing(Long wine, const Sample_Pairing& pairing) const {
  Change([&](Record_Store::Database& file) {
    Record_Store::Recordset links = file.OpenRecordset("Maridages_Per_Wines");
    links.AddNew();
    links.Fields("Wine_ID") = wine;
    links.Fields("GROUP") = pairing.group * 10;
    Long mask = 1;
    for (Long subgroup = 1; subgroup < pairing.subgroup; ++subgroup) mask *= 10;
    links.Fields("SUBCATEGO") = mask;
    links.Update();
  });
}

void Pairing_Program::Click_Line(const std::string& list, const Text& text) {
  Click_Row(list, Line_of(list, text));
}

void Pairing_Program::Double_Click_Line(const std::string& list, const Text& text) {
  Click_Line(list, text);  // brings it into sight
  Double_Click_Row(list, Line_of(list, text));
}

void Pairing_Program::Add(const Text& text) {
  Click_Line("Cat_List", text);
  Click("Add_Command");
}

void Pairing_Program::Open_Screen_Under(const char* screen, const char* command) {
  Current_Command = command;
  Run_Guarded([screen] { Forms::Screen(screen).Open(); });
  Settle_Events();
}

#include "tests/support/Pairing_Program.h"

#include "links/Varieties_Processes.h"
#include "pairing/Pairing_Screens.h"
#include "search/Search_Screens.h"

Pairing_Program::Pairing_Program() {
  Register_Pairing_Screens();
  Register_Search_Screens();
}

const std::vector<Sample_Pairing>& Pairing_Program::Foods() const {
  static const std::vector<Sample_Pairing> foods = [this] {
    std::vector<Sample_Pairing> found;
    for (const Text& line : Stored("SELECT Maridage_ID, English, Maridage_Group, Maridage_SubGr "
                                   "FROM Maridages WHERE Multiuse >= 2 AND Cheese_ID = -1 "
                                   "ORDER BY Maridage_Group, Maridage_SubGr")) {
      const Texts part = Cells_of(line);
      found.push_back({part[0], part[1], To_Long(part[2]), To_Long(part[3])});
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
  Put("Maridages_Per_Wines", {{"Wine_ID", wine},
                              {"GROUP", pairing.group * 10},
                              {"SUBCATEGO", Subgroup_Mask(pairing.subgroup)}});
}

int Pairing_Program::Used(const Sample_Pairing& pairing) const {
  return std::stoi(One("SELECT Used FROM Maridages WHERE Maridage_ID = " + pairing.id));
}

void Pairing_Program::Double_Click_Line(const char* list, const Text& text) {
  Click_Line(list, text);  // brings it into sight
  Double_Click_Row(list, Row_With(list, text));
}

void Pairing_Program::Add(const Text& text) {
  Click_Line("Cat_List", text);
  Click("Add_Command");
}

void Pairing_Program::Give(const char* screen, const char* list, const char* keys, const Text& text,
                           const Text& key) {
  Forms::Screen(screen).Get<Forms::Item_List>(list).AddItem(text);
  Forms::Screen(screen).Get<Forms::Item_List>(keys).AddItem(key);
}

Texts Pairing_Program::Selection() {
  Texts entries;
  for (int entry = 1; entry <= Selected_Count; ++entry) {
    entries.push_back(Selected_Names[entry] + "|" + Selected_IDs[entry]);
  }
  return entries;
}

Texts Pairing_Program::Selection_of(const std::vector<Sample_Pairing>& pairings) {
  Texts entries;
  for (const Sample_Pairing& pairing : pairings) entries.push_back(pairing.name + "|" + pairing.id);
  return entries;
}

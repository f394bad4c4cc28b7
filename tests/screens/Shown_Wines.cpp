#include "tests/screens/Shown_Wines.h"

#include <set>

#include "app/Program_Screens.h"
#include "core/Languages.h"

namespace {

Text Joined(Texts texts) {
  Text joined;
  for (const Text& text : texts) joined += text + "\n";
  return joined;
}

// What was typed for a number or a date shows as it is read.
Text As_Read(Text text) {
  static const std::map<Text, Text> read{{"", " "},
                                         {"1,250", "1250"},
                                         {"1e3", "1000"},
                                         {"-0", "0"},
                                         {"1/1/2020", "1/1/2020 00:00:00"},
                                         {"2020-02-29", "2/29/2020 00:00:00"},
                                         {"12/31/2006 23:59", "12/31/2006 23:59:00"}};
  text = Trim(text);
  const auto found = read.find(text);
  return found == read.end() ? text : found->second;
}

Texts Pairing_Keys(const Texts& names) {
  const Text language(Languages.at(Language_Place()));
  std::map<Text, Text> keys;
  for (const Text& row : Rows_of(*Wine_Cellar_DB, "SELECT Maridage_ID, " + language +
                                                      " FROM Maridages ORDER BY Maridage_ID")) {
    const auto bar = row.find('|');
    keys.emplace(row.substr(bar + 1), row.substr(0, bar));
  }
  Wine_Cellar_DB->Commit();
  std::set<Text> found;
  for (const Text& name : names) found.insert(keys[name]);
  return {found.begin(), found.end()};
}

}  // namespace

Shown_Wines::Shown_Wines() { Register_Program_Screens(); }

Shown_Wine Shown_Wines::Shown() {
  Shown_Wine shown;
  for (const char* field :
       {"Region_Combo", "Winery_Combo", "Label_Combo", "Classification_Combo", "Vintage_Combo",
        "Color_Combo", "Merit_Combo", "Bottle_Size_Combo", "Peak_Year_Combo", "Total_Bottles_Text",
        "Alcohol_Text", "Price_Text", "Date_Added_Text", "Last_Date_Uncorked_Text",
        "Description_Text", "Comments_Text"}) {
    shown[field] = As_Read(Shown_Text(std::string("Wine_Form/") + field));
  }
  shown["grapes"] = Joined(Ticked_Rows("Wine_Form/Variety_Combo"));
  shown["marks"] = Joined(Ticked_Boxes("Wine_Form/"));
  shown["pairings"] = Joined(Pairing_Keys(Shown_Rows("Wine_Form/Pairing_List")));
  return shown;
}

Texts Shown_Wines::Differences(const Shown_Wine& shown, const Shown_Wine& stored) {
  Texts differences;
  for (const auto& [field, text] : stored) {
    if (shown.at(field) != text)
      differences.push_back(field + ": " + shown.at(field) + " <> " + text);
  }
  return differences;
}

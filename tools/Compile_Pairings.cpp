// Varieties, pairings and cheeses.
#include <algorithm>

#include "tools/Compilation.h"

namespace Data_Compiler {

namespace {

std::string Joined(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? "" : ", ") + name;
  return text.empty() ? std::string(Not_Given) : text;
}

}  // namespace

void Read_Pairings(Compilation& c) {
  const Source_Table file(c.folder, "pairings.tsv",
                          "Family English Spanish French German Italian Japanese Portuguese "
                          "Multiuse Cheese",
                          c.problems);
  Group_Giver groups;
  Names of_cheeses("pairing of the cheese");
  for (const Source_Row& row : file.Rows()) {
    Maridages_Record pairing;
    Maridages_Description.Init(pairing);
    c.Fill_Languages(row, pairing);
    pairing.Maridage_Name = pairing.English;
    pairing.Multiuse = static_cast<Integer>(row.Number("Multiuse", c.problems));
    const Address address = groups.Next(row["Family"]);
    pairing.Maridage_Group = address.group;
    pairing.Maridage_SubGr = address.subgroup;
    if (row.Given("Cheese"))
      pairing.Cheese_ID =
          static_cast<Integer>(c.cheeses.Find(row["Cheese"], row.Where(), c.problems));
    const auto& added = c.library.Add(std::move(pairing), row.Where());
    c.pairings.Add(added.English, added.Maridage_ID, row.Where(), c.problems);
    c.pairing_addresses[added.Maridage_ID] = address;
    if (!row.Given("Cheese")) continue;
    of_cheeses.Add(row["Cheese"], added.Maridage_ID, row.Where(), c.problems);
    c.pairings_of_cheeses[added.Cheese_ID] = added.Maridage_ID;
    c.cheeses_of_pairings[added.Maridage_ID] = added.Cheese_ID;
  }
}

void Read_Varieties(Compilation& c) {
  const Source_Table file(c.folder, "varieties.tsv",
                          "Variety_Name Variety_Color Other_Names Pairings", c.problems);
  Group_Giver groups;
  for (const Source_Row& row : file.Rows()) {
    Varieties_Record variety;
    Varieties_Description.Init(variety);
    variety.Variety_Name = row["Variety_Name"];
    variety.Variety_Color = row["Variety_Color"];
    variety.Other_Names = row["Other_Names"];
    const Address address = groups.Next({});
    variety.Variety_Group = address.group;
    variety.Variety_SubGr = address.subgroup;
    const auto& added = c.library.Add(std::move(variety), row.Where());
    c.varieties.Add(added.Variety_Name, added.Variety_ID, row.Where(), c.problems);
    c.variety_addresses[added.Variety_ID] = address;
    c.pairings_of_varieties[added.Variety_ID] = c.Keys_In(row, "Pairings", c.pairings);
  }
}

void Read_Cheeses(Compilation& c) {
  c.cheese_lines = std::make_unique<Source_Table>(
      c.folder, "?cheeses.tsv",
      "Cheese_Name Cheese_Country Cheese_Type Type_Milk Pairings Varieties Wines English Spanish "
      "French German Italian Japanese Portuguese",
      c.problems);
  for (const Source_Row& row : c.cheese_lines->Rows()) {
    Cheeses_Record cheese;
    cheese.Cheese_Name = row["Cheese_Name"];
    cheese.Cheese_Country = row["Cheese_Country"];
    cheese.Cheese_Type = row["Cheese_Type"];
    cheese.Type_Milk = row["Type_Milk"];
    cheese.Eat_With = Joined(row.List("Pairings"));
    cheese.Varieties = Joined(row.List("Varieties"));
    cheese.Cheese_Description = std::to_string(c.Add_Text(row));
    c.countries.Find(cheese.Cheese_Country, row.Where(), c.problems);
    const auto& added = c.library.Add(std::move(cheese), row.Where());
    c.cheeses.Add(added.Cheese_Name, added.Cheese_ID, row.Where(), c.problems);
  }
}

void Read_Cheese_Links(Compilation& c) {
  for (const Source_Row& row : c.cheese_lines->Rows()) {
    const Long cheese = c.cheeses.Find(row["Cheese_Name"]);
    c.foods_of_cheeses[cheese] = c.Keys_In(row, "Pairings", c.pairings);
    c.varieties_of_cheeses[cheese] = c.Keys_In(row, "Varieties", c.varieties);
    for (Long wine : c.Keys_In(row, "Wines", c.wines)) {
      auto& cheeses = c.cheeses_of_wines[wine];
      if (std::find(cheeses.begin(), cheeses.end(), cheese) != cheeses.end())
        c.problems.Report(row.Where(), "general_wines.tsv names '" + row["Cheese_Name"] +
                                           "' for one of the wines already");
      cheeses.push_back(cheese);
    }
    if (!c.pairings_of_cheeses.contains(cheese))
      c.problems.Report(row.Where(), "no line of pairings.tsv stands for the cheese '" +
                                         row["Cheese_Name"] + "'");
  }
}

}  // namespace Data_Compiler

// Regions, their texts, classifications, labels and wineries.
#include <algorithm>

#include "tools/Compilation.h"

namespace Data_Compiler {

namespace {

/// Writes the parents' keys, which may stand in later lines.
void Find_Parents(Compilation& c, const Source_Table& file) {
  auto& regions = c.library.Of<Regions_Record>();
  for (std::size_t i = 0; i < regions.size(); ++i) {
    const Source_Row& row = file.Rows()[i];
    regions[i].Sub_Region_Of =
        row.Given("Sub_Region_Of")
            ? c.regions.Find(Name_Within(row["Sub_Region_Of"], row["Country"]), row.Where(),
                             c.problems)
            : -1;
  }
}

/// The parent, its parent and so on. A region that is its own ancestor ends the list.
std::vector<Long> Ancestors_Of(const Regions_Record& region, const Library& library) {
  std::vector<Long> ancestors;
  const Regions_Record* parent = library.Find<Regions_Record>(region.Sub_Region_Of);
  while (parent && parent->Region_ID != region.Region_ID &&
         std::find(ancestors.begin(), ancestors.end(), parent->Region_ID) == ancestors.end()) {
    ancestors.push_back(parent->Region_ID);
    parent = library.Find<Regions_Record>(parent->Sub_Region_Of);
  }
  return ancestors;
}

/// What grows in a sub-region grows in the regions around it.
void Give_Varieties_To_Ancestors(Compilation& c) {
  const auto own = c.varieties_of_regions;
  for (const Regions_Record& region : c.library.Of<Regions_Record>()) {
    const auto found = own.find(region.Region_ID);
    if (found == own.end()) continue;
    for (Long ancestor : Ancestors_Of(region, c.library)) {
      auto& varieties = c.varieties_of_regions[ancestor];
      for (Long variety : found->second)
        if (std::find(varieties.begin(), varieties.end(), variety) == varieties.end())
          varieties.push_back(variety);
    }
  }
}

void Read_Region_Texts(Compilation& c) {
  const Source_Table file(
      c.folder, "?region_texts.tsv",
      "Country Region_Name English Spanish French German Italian Japanese Portuguese", c.problems);
  Names seen("text of the region");
  for (const Source_Row& row : file.Rows()) {
    const std::string name = Name_Within(row["Region_Name"], row["Country"]);
    const Long region = c.regions.Find(name, row.Where(), c.problems);
    seen.Add(name, region, row.Where(), c.problems);
    for (Regions_Record& record : c.library.Of<Regions_Record>())
      if (record.Region_ID == region) record.Description = Short(c.Add_Text(row));
  }
}

/// The key of the label that a winery's line names. A name stands for the label of the winery's own
/// region, else for the one label of that name in the country; "Name @ Region" says which.
Long Label_Of_Winery(Compilation& c, const Source_Row& row, const std::string& name, Long region) {
  const auto parts = Split(name, " @ ");
  if (parts.size() == 2)
    region = c.regions.Find(Name_Within(parts[1], row["Country"]), row.Where(), c.problems);
  const std::string own = Label_Within(parts[0], region);
  if (c.labels.Find(own) != 0) return c.labels.Find(own, row.Where(), c.problems);
  std::vector<Long> found;
  const auto of_country = c.labels_of_countries.find(Name_Within(parts[0], row["Country"]));
  if (parts.size() == 1 && of_country != c.labels_of_countries.end()) found = of_country->second;
  if (found.size() == 1) return found.front();
  c.problems.Report(row.Where(), found.empty()
                                     ? "unknown label '" + name + "'"
                                     : "several labels '" + name + "' in the country: write '" +
                                           name + " @ Region'");
  return 0;
}

Wineries_Record Winery_From(Compilation& c, const Source_Row& row) {
  Wineries_Record winery;
  winery.Winery_Name = row["Winery_Name"];
  winery.Address1 = row["Address1"];
  winery.Address2 = row["Address2"];
  winery.City = row["City"];
  winery.State = row["State"];
  winery.Zip_Code = row["Zip_Code"];
  winery.Country = row["Country"];
  winery.Region = row["Region"];
  winery.Region_ID =
      c.regions.Find(Name_Within(winery.Region, winery.Country), row.Where(), c.problems);
  winery.Phone = row["Phone"];
  winery.Web = row["Web"];
  winery.E_Mail = row["E_Mail"];
  winery.History = "-1";
  winery.Photo = "x";
  return winery;
}

}  // namespace

void Read_Regions(Compilation& c) {
  const Source_Table file(c.folder, "regions.tsv", "Country Region_Name Sub_Region_Of Varieties",
                          c.problems);
  Group_Giver groups;
  for (const Source_Row& row : file.Rows()) {
    Regions_Record region;
    Regions_Description.Init(region);
    region.Region_Name = row["Region_Name"];
    region.Country = row["Country"];
    c.countries.Find(region.Country, row.Where(), c.problems);
    const Address address = groups.Next(region.Country);
    region.Region_Group = address.group;
    region.Region_SubGr = address.subgroup;
    const Long key = c.library.Add(std::move(region), row.Where()).Region_ID;
    c.regions.Add(Name_Within(row["Region_Name"], row["Country"]), key, row.Where(), c.problems);
    c.varieties_of_regions[key] = c.Keys_In(row, "Varieties", c.varieties);
  }
  Find_Parents(c, file);
  Give_Varieties_To_Ancestors(c);
  Read_Region_Texts(c);
}

void Read_Classifications(Compilation& c) {
  const Source_Table file(c.folder, "?classifications.tsv", "Country Description Glossary_Keyword",
                          c.problems);
  for (const Source_Row& row : file.Rows()) {
    Classification_Record entry;
    entry.Country = row["Country"];
    entry.Description = row["Description"];
    entry.Glossary_ID = row.Given("Glossary_Keyword")
                            ? c.keywords.Find(row["Glossary_Keyword"], row.Where(), c.problems)
                            : -1;
    const auto& added = c.library.Add(std::move(entry), row.Where());
    c.classifications.Add(Name_Within(added.Description, added.Country), added.Classification_ID,
                          row.Where(), c.problems);
  }
}

void Read_Labels(Compilation& c) {
  const Source_Table file(c.folder, "labels.tsv",
                          "Country Region Label_Name Wine_Color ? Classification", c.problems);
  for (const Source_Row& row : file.Rows()) {
    Labels_Record label;
    Labels_Description.Init(label);
    label.Label_Name = row["Label_Name"];
    label.Wine_Color = row["Wine_Color"];
    label.Region_ID = static_cast<Integer>(
        c.regions.Find(Name_Within(row["Region"], row["Country"]), row.Where(), c.problems));
    if (row.Given("Classification"))
      label.Appellation_ID = c.classifications.Find(
          Name_Within(row["Classification"], row["Country"]), row.Where(), c.problems);
    const auto& added = c.library.Add(std::move(label), row.Where());
    c.labels.Add(Label_Within(added.Label_Name, added.Region_ID), added.Label_ID, row.Where(),
                 c.problems);
    c.labels_of_countries[Name_Within(added.Label_Name, row["Country"])].push_back(added.Label_ID);
  }
}

void Read_Wineries(Compilation& c) {
  const Source_Table file(c.folder, "wineries.tsv",
                          "Winery_Name Address1 Address2 City State Zip_Code Country Region Phone "
                          "Web E_Mail Labels",
                          c.problems);
  for (const Source_Row& row : file.Rows()) {
    const auto& winery = c.library.Add(Winery_From(c, row), row.Where());
    const Long key = Key_Of(winery);
    c.wineries.Add(Name_Within(winery.Winery_Name, winery.Country), key, row.Where(), c.problems);
    if (row.Given("State"))
      c.states.Find(Name_Within(winery.State, winery.Country), row.Where(), c.problems);
    std::vector<Long> labels;
    for (const std::string& name : row.List("Labels"))
      labels.push_back(Label_Of_Winery(c, row, name, winery.Region_ID));
    for (Long label : labels) c.library.Add(Labels_per_Winery_Record{key, label}, row.Where());
  }
}

}  // namespace Data_Compiler

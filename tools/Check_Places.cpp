// Countries, regions, labels and wineries.
#include <set>

#include "tools/Compile_Library.h"
#include "tools/Grapes.h"
#include "tools/Vocabulary.h"

namespace Data_Compiler {

namespace {

/// What the program's list of countries holds at most.
constexpr std::size_t Countries_Limit = 200;

bool Is_Own_Ancestor(const Library& library, const Regions_Record& region) {
  std::set<Long> seen{region.Region_ID};
  const auto* parent = library.Find<Regions_Record>(region.Sub_Region_Of);
  for (; parent; parent = library.Find<Regions_Record>(parent->Sub_Region_Of))
    if (!seen.insert(parent->Region_ID).second) return true;
  return false;
}

void Check_Parent(const Library& library, const Regions_Record& region, const Grapes& grapes,
                  Problems& problems) {
  if (Is_Own_Ancestor(library, region))
    problems.Report(library.Where(region), region.Region_Name + " is its own ancestor");
  const auto* parent = library.Find<Regions_Record>(region.Sub_Region_Of);
  if (!parent) return;
  if (parent->Sub_Region_Of != -1)
    problems.Report(library.Where(region), region.Region_Name + " lies in a region that lies in " +
                                               "another; one level is used");
  if (parent->Country != region.Country)
    problems.Report(library.Where(region),
                    region.Region_Name + " lies in another country than " + parent->Region_Name);
  for (Long variety : grapes.Of(region.Region_ID))
    if (!grapes.Of(parent->Region_ID).contains(variety))
      problems.Report(library.Where(*parent), parent->Region_Name + " lacks variety " +
                                                  std::to_string(variety) + " of " +
                                                  region.Region_Name);
}

void Check_Winery(const Library& library, const Wineries_Record& winery, Problems& problems) {
  const auto* region = library.Find<Regions_Record>(winery.Region_ID);
  if (!region) return;
  if (region->Country != winery.Country || region->Region_Name != winery.Region)
    problems.Report(library.Where(winery),
                    "its region is not '" + winery.Region + "' of " + winery.Country);
}

void Check_Labels_Of_Wineries(const Library& library, Problems& problems) {
  std::set<std::pair<Long, Long>> seen;
  for (const auto& row : library.Of<Labels_per_Winery_Record>()) {
    if (!seen.emplace(row.Winery_ID, row.Label_ID).second)
      problems.Report(library.Where(row), "a label of the winery stands twice");
    const auto* winery = library.Find<Wineries_Record>(row.Winery_ID);
    const auto* label = library.Find<Labels_Record>(row.Label_ID);
    const auto* region = label ? library.Find<Regions_Record>(label->Region_ID) : nullptr;
    if (winery && region && winery->Country != region->Country)
      problems.Report(library.Where(row), label->Label_Name + " is a label of another country");
  }
}

void Check_Target(const Library& library, Problems& problems) {
  for (const Wine_System_Record& system : library.Of<Wine_System_Record>()) {
    bool has_region = false;
    for (const Regions_Record& region : library.Of<Regions_Record>())
      has_region = has_region || region.Country == system.Country_Target;
    if (!has_region)
      problems.Report(library.Where(system),
                      "the user's country '" + system.Country_Target + "' has no regions");
    if (system.Number_of_Cellars < 1 || system.Number_of_Cellars > 2)
      problems.Report(library.Where(system), "Number_of_Cellars is neither 1 nor 2");
  }
}

}  // namespace

void Check_Places(const Library& library, Problems& problems) {
  if (library.Of<Countries_Record>().size() > Countries_Limit)
    problems.Report("countries.tsv", "more than 200 countries");
  const Grapes grapes(library);
  for (const Varieties_Record& variety : library.Of<Varieties_Record>())
    if (!grapes.Grown_Anywhere(variety.Variety_ID))
      problems.Report(library.Where(variety), "no region grows " + variety.Variety_Name);
  for (const Regions_Record& region : library.Of<Regions_Record>()) {
    if (grapes.Of(region.Region_ID).empty())
      problems.Report(library.Where(region), "nothing grows in " + region.Region_Name);
    Check_Parent(library, region, grapes, problems);
  }
  for (const Classification_Record& entry : library.Of<Classification_Record>())
    if (entry.Glossary_ID == -1)
      problems.Report(library.Where(entry), "no term explains " + entry.Description);
  for (const Labels_Record& label : library.Of<Labels_Record>())
    if (label.Wine_Color != "x" && !Is_One_Of(Colors, label.Wine_Color))
      problems.Report(library.Where(label), "unknown colour '" + label.Wine_Color + "'");
  for (const Wineries_Record& winery : library.Of<Wineries_Record>())
    Check_Winery(library, winery, problems);
  Check_Labels_Of_Wineries(library, problems);
  Check_Target(library, problems);
}

}  // namespace Data_Compiler

#include "links/Used_Counters.h"

#include <algorithm>
#include <limits>

#include "core/Known_Faults.h"
#include "core/tables/Catalogue.h"
#include "links/Link_Decoders.h"
#include "platform/run_time/Conversions.h"

namespace {

template <class Record>
void Count(const Tables::Table_In_Use<Record>& table, Long key, int step,
           Integer lowest_raised = std::numeric_limits<Integer>::min()) {
  Open_By_Key(table);
  const bool found = Find_Row(table, key);
  if (!found && Is_Kept(Fault::Gone_Row_Ends_The_Run)) table.Read();
  if (found && Counter_Moves(table.record.Used, step, lowest_raised)) {
    table.record.Used = To_Integer(static_cast<double>(table.record.Used + step));
    table.rows.Edit();
    table.Write();
  }
  Close_Table(table.rows);
}

// A table whose rows a wine refers to by their names. The owner's field is an index too.
struct Named_Rows {
  Record_Store::Recordset& rows;
  const char* table;
  const char* owner;
  const char* name;
  const char* key;
  void (*count)(Long key, int step);
};
constexpr Named_Rows labels{Labels_Recordset, "Labels",   "Region_ID",
                            "Label_Name",     "Label_ID", Count_Label};
constexpr Named_Rows classes{
    Classification_Recordset, "Classification",    "Country", "Description",
    "Classification_ID",      Count_Classification};

void Add_Named(Uses& uses, const Named_Rows& of, const Text& owner, const Text& name) {
  Open_Table(of.rows, of.table, of.owner);
  of.rows.Seek("=", owner);
  for (; !of.rows.NoMatch() && !of.rows.Eof(); of.rows.MoveNext()) {
    if (of.rows.Fields(of.owner).As_Text() != owner) break;
    if (of.rows.Fields(of.name).As_Text() != name) continue;
    uses.push_back({of.count, of.rows.Fields(of.key).As_Long()});
    break;
  }
  Close_Table(of.rows);
}

void Add_Winery(Uses& uses) {
  if (!Find_By_Key(Wineries_Table, Wines.Winery_ID)) return;
  uses.push_back({Count_Winery, Wines.Winery_ID});
  uses.push_back({Count_Region, Wineries.Region_ID});
  Add_Named(uses, labels, To_Text(Wineries.Region_ID), Wines.Label);
  Add_Named(uses, classes, Wineries.Country, Wines.Clasification);
}

void Add_Varieties(Uses& uses) {
  Open_Table(Varieties_of_Wines_Recordset, "Varieties_of_Wines", "Wine_ID");
  Each_Row_Of(Varieties_of_Wines_Recordset, "Wine_ID", Wines.Wine_ID, [&uses] {
    uses.push_back({Count_Variety, Varieties_of_Wines_Recordset.Fields("Variety_ID").As_Long()});
  });
  Close_Table(Varieties_of_Wines_Recordset);
}

}  // namespace

void Count_Winery(Long winery_id, int step) { Count(Wineries_Table, winery_id, step); }
void Count_Region(Long region_id, int step) { Count(Regions_Table, region_id, step); }
void Count_Label(Long label_id, int step) { Count(Labels_Table, label_id, step); }
void Count_Classification(Long classification_id, int step) {
  Count(Classification_Table, classification_id, step);
}
void Count_Variety(Long variety_id, int step) { Count(Varieties_Table, variety_id, step, 0); }
void Count_Maridage(Long maridage_id, int step) { Count(Maridages_Table, maridage_id, step, 0); }

bool Counter_Moves(Long used, int step, Integer lowest_raised) {
  const bool full = used == std::numeric_limits<Integer>::max();
  if (full && !Is_Kept(Fault::Full_Counter_Ends_The_Run)) return false;
  return used >= (step > 0 ? lowest_raised : 1);
}

Uses Uses_of_Wine() {
  Uses uses;
  Add_Winery(uses);
  Add_Varieties(uses);
  Each_Maridage_of_Wine([&uses] {
    uses.push_back({Count_Maridage, Maridages_Recordset.Fields("Maridage_ID").As_Long()});
  });
  return uses;
}

Uses Uses_of_Wines_of(const Text& winery_id) {
  Record_Store::Recordset keys;
  Open_Query(keys, "SELECT Wine_ID FROM Wines WHERE Winery_ID=" + winery_id);
  const Wines_Record before = Wines;
  Uses all;
  for (; !keys.Eof(); keys.MoveNext()) {
    if (!Find_By_Key(Wines_Table, keys.Fields(0).As_Long())) continue;
    std::ranges::copy(Uses_of_Wine(), std::back_inserter(all));
  }
  Wines = before;
  return all;
}

void Count_Difference(Uses before, const Uses& after) {
  for (const Use& use : after) {
    const auto same = std::ranges::find(before, use);
    if (same == before.end()) {
      use.count(use.key, 1);
    } else {
      before.erase(same);
    }
  }
  for (const Use& lost : before) lost.count(lost.key, -1);
}

#include "core/Unconfirmed_Rows.h"

#include <algorithm>

#include "core/Known_Faults.h"
#include "core/tables/Catalogue.h"

namespace {

// Such a row holds what Init gives, and nothing else but, of a region, its place in the groups.
template <class Record>
bool Is_As_Begun(const Tables::Table<Record>& table, const Record& row) {
  Record begun;
  table.Init(begun);
  if constexpr (requires { begun.Region_SubGr; }) {
    begun.Region_Group = row.Region_Group;
    begun.Region_SubGr = row.Region_SubGr;
  }
  return std::ranges::all_of(table.Fields(), [&](const Tables::Field<Record>& field) {
    return !field.Is_Written() || field.Same(row, begun);
  });
}

template <class Record>
void Remove_From(const Tables::Table_In_Use<Record>& table, const char* name_field,
                 const Text& name) {
  Open_Table(table.rows, table.description.Name(), name_field);
  table.rows.Seek("=", name);
  for (; !table.rows.NoMatch() && !table.rows.Eof(); table.rows.MoveNext()) {
    Record row;
    table.description.Read(table.rows, row);
    if (table.rows.Fields(name_field).As_Text() != name) break;
    if (Is_As_Begun(table.description, row)) table.rows.Delete();
  }
  Close_Table(table.rows);
}

}  // namespace

void Remove_Unconfirmed_Rows() {
  if (Is_Kept(Fault::Unconfirmed_Row_Stays)) return;
  Remove_From(Regions_Table, "Region_Name", "x");
  Remove_From(Labels_Table, "Label_Name", "No Label");
  Remove_From(Wineries_Table, "Winery_Name", "x");
}

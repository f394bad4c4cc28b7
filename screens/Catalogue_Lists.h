// What the list views of the catalogues of places and producers are filled with. Each routine
// leaves its tables closed and no row selected. A country that has no row leaves its cell blank.
#pragma once

#include <functional>

#include "platform/run_time/Values.h"
#include "screens/Keyed.h"
#include "screens/Row_List.h"

// ---- all rows of a table, in its order; rows that are not confirmed are listed of wineries alone

/// Name, country by its English name.
void Load_Regions(Row_List& list);
/// Name, country by its English name, region as the winery names it.
void Load_Wineries(Row_List& list);
/// Description, country in the language in force. `action` is called with the row of each, which is
/// in the memory record then.
void Load_Classifications(Row_List& list,
                          const std::function<void(Forms::List_Item row)>& action = {});
/// Name, colour.
void Load_Varieties(Row_List& list);

/// The order in which the lists of regions begin.
void Sort_by_Country(Row_List& list);

// ---- what belongs to a region ----

/// Its labels by name, behind those that stand in the list. `action` is called with the row of
/// each.
void Add_Labels_of_Region(Row_List& list, Long region_id,
                          const std::function<void(Forms::List_Item row)>& action = {});
/// The list anew: the grapes of the region in the memory record, with their keys.
void Load_Own_Grapes_of_Region(Row_List& list);
/// The list anew: the grapes of the region, with their keys, then those of its sub-regions that the
/// list does not name yet, without. `Regions` stands open in the order of its keys, before and
/// after; the memory record holds the region in the end. `sub_region` is called for each of these,
/// which is in the memory record then.
void Load_Grapes_of_Region(Row_List& list, Long region_id,
                           const std::function<void()>& sub_region = {});

// ---- countries ----

/// The countries anew, and the one of this short name chosen, which raises Click; none where there
/// is no such country.
void Initialize_Countries(Keyed_List& list, const Text& chosen);

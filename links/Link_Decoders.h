// Link rows become lists again.
//
// Each decoder takes the owner from its memory record and goes through the owner's group link rows
// in the order of the table, in each group from the highest subgroup down; a subgroup is looked for
// among ten rows from the first of its group on. It sets `Decoded_Count`. Failure 9: a 101st item.
#pragma once

#include "platform/forms/Item_List.h"

// ---- pairings, into `Decoded_Maridages`; the tables are open before and after ----

/// The walk goes on behind the group's end, where a subgroup is missing: what has this subgroup
/// there is taken, and behind the last row of the table it is failure 3021. A group without rows is
/// left out.
void Load_Maridages_of_Wine();
void Load_Maridages_of_Mobile_Wine();
void Load_Maridages_of_Variety();
/// Into `Decoded_Cheese_Maridages`.
void Load_Maridages_of_Cheese();

// ---- the same for screens: into a list of texts in the language in force and one of keys, and as
// the selection; these open and close the tables ----

void Fill_Lists_with_Wine_Maridages(Forms::Item_List& texts, Forms::Item_List& keys);
void Fill_Lists_with_Variety_Maridages(Forms::Item_List& texts, Forms::Item_List& keys);
void Fill_Lists_with_Cheese_Maridages(Forms::Item_List& texts, Forms::Item_List& keys);

/// Whether the wine in the memory record has pairings.
bool Wine_Has_Maridages();

// ---- into `Decoded_Items`; these open and close the tables, and leave the row read last in the
// memory record ----

/// The varieties of the region; the memory record of `Varieties` holds the first one of the last
/// link row's group afterwards. What a group does not hold is left out.
void Load_Varieties_of_Region();

/// The pairings of the variety. Behind the first one of a link row, a group's first row is not
/// looked at any more: subgroup 1 is found only where it is the only one of its row. What a group
/// does not hold is left out.
void Load_Maridage_IDs_of_Variety();

// ---- the reverse tables, made anew from the link rows ----

/// All rows of `Regions_Per_Variety` from the varieties of the regions.
void Genera_Regions_Per_Variety();
/// All rows of `Varieties_Per_Maridage` from the pairings of the varieties.
void Genera_Varieties_Per_Maridage();

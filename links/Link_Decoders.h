// Link rows become lists again.
//
// Each decoder takes the owner's key from its memory record and goes through the owner's group link
// rows in storage order, and through the subgroups of each from the highest down. To find a
// subgroup it looks at ten rows, beginning with the first row of the group. `Decoded_Count` tells
// how many it found. A 101st item is failure 9; of pairings, as designed alone, otherwise it is
// left out.
#pragma once

#include <functional>

#include "platform/forms/Item_List.h"

// ---- pairings, into `Decoded_Maridages`; the tables are open before and after ----

/// A group without rows is left out, and so is a subgroup that its group does not have. As designed
/// these look on for it into the next group, and take a pairing of this subgroup there; they fail
/// with 3021 where the table ends first.
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

/// All pairings of the wine in the memory record, however many: `action()` is called for each,
/// which is the current row of `Maridages` then and must stay so. Opens and closes the tables, and
/// changes `Decoded_Count` to 0.
void Each_Maridage_of_Wine(const std::function<void()>& action);

/// Whether the wine in the memory record has pairings.
bool Wine_Has_Maridages();

// ---- into `Decoded_Items`; these open and close the tables, and leave the row read last in the
// memory record ----

/// The varieties of the region; a subgroup that its group does not have is left out. The memory
/// record of `Varieties` holds the first row of the group read last.
void Load_Varieties_of_Region();

/// The pairings of the variety; a subgroup that its group does not have is left out. The first row
/// of a group is looked at only for the first subgroup of a link row: what stands in it, usually
/// subgroup 1, is found only where the link row names no other.
void Load_Maridage_IDs_of_Variety();

// ---- the reverse tables, made anew from the link rows ----

/// All rows of `Regions_Per_Variety` from the varieties of the regions.
void Genera_Regions_Per_Variety();
/// All rows of `Varieties_Per_Maridage` from the pairings of the varieties.
void Genera_Varieties_Per_Maridage();

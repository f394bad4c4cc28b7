// The links between wines, varieties, regions and pairings: a selection of theirs as rows of a link
// table, and such rows as a list again.
//
// A group link row holds a group (times ten) and a decimal mask: its digit n, from the right, is 1
// for subgroup n of the group, up to ten of them.
#pragma once

#include "platform/run_time/Bounded_Array.h"
#include "platform/run_time/Values.h"

// ---- the pairings chosen on a screen, from entry 1; a 101st is failure 9 ----

inline Integer Selected_Count = 0;
inline Bounded_Array<Text, 100> Selected_Names;
inline Bounded_Array<Text, 100> Selected_IDs;  ///< their keys, as text

// ---- what the decoders found, from entry 1; a 101st is failure 9 ----

struct Decoded_Item {
  Long ID{};
  Text Name;
  Text Color;  ///< of a variety
};

inline Integer Decoded_Count = 0;
inline Bounded_Array<Decoded_Item, 100> Decoded_Items;
inline Long Decoded_Group = 0;  ///< the group of the row being read
inline Long Decoded_Mask = 0;   ///< its subgroups still to be read

// ---- masks ----

/// The mask of one subgroup, 1 to 10: 10 to the power of the subgroup less one. 6 above.
Long Subgroup_Mask(Long subgroup);

/// Takes the highest subgroup out of the mask and returns it. 0 where the mask has no digit 1, or
/// is negative; it is 0 then.
Long Next_Subgroup_of_Mask(Long& mask);

// ---- decoders ----

/// The varieties of the region in the memory record of `Regions`, by their link rows, in each group
/// from the highest subgroup down. A subgroup that does not stand among the first ten rows of its
/// group is left out. The memory record of `Varieties` holds the row read last: the first one of
/// the last link row's group.
void Load_Varieties_of_Region();

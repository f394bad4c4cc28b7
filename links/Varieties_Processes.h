// The links between wines, varieties, regions, cheeses and pairings: what they have in common.
//
// A group link row holds an owner, a group (times ten) and a decimal mask: its digit n, from the
// right, is 1 for subgroup n of the group, up to ten of them. Selections become such rows in
// Link_Store.h, rows become lists again in Link_Decoders.h, and Link_Search.h finds the owners that
// a selection has something in common with. They hand over through the arrays below, which count
// from 1 and are never cleared; all but one hold 100 entries (a 101st is failure 9).
#pragma once

#include <vector>

#include "platform/run_time/Bounded_Array.h"
#include "platform/run_time/Values.h"

// ---- what was chosen on a screen; lives from one screen to the next ----

inline Integer Selected_Count = 0;
inline Bounded_Array<Text, 100> Selected_Names;
inline Bounded_Array<Text, 100> Selected_IDs;  ///< their keys, as text

/// What was chosen, kept aside.
struct Kept_Selection {
  Integer Count = Selected_Count;
  Bounded_Array<Text, 100> Names = Selected_Names;
  Bounded_Array<Text, 100> IDs = Selected_IDs;

  void Restore() const;
};

/// Set by a picker that hands a selection back; cleared by the screen that takes it over.
inline bool Variety_Pairings_Changed = false;
inline bool Cheese_Wines_Changed = false;
inline bool Cheese_Foods_Changed = false;
inline bool Varieties_Changed_Flag = false;  ///< the varieties of a region

// ---- the same as addresses: a group and a mask of one digit for each, filled by the builds ----

inline Bounded_Array<Long, 100> Selected_Groups;
inline Bounded_Array<Long, 100> Selected_Masks;
inline Long Sort_Count = 0;  ///< how many of them are to be merged

// ---- the merged addresses: what the group link rows of the selection hold ----

inline Integer Group_Count = 0;
inline Bounded_Array<Long, 100> Group_Keys;
inline Bounded_Array<Long, 100> Group_Masks;

// ---- what the decoders found ----

/// A pairing, with its name in each language.
struct Decoded_Maridage {
  Long Maridage_ID{};
  Text Maridage_Name;
  Text English;
  Text Spanish;
  Text French;
  Text German;
  Text Italian;
  Text Japanese;
  Text Portuguese;

  const Text& Name_in_Language() const;  ///< the one in force
};

struct Decoded_Item {
  Long ID{};
  Text Name;
  Text Color;  ///< of a variety
};

inline Integer Decoded_Count = 0;
inline Bounded_Array<Decoded_Maridage, 100> Decoded_Maridages;
inline Bounded_Array<Decoded_Maridage, 100> Decoded_Cheese_Maridages;  ///< those of a cheese
inline Bounded_Array<Decoded_Item, 100> Decoded_Items;
inline Long Decoded_Group = 0;  ///< the group of the row being read
inline Long Decoded_Mask = 0;   ///< its subgroups still to be read

// ---- what a search found ----

/// As many texts as are put there, from 1 on; a place that was never set is "".
class Found_Keys {
 public:
  Text& operator[](int at) {
    const auto place = static_cast<std::size_t>(at);
    if (place >= keys_.size()) keys_.resize(place + 1);
    return keys_[place];
  }
  void Clear() { keys_.clear(); }

 private:
  std::vector<Text> keys_;
};

inline Long Found_Count = 0;
inline Found_Keys Found_IDs;  ///< as text

// ---- masks ----

/// The mask of one subgroup, 1 to 10: 10 to the power of the subgroup less one. 6 above.
Long Subgroup_Mask(Long subgroup);

/// Takes the highest subgroup out of the mask and returns it. 0 where the mask has no digit 1, or
/// is negative; it is 0 then.
Long Next_Subgroup_of_Mask(Long& mask);

/// Merges the first `Sort_Count` addresses into `Group_Keys` and `Group_Masks`, one entry for each
/// run of equal groups. Only the smallest group is brought to the front before; equal groups that
/// do not stand side by side then stay apart, and whoever reads the entries can live with that. 6
/// where a group's masks together are more than a Long holds.
void Merge_Selected_Groups();

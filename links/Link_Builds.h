// The first half of a store or of a search: the selection becomes addresses, `Group_Keys` and
// `Group_Masks`, and what belongs to each item is written. `Used` of each row that has a counter of
// 0 or more grows by one, but see Build_Wine_Maridage_Groups.
//
// What they need and how they fail is that of the stores: Link_Store.h.
#pragma once

/// For the foods of a cheese and for searches too. As designed, under WineAdd and WineMod also a
/// row in `Cheeses_Per_Wines` and `Wines_Per_Cheeses` for each item while the memory record of
/// `Maridages` holds a cheese, whichever pairing that is; rows that stand already are not looked
/// for. Mended, no such row, and only the foods of a cheese are counted here: what a wine uses is
/// counted by Count_Difference, and a search uses nothing.
void Build_Wine_Maridage_Groups();
/// Makes it so that the wine in the memory record has, in each of the two tables of cheeses and
/// wines, one row for each of its stored pairings that is a cheese.
void Build_Cheeses_of_Wine();
/// Also a row in `Mobile_Wines_per_Maridage` for each, all with one key, the last row's plus 1; and
/// under WineOtherAdd and WineOtherMod a row for each pairing that is a cheese in
/// `Cheeses_Per_Mobile_Wines` and `Mobile_Wines_Per_Cheeses`, unless it stands there. Leaves the
/// last pairing in the memory record of `Maridages`.
void Build_Mobile_Wine_Maridage_Groups();
/// The addresses alone: nothing is written. Leaves the last pairing in the memory record.
void Build_Mobile_Search_Groups();
/// Also a row in `Varieties_Per_Maridage` for each, again at each call.
void Build_Variety_Maridage_Groups();
/// Also a row in `Regions_Per_Variety` for each, again at each call.
void Build_Region_Variety_Groups();
/// Also a row in `Cheeses_Per_Variety` for each, again at each call.
void Build_Cheese_Variety_Groups();

// A selection becomes link rows: a build (Link_Builds.h) turns it into addresses and writes what
// belongs to each item, and the owner's group link rows are replaced by the merged addresses.
//
// The owner is in its memory record before the call: `Wine_ID` in `Wines`, `Mobile_Wine_ID` in
// `Mobile_Wines`, `Variety_ID` in `Varieties`, `Cheese_ID` in `Cheeses`, `Region_ID` in `Regions`.
// The selection is `Selected_Count` and `Selected_IDs`.
//
// Failures: 3021 for a key without a row (the two builds for general wines leave it out instead); 6
// where a key or counter is more than its field holds; 9 for a 101st item. What was written before
// stays written, and the tables in use stay open. Mended, a key without a row is left out, and a
// full counter stays.
#pragma once

/// Mended, the link rows stay as they are where the selection is what lists show of them (these
/// leave out what is behind the hundredth, and what has no row), and the wine's rows of cheeses
/// follow the link rows. A selection of none then takes all of them away.
void Store_Wine_Maridages();
/// All link rows of the wine, of whatever they lead to, and its rows of cheeses.
void Remove_Wine_Maridages();
/// Removes the wine's rows of `Mobile_Wines_per_Maridage` too, and both before the build.
void Store_Mobile_Wine_Maridages();
void Store_Variety_Maridages();
void Store_Cheese_Maridages();
/// Adds to `Regions_Per_Variety` and counts every grape once more, whether the region had it or
/// not. Nothing is touched where the numbers left for rows of either table do not suffice (6).
/// Mended, both tables hold each grape of the selection once, what stands rightly stays, and a
/// grape is counted when the region has it newly, or no longer; `Decoded_Items` and the memory
/// record of `Varieties` change.
void Store_Region_Varieties();
/// The same, but the region's old rows go from both tables, and every grape is counted twice.
/// Mended there is no difference.
void Replace_Region_Varieties();
void Store_Cheese_Varieties();

/// Mended alone: the store of an empty selection, which it leaves as it is.
void Remove_Region_Varieties();

/// The variety's group link rows; the pair rows of the way back stay.
void Remove_Variety_Maridages();

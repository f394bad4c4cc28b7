// A selection becomes link rows: the builds turn it into addresses and write what belongs to each
// item, the stores replace the owner's group link rows by the merged addresses.
//
// The owner is in its memory record before the call: `Wine_ID` in `Wines`, `Mobile_Wine_ID` in
// `Mobile_Wines`, `Variety_ID` in `Varieties`, `Cheese_ID` in `Cheeses`, `Region_ID` in `Regions`.
// The selection is `Selected_Count` and `Selected_IDs`.
//
// Failures: 3021 for a key without a row (the two builds for general wines leave it out instead); 6
// where a key or counter is more than its field holds; 9 for a 101st item. What was written before
// stays written, and the tables in use stay open.
#pragma once

#include "platform/run_time/Values.h"

// ---- builds: addresses into `Group_Keys`, `Group_Masks`; `Used` of each row that has a counter of
// 0 or more grows by one ----

/// Under WineAdd and WineMod also a row in `Cheeses_Per_Wines` and `Wines_Per_Cheeses` for each
/// item while the memory record of `Maridages` holds a cheese, whichever pairing that is; rows that
/// stand already are not looked for.
void Build_Wine_Maridage_Groups();
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

// ---- stores ----

void Store_Wine_Maridages();
/// Removes the wine's rows of `Mobile_Wines_per_Maridage` too, and both before the build.
void Store_Mobile_Wine_Maridages();
void Store_Variety_Maridages();
void Store_Cheese_Maridages();
void Store_Region_Varieties();
void Store_Cheese_Varieties();

// ---- removal ----

/// The variety's group link rows; the pair rows of the way back stay.
void Remove_Variety_Maridages();

/// The serial number of a row that the user brought about, without and with the day.
Text Serial_of_User(const Text& key);
Text Dated_Serial_of_User(const Text& key);

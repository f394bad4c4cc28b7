// What refers to a row of the catalogues of places and producers, and what goes with it when it is
// deleted. The row is the one in the memory record of its table; the row itself and its counter are
// the caller's, and other memory records stay as they are, but see Remove_Rows_of_Region.
//
// Failures: 3075 where a record holds no key.
#pragma once

#include "platform/run_time/Values.h"

/// Labels, wineries and sub-regions.
bool Is_Region_Referred_To();
/// Wines of the cellars and of the general list.
bool Is_Winery_Referred_To();
/// Wines of the cellars, which name it and have a winery of its region; wines of the general list;
/// wineries that bottle it.
bool Is_Label_Referred_To();
/// Wines of the cellars, which name it and have a winery of its country; labels of the class.
bool Is_Classification_Referred_To();

/// The wines of the cellars that name the label in the memory record take this name. As designed
/// nothing.
void Rename_Label_in_Wines(const Text& name);
/// The wineries of the region in the memory record take its name. As designed nothing.
void Rename_Region_in_Wineries();

/// Its texts, its grapes (each counted out) and its rows of photos. Changes `Decoded_Items` and the
/// memory record of `Varieties`.
void Remove_Rows_of_Region();
/// Its text, its rows of photos, and what it bottles.
void Remove_Rows_of_Winery();
/// Its rows of photos.
void Remove_Rows_of_Label();

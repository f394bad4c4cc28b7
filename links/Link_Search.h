// Which owners have something in common with a selection: the searches.
//
// An owner is found when at least one of its items is selected, and it is found once; `Found_Count`
// and `Found_IDs` hold the result.
//
// As designed, the order is that of the merged groups and, within one, of the link table; owners
// whose row has gone are among them, and there are at most 100: where a hundredth match comes and
// none of the ninety-nine before it is a double, the search ends, and place 100 keeps what it held,
// which is no key. Without this known fault it is every owner that has a row, in the order of
// these; the owners' table is closed afterwards.
//
// Where something was found the link table stays open; where nothing was, a box says so.
#pragma once

#include "platform/run_time/Values.h"

/// Whether the last search ended so: the last place found is then no key, and there may be more to
/// find.
bool Search_Was_Cut();

/// The cellar's wines, whatever their cellar and stock, for the selected pairings. `Used` of each
/// of these grows by one. Failures: those of Build_Wine_Maridage_Groups.
void Search_Wines_for_Maridages();
/// The wines of the general list; nothing is written, and a key without a row is left out.
void Search_Mobile_Wines_for_Maridages();
/// The regions, for the selected varieties; Build_Region_Variety_Groups writes what it does.
void Search_Regions_for_Varieties();

/// Whether the current row of `Maridages_Per_Wines` has a subgroup of the mask: the sum of both, in
/// decimal, has a digit 2.
bool Row_Matches_Mask(Long mask);
/// The same of `Maridages_Per_Mobile_Wines`.
bool Row_Matches_Mobile_Mask(Long mask);

/// Drops the doubles of `Found_IDs`: the first of each stays, in the order of these. True where
/// there was one.
bool Compact_Found_IDs();

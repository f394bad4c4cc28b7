// Pairings of many wines: link rows as the program packs them, some pairings common and some rare.
#pragma once

#include <vector>

#include "platform/run_time/Values.h"

/// Gives each of these wines of the open data file that many different pairings of the catalogue,
/// one row for each wine and group. A group's last pairing is rare, from once in 6 to once in 78
/// times of another one's, by the group: of 30,000 wines with five pairings, fewer than 99 have it,
/// and some ten of the catalogue's rarest are together below that too. The rows are the same at
/// each call.
void Pair_Wines(const std::vector<Long>& wines, int pairings);

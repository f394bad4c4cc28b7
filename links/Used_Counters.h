// The counters that tell how often a row of the reference tables is in use.
#pragma once

#include <vector>

#include "platform/run_time/Values.h"

/// Each adds `step`, +1 or -1, to `Used` of the row with this key, and leaves the row in the
/// table's memory record. A counter of 0 or less is not lowered. As designed 3021 for a key without
/// a row, and 6 where the counter is at its highest; mended, such a key counts nothing, and such a
/// counter never moves again.
void Count_Winery(Long winery_id, int step);
void Count_Region(Long region_id, int step);
void Count_Label(Long label_id, int step);
void Count_Classification(Long classification_id, int step);
/// A negative counter is not raised either: it stays as it is.
void Count_Variety(Long variety_id, int step);
void Count_Maridage(Long maridage_id, int step);

/// Whether a counter that stands at `used` takes this step, as told above; `lowest_raised` is the
/// least that is raised.
bool Counter_Moves(Long used, int step, Integer lowest_raised = 0);

/// A row that a wine uses, by what counts it.
struct Use {
  void (*count)(Long key, int step);
  Long key;

  bool operator==(const Use&) const = default;
};
using Uses = std::vector<Use>;

/// What the stored wine in the memory record of `Wines` uses: its winery, the winery's region, the
/// label of this region and the class of the winery's country that it names, each of its grapes and
/// each of its pairings. What has no row is left out. Leaves the winery in its memory record.
Uses Uses_of_Wine();

/// What all wines of the winery use. The memory record of `Wines` stays as it is, and that of
/// `Wineries` is changed only where there are such wines.
Uses Uses_of_Wines_of(const Text& winery_id);

/// Counts what is in `after` alone in, and what is in `before` alone out.
void Count_Difference(Uses before, const Uses& after);

// The counters that tell how often a row of the reference tables is in use.
#pragma once

#include "platform/run_time/Values.h"

/// Each adds `step`, +1 or -1, to `Used` of the row with this key, and leaves the row in the
/// table's memory record. A counter of 0 or less is not lowered. Failures: 3021 for a key without a
/// row; 6 where the counter is at its highest.
void Count_Winery(Long winery_id, int step);
void Count_Region(Long region_id, int step);
void Count_Label(Long label_id, int step);
void Count_Classification(Long classification_id, int step);
/// A negative counter is not raised either: it stays as it is.
void Count_Variety(Long variety_id, int step);

// The counters that tell how often a row of the reference tables is in use.
#pragma once

#include "platform/run_time/Values.h"

/// Each moves the counter `Used` of the row with this key by `step` (+1 or -1), never from 0 or
/// below further down, and leaves the row, with the counter moved, in the table's memory record.
/// Failures: 3021 for a key without a row; 6 where the counter is full.
void Count_Winery(Long winery_id, int step);
void Count_Region(Long region_id, int step);
void Count_Label(Long label_id, int step);
void Count_Classification(Long classification_id, int step);
void Count_Variety(Long variety_id, int step);

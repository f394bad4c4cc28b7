#include "links/Used_Counters.h"

#include <limits>

#include "core/tables/Catalogue.h"
#include "platform/run_time/Conversions.h"

namespace {

template <class Record>
void Count(const Tables::Table_In_Use<Record>& table, Long key, int step,
           Integer lowest_raised = std::numeric_limits<Integer>::min()) {
  Open_By_Key(table);
  Read_Row(table, key);
  if (table.record.Used >= (step > 0 ? lowest_raised : 1)) {
    table.record.Used = To_Integer(static_cast<double>(table.record.Used + step));
    table.rows.Edit();
    table.Write();
  }
  Close_Table(table.rows);
}

}  // namespace

void Count_Winery(Long winery_id, int step) { Count(Wineries_Table, winery_id, step); }
void Count_Region(Long region_id, int step) { Count(Regions_Table, region_id, step); }
void Count_Label(Long label_id, int step) { Count(Labels_Table, label_id, step); }
void Count_Classification(Long classification_id, int step) {
  Count(Classification_Table, classification_id, step);
}
void Count_Variety(Long variety_id, int step) { Count(Varieties_Table, variety_id, step, 0); }

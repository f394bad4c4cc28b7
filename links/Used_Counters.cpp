#include "links/Used_Counters.h"

#include "core/tables/Catalogue.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "platform/run_time/Conversions.h"

namespace {

template <class Record>
void Count(const Tables::Table<Record>& table, Record_Store::Recordset& rows, Record& record,
           const char* key_field, Long key, int step) {
  Open_Table(rows, table.Name());
  rows.Index(key_field);
  rows.Seek("=", key);
  table.Read(rows, record);
  if (step > 0 || record.Used > 0) {
    record.Used = To_Integer(static_cast<double>(record.Used + step));
    rows.Edit();
    table.Write(rows, record);
  }
  Close_Table(rows);
}

}  // namespace

void Count_Winery(Long winery_id, int step) {
  Count(Wineries_Description, Wineries_Recordset, Wineries, "Winery_ID", winery_id, step);
}

void Count_Region(Long region_id, int step) {
  Count(Regions_Description, Regions_Recordset, Regions, "Region_ID", region_id, step);
}

void Count_Label(Long label_id, int step) {
  Count(Labels_Description, Labels_Recordset, Labels, "Label_ID", label_id, step);
}

void Count_Classification(Long classification_id, int step) {
  Count(Classification_Description, Classification_Recordset, Classification, "Classification_ID",
        classification_id, step);
}

void Count_Variety(Long variety_id, int step) {
  Count(Varieties_Description, Varieties_Recordset, Varieties, "Variety_ID", variety_id, step);
}

#include "core/tables/Rows.h"

#include "platform/run_time/Run_Time_Error.h"

void Remove_Rows_Of(Record_Store::Recordset& rows, std::string_view field, Long key) {
  rows.Index(field);
  Each_Row_Of(rows, field, key, [&rows] { rows.Delete(); });
}

void Open_Query(Record_Store::Recordset& query, std::string_view statement) {
  if (!Wine_Cellar_DB) Fail(Failure::Object_Variable_Not_Set);
  query = Wine_Cellar_DB->OpenRecordset(statement);
}

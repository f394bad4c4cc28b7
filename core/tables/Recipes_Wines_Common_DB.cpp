#include "core/tables/Recipes_Wines_Common_DB.h"

#include "core/tables/Link_Tables.h"
#include "core/tables/Pairing_Tables.h"
#include "core/tables/Wine_Tables.h"
#include "platform/run_time/Run_Time_Error.h"

std::string Connect_Text(std::string_view path) {
  return "; DATABASE=" + std::string(path) + ";PWD=vinebox31";
}

void Open_Wine_Cellar_DB() {
  Wine_Cellar_DB = Record_Store::OpenDatabase(Wine_Cellar_DB_Path, false, false,
                                              Connect_Text(Wine_Cellar_DB_Path));
}

void Open_Table(Record_Store::Recordset& table, std::string_view name) {
  if (!Wine_Cellar_DB) Fail(Failure::Object_Variable_Not_Set);
  table = Wine_Cellar_DB->OpenRecordset(name);
}

void Open_Table(Record_Store::Recordset& table, std::string_view name, std::string_view index) {
  Open_Table(table, name);
  table.Index(index);
}

void Init_Varieties_Record() { Varieties_Description.Init(Varieties); }
void Read_Varieties_Record() { Varieties_Description.Read(Varieties_Recordset, Varieties); }
void Write_Varieties_Record() { Varieties_Description.Write(Varieties_Recordset, Varieties); }

void Init_Wines_Record() { Wines_Description.Init(Wines); }
void Read_Wines_Record() { Wines_Description.Read(Wines_Recordset, Wines); }
void Write_Wines_Record() { Wines_Description.Write(Wines_Recordset, Wines); }

void Init_Maridages_Per_Variety_Record() {
  Maridages_Per_Variety_Description.Init(Maridages_Per_Variety);
}
void Read_Maridages_Per_Variety_Record() {
  Maridages_Per_Variety_Description.Read(Maridages_Per_Variety_Recordset, Maridages_Per_Variety);
}
void Write_Maridages_Per_Variety_Record() {
  Maridages_Per_Variety_Description.Write(Maridages_Per_Variety_Recordset, Maridages_Per_Variety);
}

void Init_Varieties_Per_Maridage_Record() {
  Varieties_Per_Maridage_Description.Init(Varieties_Per_Maridage);
}
void Read_Varieties_Per_Maridage_Record() {
  Varieties_Per_Maridage_Description.Read(Varieties_Per_Maridage_Recordset, Varieties_Per_Maridage);
}
void Write_Varieties_Per_Maridage_Record() {
  Varieties_Per_Maridage_Description.Write(Varieties_Per_Maridage_Recordset,
                                           Varieties_Per_Maridage);
}

// Opening the data file and its tables, and the memory records of varieties, cellar wines and the
// pairings of varieties.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/record_store/Record_Store.h"
#include "platform/run_time/Values.h"

/// Where the data file is. Set at start-up.
inline Text Wine_Cellar_DB_Path;

/// The one data file. Opened at start-up, held open until the process ends.
inline std::unique_ptr<Record_Store::Database> Wine_Cellar_DB;

/// The text that opens the data file at `path`: its place and its password.
std::string Connect_Text(std::string_view path);

/// Opens the file at Wine_Cellar_DB_Path for reading and writing, shared with other processes.
/// Failures: 3024 no such file, 3031 another password, 3343 no sound data file, 3260 locked.
void Open_Wine_Cellar_DB();

/// Replaces what `table` holds by a table recordset on `name`. 91 before the file is open, 3078
/// where it has no such table.
void Open_Table(Record_Store::Recordset& table, std::string_view name);
/// The same, in the order of one of its indexes. 3015 where it has no such index.
void Open_Table(Record_Store::Recordset& table, std::string_view name, std::string_view index);

// The routines of the memory records. Init sets the defaults and leaves the key as it is. Read
// takes over the current row of the table's recordset. Write stores all but the key in the row that
// AddNew or Edit began, and ends it by Update.
void Init_Varieties_Record();
void Read_Varieties_Record();
void Write_Varieties_Record();

void Init_Wines_Record();
void Read_Wines_Record();
void Write_Wines_Record();

void Init_Maridages_Per_Variety_Record();
void Read_Maridages_Per_Variety_Record();
void Write_Maridages_Per_Variety_Record();

void Init_Varieties_Per_Maridage_Record();
void Read_Varieties_Per_Maridage_Record();
void Write_Varieties_Per_Maridage_Record();

// The library as a data file: writing it, and reading it back.
#pragma once

#include <string>

#include "platform/record_store/Record_Store.h"
#include "tools/Library.h"

namespace Data_Compiler {

/// Writes a new data file with the program's password. It stands under its name only when it is
/// whole. A file that stands there already is never touched: std::filesystem::filesystem_error.
void Write_Library(const Library& library, const std::string& path);

/// All rows of an open data file, in storage order.
Library Read_Library(Record_Store::Database& database);

}  // namespace Data_Compiler

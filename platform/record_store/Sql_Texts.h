// Pieces of the engine's language.
#pragma once

#include <string>
#include <string_view>

#include "platform/record_store/Schema.h"

namespace Record_Store {

std::string Quoted(std::string_view name);
std::string Engine_Index_Name(std::string_view table, std::string_view index);

/// The statements that make an empty table, and its indexes.
std::string Table_Definition(const Table_Schema& table);
std::string Index_Definition(const Table_Schema& table, const Index_Schema& index);

/// Whether an index is the storage order itself and needs nothing in the file.
bool Is_Counter_Index(const Table_Schema& table, const Index_Schema& index);

/// A table's description as one text, and back. A text that is no description: 3343 with `path`.
std::string Describe(const Table_Schema& table);
Table_Schema Described(std::string_view name, std::string_view description,
                       const std::string& path);

}  // namespace Record_Store

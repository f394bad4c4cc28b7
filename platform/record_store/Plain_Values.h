// From stored values to the types that callers ask for, and back.
#pragma once

#include <optional>
#include <string>

#include "platform/record_store/Recordset.h"
#include "platform/record_store/Rows.h"

namespace Record_Store {

/// A value with the type that it has outside the file.
using Plain = Key::Value;

/// A stored value as its field's type (none: as it lies there). 94 for a null.
Plain To_Plain(const Value& value, std::optional<Field_Type> type);

// 13 where the value does not convert, 6 beyond the range.
bool To_Boolean(const Plain& plain);
Integer To_Integer_Value(const Plain& plain);
Long To_Long_Value(const Plain& plain);
Single To_Single_Value(const Plain& plain);
double To_Double_Value(const Plain& plain);
Currency To_Currency_Value(const Plain& plain);
Date To_Date_Value(const Plain& plain);
Text To_Text_Value(const Plain& plain);

/// As a field of this type stores it; 13 and 6 as above. `room` holds a text that had to be made.
Value To_Stored(const Plain& plain, Field_Type type, std::string& room);

/// As a key of this type is sought; nothing where no row can have it.
std::optional<Value> To_Key(const Plain& plain, Field_Type type, std::string& room);

}  // namespace Record_Store

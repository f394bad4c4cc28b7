// The record store: tables, cursors and queries over one encrypted file.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/run_time/Run_Time_Error.h"
#include "platform/run_time/Values.h"

namespace Record_Store {

class Database_Core;
class Cursor;

enum class Field_Type { Boolean, Integer, Long, Single, Currency, Date, Text };

/// A field as it stands in a table, in storage order.
struct Field_Schema {
  std::string name;
  Field_Type type = Field_Type::Text;
  bool counter = false;          ///< given by the store at AddNew; at most one field of a table
  bool copy_of_counter = false;  ///< takes the counter's value at AddNew
};

struct Index_Schema {
  std::string name;
  std::vector<std::string> fields;  ///< one, or more for a compound index
  bool unique = false;              ///< a primary key
};

struct Table_Schema {
  std::string name;
  std::vector<Field_Schema> fields;
  std::vector<Index_Schema> indexes;
  Long first_counter = 1;
};

/// A key of Seek. A number given for a text key compares as its decimal text; a text given for a
/// number key is converted, and one that is no number is a miss.
using Key = std::variant<std::int64_t, double, std::string_view>;

/// One field of a recordset's current row, or of the row being added or edited. Lives no longer
/// than the next move of its recordset.
class Field {
 public:
  std::string_view Name() const;
  Field_Type Type() const;
  bool Is_Null() const;

  // Reading: 94 for a null, 13 where the value does not convert, 6 beyond the type's range,
  // 3021 or 3167 without a current row, 3420 on a closed recordset.
  bool As_Boolean() const;
  Integer As_Integer() const;
  Long As_Long() const;
  Single As_Single() const;
  double As_Double() const;
  Currency As_Currency() const;
  Date As_Date() const;
  Text As_Text() const;                 ///< numbers and dates as the conversions write them
  void Read_Text_Into(Text& to) const;  ///< As_Text without a new string

  // Assigning: 3020 with neither AddNew nor Edit before it (always so in a query), 13 and 6 as above.
  Field& operator=(bool value);
  Field& operator=(int value);
  Field& operator=(Integer value);
  Field& operator=(std::int64_t value);
  Field& operator=(double value);
  Field& operator=(Single value);
  Field& operator=(Currency value);
  Field& operator=(Date value);
  Field& operator=(std::string_view value);
  Field& operator=(const char* value) { return *this = std::string_view(value); }
  Field& operator=(const Field&) = delete;
  void Set_Null();
};

/// A cursor over a table or over the rows of a query.
class Recordset { /* ... */ };

}  // namespace Record_Store

// What a table looks like: its fields in storage order and its indexes.
#pragma once

#include <string>
#include <vector>

#include "platform/run_time/Values.h"

namespace Record_Store {

enum class Field_Type { Boolean, Integer, Long, Single, Currency, Date, Text };

/// A field as it stands in a table, in storage order.
struct Field_Schema {
  std::string name;
  Field_Type type = Field_Type::Text;
  bool counter = false;  ///< given by the store at AddNew (Integer or Long); at most one of a table
  bool copy_of_counter = false;  ///< takes the counter's value at AddNew

  bool operator==(const Field_Schema&) const = default;
};

/// A named order of a table's rows. Its name is unique within the table, without regard to case.
struct Index_Schema {
  std::string name;
  std::vector<std::string> fields;  ///< one, or more for a compound index
  bool unique = false;              ///< a primary key

  bool operator==(const Index_Schema&) const = default;
};

struct Table_Schema {
  std::string name;
  std::vector<Field_Schema> fields;
  std::vector<Index_Schema> indexes;
  Long first_counter = 1;  ///< the first number that the counter gives

  bool operator==(const Table_Schema&) const = default;
};

}  // namespace Record_Store

// The arrangement of a recordset's fields: names, types and the way from name to ordinal.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/record_store/Schema.h"

namespace Record_Store {

/// Names are compared so: without regard to the case of plain letters.
bool Same_Name(std::string_view a, std::string_view b);

std::size_t Hash_Of_Name(std::string_view name);

std::string_view Type_Name(Field_Type type);
std::optional<Field_Type> Type_By_Name(std::string_view name);

struct Column {
  std::string name;
  std::optional<Field_Type> type;  ///< none where a query computes the value
  bool counter = false;
  bool copy_of_counter = false;
};

class Field_Layout {
 public:
  Field_Layout() = default;
  explicit Field_Layout(std::vector<Column> columns);

  std::uint64_t Number() const { return number_; }
  int Count() const { return static_cast<int>(columns_.size()); }
  const Column& At(int ordinal) const { return columns_[static_cast<std::size_t>(ordinal)]; }
  /// -1 where there is none. Of two fields of one name the first.
  int Find(std::string_view name) const;
  int Counter() const { return counter_; }  ///< its ordinal, or -1
  void Widen(int ordinal) { columns_[static_cast<std::size_t>(ordinal)].type = Field_Type::Long; }

 private:
  std::uint64_t number_ = 0;
  int counter_ = -1;
  std::vector<Column> columns_;
  std::vector<std::int16_t> slots_;  // a hash table of ordinals, -1 in empty slots
};

}  // namespace Record_Store

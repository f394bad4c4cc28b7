// All rows of a data file in memory, by table, with their keys as the store will give them.
#pragma once

#include <algorithm>
#include <limits>
#include <map>
#include <string>
#include <tuple>
#include <utility>
#include <variant>
#include <vector>

#include "core/tables/Catalogue.h"
#include "platform/run_time/Conversions.h"
#include "tools/Problems.h"

namespace Data_Compiler {

/// The description of the table whose memory record is `Record`.
template <class Record>
const Tables::Table<Record>& Description_Of() {
  return std::get<const Tables::Table<Record>&>(Tables::Catalogue);
}

/// Calls `visit(place)` with the members of `record` that hold the row's key: the counter and what
/// copies it. Nothing happens in a table without a counter.
template <class Record, class Visitor>
void Visit_Keys(Record& record, Visitor&& visit) {
  using Plain = std::remove_const_t<Record>;
  for (const auto& field : Description_Of<Plain>().Fields())
    if (field.Schema().counter || field.Schema().copy_of_counter)
      std::visit([&](auto member) { visit(record.*member); }, field.Place());
}

inline Long As_Key(const Text& value) { return Is_Numeric(value) ? To_Long(value) : 0; }
inline Long As_Key(Long value) { return value; }
inline Long As_Key(Integer value) { return value; }
template <class Other>
Long As_Key(const Other&) {
  return 0;
}

/// A key in a column of 16 bits. One that is too great stays at their end, where the checks see it.
inline Integer Short(Long key) {
  return static_cast<Integer>(std::min<Long>(key, std::numeric_limits<Integer>::max()));
}

/// The row's key; 0 in a table without a counter.
template <class Record>
Long Key_Of(const Record& record) {
  Long key = 0;
  Visit_Keys(record, [&](const auto& value) { key = As_Key(value); });
  return key;
}

template <class Record>
void Set_Key(Record& record, Long key) {
  Visit_Keys(record, [&](auto& value) {
    using Value = std::remove_reference_t<decltype(value)>;
    if constexpr (std::is_same_v<Value, Text>)
      value = std::to_string(key);
    else if constexpr (std::is_same_v<Value, Integer>)
      value = Short(key);
    else if constexpr (std::is_same_v<Value, Long>)
      value = key;
  });
}

class Library {
 public:
  template <class Record>
  std::vector<Record>& Of() {
    return std::get<std::vector<Record>>(rows_);
  }
  template <class Record>
  const std::vector<Record>& Of() const {
    return std::get<std::vector<Record>>(rows_);
  }

  /// Appends a row as one that is delivered: it gets the next key and its origin mark. `place` is
  /// where it was written; a row that follows from others has none. The reference holds until the
  /// next row of the table.
  template <class Record>
  Record& Add(Record row, const Place& place = {}) {
    auto& rows = Of<Record>();
    const auto& table = Description_Of<Record>();
    Set_Key(row, table.First_Counter() + static_cast<Long>(rows.size()));
    if constexpr (requires { row.SERIAL_NUMBER; }) {
      const Long key = Key_Of(row);
      row.SERIAL_NUMBER = key == 0 ? "SYS" : "SYS-" + std::to_string(key);
    }
    if (!place.file.empty()) places_[{table.Name(), rows.size()}] = place;
    return rows.emplace_back(std::move(row));
  }

  /// The row with this key, or none. Keys rise in storage order, mostly by one.
  template <class Record>
  const Record* Find(Long key) const {
    const auto& rows = Of<Record>();
    const auto likely = static_cast<std::size_t>(key - Description_Of<Record>().First_Counter());
    if (likely < rows.size() && Key_Of(rows[likely]) == key) return &rows[likely];
    const auto found =
        std::lower_bound(rows.begin(), rows.end(), key,
                         [](const Record& row, Long wanted) { return Key_Of(row) < wanted; });
    return found != rows.end() && Key_Of(*found) == key ? &*found : nullptr;
  }

  /// Where a row was written, for a message; its table and number where it follows from others.
  template <class Record>
  std::string Where(const Record& row) const {
    const auto at = static_cast<std::size_t>(&row - Of<Record>().data());
    const std::string& table = Description_Of<Record>().Name();
    const auto found = places_.find({table, at});
    if (found != places_.end()) return found->second.Text();
    return table + " row " + std::to_string(at + 1);
  }

 private:
  template <class... Record>
  static std::tuple<std::vector<Record>...> Rows_Of(
      const std::tuple<const Tables::Table<Record>&...>&);

  decltype(Rows_Of(Tables::Catalogue)) rows_;
  std::map<std::pair<std::string, std::size_t>, Place> places_;
};

}  // namespace Data_Compiler

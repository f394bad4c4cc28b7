// Rows found by look-ups, kept for as long as nothing can have changed them.
#pragma once

#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

#include "platform/record_store/Rows.h"

namespace Record_Store {

struct Order;

/// A list that is filled makes a look-up a row, and asks for the same few rows of a table again and
/// again. From its second time on, a key's row is kept here until the table is written to or
/// another process changes the file.
class Look_Ups {
 public:
  /// Where the row of this key stands in Rows. What was kept in another state of the file is
  /// forgotten.
  std::optional<std::size_t> Find(const Order& order, const Value& key, std::uint64_t file_state);
  /// Takes the row of the last missed Find from a statement of `width` columns, if it is worth it.
  void Keep_Missed(const Order& order, const Value& key, sqlite3_stmt* statement, int width);
  void Forget();

  const Row_Block& Rows() const { return rows_; }

 private:
  std::unordered_map<std::uint64_t, std::size_t> places_;  // by hash
  std::vector<const Order*> orders_;                       // by row, as are the next two
  Row_Block keys_;
  Row_Block rows_;
  std::vector<std::uint32_t> asked_;  // ends of hashes of keys asked for, each in its place
  std::uint64_t missed_ = 0;
  std::uint64_t file_state_ = 0;
};

}  // namespace Record_Store

// The rows of a list view: one block of text, and where in it each cell stands. For the sources of
// this room only.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/forms/Colors.h"

namespace Forms {

/// What a row shows beside its texts.
struct Row_Marks {
  bool bold = false;
  Color fore_color = Window_Color;
  std::string note;  ///< for assistive programs
};

/// A row is known by its number, counted from 0 in the order of adding, and keeps it: a removed
/// row leaves a gap. The order in which rows are shown is a permutation of its own.
class List_Rows {
 public:
  explicit List_Rows(int columns) : columns_(columns) {}

  int Columns() const { return columns_; }
  int Shown() const { return static_cast<int>(order_.size()); }
  int Row_At(int place) const { return order_[static_cast<std::size_t>(place)]; }
  /// Where the row is shown; -1 for one that was removed.
  int Place_Of(int row) const;

  int Add(std::string_view text);  ///< the new row's number
  void Remove(int row);
  void Clear();

  bool Is_Set(int row, int column) const { return At(row, column).start != unset; }
  /// "" where it was never set.
  std::string_view Cell(int row, int column) const;
  void Set_Cell(int row, int column, std::string_view text);

  const Row_Marks& Marks(int row) const;
  Row_Marks& Marks(int row) { return marks_[row]; }

  /// Puts the rows in the order of this column's texts, without regard to case; equal ones stay as
  /// they stood.
  void Sort(int column, bool descending);

 private:
  static constexpr std::uint32_t unset = UINT32_MAX;

  struct Span {
    std::uint32_t start = unset;
    std::uint32_t length = 0;
  };

  const Span& At(int row, int column) const {
    return cells_[static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
                  static_cast<std::size_t>(column)];
  }
  void Pack();

  int columns_;
  std::string block_;
  std::size_t lost_ = 0;  ///< characters of the block that no cell uses any more
  std::vector<Span> cells_;
  std::vector<std::int32_t> order_;
  mutable std::vector<std::int32_t> places_;  ///< by row; empty when the order has changed
  std::unordered_map<int, Row_Marks> marks_;
};

}  // namespace Forms

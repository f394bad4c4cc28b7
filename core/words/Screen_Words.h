// The rows of `Words` of a screen that takes its texts by position: which row stands for what. The
// tables beside this file, one a screen, serve the screens and the checks of the data alike. Rows
// count from 1. Two more tables are for texts that no screen has to itself; these are found by
// name.
#pragma once

#include <array>
#include <span>
#include <string_view>

namespace Screen_Words {

/// A row as the data has it. "Cap" rows caption the control, the "Frm" row the form; "Head" rows
/// hold what a screen says in boxes and tips, or only keep the place.
struct Row {
  std::string_view Variable;
  std::string_view types_variable;
};

/// The place of a row in its table, from 1; 0 where the table has no such row.
constexpr int Place_of(std::span<const Row> rows, std::string_view variable) {
  int place = 0;
  for (const Row& row : rows) {
    ++place;
    if (row.Variable == variable) return place;
  }
  return 0;
}

/// The rows of texts that are found by name, in the order of their table.
template <class Text, std::size_t Count>
constexpr std::array<Row, Count> Rows_Named_As(const std::array<Text, Count>& texts) {
  std::array<Row, Count> rows;
  for (std::size_t i = 0; i < Count; ++i) rows[i] = {texts[i].Variable, "Head"};
  return rows;
}

}  // namespace Screen_Words

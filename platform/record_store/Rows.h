// Values of a row as the engine gives them, and rows kept apart from the engine.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3_stmt;

namespace Record_Store {

enum class Cell_Kind : std::uint8_t { Null, Number, Real, Text };

/// One stored value, before it is taken as the type of its field. A text belongs to the statement
/// or the block that it was read from.
struct Value {
  Cell_Kind kind = Cell_Kind::Null;
  std::int64_t number = 0;
  double real = 0;
  std::string_view text;

  static Value Of(std::int64_t number) { return {Cell_Kind::Number, number, 0, {}}; }
  static Value Of(double real) { return {Cell_Kind::Real, 0, real, {}}; }
  static Value Of(std::string_view text) { return {Cell_Kind::Text, 0, 0, text}; }
};

/// The value of a column of the row on which a statement stands.
Value Column_Value(sqlite3_stmt* statement, int column);

/// Binds the value to the parameter (counted from 1). A text must stay where it is until the
/// statement is reset.
void Bind_Value(sqlite3_stmt* statement, int parameter, const Value& value);

/// Rows of equal width in two pieces of memory, however many there are.
class Row_Block {
 public:
  /// No rows from now on, each `width` cells wide.
  void Clear(int width);
  /// One row of nulls.
  void Make_Row(int width);
  /// Takes over the row on which the statement stands.
  void Append(sqlite3_stmt* statement);
  /// A text given must not lie in this block.
  void Set(int column, const Value& value);

  Value At(std::size_t row, int column) const;
  std::size_t Rows() const { return width_ == 0 ? 0 : cells_.size() / width_; }
  /// Gives memory back that a large query took.
  void Shrink();

 private:
  struct Cell {
    Cell_Kind kind = Cell_Kind::Null;
    std::uint32_t length = 0;
    union {
      std::int64_t number = 0;
      double real;
      std::size_t at;
    };
  };
  Cell Keep(const Value& value);

  std::size_t width_ = 0;
  std::vector<Cell> cells_;
  std::string texts_;
};

}  // namespace Record_Store

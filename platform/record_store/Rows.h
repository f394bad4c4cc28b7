// Values of a row as the engine gives them, and rows kept apart from the engine.
#pragma once

#include <sqlite3.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Record_Store {

enum class Cell_Kind : std::uint8_t { Null, Number, Real, Text };

/// One stored value, before it is taken as the type of its field. A text belongs to the statement
/// or the block that it was read from.
struct Value {
  Cell_Kind kind = Cell_Kind::Null;
  union {
    std::int64_t number;
    double real;
    std::string_view text;
  };

  Value() : number(0) {}
  static Value Of(std::int64_t value) { return Value(value); }
  static Value Of(double value) { return Value(value); }
  static Value Of(std::string_view value) { return Value(value); }

 private:
  explicit Value(std::int64_t value) : kind(Cell_Kind::Number), number(value) {}
  explicit Value(double value) : kind(Cell_Kind::Real), real(value) {}
  explicit Value(std::string_view value) : kind(Cell_Kind::Text), text(value) {}
};

/// The value of a column of the row on which a statement stands.
inline Value Column_Value(sqlite3_stmt* statement, int column) {
  sqlite3_value* value = sqlite3_column_value(statement, column);
  switch (sqlite3_value_type(value)) {
    case SQLITE_INTEGER:
      return Value::Of(static_cast<std::int64_t>(sqlite3_value_int64(value)));
    case SQLITE_FLOAT:
      return Value::Of(sqlite3_value_double(value));
    case SQLITE_NULL:
      return {};
    default: {
      const unsigned char* bytes = sqlite3_value_text(value);
      const auto length = static_cast<std::size_t>(sqlite3_value_bytes(value));
      return Value::Of(std::string_view(reinterpret_cast<const char*>(bytes), length));
    }
  }
}

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
  /// A row of one cell.
  void Append(const Value& value) { cells_.push_back(Keep(value)); }
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

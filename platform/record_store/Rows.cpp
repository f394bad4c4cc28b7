#include "platform/record_store/Rows.h"

namespace Record_Store {

void Bind_Value(sqlite3_stmt* statement, int parameter, const Value& value) {
  switch (value.kind) {
    case Cell_Kind::Null:
      sqlite3_bind_null(statement, parameter);
      break;
    case Cell_Kind::Number:
      sqlite3_bind_int64(statement, parameter, value.number);
      break;
    case Cell_Kind::Real:
      sqlite3_bind_double(statement, parameter, value.real);
      break;
    case Cell_Kind::Text:
      // An empty view may point nowhere, which the engine would take for a null.
      sqlite3_bind_text(statement, parameter, value.text.empty() ? "" : value.text.data(),
                        static_cast<int>(value.text.size()), SQLITE_STATIC);
      break;
  }
}

void Row_Block::Clear(int width) {
  width_ = static_cast<std::size_t>(width);
  cells_.clear();
  texts_.clear();
}

void Row_Block::Make_Row(int width) {
  Clear(width);
  cells_.resize(width_);
}

void Row_Block::Append(sqlite3_stmt* statement) {
  for (std::size_t column = 0; column < width_; ++column) {
    cells_.push_back(Keep(Column_Value(statement, static_cast<int>(column))));
  }
}

void Row_Block::Set(int column, const Value& value) {
  cells_[static_cast<std::size_t>(column)] = Keep(value);
}

Row_Block::Cell Row_Block::Keep(const Value& value) {
  Cell cell;
  cell.kind = value.kind;
  if (value.kind == Cell_Kind::Number) cell.number = value.number;
  if (value.kind == Cell_Kind::Real) cell.real = value.real;
  if (value.kind == Cell_Kind::Text) {
    cell.at = texts_.size();
    cell.length = static_cast<std::uint32_t>(value.text.size());
    texts_ += value.text;
  }
  return cell;
}

Value Row_Block::At(std::size_t row, int column) const {
  const Cell& cell = cells_[row * width_ + static_cast<std::size_t>(column)];
  switch (cell.kind) {
    case Cell_Kind::Number:
      return Value::Of(cell.number);
    case Cell_Kind::Real:
      return Value::Of(cell.real);
    case Cell_Kind::Text:
      return Value::Of(std::string_view(texts_).substr(cell.at, cell.length));
    default:
      return {};
  }
}

void Row_Block::Shrink() {
  constexpr std::size_t worth_keeping = 65536;
  if (cells_.capacity() * sizeof(Cell) > worth_keeping) cells_ = {};
  if (texts_.capacity() > worth_keeping) texts_ = {};
  width_ = 0;
}

}  // namespace Record_Store

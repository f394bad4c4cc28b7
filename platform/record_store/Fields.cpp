#include "platform/record_store/Fields.h"

#include "platform/record_store/Cursor.h"
#include "platform/record_store/Plain_Values.h"

namespace Record_Store {
namespace {

Plain Plain_Of(Cursor& cursor, int ordinal) {
  return To_Plain(cursor.Get(ordinal), cursor.Layout().At(ordinal).type);
}

// Most fields are asked for as the type that they have. What that takes to be read is worth nothing
// then; all else goes the long way.
template <class Result>
Result Read(Cursor& cursor, int ordinal, Field_Type own, Cell_Kind kind,
            Result (*take)(const Value&), Result (*convert)(const Plain&)) {
  const Value value = cursor.Get(ordinal);
  const std::optional<Field_Type> type = cursor.Layout().At(ordinal).type;
  if (type == own && value.kind == kind) return take(value);
  return convert(To_Plain(value, type));
}

}  // namespace

std::string_view Field::Name() const { return cursor_->Layout().At(ordinal_).name; }

Field_Type Field::Type() const {
  if (const auto type = cursor_->Layout().At(ordinal_).type) return *type;
  switch (cursor_->Get(ordinal_).kind) {
    case Cell_Kind::Number:
      return Field_Type::Long;
    case Cell_Kind::Real:
      return Field_Type::Single;
    default:
      return Field_Type::Text;
  }
}

bool Field::Is_Null() const { return cursor_->Get(ordinal_).kind == Cell_Kind::Null; }

bool Field::As_Boolean() const {
  return Read<bool>(
      *cursor_, ordinal_, Field_Type::Boolean, Cell_Kind::Number,
      [](const Value& value) { return value.number != 0; }, To_Boolean);
}

Integer Field::As_Integer() const {
  return Read<Integer>(
      *cursor_, ordinal_, Field_Type::Integer, Cell_Kind::Number,
      [](const Value& value) { return static_cast<Integer>(value.number); }, To_Integer_Value);
}

Long Field::As_Long() const {
  return Read<Long>(
      *cursor_, ordinal_, Field_Type::Long, Cell_Kind::Number,
      [](const Value& value) { return static_cast<Long>(value.number); }, To_Long_Value);
}

Single Field::As_Single() const {
  return Read<Single>(
      *cursor_, ordinal_, Field_Type::Single, Cell_Kind::Real,
      [](const Value& value) { return static_cast<Single>(value.real); }, To_Single_Value);
}

double Field::As_Double() const { return To_Double_Value(Plain_Of(*cursor_, ordinal_)); }

Currency Field::As_Currency() const {
  return Read<Currency>(
      *cursor_, ordinal_, Field_Type::Currency, Cell_Kind::Number,
      [](const Value& value) { return Currency{value.number}; }, To_Currency_Value);
}

Date Field::As_Date() const {
  return Read<Date>(
      *cursor_, ordinal_, Field_Type::Date, Cell_Kind::Number,
      [](const Value& value) { return Date{value.number}; }, To_Date_Value);
}

Text Field::As_Text() const {
  Text text;
  Read_Text_Into(text);
  return text;
}

void Field::Read_Text_Into(Text& to) const {
  const Value value = cursor_->Get(ordinal_);
  if (value.kind == Cell_Kind::Text) {
    to.assign(value.text);
  } else {
    to = To_Text_Value(To_Plain(value, cursor_->Layout().At(ordinal_).type));
  }
}

void Field::operator=(bool value) { cursor_->Put(ordinal_, value); }
void Field::operator=(std::int64_t value) { cursor_->Put(ordinal_, value); }
void Field::operator=(double value) { cursor_->Put(ordinal_, value); }
void Field::operator=(Single value) { cursor_->Put(ordinal_, value); }
void Field::operator=(Currency value) { cursor_->Put(ordinal_, value); }
void Field::operator=(Date value) { cursor_->Put(ordinal_, value); }
void Field::operator=(std::string_view value) { cursor_->Put(ordinal_, value); }
void Field::Set_Null() { cursor_->Put_Null(ordinal_); }

}  // namespace Record_Store

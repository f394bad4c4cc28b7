#include "platform/record_store/Fields.h"

#include "platform/record_store/Cursor.h"
#include "platform/record_store/Plain_Values.h"

namespace Record_Store {
namespace {

Plain Plain_Of(Cursor& cursor, int ordinal) {
  return To_Plain(cursor.Get(ordinal), cursor.Layout().At(ordinal).type);
}

bool Is_Whole_Type(std::optional<Field_Type> type) {
  return type == Field_Type::Long || type == Field_Type::Integer;
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

bool Field::As_Boolean() const { return To_Boolean(Plain_Of(*cursor_, ordinal_)); }

Integer Field::As_Integer() const { return To_Integer_Value(Plain_Of(*cursor_, ordinal_)); }

// The two types that most fields have go the short way.
Long Field::As_Long() const {
  const Value value = cursor_->Get(ordinal_);
  const std::optional<Field_Type> type = cursor_->Layout().At(ordinal_).type;
  if (value.kind == Cell_Kind::Number && Is_Whole_Type(type) && value.number <= INT32_MAX &&
      value.number >= INT32_MIN) {
    return static_cast<Long>(value.number);
  }
  return To_Long_Value(To_Plain(value, type));
}

Single Field::As_Single() const { return To_Single_Value(Plain_Of(*cursor_, ordinal_)); }
double Field::As_Double() const { return To_Double_Value(Plain_Of(*cursor_, ordinal_)); }
Currency Field::As_Currency() const { return To_Currency_Value(Plain_Of(*cursor_, ordinal_)); }
Date Field::As_Date() const { return To_Date_Value(Plain_Of(*cursor_, ordinal_)); }

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

#include "platform/record_store/Plain_Values.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "platform/record_store/Field_Layout.h"
#include "platform/run_time/Conversions.h"
#include "platform/run_time/Run_Time_Error.h"

namespace Record_Store {
namespace {

template <class... Cases>
struct Overload : Cases... {
  using Cases::operator()...;
};
template <class... Cases>
Overload(Cases...) -> Overload<Cases...>;

constexpr double money_unit = 10000;

double Number_Of(bool value) { return value ? -1 : 0; }
double Number_Of(Currency value) { return static_cast<double>(value.ten_thousandths) / money_unit; }

// What all conversions to a number have in common; `from_whole`, `from_real` and `from_text` are
// those of the wanted type.
template <class Result, class From_Whole, class From_Real, class From_Text>
Result To_Number(const Plain& plain, From_Whole from_whole, From_Real from_real,
                 From_Text from_text) {
  return std::visit(
      Overload{[&](std::int64_t value) -> Result { return from_whole(value); },
               [&](double value) -> Result { return from_real(value); },
               [&](Single value) -> Result { return from_real(static_cast<double>(value)); },
               [&](bool value) -> Result { return from_real(Number_Of(value)); },
               [&](Currency value) -> Result { return from_real(Number_Of(value)); },
               [](Date) -> Result { Fail(Failure::Type_Mismatch); },
               [&](std::string_view value) -> Result { return from_text(value); }},
      plain);
}

template <class Whole>
Whole In_Range(std::int64_t value) {
  if (value < std::numeric_limits<Whole>::min() || value > std::numeric_limits<Whole>::max()) {
    Fail(Failure::Overflow);
  }
  return static_cast<Whole>(value);
}

std::optional<bool> Boolean_Of(std::string_view text) {
  if (Same_Name(text, "True")) return true;
  if (Same_Name(text, "False")) return false;
  if (Is_Numeric(text)) return To_Double(text) != 0;
  return std::nullopt;
}

// Keys are mostly digits and nothing else.
std::optional<double> Number_Key(std::string_view text) {
  std::int64_t whole = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), whole);
  constexpr std::size_t surely_exact = 15;
  if (error == std::errc() && end == text.data() + text.size() && text.size() <= surely_exact) {
    return static_cast<double>(whole);
  }
  if (!Is_Numeric(text)) return std::nullopt;
  return To_Double(text);
}

std::optional<double> Number_Key(const Plain& plain) {
  if (const auto* text = std::get_if<std::string_view>(&plain)) return Number_Key(*text);
  if (std::holds_alternative<Date>(plain)) return std::nullopt;
  return To_Double_Value(plain);
}

// Stored numbers are whole unless the field is a Single, which keeps no more than its own digits.
std::optional<Value> Number_As_Stored(double number, Field_Type type) {
  if (type == Field_Type::Boolean) return Value::Of(std::int64_t{number != 0});
  if (type == Field_Type::Single) {
    if (std::abs(number) > std::numeric_limits<Single>::max()) return std::nullopt;
    return Value::Of(static_cast<double>(static_cast<Single>(number)));
  }
  return Value::Of(number);
}

std::optional<Value> Money_Key(const Plain& plain) {
  if (const auto* money = std::get_if<Currency>(&plain)) return Value::Of(money->ten_thousandths);
  const std::optional<double> number = Number_Key(plain);
  if (!number || std::abs(*number) * money_unit >= 0x1p63) return std::nullopt;
  return Value::Of(To_Currency_Value(plain).ten_thousandths);
}

std::optional<Value> Date_Key(const Plain& plain) {
  if (const auto* date = std::get_if<Date>(&plain)) return Value::Of(date->seconds);
  const auto* text = std::get_if<std::string_view>(&plain);
  if (text == nullptr || !Is_Date(*text)) return std::nullopt;
  return Value::Of(To_Date(*text).seconds);
}

}  // namespace

Plain To_Plain(const Value& value, std::optional<Field_Type> type) {
  switch (value.kind) {
    case Cell_Kind::Null:
      Fail(Failure::Invalid_Use_Of_Null);
    case Cell_Kind::Text:
      return value.text;
    case Cell_Kind::Real:
      if (type == Field_Type::Single) return static_cast<Single>(value.real);
      return value.real;
    default:
      break;
  }
  if (type == Field_Type::Boolean) return value.number != 0;
  if (type == Field_Type::Single) return static_cast<Single>(value.number);
  if (type == Field_Type::Currency) return Currency{value.number};
  if (type == Field_Type::Date) return Date{value.number};
  return value.number;
}

bool To_Boolean(const Plain& plain) {
  return To_Number<bool>(
      plain, [](std::int64_t value) { return value != 0; }, [](double value) { return value != 0; },
      [](std::string_view text) {
        const std::optional<bool> value = Boolean_Of(text);
        if (!value) Fail(Failure::Type_Mismatch);
        return *value;
      });
}

Integer To_Integer_Value(const Plain& plain) {
  return To_Number<Integer>(
      plain, In_Range<Integer>, [](double value) { return To_Integer(value); },
      [](std::string_view text) { return To_Integer(text); });
}

Long To_Long_Value(const Plain& plain) {
  return To_Number<Long>(
      plain, In_Range<Long>, [](double value) { return To_Long(value); },
      [](std::string_view text) { return To_Long(text); });
}

Single To_Single_Value(const Plain& plain) {
  return To_Number<Single>(
      plain, [](std::int64_t value) { return static_cast<Single>(value); },
      [](double value) { return To_Single(value); },
      [](std::string_view text) { return To_Single(text); });
}

double To_Double_Value(const Plain& plain) {
  return To_Number<double>(
      plain, [](std::int64_t value) { return static_cast<double>(value); },
      [](double value) { return value; }, [](std::string_view text) { return To_Double(text); });
}

Currency To_Currency_Value(const Plain& plain) {
  if (const auto* money = std::get_if<Currency>(&plain)) return *money;
  return To_Number<Currency>(
      plain,
      [](std::int64_t value) {
        Currency money;
        if (__builtin_mul_overflow(value, 10000, &money.ten_thousandths)) Fail(Failure::Overflow);
        return money;
      },
      [](double value) { return To_Currency(value); },
      [](std::string_view text) { return To_Currency(text); });
}

Date To_Date_Value(const Plain& plain) {
  if (const auto* date = std::get_if<Date>(&plain)) return *date;
  if (const auto* text = std::get_if<std::string_view>(&plain)) return To_Date(*text);
  Fail(Failure::Type_Mismatch);
}

Text To_Text_Value(const Plain& plain) {
  return std::visit(Overload{[](bool value) { return Text(value ? "True" : "False"); },
                             [](std::string_view value) { return Text(value); },
                             [](auto value) { return To_Text(value); }},
                    plain);
}

Value To_Stored(const Plain& plain, Field_Type type, std::string& room) {
  switch (type) {
    case Field_Type::Boolean:
      return Value::Of(std::int64_t{To_Boolean(plain)});
    case Field_Type::Integer:
      return Value::Of(std::int64_t{To_Integer_Value(plain)});
    case Field_Type::Long:
      return Value::Of(std::int64_t{To_Long_Value(plain)});
    case Field_Type::Single:
      return Value::Of(static_cast<double>(To_Single_Value(plain)));
    case Field_Type::Currency:
      return Value::Of(To_Currency_Value(plain).ten_thousandths);
    case Field_Type::Date:
      return Value::Of(To_Date_Value(plain).seconds);
    case Field_Type::Text:
      break;
  }
  if (const auto* text = std::get_if<std::string_view>(&plain)) return Value::Of(*text);
  room = To_Text_Value(plain);
  return Value::Of(std::string_view(room));
}

std::optional<Value> To_Key(const Plain& plain, Field_Type type, std::string& room) {
  switch (type) {
    case Field_Type::Text:
      return To_Stored(plain, type, room);
    case Field_Type::Currency:
      return Money_Key(plain);
    case Field_Type::Date:
      return Date_Key(plain);
    default:
      break;
  }
  if (const auto* whole = std::get_if<std::int64_t>(&plain);
      whole != nullptr && type != Field_Type::Boolean && type != Field_Type::Single) {
    return Value::Of(*whole);
  }
  if (const auto* text = std::get_if<std::string_view>(&plain);
      text != nullptr && type == Field_Type::Boolean) {
    const std::optional<bool> value = Boolean_Of(*text);
    if (!value) return std::nullopt;
    return Value::Of(std::int64_t{*value});
  }
  const std::optional<double> number = Number_Key(plain);
  return number ? Number_As_Stored(*number, type) : std::nullopt;
}

}  // namespace Record_Store

#include <QString>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "platform/run_time/Conversions.h"
#include "platform/run_time/Locale.h"
#include "platform/run_time/Run_Time_Error.h"

namespace {

constexpr int currency_decimals = 4;
constexpr int far = 100'000;  // beyond the exponents of every number but 0

bool Is_Digit(QChar character) { return character >= u'0' && character <= u'9'; }

// Digits, signs and an exponent only: the locale's own reader also knows "nan" and "infinity".
bool Has_Only_Number_Signs(const QString& text) {
  bool digit_seen = false;
  for (const QChar character : text) {
    digit_seen = digit_seen || Is_Digit(character);
    if (character.isLetter() && character.toLower() != u'e') return false;
  }
  return digit_seen;
}

QString From_Utf8(std::string_view text) {
  const Text trimmed = Trim(text);
  return QString::fromUtf8(trimmed.data(), qsizetype(trimmed.size()));
}

// The one rule behind Is_Numeric and every conversion from text. Locales with digits, signs or an
// exponent mark of their own still understand plain digits with their decimal sign.
bool Read_Number(std::string_view text, double& value) {
  const QString wanted = From_Utf8(text);
  if (!Has_Only_Number_Signs(wanted)) return false;
  bool ok = false;
  value = Machine_Locale().toDouble(wanted, &ok);
  if (!ok) {
    QString plain = wanted;
    plain.replace(u'.', u'?').replace(Machine_Locale().decimalPoint(), QStringLiteral("."));
    value = plain.toDouble(&ok);
  }
  return ok && std::isfinite(value);
}

template <class Whole>
Whole Rounded(double value) {
  const double rounded = std::nearbyint(value);  // the default mode rounds half to even
  const bool fits = rounded >= static_cast<double>(std::numeric_limits<Whole>::min()) &&
                    rounded <= static_cast<double>(std::numeric_limits<Whole>::max());
  if (!fits) Fail(Failure::Overflow);
  return static_cast<Whole>(rounded);
}

// A number of the locale without its group signs, its digits and the place of its point apart.
struct Decimal {
  bool negative = false;
  std::string digits;
  int exponent = 0;  // the number is 0.digits times ten to this power
};

Decimal Taken_Apart(const QString& text) {
  const QString point = Machine_Locale().decimalPoint();
  Decimal number;
  bool point_seen = false;
  for (qsizetype at = 0; at < text.size(); ++at) {
    const QChar character = text[at];
    if (character.toLower() == u'e') {
      number.exponent += qBound(-far, text.mid(at + 1).toInt(), far);
      break;
    }
    if (character == u'-' || QString(character) == Machine_Locale().negativeSign()) {
      number.negative = true;
    } else if (QString(character) == point) {
      point_seen = true;
    } else if (Is_Digit(character)) {
      number.digits += static_cast<char>(character.unicode());
      number.exponent += point_seen ? 0 : 1;
    }
  }
  return number;
}

// The digits up to the fourth decimal as a whole number, rounded half to even by the rest.
std::int64_t Scaled(const Decimal& number) {
  if (number.digits.find_first_not_of('0') == std::string::npos) return 0;
  const int kept = number.exponent + currency_decimals;
  std::int64_t value = 0;
  for (int place = 0; place < kept; ++place) {
    const int digit =
        place < static_cast<int>(number.digits.size()) ? number.digits[place] - '0' : 0;
    if (__builtin_mul_overflow(value, 10, &value) || __builtin_add_overflow(value, digit, &value)) {
      Fail(Failure::Overflow);
    }
  }
  if (kept < 0 || kept >= static_cast<int>(number.digits.size())) return value;
  const std::string rest = number.digits.substr(static_cast<std::size_t>(kept));
  const bool half = rest[0] == '5' && rest.find_first_not_of('0', 1) == std::string::npos;
  const bool up = half ? value % 2 == 1 : rest[0] >= '5';
  if (__builtin_add_overflow(value, up ? 1 : 0, &value)) Fail(Failure::Overflow);
  return value;
}

template <class Number>
Text Shortest(Number value) {
  std::array<char, 400> buffer{};
  const double size = std::abs(static_cast<double>(value));
  const bool plain = size == 0 || (size >= 1e-7 && size < 1e15);
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                 plain ? std::chars_format::fixed : std::chars_format::scientific)
                       .ptr;
  Text text(buffer.data(), end);
  if (text == "-0") text = "0";
  if (const auto point = text.find('.'); point != Text::npos) {
    text.replace(point, 1, Machine_Locale().decimalPoint().toStdString());
  }
  return text;
}

}  // namespace

double Val(std::string_view text) {
  Text number;
  for (const char character : text) {
    if (character != ' ' && character != '\t' && character != '\n') number += character;
  }
  const char* first = number.data();
  const char* last = first + number.size();
  if (first != last && *first == '+') ++first;
  if (first != last && (*first == 'i' || *first == 'n' || *first == 'I' || *first == 'N')) return 0;
  double value = 0;
  std::from_chars(first, last, value);
  return std::isfinite(value) ? value : 0;
}

bool Is_Numeric(std::string_view text) {
  double value = 0;
  return Read_Number(text, value);
}

double To_Double(std::string_view text) {
  double value = 0;
  if (!Read_Number(text, value)) Fail(Failure::Type_Mismatch);
  return value;
}

Integer To_Integer(double value) { return Rounded<Integer>(value); }
Integer To_Integer(std::string_view text) { return To_Integer(To_Double(text)); }
Long To_Long(double value) { return Rounded<Long>(value); }
Long To_Long(std::string_view text) { return To_Long(To_Double(text)); }

Single To_Single(double value) {
  const auto single = static_cast<Single>(value);
  if (!std::isfinite(single)) Fail(Failure::Overflow);
  return single;
}
Single To_Single(std::string_view text) { return To_Single(To_Double(text)); }

Currency To_Currency(double value) {
  const double scaled = std::nearbyint(value * 10000);
  constexpr double bound = 9223372036854775807.0;
  if (!(scaled > -bound && scaled < bound)) Fail(Failure::Overflow);
  return {static_cast<std::int64_t>(scaled)};
}

Currency To_Currency(std::string_view text) {
  if (!Is_Numeric(text)) Fail(Failure::Type_Mismatch);
  const Decimal number = Taken_Apart(From_Utf8(text));
  const std::int64_t size = Scaled(number);
  return {number.negative ? -size : size};
}

Text To_Text(std::int64_t value) { return std::to_string(value); }
Text To_Text(double value) { return Shortest(value); }
Text To_Text(Single value) { return Shortest(value); }

Text To_Text(Currency value) {
  const bool negative = value.ten_thousandths < 0;
  const auto size = negative ? 0 - static_cast<std::uint64_t>(value.ten_thousandths)
                             : static_cast<std::uint64_t>(value.ten_thousandths);
  Text text = (negative ? "-" : "") + std::to_string(size / 10000);
  if (size % 10000 == 0) return text;
  Text decimals = std::to_string(10000 + size % 10000).substr(1);
  decimals.erase(decimals.find_last_not_of('0') + 1);
  return text + Machine_Locale().decimalPoint().toStdString() + decimals;
}

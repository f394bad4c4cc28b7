// From text to values and back, by the rules of the machine's locale, and the small text functions.
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/run_time/Values.h"

// ---- numbers ----

/// The number at the beginning of `text`: blanks are skipped, the decimal sign is always the point,
/// reading stops at the first character that cannot belong to a number; 0 where there is none.
double Val(std::string_view text);

/// Whether the whole of `text`, blanks around it apart, is a number as the locale writes it: an
/// optional sign, digits with the locale's group and decimal signs, an optional exponent.
/// "NaN" and "Infinity" are no numbers; neither is an empty text.
bool Is_Numeric(std::string_view text);

/// The number that Is_Numeric accepts, read in full. 13 where it does not accept the text; a
/// value beyond a double is not accepted.
double To_Double(std::string_view text);

/// Round half to even and test the range: 6 beyond it. From text: 13 where it is no number.
Integer To_Integer(double value);
Integer To_Integer(std::string_view text);
Long To_Long(double value);
Long To_Long(std::string_view text);
Single To_Single(double value);
Single To_Single(std::string_view text);
Currency To_Currency(double value);
Currency To_Currency(std::string_view text);  ///< exact: never by way of a floating number

/// A number as text: the locale's decimal sign, no group signs, no trailing zeros, "-" before a
/// negative number, and as many digits as read back as the same value.
Text To_Text(std::int64_t value);
Text To_Text(double value);
Text To_Text(Single value);
Text To_Text(Currency value);
inline Text To_Text(int value) { return To_Text(static_cast<std::int64_t>(value)); }
inline Text To_Text(Integer value) { return To_Text(static_cast<std::int64_t>(value)); }

// ---- dates ----

/// Whether `text` is a date as the locale writes it, with or without a time of day; ISO 8601
/// (year-month-day) is understood in every locale. Years of two digits are 1930 to 2029.
bool Is_Date(std::string_view text);

/// The moment that Is_Date accepts. 13 where it does not accept the text.
Date To_Date(std::string_view text);

/// Day, month and year in the order of the locale, the year with four digits, and the time of day
/// to the second ("22.11.2026 21:40:02"). Reads back by To_Date as exactly the same moment in every
/// locale.
Text To_Text(Date moment);

/// The day as "mm-dd-yyyy", whatever the locale.
Text Format_Date(Date moment);

/// The machine's present moment of the civil calendar, to the second.
Date Now();

/// For tests: from now on Now() is `moment`; with nullptr it is the machine's time again.
void Set_Clock_For_Tests(const Date* moment);

/// Takes over the locale of the environment (LC_ALL, LC_NUMERIC, LC_TIME), which is also what holds
/// from the start of the process. For tests: the name of a locale, such as "de_DE".
void Set_Locale(std::string_view name);

// ---- texts; positions and lengths count characters (Unicode code points), from 1 ----

Text Trim(std::string_view text);              ///< without the blanks at both ends
Long Len(std::string_view text);               ///< number of characters
Text Left(std::string_view text, Long count);  ///< 5 where count is negative
/// `count` characters from position `start`; the rest of the text where fewer follow. 5 where start
/// is below 1 or count negative.
Text Mid(std::string_view text, Long start, Long count);
Text Mid(std::string_view text, Long start);
/// The position of the first `wanted` in `text` at or after `start`; 0 where there is none.
Long In_Str(Long start, std::string_view text, std::string_view wanted);
Text Upper_Case(std::string_view text);

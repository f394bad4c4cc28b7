// The value types that the record store keeps and the screens compute with.
#pragma once

#include <compare>
#include <cstdint>
#include <string>

/// All text of the program is UTF-8.
using Text = std::string;

/// Signed 16-bit, signed 32-bit and 32-bit floating numbers, by the names the tables use.
using Integer = std::int16_t;
using Long = std::int32_t;
using Single = float;

/// An amount of money: a fixed-point number with four decimals, exact within
/// +-922337203685477.5807.
struct Currency {
  std::int64_t ten_thousandths = 0;

  static constexpr Currency Of(std::int64_t whole) { return {whole * 10000}; }
  auto operator<=>(const Currency&) const = default;
};

/// A moment of the civil calendar, to the second, without a time zone.
struct Date {
  std::int64_t seconds = 0;  ///< since 1 January 1970, 00:00:00, of the same civil calendar

  /// The moment of the given calendar day and time of day. The parts are not checked.
  static Date Of(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);
  int Year() const;

  struct Parts {
    int year, month, day, hour, minute, second;
  };
  Parts Split() const;

  // The checker takes the 0 that a comparison is rewritten with for a pointer.
  auto operator<=>(const Date&) const = default;  // NOLINT(modernize-use-nullptr)
};

/// Stands for a date that was not given.
inline constexpr Date No_Date{-720403200};  // 5 March 1947

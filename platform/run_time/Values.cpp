#include "platform/run_time/Values.h"

#include <chrono>

namespace {

std::chrono::sys_days Day_Of(Date moment) {
  return std::chrono::floor<std::chrono::days>(
      std::chrono::sys_seconds{std::chrono::seconds{moment.seconds}});
}

}  // namespace

Date Date::Of(int year, int month, int day, int hour, int minute, int second) {
  const std::chrono::sys_days days = std::chrono::year_month_day{
      std::chrono::year{year}, std::chrono::month{static_cast<unsigned>(month)},
      std::chrono::day{static_cast<unsigned>(day)}};
  const std::int64_t time = hour * 3600 + minute * 60 + second;
  return {std::chrono::sys_seconds{days}.time_since_epoch().count() + time};
}

Date::Parts Date::Split() const {
  const std::chrono::sys_days days = Day_Of(*this);
  const std::chrono::year_month_day day{days};
  const auto time =
      static_cast<int>(seconds - std::chrono::sys_seconds{days}.time_since_epoch().count());
  return {static_cast<int>(day.year()),
          static_cast<int>(static_cast<unsigned>(day.month())),
          static_cast<int>(static_cast<unsigned>(day.day())),
          time / 3600,
          time / 60 % 60,
          time % 60};
}

int Date::Year() const { return Split().year; }

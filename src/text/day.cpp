#include "text/day.h"

#include <fmt/format.h>

#include <algorithm>
#include <ctime>

namespace tarvane {

std::string ShortDate(Day day) {
  return fmt::format("{:02}/{:02}/{:02}", DayOfMonth(day), MonthOf(day), YearOf(day) % 100);
}

std::string LongDate(Day day) {
  return fmt::format("{:02}/{:02}/{:04}", DayOfMonth(day), MonthOf(day), YearOf(day));
}

std::string IsoDate(Day day) {
  return fmt::format("{:04}-{:02}-{:02}", YearOf(day), MonthOf(day), DayOfMonth(day));
}

std::optional<Day> ParseIsoDate(std::string_view text) {
  constexpr std::string_view kShape = "0000-00-00";
  const auto fits = [](char c, char shape) { return shape == '0' ? c >= '0' && c <= '9' : c == shape; };
  if (!std::ranges::equal(text, kShape, fits)) return std::nullopt;
  const auto part = [text](std::size_t at, std::size_t size) {
    int number = 0;
    for (const char digit : text.substr(at, size)) number = number * 10 + (digit - '0');
    return number;
  };
  const Day day = MakeDay(part(0, 4), part(5, 2), part(8, 2));
  return day.ok() ? std::optional(day) : std::nullopt;
}

DateTime LocalNow() {
  const std::time_t seconds = std::time(nullptr);
  std::tm local{};
  localtime_r(&seconds, &local);
  return {MakeDay(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday), local.tm_hour, local.tm_min,
          local.tm_sec};
}

}  // namespace tarvane

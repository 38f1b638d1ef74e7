#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

// Days and times as the shop's calendar and clock show them.
namespace tarvane {

using Day = std::chrono::year_month_day;

constexpr Day MakeDay(int year, int month, int day) {
  return Day{std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
             std::chrono::day(static_cast<unsigned>(day))};
}
constexpr int YearOf(Day day) { return static_cast<int>(day.year()); }
constexpr int MonthOf(Day day) { return static_cast<int>(static_cast<unsigned>(day.month())); }
constexpr int DayOfMonth(Day day) { return static_cast<int>(static_cast<unsigned>(day.day())); }

// Local time.
struct DateTime {
  Day day = MakeDay(2000, 1, 1);
  int hour = 0;
  int minute = 0;
  int second = 0;
};

// "dd/mm/yy", "dd/mm/yyyy", "yyyy-mm-dd".
std::string ShortDate(Day day);
std::string LongDate(Day day);
std::string IsoDate(Day day);

// The day that a "yyyy-mm-dd" names; nothing for another shape or a day that no calendar has.
std::optional<Day> ParseIsoDate(std::string_view text);

// What the machine's clock shows now.
DateTime LocalNow();

}  // namespace tarvane

#include "diary/calendar.h"

#include <array>
#include <chrono>

#include "base/number_text.h"
#include "users/history_file.h"

namespace velnor {
namespace {

constexpr int kMonths = 12;

constexpr std::array<std::string_view, kMonths> kMonthWords = {
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December"};
constexpr std::array<std::string_view, kWeekDays> kWeekdayWords = {"Mon", "Tue", "Wed", "Thu",
                                                                   "Fri", "Sat", "Sun"};

std::chrono::sys_days SysDays(DayNumber day) {
  return std::chrono::sys_days(std::chrono::days(day));
}

std::string Padded(int number, std::size_t digits) {
  std::string text = std::to_string(number);
  if (text.size() < digits) text.insert(0, digits - text.size(), '0');
  return text;
}

}  // namespace

std::optional<DayNumber> DayOfIsoDate(std::string_view date) {
  if (!IsIsoDate(date)) return std::nullopt;
  return DayOfDate({.year = ParseInteger(date.substr(0, 4)),
                    .month = ParseInteger(date.substr(5, 2)),
                    .day = ParseInteger(date.substr(8, 2))});
}

CalendarDate DateOfDay(DayNumber day) {
  const std::chrono::year_month_day date(SysDays(day));
  return {.year = static_cast<int>(date.year()),
          .month = static_cast<int>(static_cast<unsigned>(date.month())),
          .day = static_cast<int>(static_cast<unsigned>(date.day()))};
}

DayNumber DayOfDate(const CalendarDate& date) {
  const std::chrono::sys_days first = std::chrono::year(date.year) /
                                      std::chrono::month(static_cast<unsigned>(date.month)) /
                                      std::chrono::day(1);
  return static_cast<DayNumber>(first.time_since_epoch().count()) + date.day - 1;
}

int MonthOfDay(DayNumber day) {
  const CalendarDate date = DateOfDay(day);
  return date.year * kMonths + date.month - 1;
}

DayNumber FirstDayOfMonth(int month) {
  return DayOfDate({.year = month / kMonths, .month = month % kMonths + 1, .day = 1});
}

// 1 January 1970 was a Thursday.
int WeekdayOfDay(DayNumber day) { return ((day + 3) % kWeekDays + kWeekDays) % kWeekDays; }

std::string IsoDateOfDay(DayNumber day) {
  const CalendarDate date = DateOfDay(day);
  return Padded(date.year, 4) + '-' + Padded(date.month, 2) + '-' + Padded(date.day, 2);
}

std::string_view WeekdayWord(int weekday) {
  return kWeekdayWords[static_cast<std::size_t>(weekday)];
}

std::string_view MonthWord(int month) { return kMonthWords[static_cast<std::size_t>(month) - 1]; }

std::string_view ShortMonthWord(int month) { return MonthWord(month).substr(0, 3); }

std::string DayWords(DayNumber day) {
  const CalendarDate date = DateOfDay(day);
  return std::to_string(date.day) + ' ' + std::string(MonthWord(date.month)) + ' ' +
         std::to_string(date.year);
}

std::string ShortDayWords(DayNumber day) {
  const CalendarDate date = DateOfDay(day);
  return std::to_string(date.day) + ' ' + std::string(ShortMonthWord(date.month));
}

std::string MonthWords(int month_since_year_zero) {
  return std::string(MonthWord(month_since_year_zero % kMonths + 1)) + ' ' +
         std::to_string(month_since_year_zero / kMonths);
}

}  // namespace velnor

// Days of the calendar as numbers that can be counted with, and as the words the diary's page has
// for them.

#ifndef VELNOR_DIARY_CALENDAR_H_
#define VELNOR_DIARY_CALENDAR_H_

#include <optional>
#include <string>
#include <string_view>

namespace velnor {

// Days since 1 January 1970, those before it below zero. The words are for years 1 to 9999.
using DayNumber = int;

inline constexpr int kWeekDays = 7;

// The day of a date as "2026-03-05"; nothing when it is none.
std::optional<DayNumber> DayOfIsoDate(std::string_view date);

struct CalendarDate {
  int year = 1970;
  int month = 1;  // 1 to 12
  int day = 1;    // 1 to 31
  bool operator==(const CalendarDate&) const = default;
};

CalendarDate DateOfDay(DayNumber day);
// A day beyond the end of its month gives one of the next month.
DayNumber DayOfDate(const CalendarDate& date);

// Months since January of year 0, and the first day of such a month.
int MonthOfDay(DayNumber day);
DayNumber FirstDayOfMonth(int month);

// 0 for Monday to 6 for Sunday.
int WeekdayOfDay(DayNumber day);

std::string IsoDateOfDay(DayNumber day);            // "2026-03-05"
std::string_view WeekdayWord(int weekday);          // "Thu"
std::string_view MonthWord(int month);              // "March", of 1 to 12
std::string_view ShortMonthWord(int month);         // "Mar"
std::string DayWords(DayNumber day);                // "5 March 2026"
std::string ShortDayWords(DayNumber day);           // "5 Mar"
std::string MonthWords(int month_since_year_zero);  // "March 2026"

}  // namespace velnor

#endif  // VELNOR_DIARY_CALENDAR_H_

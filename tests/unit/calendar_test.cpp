#include "diary/calendar.h"

#include <gtest/gtest.h>

namespace velnor {
namespace {

DayNumber Day(std::string_view date) { return DayOfIsoDate(date).value(); }

TEST(CalendarTest, CountsDaysFrom1970) {
  EXPECT_EQ(Day("1970-01-01"), 0);
  EXPECT_EQ(Day("1969-12-31"), -1);
  EXPECT_EQ(Day("2024-03-01") - Day("2024-02-28"), 2);
  EXPECT_EQ(Day("2026-11-16"), 20773);  // as `date -d 2026-11-16 +%s` by 86400
  EXPECT_EQ(DayOfIsoDate("2026-02-29"), std::nullopt);
}

TEST(CalendarTest, DatesComeBack) {
  for (const char* const date : {"0001-01-01", "1970-01-01", "2024-02-29", "9999-12-31"}) {
    EXPECT_EQ(IsoDateOfDay(Day(date)), date);
  }
  EXPECT_EQ(DateOfDay(Day("2026-11-16")), (CalendarDate{.year = 2026, .month = 11, .day = 16}));
}

TEST(CalendarTest, ADayBeyondItsMonthIsOneOfTheNext) {
  EXPECT_EQ(DayOfDate({.year = 2026, .month = 2, .day = 30}), Day("2026-03-02"));
}

TEST(CalendarTest, WeeksBeginOnMonday) {
  EXPECT_EQ(WeekdayOfDay(Day("2026-11-16")), 0);
  EXPECT_EQ(WeekdayOfDay(Day("2026-11-22")), 6);
  EXPECT_EQ(WeekdayOfDay(Day("1969-12-29")), 0);
  EXPECT_EQ(WeekdayWord(0), "Mon");
  EXPECT_EQ(WeekdayWord(6), "Sun");
}

TEST(CalendarTest, MonthsGoFromJanuaryToDecember) {
  const int month = MonthOfDay(Day("2026-12-31"));
  EXPECT_EQ(MonthWords(month), "December 2026");
  EXPECT_EQ(MonthWords(month + 1), "January 2027");
  EXPECT_EQ(FirstDayOfMonth(month + 1), Day("2027-01-01"));
}

TEST(CalendarTest, DaysHaveWords) {
  EXPECT_EQ(DayWords(Day("2026-09-05")), "5 September 2026");
  EXPECT_EQ(ShortDayWords(Day("2026-09-05")), "5 Sep");
}

}  // namespace
}  // namespace velnor

#include "food/eating_habits.h"

#include <gtest/gtest.h>
#include <string>

namespace velnor {
namespace {

HistoryEntry Eaten(const std::string& name, const std::string& date, const std::string& time,
                   double weight = 100) {
  return {.date = date, .time = time, .name = name, .amount = weight, .unit = "g"};
}

TEST(EatingHabitsTest, CountsAFoodHalfAsMuchWithEveryThirtyDays) {
  EatingHabits habits;
  habits.Note(Eaten("apples", "2026-01-01", "08:00:00"));
  habits.Note(Eaten("apples", "2026-01-31", "08:00:00"));
  const Habit* const apples = habits.Find("apples");
  ASSERT_NE(apples, nullptr);
  EXPECT_DOUBLE_EQ(apples->LikingOn(DayNumber("2026-01-31")), 1.5);
  EXPECT_DOUBLE_EQ(apples->LikingOn(DayNumber("2026-03-02")), 0.75);
  EXPECT_DOUBLE_EQ(apples->LikingOn(DayNumber("2025-01-01")), 1.5);  // a clock set back
  EXPECT_EQ(habits.Find("Apples"), nullptr);
}

TEST(EatingHabitsTest, ReadsFoodsOfAHistoryAndNothingElse) {
  std::string history = std::string(kHistoryHeader) + '\n';
  history += HistoryLine(Eaten("rye bread", "2026-11-20", "07:30:00", 70.5));
  history += HistoryLine({.date = "2026-11-20",
                          .time = "08:00:00",
                          .kind = HistoryKind::kBurned,
                          .name = "cycling",
                          .amount = 30});
  history += HistoryLine({.date = "2026-11-20",
                          .time = "08:00:00",
                          .kind = HistoryKind::kRemoved,
                          .name = "rye bread",
                          .amount = 50});
  history += "spoiled\n" + HistoryLine(Eaten("milk", "2026-11-20", "07:31:00", 250));
  const EatingHabits habits(history);
  EXPECT_EQ(habits.Find("cycling"), nullptr);
  ASSERT_NE(habits.Find("rye bread"), nullptr);
  EXPECT_EQ(habits.Find("rye bread")->last_weight, "70.5");
  EXPECT_EQ(habits.Find("rye bread")->TimesAround(7), 1);
  ASSERT_NE(habits.Find("milk"), nullptr);
  EXPECT_EQ(habits.Find("milk")->last_weight, "250");
}

TEST(EatingHabitsTest, TheLastWeightIsTheLastThatIsKnown) {
  EatingHabits habits;
  habits.Note(Eaten("milk", "2026-11-20", "07:31:00", 250));
  habits.Note(Eaten("milk", "2026-11-21", "07:31:00", 200));
  HistoryEntry unknown = Eaten("milk", "2026-11-22", "07:31:00");
  unknown.amount.reset();
  habits.Note(unknown);
  EXPECT_EQ(habits.Find("milk")->last_weight, "200");
}

TEST(EatingHabitsTest, CountsByTheHourAroundMidnightToo) {
  EatingHabits habits;
  habits.Note(Eaten("milk", "2026-11-20", "23:59:59"));
  habits.Note(Eaten("milk", "2026-11-21", "00:10:00"));
  habits.Note(Eaten("milk", "2026-11-21", ""));
  const Habit& milk = *habits.Find("milk");
  EXPECT_EQ(milk.TimesAround(23), 2);
  EXPECT_EQ(milk.TimesAround(22), 1);
  EXPECT_EQ(milk.TimesAround(1), 1);
  EXPECT_EQ(milk.TimesAround(12), 0);
  EXPECT_EQ(milk.TimesAround(-1), 0);
  EXPECT_EQ(milk.TimesAround(24), 0);
}

TEST(EatingHabitsTest, ReadsDatesAndTimes) {
  EXPECT_EQ(DayNumber("1970-01-02"), 1);
  EXPECT_EQ(DayNumber("2024-03-01") - DayNumber("2024-02-28"), 2);
  EXPECT_EQ(DayNumber("2023-02-29"), -1);
  EXPECT_EQ(DayNumber("1969-12-01"), -1);
  EXPECT_EQ(HourOf("09:30:00"), 9);
  EXPECT_EQ(HourOf("24:00:00"), -1);
  EXPECT_EQ(HourOf("0930"), -1);
  EXPECT_EQ(HourOf(""), -1);
}

}  // namespace
}  // namespace velnor

#include "users/history.h"

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

#include "activity/burned_calories.h"
#include "food/day_balance.h"
#include "tests/support/temporary_folder.h"

namespace velnor {
namespace {

class NoonClock final : public Clock {
 public:
  Moment Now() const override { return {"2026-03-05", "12:00:01"}; }
};

class HistoryTest : public testing::Test {
 protected:
  HistoryTest() { std::filesystem::create_directory(folder_.path() + "Ann"); }

  std::string Read(const std::string& name) const { return folder_.Read("Ann/" + name); }
  void Write(const std::string& name, std::string_view bytes) const {
    folder_.Write("Ann/" + name, bytes);
  }
  // The lines of the history behind its header.
  std::vector<std::string> Lines() const {
    std::vector<std::string> lines;
    const std::string bytes = Read("dziennik.csv");
    std::size_t start = 0;
    while (start < bytes.size()) {
      const std::size_t end = bytes.find("\r\n", start);
      lines.push_back(bytes.substr(start, end - start));
      start = end + 2;
    }
    EXPECT_EQ(lines.front(), kHistoryHeader);
    lines.erase(lines.begin());
    return lines;
  }
  DayTotals Sums() const {
    DayTotals sums;
    const std::string bytes = Read("dziennik.csv");
    HistoryReader reader(bytes);
    while (const std::optional<HistoryEntry> entry = reader.Next()) {
      if (!CountsInDay(entry->kind)) continue;
      sums.kcal += *entry->kcal;
      sums.protein += *entry->protein;
      sums.fat += *entry->fat;
      sums.carbohydrate += *entry->carbohydrate;
    }
    return sums;
  }

  TemporaryFolder folder_;
  NoonClock clock_;
  SessionState session_{.user = UserFolder::In(folder_.path(), "Ann"),
                        .base_folder = folder_.path(),
                        .date_text = "5.3.2026",
                        .clock = &clock_};
  DayBalance day_{session_};
};

TEST_F(HistoryTest, EveryChangeOfTheDayIsALine) {
  ASSERT_TRUE(day_.Add({70, 1.75, 1, 13.5}, {}, {"frozen strawberries", 250}));
  ASSERT_TRUE(day_.TakeOff({70, 1.75, 1, 13.5}, {}, {"frozen strawberries", 250}));
  ASSERT_TRUE(day_.Add({100, 1, 2, 3}, {}, {"a;b", 100}));
  ASSERT_TRUE(day_.ClearList({40, 0.5, 1, 1}, {}));
  ASSERT_TRUE(day_.Clear());
  EXPECT_EQ(Lines(), (std::vector<std::string>{
                         "2026-03-05;12:00:01;food;frozen strawberries;250;g;70;1.75;1;13.5",
                         "2026-03-05;12:00:01;removed;frozen strawberries;250;g;-70;-1.75;-1;-13.5",
                         "2026-03-05;12:00:01;food;\"a;b\";100;g;100;1;2;3",
                         "2026-03-05;12:00:01;list cleared;;;;-40;-0.5;-1;-1",
                         "2026-03-05;12:00:01;day cleared;;;;-60;-0.5;-1;-2"}));
}

// What is taken off below nothing is not taken off: the line says what the day's totals changed by.
TEST_F(HistoryTest, TellsWhatTheTotalsChangedBy) {
  ASSERT_TRUE(day_.Add({50, 1, 1, 1}, {}, {"milk", 100}));
  ASSERT_TRUE(day_.TakeOff({80, 1, 1, 1}, {}, {"milk", 160}));
  EXPECT_EQ(Lines().back(), "2026-03-05;12:00:01;removed;milk;160;g;-50;-1;-1;-1");
}

TEST_F(HistoryTest, TheSumsOfADateAreItsTotals) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> amount(0.01, 2000);
  for (int i = 0; i < 200; ++i) {
    const DayTotals food = {amount(random), amount(random), amount(random), amount(random)};
    const int what = static_cast<int>(random() % 20);
    if (what < 11) {
      ASSERT_TRUE(day_.Add(food, {}, {"food", 100}));
    } else if (what < 18) {
      ASSERT_TRUE(day_.TakeOff(food, {}, {"food", 100}));
    } else if (what == 18) {
      ASSERT_TRUE(day_.ClearList(food, {}));
    } else {
      ASSERT_TRUE(day_.Clear());
    }
    const std::optional<DayTotals> totals = day_.ReadTotals();
    ASSERT_TRUE(totals);
    const DayTotals sums = Sums();
    ASSERT_NEAR(sums.kcal, totals->kcal, 0.01) << i;
    ASSERT_NEAR(sums.protein, totals->protein, 0.01) << i;
    ASSERT_NEAR(sums.fat, totals->fat, 0.01) << i;
    ASSERT_NEAR(sums.carbohydrate, totals->carbohydrate, 0.01) << i;
  }
}

TEST_F(HistoryTest, ADayThatCannotBeToldOfIsNotChanged) {
  ASSERT_TRUE(day_.Add({50, 1, 1, 1}, {}, {"milk", 100}));
  const std::string before = Read("bilans.ASC");
  std::filesystem::permissions(folder_.path() + "Ann/dziennik.csv", std::filesystem::perms{0444});
  EXPECT_FALSE(day_.Add({50, 1, 1, 1}, {}, {"milk", 100}));
  EXPECT_FALSE(day_.Clear());
  EXPECT_EQ(Read("bilans.ASC"), before);
}

TEST_F(HistoryTest, BurnedCaloriesAreLinesOfTheirOwn) {
  BurnedTotal total(session_);
  total.Add("300.", "running", "30");
  total.Add("50.", "", "");
  total.Clear();
  EXPECT_EQ(Lines(), (std::vector<std::string>{"2026-03-05;12:00:01;burned;running;30;min;300;;;",
                                               "2026-03-05;12:00:01;burned;;0;min;50;;;",
                                               "2026-03-05;12:00:01;burned cleared;;;;-350;;;"}));
}

TEST_F(HistoryTest, ALastLineWithoutAnEndIsKept) {
  Write("dziennik.csv", "something of yours");
  ASSERT_TRUE(day_.Add({50, 1, 1, 1}, {}, {"milk", 100}));
  EXPECT_EQ(Read("dziennik.csv"),
            "something of yours\r\n2026-03-05;12:00:01;food;milk;100;g;50;1;1;1\r\n");
}

TEST_F(HistoryTest, WhatWasBeforeComesFromTheSeries) {
  Write("wykoda.txt",
        "3.3.2026;2000.;70.;60.;250.;\r\n4.3.2026;1500.5;50.;40.;200.;\r\nnonsense\r\n");
  Write("wykwag.txt", "4.3.2026;70.5;24.4;\r\n");
  BeginHistory(session_, *session_.user);
  EXPECT_EQ(Lines(), (std::vector<std::string>{"2026-03-03;;imported;;;;2000;70;60;250",
                                               "2026-03-04;;imported;;;;1500.5;50;40;200",
                                               "2026-03-04;;weight;;70.5;kg;;;;"}));
}

TEST_F(HistoryTest, IsBegunOnceOnly) {
  Write("wykoda.txt", "3.3.2026;2000.;70.;60.;250.;\r\n");
  Write("dziennik.csv", "");
  BeginHistory(session_, *session_.user);
  EXPECT_EQ(Read("dziennik.csv"), "");
  std::filesystem::remove_all(folder_.path() + "Ann");
  BeginHistory(session_, *session_.user);
  EXPECT_FALSE(std::filesystem::exists(folder_.path() + "Ann"));
}

TEST_F(HistoryTest, ADayOfTheSeriesIsImportedOnceWithItsLastTotals) {
  Write("wykoda.txt",
        "3.3.2026;2000.;70.;60.;250.;\r\n4.3.2026;1.;2.;3.;4.;\r\n"
        "3.3.2026;500.;5.;6.;7.;\r\n");
  BeginHistory(session_, *session_.user);
  EXPECT_EQ(Lines(), (std::vector<std::string>{"2026-03-03;;imported;;;;500;5;6;7",
                                               "2026-03-04;;imported;;;;1;2;3;4"}));
}

// As when it could not be begun at the login, or was removed since.
TEST_F(HistoryTest, AMissingHistoryIsBegunByTheNextDeed) {
  Write("wykoda.txt", "4.3.2026;1500.5;50.;40.;200.;\r\n");
  ASSERT_TRUE(day_.Add({50, 1, 1, 1}, {}, {"milk", 100}));
  EXPECT_EQ(Lines(), (std::vector<std::string>{"2026-03-04;;imported;;;;1500.5;50;40;200",
                                               "2026-03-05;12:00:01;food;milk;100;g;50;1;1;1"}));
}

TEST_F(HistoryTest, WhatCannotBeImportedLeavesTheDeedUndone) {
  std::filesystem::create_directory(folder_.path() + "Ann/wykwag.txt");  // can be read as no file
  EXPECT_FALSE(day_.Add({50, 1, 1, 1}, {}, {"milk", 100}));
  EXPECT_FALSE(std::filesystem::exists(folder_.path() + "Ann/dziennik.csv"));
  EXPECT_FALSE(std::filesystem::exists(folder_.path() + "Ann/bilans.ASC"));
}

// The day begins with nothing then, and the history must not tell of more.
TEST_F(HistoryTest, AClockSetBackTakesBackWhatWasToldOfTheDay) {
  ASSERT_TRUE(day_.Add({50, 1, 2, 3}, {}, {"milk", 100}));
  session_.date_text = "6.3.2026";
  ASSERT_TRUE(day_.Add({70, 1, 1, 1}, {}, {"plums", 100}));
  session_.date_text = "5.3.2026";
  ASSERT_TRUE(day_.StartDayIfNew());
  EXPECT_EQ(Lines().back(), "2026-03-05;12:00:01;day cleared;;;;-50;-1;-2;-3");
  const std::size_t told = Lines().size();
  session_.date_text = "6.3.2026";
  ASSERT_TRUE(day_.Clear());
  EXPECT_EQ(Lines().size(), told + 2);  // what began the day, and what was pressed
  session_.date_text = "5.3.2026";
  ASSERT_TRUE(day_.StartDayIfNew());
  EXPECT_EQ(Lines().size(), told + 2);  // there is nothing more to take back
}

TEST_F(HistoryTest, ADayIsNotBegunOverAHistoryThatCannotBeRead) {
  std::filesystem::create_directory(folder_.path() + "Ann/dziennik.csv");
  Write("bilans.ASC", "4.3.2026\r\n50.\r\n1.\r\n1.\r\n1.");
  EXPECT_FALSE(day_.StartDayIfNew());
  EXPECT_EQ(Read("bilans.ASC"), "4.3.2026\r\n50.\r\n1.\r\n1.\r\n1.");
}

// Whatever stands there: no byte of it is written again.
TEST_F(HistoryTest, OnlyEverGrows) {
  std::string before = "anything;\"\r\r\n\n\n2026-03-05;x;food\n\x81\x1A;\"unclosed";
  before += '\0';
  Write("dziennik.csv", before);
  BurnedTotal burned(session_);
  const std::function<void()> deeds[] = {
      [&] {
        EXPECT_TRUE(day_.Add({50, 1, 1, 1}, {}, {"a\r\nb;\"c", 100}));
      },
      [&] {
        EXPECT_TRUE(day_.TakeOff({50, 1, 1, 1}, {}, {"milk", 100}));
      },
      [&] {
        EXPECT_TRUE(day_.ClearList({1, 1, 1, 1}, {}));
      },
      [&] { EXPECT_TRUE(day_.Clear()); },
      [&] { burned.Add("50.", "swimming", "5"); },
      [&] { burned.Clear(); },
  };
  for (const auto& deed : deeds) {
    deed();
    const std::string after = Read("dziennik.csv");
    EXPECT_TRUE(after.starts_with(before));
    EXPECT_GT(after.size(), before.size());
    before = after;
  }
  session_.date_text = "6.3.2026";
  BeginHistory(session_, *session_.user);
  EXPECT_EQ(Read("dziennik.csv"), before);
  ASSERT_TRUE(day_.StartDayIfNew());
  EXPECT_EQ(Read("dziennik.csv"), before);
}

}  // namespace
}  // namespace velnor

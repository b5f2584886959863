#include "users/history_file.h"

#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <iterator>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace velnor {
namespace {

HistoryEntry Food(std::string name, double weight, double kcal) {
  return {.date = "2026-11-21",
          .time = "13:05:09",
          .kind = HistoryKind::kFood,
          .name = std::move(name),
          .amount = weight,
          .unit = "g",
          .kcal = kcal,
          .protein = 1.75,
          .fat = 1,
          .carbohydrate = 13.5};
}

std::vector<HistoryEntry> ReadAll(std::string_view bytes) {
  HistoryReader reader(bytes);
  std::vector<HistoryEntry> entries;
  while (std::optional<HistoryEntry> entry = reader.Next()) entries.push_back(*entry);
  return entries;
}

TEST(HistoryLineTest, HasTenFieldsAndPlainFigures) {
  EXPECT_EQ(HistoryLine(Food("frozen strawberries", 250, 70)),
            "2026-11-21;13:05:09;food;frozen strawberries;250;g;70;1.75;1;13.5\n");
}

TEST(HistoryLineTest, AMissingFigureIsAnEmptyField) {
  EXPECT_EQ(HistoryLine({.date = "2026-11-21",
                         .time = "07:00:00",
                         .kind = HistoryKind::kWeight,
                         .amount = 70.5,
                         .unit = "kg"}),
            "2026-11-21;07:00:00;weight;;70.5;kg;;;;\n");
}

TEST(HistoryLineTest, NamesWithSignsOfTheTableStandInQuotes) {
  EXPECT_EQ(HistoryLine(Food("a;b", 1, 2)), "2026-11-21;13:05:09;food;\"a;b\";1;g;2;1.75;1;13.5\n");
  EXPECT_EQ(HistoryLine(Food("5\" roll", 1, 2)),
            "2026-11-21;13:05:09;food;\"5\"\" roll\";1;g;2;1.75;1;13.5\n");
}

TEST(HistoryLineTest, FiguresHaveAtMostEightDigitsAndNoPointAtTheEnd) {
  EXPECT_NE(HistoryLine(Food("x", 1, 1234567.891)).find(";1234567.9;"), std::string::npos);
  EXPECT_NE(HistoryLine(Food("x", 1, 1e30)).find(";1e+30;"), std::string::npos);
  EXPECT_NE(HistoryLine(Food("x", 1, -50)).find(";-50;"), std::string::npos);
  EXPECT_NE(HistoryLine(Food("x", 1, -0.0)).find(";0;1.75"), std::string::npos);
  EXPECT_NE(HistoryLine(Food("x", 1, std::nan(""))).find(";0;1.75"), std::string::npos);
}

TEST(HistoryReaderTest, GivesBackWhatWasWritten) {
  const std::vector<HistoryEntry> entries = {Food("frozen strawberries", 250, 70),
                                             Food("\"a\";b\r\nc", 1, -2),
                                             Food("\"", 1, 1e-5),
                                             Food("\"\"x", 1, 1e30),
                                             {.date = "2026-11-20",
                                              .kind = HistoryKind::kImported,
                                              .kcal = 1,
                                              .protein = 2,
                                              .fat = 3,
                                              .carbohydrate = 4},
                                             {.date = "2026-11-21",
                                              .time = "13:05:09",
                                              .kind = HistoryKind::kBurned,
                                              .name = "running",
                                              .amount = 30,
                                              .unit = "min",
                                              .kcal = 300}};
  std::string bytes = std::string(kHistoryHeader) + "\r\n";
  for (const HistoryEntry& entry : entries) {
    std::string line = HistoryLine(entry);
    line.insert(line.size() - 1, "\r");
    bytes += line;
  }
  EXPECT_EQ(ReadAll(bytes), entries);
}

TEST(HistoryReaderTest, ReadsPastWhatIsNoEntryAndCountsIt) {
  const std::string good = HistoryLine(Food("plums", 100, 45));
  const std::string bad[] = {
      "nonsense",
      "2026-02-30;13:05:09;food;x;1;g;1;1;1;1",    // no such day
      "21.11.2026;13:05:09;food;x;1;g;1;1;1;1",    // another order
      "2026-11-21;13:05;food;x;1;g;1;1;1;1",       // no seconds
      "2026-11-21;13:05:09;drink;x;1;g;1;1;1;1",   // an unknown word
      "2026-11-21;13:05:09;food;x;1;g;1;1;1",      // nine fields
      "2026-11-21;13:05:09;food;x;1;g;1;1;1;1;1",  // eleven
      "2026-11-21;13:05:09;food;x;1;g;1 kcal;1;1;1",
      "2026-11-21;13:05:09;food;x;1;g;nan;1;1;1",
      "2026-11-21;13:05:09;food;x;1;g;1e999;1;1;1",
  };
  for (const std::string& line : bad) {
    std::string bytes = good;
    bytes.append(line).append("\n").append(good);
    HistoryReader reader(bytes);
    EXPECT_TRUE(reader.Next()) << line;
    EXPECT_TRUE(reader.Next()) << line;
    EXPECT_FALSE(reader.Next()) << line;
    EXPECT_EQ(reader.skipped(), 1U) << line;
  }
}

TEST(HistoryReaderTest, AQuoteThatNothingClosesIsALetter) {
  const std::string good = HistoryLine(Food("plums", 100, 45));
  const std::vector<HistoryEntry> entries =
      ReadAll("2026-11-21;13:05:09;food;\"x;1;g;1;1;1;1\n" + good);
  ASSERT_EQ(entries.size(), 2U);
  EXPECT_EQ(entries[0].name, "\"x");
  EXPECT_EQ(entries[1].name, "plums");
}

TEST(HistoryReaderTest, TheLastLineNeedsNoEnd) {
  std::string bytes = HistoryLine(Food("plums", 100, 45));
  bytes.pop_back();
  EXPECT_EQ(ReadAll(bytes).size(), 1U);
  EXPECT_TRUE(ReadAll("").empty());
  EXPECT_TRUE(ReadAll("\"").empty());
  EXPECT_TRUE(ReadAll("\r\n\r\n").empty());
}

TEST(HistoryReaderTest, ReadsEveryYearAndFigureThatThereIs) {
  for (const char* const date : {"0001-01-01", "1970-01-01", "9999-12-31"}) {
    for (const char* const figure : {"1e+30", "-1e+30", "1e-30", "0", "99999999"}) {
      const std::string line =
          std::string(date) + ";00:00:00;imported;;;;" + figure + ";;;" + figure + "\r\n";
      const std::vector<HistoryEntry> entries = ReadAll(line);
      ASSERT_EQ(entries.size(), 1U) << line;
      EXPECT_EQ(entries[0].date, date);
      EXPECT_EQ(entries[0].kcal, std::strtod(figure, nullptr));
      EXPECT_EQ(entries[0].protein, std::nullopt);
    }
  }
}

TEST(HistoryReaderTest, AMillionSpoiledLinesHideNoneOfTheOthers) {
  const std::string good = HistoryLine(Food("plums", 100, 45));
  const std::string spoiled[] = {"\"\n", ";;;;;;;;;\n", "\r\n", "2026-11-21\n"};
  const std::string open_quotes[] = {"2026-11-21;13:05:09;food;\"x;1;g\n",
                                     "2026-11-21;13:05:09;food;" + std::string(201, '"') + "\n"};
  constexpr std::size_t kLines = 1'000'000;
  constexpr std::size_t kGoodEvery = 100;
  constexpr std::size_t kOpenEvery = 33;
  std::string bytes;
  for (std::size_t i = 0; i < kLines; ++i) {
    bytes += i % kGoodEvery == 0   ? good
             : i % kOpenEvery == 0 ? open_quotes[i % std::size(open_quotes)]
                                   : spoiled[i % std::size(spoiled)];
  }
  HistoryReader reader(bytes);
  std::size_t entries = 0;
  while (const std::optional<HistoryEntry> entry = reader.Next()) {
    ++entries;
    if (entry->name != "plums") FAIL() << "entry " << entries << ": " << entry->name;
  }
  EXPECT_EQ(entries, kLines / kGoodEvery);
}

TEST(HistoryReaderTest, QuotesThatNothingClosesAtTheEnd) {
  const std::string good = HistoryLine(Food("plums", 100, 45));
  for (const char* const end :
       {"\"", "\"\"", "2026-11-21;13:05:09;food;\"", "2026-11-21;13:05:09;food;\"a\"b"}) {
    EXPECT_EQ(ReadAll(good + end), ReadAll(good)) << end;
    EXPECT_EQ(ReadAll(std::string(end) + '\n' + good), ReadAll(good)) << end;
  }
}

TEST(HistoryDateTest, TurnsTheDateOfTheDayRound) {
  EXPECT_EQ(IsoDate("5.3.2026"), "2026-03-05");
  EXPECT_EQ(IsoDate("21.11.2026"), "2026-11-21");
  EXPECT_EQ(IsoDate("29.2.2028"), "2028-02-29");
  for (const char* const none : {"", "x", "1.2", "30.2.2026", "1.13.2026", "0.1.2026", "1.1.26",
                                 "111.1.2026", "-1.1.2026", "1.1.2026 "}) {
    EXPECT_EQ(IsoDate(none), "") << none;
  }
}

TEST(HistoryKindTest, OnlyFoodCountsInTheDay) {
  EXPECT_TRUE(CountsInDay(HistoryKind::kFood));
  EXPECT_TRUE(CountsInDay(HistoryKind::kRemoved));
  EXPECT_TRUE(CountsInDay(HistoryKind::kListCleared));
  EXPECT_TRUE(CountsInDay(HistoryKind::kDayCleared));
  EXPECT_TRUE(CountsInDay(HistoryKind::kImported));
  EXPECT_FALSE(CountsInDay(HistoryKind::kBurned));
  EXPECT_FALSE(CountsInDay(HistoryKind::kBurnedCleared));
  EXPECT_FALSE(CountsInDay(HistoryKind::kWeight));
  EXPECT_FALSE(CountsInDay(HistoryKind::kWaistHip));
}

}  // namespace
}  // namespace velnor

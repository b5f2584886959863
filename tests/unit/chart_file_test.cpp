#include "charts/chart_file.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/support/committed.h"
#include "tests/support/temporary_folder.h"

namespace velnor {
namespace {

class ChartFileTest : public testing::Test {
 protected:
  bool Update(const std::string& date, const std::vector<std::string>& fields) const {
    return Committed(folder_.path(), UpdateChartFile, path_, date, fields);
  }
  std::string Read() const { return folder_.Read("wykoda.txt"); }
  void Write(std::string_view bytes) const { folder_.Write("wykoda.txt", bytes); }

  TemporaryFolder folder_;
  const std::string path_ = folder_.path() + "wykoda.txt";
};

// `count` days from the first of November on.
std::string Days(int count) {
  std::string text;
  for (int day = 1; day <= count; ++day) text += std::to_string(day) + ".11.2026;70;22.85;\r\n";
  return text;
}

TEST_F(ChartFileTest, FirstSaveMakesTheFile) {
  EXPECT_TRUE(Update("5.3.2026", {"1850.5", "72.5", "60.25", "230.75"}));
  EXPECT_EQ(Read(), "5.3.2026;1850.5;72.5;60.25;230.75;\r\n");
}

TEST_F(ChartFileTest, EveryDayHasOneLine) {
  Update("16.11.2026", {"70", "22.85"});
  Update("17.11.2026", {"71.5", "23.34"});
  Update("18.11.2026", {"69", "22.53"});
  EXPECT_EQ(Read(), "16.11.2026;70;22.85;\r\n17.11.2026;71.5;23.34;\r\n18.11.2026;69;22.53;\r\n");
  Update("18.11.2026", {"69.5", "22.69"});
  EXPECT_EQ(Read(), "16.11.2026;70;22.85;\r\n17.11.2026;71.5;23.34;\r\n18.11.2026;69.5;22.69;\r\n");
}

// Only the newest line is looked at: an earlier line of the same date stays.
TEST_F(ChartFileTest, OnlyTheNewestLineIsReplaced) {
  Write("16.11.2026;70;\r\n17.11.2026;71;\r\n");
  Update("16.11.2026", {"69"});
  EXPECT_EQ(Read(), "16.11.2026;70;\r\n17.11.2026;71;\r\n16.11.2026;69;\r\n");
}

// Seven characters are compared: of a long date they reach into the first digit of the year, of a
// short one to the third.
TEST_F(ChartFileTest, DaysAreToldApartBySevenCharacters) {
  Write("16.11.2026;70;\r\n");
  Update("16.11.2027", {"69"});
  EXPECT_EQ(Read(), "16.11.2027;69;\r\n");
  Write("16.11.2026;70;\r\n");
  Update("16.11.3026", {"69"});
  EXPECT_EQ(Read(), "16.11.2026;70;\r\n16.11.3026;69;\r\n");
  Write("5.3.2026;70;\r\n");
  Update("5.3.2027", {"69"});
  EXPECT_EQ(Read(), "5.3.2027;69;\r\n");
  Write("5.3.2026;70;\r\n");
  Update("5.3.2036", {"69"});
  EXPECT_EQ(Read(), "5.3.2026;70;\r\n5.3.2036;69;\r\n");
}

TEST_F(ChartFileTest, TwentyLinesGrowToTwentyOne) {
  Write(Days(20));
  Update("1.12.2026", {"69", "22.53"});
  EXPECT_EQ(Read(), Days(20) + "1.12.2026;69;22.53;\r\n");
}

TEST_F(ChartFileTest, TheSeriesStartsAgainAfterTwentyOneLines) {
  Write(Days(21));
  Update("1.12.2026", {"69", "22.53"});
  EXPECT_EQ(Read(), "1.12.2026;69;22.53;\r\n");
  Write(Days(22));
  Update("1.12.2026", {"69", "22.53"});
  EXPECT_EQ(Read(), "1.12.2026;69;22.53;\r\n");
}

TEST_F(ChartFileTest, TheSameDayKeepsAFullSeries) {
  Write(Days(21));
  Update("21.11.2026", {"69", "22.53"});
  EXPECT_EQ(Read(), Days(20) + "21.11.2026;69;22.53;\r\n");
  Write(Days(22));
  Update("22.11.2026", {"69", "22.53"});
  EXPECT_EQ(Read(), Days(21) + "22.11.2026;69;22.53;\r\n");
}

// What a line is: its slot, even when it counts as empty.
TEST_F(ChartFileTest, ShortLinesKeepTheirSlots) {
  Write("1;2;3\r\n\r\n16.11.2026;70;\r\n12345\r\n");
  const ChartSeries series = LoadChartFile(path_);
  EXPECT_EQ(series.last, 2U);
  EXPECT_EQ(series.slots[0], "1;2;3");
  EXPECT_EQ(series.slots[3], "12345");
  Update("16.11.2026", {"69"});
  EXPECT_EQ(Read(), "1;2;3\r\n\r\n16.11.2026;69;\r\n");
}

TEST_F(ChartFileTest, SixCharactersAreALine) {
  EXPECT_TRUE(IsEmptySlot("12345"));
  EXPECT_FALSE(IsEmptySlot("123456"));
}

TEST_F(ChartFileTest, MissingAndEmptyFilesHaveNoLines) {
  EXPECT_EQ(LoadChartFile(path_).last, 0U);
  EXPECT_EQ(LoadChartFile(path_).slots[0], "");
  EXPECT_EQ(Read(), "(missing)") << "reading made the file";
  Write("");
  EXPECT_EQ(LoadChartFile(path_).slots[0], "");
}

TEST_F(ChartFileTest, AFileWithoutEntriesIsNotAnEmptyOne) {
  EXPECT_TRUE(LoadChartFile(path_).file_is_empty);
  Write("");
  EXPECT_TRUE(LoadChartFile(path_).file_is_empty);
  Write("\n");
  EXPECT_FALSE(LoadChartFile(path_).file_is_empty);
}

TEST_F(ChartFileTest, LinesEndWithLfOrNotAtAllToo) {
  Write("16.11.2026;70;\n17.11.2026;71;");
  const ChartSeries series = LoadChartFile(path_);
  EXPECT_EQ(series.slots[0], "16.11.2026;70;");
  EXPECT_EQ(series.slots[1], "17.11.2026;71;");
  EXPECT_EQ(series.last, 1U);
  Update("18.11.2026", {"69"});
  EXPECT_EQ(Read(), "16.11.2026;70;\n17.11.2026;71;\r\n18.11.2026;69;\r\n");
}

TEST_F(ChartFileTest, LongLinesComeInPiecesAndOnly22Count) {
  Write(std::string(150, 'x') + "\r\n" + Days(30));
  const ChartSeries series = LoadChartFile(path_);
  EXPECT_EQ(series.slots[0], std::string(99, 'x'));
  EXPECT_EQ(series.slots[1], std::string(51, 'x'));
  EXPECT_EQ(series.slots[2], "1.11.2026;70;22.85;");
  EXPECT_EQ(series.slots[21], "20.11.2026;70;22.85;");
  EXPECT_EQ(series.last, 21U);
}

// Rewriting the day's line moves no other: the pieces of a long line stay one line.
TEST_F(ChartFileTest, LongLinesStayAsTheyAreWhenTheDayIsWrittenAgain) {
  const std::string days = std::string(99, 'a') + "\r\n" + std::string(250, 'b') + "\r\n";
  Write(days + "16.11.2026;70;\r\n");
  for (const char* const weight : {"69", "68"}) {
    EXPECT_TRUE(Update("16.11.2026", {weight}));
    EXPECT_EQ(Read(), days + "16.11.2026;" + weight + ";\r\n");
  }
}

// Each of these ends a slot, and none of them may end the one behind it too.
TEST_F(ChartFileTest, StrayReturnsMoveNoOtherLine) {
  Write(std::string(98, 'a') + '\r' + '\0' + "b;c;\r\n2;\r\r\r\n16.11.2026;70;\r\n");
  EXPECT_TRUE(Update("16.11.2026", {"69"}));
  const ChartSeries series = LoadChartFile(path_);
  EXPECT_EQ(series.slots[0], std::string(98, 'a'));
  EXPECT_EQ(series.slots[1], "");
  EXPECT_EQ(series.slots[2], "2;");
  EXPECT_EQ(series.slots[3], "16.11.2026;69;");
  EXPECT_EQ(series.last, 3U);
}

// 22 lines as long as lines can be are read to the last character.
TEST_F(ChartFileTest, FullLinesAreReadWhole) {
  std::string text;
  for (int i = 0; i < 22; ++i) text += std::string(98, 'y') + "\r\n";
  Write(text);
  EXPECT_EQ(LoadChartFile(path_).slots[21], std::string(98, 'y'));
}

TEST_F(ChartFileTest, NothingIsWrittenWhereNothingCanBe) {
  EXPECT_FALSE(Committed(folder_.path(), UpdateChartFile, folder_.path() + "missing/wykoda.txt",
                         "16.11.2026", std::vector<std::string>{}));
  EXPECT_FALSE(Committed(folder_.path(), UpdateChartFile, folder_.path(), "16.11.2026",
                         std::vector<std::string>{}))
      << "a folder was written";
}

}  // namespace
}  // namespace velnor

#include "diary/diary.h"

#include <gtest/gtest.h>
#include <string>

#include "diary/diary_command.h"
#include "diary/page.h"
#include "tests/support/diary_histories.h"
#include "tests/support/program_fixture.h"
#include "tests/support/temporary_folder.h"

namespace velnor {
namespace {

constexpr std::string_view kToday = "16.11.2026";

DayNumber Today() { return DayOfIsoDate("2026-11-16").value(); }

RequirementBounds Bounds() { return {2100, 2300, 70, 70, 65, 90, 300, 360}; }

DiaryFiles Make(std::string_view history) {
  return MakeDiary({.history = history,
                    .profile = {.height = "170"},
                    .requirement = Bounds(),
                    .date_text = kToday,
                    .user_name = "Ann"});
}

bool Has(const std::string& text, std::string_view piece) {
  return text.find(piece) != std::string::npos;
}

std::size_t Count(const std::string& text, std::string_view piece) {
  std::size_t count = 0;
  for (std::size_t at = text.find(piece); at != std::string::npos; at = text.find(piece, at + 1)) {
    ++count;
  }
  return count;
}

TEST(DiaryPageTest, ShowsTodayBesideWhatIsNeeded) {
  const std::string page = Make(
                               "2026-11-16;08:15:00;food;bread;100;g;1500;70;95;150\n"
                               "2026-11-16;18:00:00;burned;running;30;min;300;;;\n")
                               .page;
  EXPECT_TRUE(Has(page, "Today, Mon 16 Nov"));
  EXPECT_TRUE(Has(page, "600 to 800 kcal left"));
  EXPECT_TRUE(Has(page, "<td class=\"time\">08:15</td><td class=\"name\">bread</td>"));
  EXPECT_TRUE(Has(page, "18:00 burned: running, 300 kcal"));
}

TEST(DiaryPageTest, AboveAndInsideTheRequirementAreSaid) {
  EXPECT_TRUE(Has(Make("2026-11-16;;imported;;;;2500;1;1;1\n").page, "200 kcal above"));
  EXPECT_TRUE(Has(Make("2026-11-16;;imported;;;;2250;1;1;1\n").page, "enough, up to 50 left"));
}

TEST(DiaryPageTest, WithoutEntriesSaysSo) {
  const DiaryFiles files = Make("");
  EXPECT_TRUE(Has(files.page, "Nothing was entered today yet."));
  EXPECT_TRUE(Has(files.page, "There is no entry yet."));
  EXPECT_TRUE(files.page.ends_with("</html>\n"));
}

TEST(DiaryPageTest, WithoutARequirementShowsNoneAndNoDeficit) {
  const std::string page =
      MakeDiary({.history = "2026-11-16;;imported;;;;2500;1;1;1\n", .date_text = kToday}).page;
  EXPECT_TRUE(Has(page, "No requirement is known"));
  EXPECT_FALSE(Has(page, "Deficit"));
  EXPECT_FALSE(Has(page, "class=\"need\""));
}

TEST(DiaryPageTest, ARequirementThatIsNoneIsNotShown) {
  RequirementBounds bounds = Bounds();
  bounds[kFatUpper] = 1e300;
  const std::string page =
      MakeDiary({.history = "", .requirement = bounds, .date_text = kToday}).page;
  EXPECT_TRUE(Has(page, "No requirement is known"));
}

TEST(DiaryPageTest, NamesAreNoMarkup) {
  const std::string page = Make(HostileHistory(Today())).page;
  EXPECT_FALSE(Has(page, "<script"));
  EXPECT_FALSE(Has(page, "<img"));
  EXPECT_FALSE(Has(page, "<b>bold"));
  EXPECT_TRUE(Has(page, "&lt;script&gt;"));
  EXPECT_EQ(Count(page, "</style>"), 1U);
  EXPECT_EQ(Count(page, "</title></svg>"), 0U);
}

TEST(DiaryPageTest, IsOneFileThatAsksForNothing) {
  const std::string page = Make(LivedHistory(100, Today())).page;
  EXPECT_TRUE(Has(page, "default-src 'none'"));
  EXPECT_FALSE(Has(page, "src="));
  EXPECT_FALSE(Has(page, "url("));
  EXPECT_FALSE(Has(page, "http://"));
  EXPECT_TRUE(Has(page, "href=\"dziennik-dni.csv\""));
  EXPECT_TRUE(Has(page, "href=\"dziennik-potrawy.csv\""));
}

TEST(DiaryPageTest, TenYearsStayBelowTwoMegabytes) {
  const std::string history = LivedHistory(3652, Today());
  EXPECT_GT(Count(history, "\n"), 35000U);
  const std::string page = Make(history).page;
  EXPECT_LT(page.size(), 2'000'000U);
  EXPECT_EQ(Count(page, "<details>"), kShownDays);
  EXPECT_TRUE(Has(page, "Earlier months"));
  EXPECT_TRUE(Has(page, "<td>November 2016</td>"));
}

TEST(DiaryPageTest, ADayOfManyLinesShowsSome) {
  std::string history;
  for (int i = 0; i < 5000; ++i) history += "2026-11-15;08:00:00;food;x;1;g;1;0;0;0\n";
  const std::string page = Make(history).page;
  EXPECT_EQ(Count(page, "<td class=\"name\">x</td>"), kShownRows);
  EXPECT_TRUE(Has(page, "and 4\u202F800 more, in dziennik-potrawy.csv"));
}

TEST(DiaryPageTest, MillenniaShowNoMoreThanTheyMay) {
  std::string history;
  for (int year = 1000; year < 9999; ++year) {
    history += std::to_string(year) + "-05-05;;imported;;;;2000;50;60;250\n";
  }
  const std::string page = Make(history).page;
  EXPECT_LT(page.size(), 2'000'000U);
  EXPECT_TRUE(Has(page, "dated after today and not drawn"));
  EXPECT_TRUE(Has(page, "earlier months are in the tables only"));
}

TEST(WholeRangeTest, ReachesBackToTheFirstEntry) {
  const DayTable table =
      FoldHistory("2020-01-02;;weight;;70;kg;;;;\n2024-11-01;;weight;;70;kg;;;;\n");
  EXPECT_EQ(WholeRange(table, Today()), (DayRange{table.days[0].day, Today()}));
}

TEST(WholeRangeTest, EndsAtAPauseOfFiveYears) {
  const DayTable table = FoldHistory(
      "1970-01-01;;weight;;70;kg;;;;\n2025-11-01;;weight;;70;kg;;;;\n"
      "9999-11-01;;weight;;70;kg;;;;\n");
  EXPECT_EQ(WholeRange(table, Today()), (DayRange{table.days[1].day, Today()}));
}

TEST(WholeRangeTest, IsAWeekAtTheLeastAndACenturyAtTheMost) {
  EXPECT_EQ(WholeRange({}, Today()).Days(), 7);
  std::string history;
  for (int year = 1000; year < 2027; ++year)
    history += std::to_string(year) + "-05-05;;weight;;70;kg;;;;\n";
  EXPECT_LE(WholeRange(FoldHistory(history), Today()).Days(), 36525);
}

TEST(DiaryTest, ADateThatIsNoneIsThatOfTheLastEntry) {
  const DiaryFiles files =
      MakeDiary({.history = "2025-03-09;;imported;;;;2000;1;1;1\n", .date_text = "?"});
  EXPECT_TRUE(Has(files.page, "Today, Sun 9 Mar"));
}

class DiaryCommandTest : public testing::Test {
 protected:
  DiaryCommandTest() {
    std::filesystem::create_directory(folder_.path() + "Ann");
    folder_.Write("Ann/dziennik.csv", "2026-11-16;08:15:00;food;bread;100;g;1500;70;95;150\r\n");
  }

  void Run() { DiaryCommand(session_, window_, boxes_).Run({}, Bounds()); }

  TemporaryFolder folder_;
  FakeMainWindow window_;
  FakeMessageBoxes boxes_;
  SessionState session_ = {.user = UserFolder::In(folder_.path(), "Ann"),
                           .base_folder = folder_.path(),
                           .date_text = std::string(kToday)};
};

TEST_F(DiaryCommandTest, WritesThreeFilesAndOpensThePage) {
  Run();
  EXPECT_TRUE(Has(folder_.Read("Ann/dziennik.html"), "bread"));
  EXPECT_TRUE(Has(folder_.Read("Ann/dziennik-dni.csv"), "2026-11-16,1500,70,95,150,,,\r\n"));
  EXPECT_TRUE(Has(folder_.Read("Ann/dziennik-potrawy.csv"), ",food,bread,100,g,"));
  EXPECT_EQ(window_.log,
            (std::vector<std::string>{"browse " + folder_.path() + "Ann/dziennik.html"}));
  EXPECT_TRUE(boxes_.shown.empty());
}

TEST_F(DiaryCommandTest, WithoutABrowserABoxSaysWhereTheFilesAre) {
  window_.has_browser = false;
  Run();
  const std::string folder = folder_.path() + "Ann/";
  EXPECT_EQ(
      boxes_.TakeTexts(),
      (std::vector<std::string>{"No browser could be opened. The diary is in these files:\n\n" +
                                folder + "dziennik.html\n" + folder + "dziennik-dni.csv\n" +
                                folder + "dziennik-potrawy.csv"}));
}

TEST_F(DiaryCommandTest, AMissingHistoryIsAnEmptyDiary) {
  std::filesystem::remove(folder_.path() + "Ann/dziennik.csv");
  Run();
  EXPECT_TRUE(Has(folder_.Read("Ann/dziennik.html"), "There is no entry yet."));
  EXPECT_EQ(folder_.Read("Ann/dziennik.csv"), "(missing)");
}

TEST_F(DiaryCommandTest, WhatCannotBeWrittenIsSaidAndNothingOpened) {
  std::filesystem::create_directory(folder_.path() + "Ann/dziennik-dni.csv");
  Run();
  EXPECT_EQ(boxes_.TakeTexts().size(), 1U);
  EXPECT_TRUE(window_.log.empty());
  EXPECT_EQ(folder_.Read("Ann/dziennik.html"), "(missing)");
}

TEST_F(DiaryCommandTest, WhatCannotBeReadIsSaidAndNothingWritten) {
  std::filesystem::remove(folder_.path() + "Ann/dziennik.csv");
  std::filesystem::create_directory(folder_.path() + "Ann/dziennik.csv");
  Run();
  EXPECT_EQ(boxes_.TakeTexts(),
            (std::vector<std::string>{"Your history cannot be read. No diary was made."}));
  EXPECT_EQ(folder_.Read("Ann/dziennik.html"), "(missing)");
}

TEST_F(DiaryCommandTest, WithoutAUserNothingHappens) {
  session_.user.reset();
  Run();
  EXPECT_TRUE(boxes_.shown.empty());
  EXPECT_TRUE(window_.log.empty());
}

}  // namespace
}  // namespace velnor

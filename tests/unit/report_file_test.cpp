#include "reports/report_file.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

#include "base/text_file.h"
#include "tests/support/temporary_folder.h"

namespace velnor {
namespace {

using namespace std::string_literals;
using Texts = std::vector<std::string>;

// Records that differ from each other, cut to the size.
std::string ReportOf(std::size_t size) {
  std::string bytes;
  for (int record = 0; bytes.size() < size; ++record) {
    bytes += "16.11.2026\tweight: " + std::to_string(record) + "\t\r\n";
  }
  bytes.resize(size);
  return bytes;
}

class ReportFileTest : public testing::Test {
 protected:
  // Saves what is shown, changed by nobody.
  bool SaveAsShown() const {
    const std::string shown = LoadReport(path_);
    return SaveReport(folder_.path(), path_, shown, shown);
  }
  std::string File() const { return folder_.Read("waga.ASC"); }
  std::string Rest() const { return folder_.Read("waga.ASC.rest.txt"); }

  TemporaryFolder folder_;
  std::string path_ = folder_.path() + "waga.ASC";
};

TEST(ReportsTest, EveryReportHasItsScreenAndFile) {
  struct Row {
    ScreenId screen;
    std::string title, file_name;
  };
  const std::vector<Row> expected = {
      {4, "Reports overview - WEIGHT", "waga.ASC"},
      {5, "Reports overview - WHR", "whr.ASC"},
      {8, "Reports overview - CALORIE", "mirvo.ASC"},
      {9, "Reports overview - RECIPES", "zestaw.ASC"},
      {11, "Reports overview - BURNED CALORIES", "cwiczenia.ASC"},
  };
  ASSERT_EQ(Reports().size(), expected.size());
  for (const Row& row : expected) {
    const ReportFile* const report = FindReport(row.screen);
    ASSERT_NE(report, nullptr) << row.screen;
    EXPECT_EQ(report->screen, row.screen);
    EXPECT_EQ(report->title, row.title);
    EXPECT_EQ(report->file_name, row.file_name);
  }
  for (const ScreenId screen : {-1, 0, 1, 2, 3, 6, 7, 10, 12, 13, 20, 21}) {
    EXPECT_EQ(FindReport(screen), nullptr) << screen;
  }
}

TEST_F(ReportFileTest, ShowsAtMostTheLimit) {
  for (const std::size_t size : {0U, 1U, 29'998U, 29'999U, 30'000U, 30'001U, 200'000U}) {
    const std::string bytes = ReportOf(size);
    folder_.Write("waga.ASC", bytes);
    EXPECT_EQ(LoadReport(path_), bytes.substr(0, 29'999)) << size;
  }
}

TEST_F(ReportFileTest, ShowsTheBytesAsTheyStand) {
  for (const std::string& bytes :
       {"one\r\ntwo\r\n"s, "one\ntwo"s, "\r\n\r\n"s, "a\rb\xFF\x1A c"s}) {
    folder_.Write("waga.ASC", bytes);
    EXPECT_EQ(LoadReport(path_), bytes);
  }
}

TEST_F(ReportFileTest, ShowsNothingBehindANul) {
  folder_.Write("waga.ASC", "one\r\n\0two\0"s);
  EXPECT_EQ(LoadReport(path_), "one\r\n");
  folder_.Write("waga.ASC", "\0one"s);
  EXPECT_EQ(LoadReport(path_), "");
}

TEST_F(ReportFileTest, AMissingFileShowsNothing) {
  EXPECT_EQ(LoadReport(path_), "");
  EXPECT_EQ(folder_.Names(), Texts{});
}

TEST_F(ReportFileTest, SavingWritesTheTextByteForByte) {
  folder_.Write("waga.ASC", "old\r\n");
  const std::string text = "new\r\nlines\n\rand \xE6\xB3\xBF, no end";
  EXPECT_TRUE(SaveReport(folder_.path(), path_, "old\r\n", text));
  EXPECT_EQ(File(), text);
  EXPECT_TRUE(SaveReport(folder_.path(), path_, text, ""));
  EXPECT_EQ(File(), "");
  EXPECT_EQ(folder_.Names(), Texts{"waga.ASC"});
}

TEST_F(ReportFileTest, SavingAMissingFileMakesNone) {
  EXPECT_FALSE(SaveReport(folder_.path(), path_, "", "new"));
  EXPECT_FALSE(SaveReport(folder_.path(), path_, "old", "new"));
  EXPECT_EQ(folder_.Names(), Texts{});
}

TEST_F(ReportFileTest, SavingALongReportCutsItAndKeepsTheRest) {
  for (const std::size_t size : {1U, 29'998U, 29'999U, 30'000U, 30'001U, 200'000U}) {
    const TemporaryFolder folder;
    const std::string bytes = ReportOf(size);
    const std::string path = folder.Write("mirvo.ASC", bytes);
    const std::string shown = LoadReport(path);
    EXPECT_TRUE(SaveReport(folder.path(), path, shown, shown + "changed"));
    EXPECT_EQ(folder.Read("mirvo.ASC"), bytes.substr(0, 29'999) + "changed");
    const bool all_shown = size <= 29'999;
    EXPECT_EQ(HasRest(path), !all_shown) << size;
    EXPECT_EQ(folder.Read("mirvo.ASC.rest.txt"), all_shown ? "(missing)" : bytes.substr(29'999));
  }
}

TEST_F(ReportFileTest, SavingKeepsWhatStandsBehindANul) {
  folder_.Write("waga.ASC", "one\r\n\0two\0three"s);
  EXPECT_TRUE(SaveAsShown());
  EXPECT_EQ(File(), "one\r\n");
  EXPECT_EQ(Rest(), "\0two\0three"s);
}

TEST_F(ReportFileTest, SavingKeepsARecordThatWasAppendedMeanwhile) {
  folder_.Write("waga.ASC", "one\r\n");
  const std::string shown = LoadReport(path_);
  folder_.Write("waga.ASC", "one\r\ntwo\r\n");
  EXPECT_TRUE(SaveReport(folder_.path(), path_, shown, "changed\r\n"));
  EXPECT_EQ(File(), "changed\r\n");
  EXPECT_EQ(Rest(), "two\r\n");
}

TEST_F(ReportFileTest, SavingKeepsAFileThatWasNeverShown) {
  folder_.Write("waga.ASC", "one\r\n");
  const std::string shown = LoadReport(path_);
  folder_.Write("waga.ASC", "another report\r\n");
  EXPECT_TRUE(SaveReport(folder_.path(), path_, shown, "changed\r\n"));
  EXPECT_EQ(File(), "changed\r\n");
  EXPECT_EQ(Rest(), "another report\r\n");
}

TEST_F(ReportFileTest, TheRestsOfSeveralSavesStandOneBelowTheOther) {
  folder_.Write("waga.ASC", "shown\0first"s);
  EXPECT_TRUE(SaveAsShown());
  folder_.Write("waga.ASC", "shown\0second\r\n"s);
  EXPECT_TRUE(SaveAsShown());
  folder_.Write("waga.ASC", "shown\0third"s);
  EXPECT_TRUE(SaveAsShown());
  EXPECT_EQ(Rest(), "\0first\r\n\0second\r\n\0third"s);
}

TEST_F(ReportFileTest, NothingIsCutWhenTheRestCannotBeKept) {
  const std::string bytes = ReportOf(30'001);
  folder_.Write("waga.ASC", bytes);
  std::filesystem::create_directory(folder_.path() + "waga.ASC.rest.txt");
  EXPECT_FALSE(SaveAsShown());
  EXPECT_EQ(File(), bytes);
}

TEST_F(ReportFileTest, NothingIsCutWhenAnEarlierRestWouldBeLost) {
  const std::string bytes = ReportOf(30'001);
  folder_.Write("waga.ASC", bytes);
  folder_.Write("waga.ASC.rest.txt", "earlier");
  std::filesystem::create_directory(TemporaryPath(folder_.path() + "waga.ASC.rest.txt"));
  EXPECT_FALSE(SaveAsShown());
  EXPECT_EQ(File(), bytes);
  EXPECT_EQ(Rest(), "earlier");
}

// Leads to a file of the system that can be opened but not read from its start; to rename a file to
// `path` would still succeed.
void MakeUnreadable(const std::string& path) {
  std::filesystem::create_symlink("/proc/self/mem", path);
  ASSERT_TRUE(FileExists(path));
  ASSERT_EQ(ReadFileToRewrite(path, 1), std::nullopt);
}

TEST_F(ReportFileTest, WhatCannotBeReadIsNeitherSavedNorCleared) {
  MakeUnreadable(path_);
  EXPECT_EQ(LoadReport(path_), "");
  EXPECT_FALSE(SaveReport(folder_.path(), path_, "", "new"));
  EXPECT_FALSE(ClearReport(folder_.path(), path_));
  EXPECT_TRUE(std::filesystem::is_symlink(path_));
  EXPECT_EQ(folder_.Names(), Texts{"waga.ASC"});
}

TEST_F(ReportFileTest, NothingIsCutWhenAnEarlierRestCannotBeRead) {
  const std::string bytes = ReportOf(30'001);
  folder_.Write("waga.ASC", bytes);
  MakeUnreadable(RestPath(path_));
  EXPECT_FALSE(SaveAsShown());
  EXPECT_EQ(File(), bytes);
  EXPECT_TRUE(std::filesystem::is_symlink(RestPath(path_)));
}

TEST_F(ReportFileTest, AFolderIsNeitherSavedNorCleared) {
  std::filesystem::create_directory(path_);
  EXPECT_EQ(LoadReport(path_), "");
  EXPECT_FALSE(SaveReport(folder_.path(), path_, "", "new"));
  EXPECT_FALSE(ClearReport(folder_.path(), path_));
  EXPECT_EQ(folder_.Names(), Texts{"waga.ASC"});
}

TEST_F(ReportFileTest, AWriteProtectedFileIsShownButNeitherSavedNorCleared) {
  const std::string bytes = ReportOf(30'001);
  folder_.Write("waga.ASC", bytes);
  std::filesystem::permissions(path_, std::filesystem::perms{0444});
  EXPECT_EQ(LoadReport(path_), bytes.substr(0, 29'999));
  EXPECT_FALSE(SaveAsShown());
  EXPECT_FALSE(ClearReport(folder_.path(), path_));
  EXPECT_EQ(File(), bytes);
  EXPECT_EQ(folder_.Names(), Texts{"waga.ASC"});
}

TEST_F(ReportFileTest, ClearingLeavesAnEmptyFile) {
  folder_.Write("waga.ASC", ReportOf(200'000));
  EXPECT_TRUE(ClearReport(folder_.path(), path_));
  EXPECT_EQ(File(), "");
  EXPECT_EQ(folder_.Names(), Texts{"waga.ASC"});
}

TEST_F(ReportFileTest, ClearingMakesAMissingFile) {
  EXPECT_TRUE(ClearReport(folder_.path(), path_));
  EXPECT_EQ(File(), "");
  EXPECT_EQ(folder_.Names(), Texts{"waga.ASC"});
}

TEST_F(ReportFileTest, ClearingTakesWhatWasKeptWithIt) {
  folder_.Write("waga.ASC", "shown\0rest"s);
  EXPECT_TRUE(SaveAsShown());
  EXPECT_TRUE(HasRest(path_));
  EXPECT_TRUE(ClearReport(folder_.path(), path_));
  EXPECT_EQ(File(), "");
  EXPECT_FALSE(HasRest(path_));
  EXPECT_EQ(folder_.Names(), Texts{"waga.ASC"});
}

TEST_F(ReportFileTest, AReportIsNotClearedWithoutWhatWasKept) {
  for (const char* const name : {"waga.ASC", "waga.ASC.rest.txt"}) {
    folder_.Write("waga.ASC", "report");
    folder_.Write("waga.ASC.rest.txt", "kept");
    std::filesystem::permissions(folder_.path() + name, std::filesystem::perms{0444});
    EXPECT_FALSE(ClearReport(folder_.path(), path_)) << name;
    EXPECT_EQ(File(), "report") << name;
    EXPECT_EQ(Rest(), "kept") << name;
    std::filesystem::permissions(folder_.path() + name, std::filesystem::perms{0644});
  }
  std::filesystem::remove(RestPath(path_));
  MakeUnreadable(RestPath(path_));
  EXPECT_FALSE(ClearReport(folder_.path(), path_));
  EXPECT_EQ(File(), "report");
}

TEST_F(ReportFileTest, AnEmptyRestIsNone) {
  folder_.Write("waga.ASC.rest.txt", "");
  EXPECT_FALSE(HasRest(path_));
  folder_.Write("waga.ASC.rest.txt", "\n");
  EXPECT_TRUE(HasRest(path_));
}

}  // namespace
}  // namespace velnor

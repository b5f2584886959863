#include "users/backup.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "base/session.h"
#include "tests/support/data_folder.h"
#include "tests/support/tree.h"

namespace velnor {
namespace {

namespace fs = std::filesystem;

class BackupTest : public DataFolderTest {
 protected:
  std::string Copies() const { return Base() + "kopie zapasowe" + kPathSeparator; }

  std::vector<std::string> CopyNames() const {
    std::vector<std::string> names;
    if (!fs::exists(Copies())) return names;
    for (const auto& entry : fs::directory_iterator(Copies())) {
      names.push_back(entry.path().filename().string());
    }
    std::ranges::sort(names);
    return names;
  }
};

TEST_F(BackupTest, ACopyHoldsTheListTheProductsAndEverybody) {
  Write("velnor.exe", "not data");
  Write("photos/cat.jpg", "not data");
  Write("Zoe/info.ASC", "not on the list");
  Tree expected = TreeBelow(Base());
  expected.erase("velnor.exe");
  expected.erase("photos/cat.jpg");
  ASSERT_TRUE(MakeDailyCopy(Base(), "2026-11-21"));
  EXPECT_EQ(TreeBelow(Copies() + "2026-11-21"), expected);
  EXPECT_EQ(CopyNames(), std::vector<std::string>{"2026-11-21"});
}

TEST_F(BackupTest, TheFirstCopyOfADayStays) {
  ASSERT_TRUE(MakeDailyCopy(Base(), "2026-11-21"));
  Write("Ann/waga.ASC", "changed since");
  ASSERT_TRUE(MakeDailyCopy(Base(), "2026-11-21"));
  EXPECT_EQ(TreeBelow(Copies() + "2026-11-21")["Ann/waga.ASC"], "record\r\n");
}

TEST_F(BackupTest, SevenDaysAndTheFirstsOfTwelveMonthsAreKept) {
  std::vector<std::string> expected;
  for (int month = 1; month <= 14; ++month) {
    const int last = month == 14 ? 12 : 4;
    for (int day = 3; day <= last; ++day) {
      const auto two_digits = [](int number) {
        return (number < 10 ? "0" : "") + std::to_string(number);
      };
      const std::string date = (month > 12 ? "2026-" : "2025-") + two_digits((month - 1) % 12 + 1) +
                               '-' + two_digits(day);
      ASSERT_TRUE(MakeDailyCopy(Base(), date));
      if ((month >= 3 && day == 3) || (month == 14 && day >= 6)) expected.push_back(date);
    }
  }
  EXPECT_EQ(CopyNames(), expected);
}

TEST_F(BackupTest, NothingElseInTheFolderIsTouched) {
  Write("kopie zapasowe/2026-11-01x/users.ASC", "mine");
  Write("kopie zapasowe/2026-02-30/users.ASC", "no day");
  Write("kopie zapasowe/2020-01-01", "a file");
  Write("kopie zapasowe/notes.part/x.txt", "mine too");
  for (int day = 1; day <= 9; ++day) {
    ASSERT_TRUE(MakeDailyCopy(Base(), "2026-11-0" + std::to_string(day)));
  }
  EXPECT_EQ(TreeBelow(Copies())["2026-11-01x/users.ASC"], "mine");
  EXPECT_EQ(TreeBelow(Copies())["2026-02-30/users.ASC"], "no day");
  EXPECT_EQ(TreeBelow(Copies())["2020-01-01"], "a file");
  EXPECT_EQ(TreeBelow(Copies())["notes.part/x.txt"], "mine too");
  EXPECT_FALSE(fs::exists(Copies() + "2026-11-02"));  // but for the copies themselves
}

TEST_F(BackupTest, AClockThatIsSetBackLosesNoOlderCopy) {
  for (int day = 10; day <= 19; ++day) {
    ASSERT_TRUE(MakeDailyCopy(Base(), "2026-11-" + std::to_string(day)));
  }
  const std::vector<std::string> before = CopyNames();
  ASSERT_TRUE(MakeDailyCopy(Base(), "1990-01-01"));
  ASSERT_TRUE(MakeDailyCopy(Base(), "2026-11-02"));
  std::vector<std::string> after = before;
  after.insert(after.begin(), {"1990-01-01", "2026-11-02"});
  EXPECT_EQ(CopyNames(), after);
}

TEST_F(BackupTest, ACopyThatWasCutOffIsNoneAndGoes) {
  Write("kopie zapasowe/2026-11-20.part/Ann/info.ASC", "half");
  EXPECT_TRUE(ListCopies(Base()).empty());
  ASSERT_TRUE(MakeDailyCopy(Base(), "2026-11-21"));
  EXPECT_EQ(CopyNames(), std::vector<std::string>{"2026-11-21"});
}

TEST_F(BackupTest, AFileThatCannotBeReadMakesNoCopy) {
  // A folder where a file belongs cannot be read as one.
  fs::remove(fs::path(Base()) / "data.txt");
  fs::create_directories(fs::path(Base()) / "data.txt");
  EXPECT_FALSE(MakeDailyCopy(Base(), "2026-11-21"));
  EXPECT_TRUE(CopyNames().empty());
}

TEST_F(BackupTest, ACopiesFolderThatCannotBeMadeIsSaid) {
  Write("kopie zapasowe", "a file stands in its way");
  EXPECT_FALSE(MakeDailyCopy(Base(), "2026-11-21"));
  EXPECT_EQ(TreeBelow(Base())["kopie zapasowe"], "a file stands in its way");
}

TEST_F(BackupTest, BeforeAPressOnePersonIsCopiedUnderTheMoment) {
  ASSERT_TRUE(MakeCopyBefore(Base(), {"2026-11-21", "13:05:09"}, "\"Clear raport\" of Ann", "Ann"));
  EXPECT_EQ(TreeBelow(Copies() + "2026-11-21 130509"),
            (Tree{{"Ann/info.ASC", "30\r\n170"},
                  {"Ann/waga.ASC", "record\r\n"},
                  {"opis.txt", "\"Clear raport\" of Ann"}}));
}

TEST_F(BackupTest, TwentyCopiesOfPressesAreKeptBesideThoseOfDays) {
  ASSERT_TRUE(MakeDailyCopy(Base(), "2020-01-01"));
  for (int minute = 10; minute < 35; ++minute) {
    ASSERT_TRUE(
        MakeCopyBefore(Base(), {"2026-11-21", "13:" + std::to_string(minute) + ":00"}, "x", "Ann"));
  }
  const std::vector<std::string> names = CopyNames();
  ASSERT_EQ(names.size(), 21U);
  EXPECT_EQ(names[0], "2020-01-01");
  EXPECT_EQ(names[1], "2026-11-21 131500");
  EXPECT_EQ(names.back(), "2026-11-21 133400");
}

TEST_F(BackupTest, TheListSaysWhoIsInACopyAndHowLargeItIs) {
  ASSERT_TRUE(MakeDailyCopy(Base(), "2026-11-20"));
  ASSERT_TRUE(MakeCopyBefore(Base(), {"2026-11-21", "13:05:09"}, "removing Bob", "Bob"));
  const std::vector<ListedCopy> copies = ListCopies(Base());
  ASSERT_EQ(copies.size(), 2U);
  EXPECT_EQ(copies[0].name, "2026-11-21 130509");
  EXPECT_EQ(copies[0].about, "removing Bob");
  EXPECT_EQ(copies[0].people, "Bob");
  EXPECT_EQ(copies[1].path, Copies() + "2026-11-20");
  EXPECT_EQ(copies[1].about, "");
  EXPECT_EQ(copies[1].people, "Ann, Bob");
  EXPECT_EQ(copies[1].size.files, 5U);
  EXPECT_EQ(copies[1].size.bytes, TreeBelow(Base())["users.ASC"].size() +
                                      TreeBelow(Base())["data.txt"].size() +
                                      TreeBelow(Base())["Ann/info.ASC"].size() +
                                      TreeBelow(Base())["Ann/waga.ASC"].size());
}

TEST_F(BackupTest, ASecondCopyOfADayElsewhereGetsANumber) {
  for (const char* const name :
       {"Velnor 2026-11-21", "Velnor 2026-11-21 (2)", "Velnor 2026-11-21 (3)"}) {
    const std::optional<NewCopy> copy = MakeCopyIn(Base(), Base(), "2026-11-21");
    ASSERT_TRUE(copy);
    EXPECT_EQ(copy->path, Base() + name);
    EXPECT_TRUE(IsCopy(copy->path + kPathSeparator));
  }
  EXPECT_FALSE(MakeCopy(Base(), Base() + "Velnor 2026-11-21"));  // what is there stays
}

TEST_F(BackupTest, KnowsACopyFromOtherFolders) {
  ASSERT_TRUE(MakeDailyCopy(Base(), "2026-11-21"));
  EXPECT_TRUE(IsCopy(Copies() + "2026-11-21" + kPathSeparator));
  EXPECT_FALSE(IsCopy(Copies()));
  EXPECT_FALSE(IsCopy(Base() + "nowhere" + kPathSeparator));
}

}  // namespace
}  // namespace velnor

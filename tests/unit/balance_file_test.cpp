#include "food/balance_file.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/temporary_folder.h"

namespace velnor {
namespace {

using namespace std::string_literals;
using Names = std::vector<std::string>;

constexpr std::string_view kToday = "5.3.2026";

class BalanceFileTest : public testing::Test {
 protected:
  // What the file holds after the start of the day, when it held `bytes`.
  std::string After(std::string_view bytes, std::string_view date = kToday) const {
    StartDayIfNew(folder_.Write("bilans.ASC", bytes), date);
    return folder_.Read("bilans.ASC");
  }

  TemporaryFolder folder_;
};

TEST_F(BalanceFileTest, AMissingFileIsMade) {
  StartDayIfNew(folder_.path() + "bilans.ASC", kToday);
  EXPECT_EQ(folder_.Read("bilans.ASC"), "5.3.2026");
  EXPECT_EQ(folder_.Names(), Names{"bilans.ASC"});
}

TEST_F(BalanceFileTest, AnEmptyFileGetsTheDate) {
  EXPECT_EQ(After(""), "5.3.2026");
  EXPECT_EQ(After("\n"), "5.3.2026");
  EXPECT_EQ(After("\r\n5.3.2026\r\n100."), "5.3.2026");
}

TEST_F(BalanceFileTest, TheSameDayStaysAsItIs) {
  for (const std::string& bytes :
       {"5.3.2026"s, "5.3.2026\n"s, "5.3.2026\r\n100.\r\n1.5\r\n2.\r\n30."s,
        "5.3.2026\n100.\n1.5\n2.\n30.\n"s, "5.3.2026\r\n\0\xFF junk"s,
        "5.3.2026\r\n"s + std::string(10'000, 'x')}) {
    EXPECT_EQ(After(bytes), bytes);
  }
}

TEST_F(BalanceFileTest, AnotherDayIsReplaced) {
  EXPECT_EQ(After("4.3.2026\r\n100.\r\n1.5\r\n2.\r\n30."), "5.3.2026");
  EXPECT_EQ(After("5.3.2027\r\n100."), "5.3.2026");
  EXPECT_EQ(After("15.3.2026\r\n100."), "5.3.2026");
  EXPECT_EQ(After("100.\r\n5.3.2026"), "5.3.2026");
  EXPECT_EQ(After(" 5.3.2026"), "5.3.2026");
  EXPECT_EQ(folder_.Names(), Names{"bilans.ASC"});
}

TEST_F(BalanceFileTest, TheDateIsComparedOverItsLength) {
  EXPECT_EQ(After("5.3.20261\r\n100."), "5.3.20261\r\n100.");
  EXPECT_EQ(After("5.3.2026 evening\r\n100."), "5.3.2026 evening\r\n100.");
  EXPECT_EQ(After("5.3.202\r\n100."), "5.3.2026");
  EXPECT_EQ(After("5.3.202\r\n6"), "5.3.2026");
  EXPECT_EQ(After("5.3.2\0026\r\n100."s), "5.3.2026");
  EXPECT_EQ(After("5.3.2026\r\n100.", "15.3.2026"), "15.3.2026");
}

TEST_F(BalanceFileTest, LongAndBinaryFilesAreOtherDays) {
  EXPECT_EQ(After(std::string(10'000, '5')), "5.3.2026");
  EXPECT_EQ(After(std::string(10'000, '\0')), "5.3.2026");
  EXPECT_EQ(After("\0005.3.2026"s), "5.3.2026");
}

TEST_F(BalanceFileTest, WithoutTheFolderNothingHappens) {
  StartDayIfNew(folder_.path() + "missing/bilans.ASC", kToday);
  EXPECT_EQ(folder_.Names(), Names{});
}

// A link to itself can be replaced but not read, as a file that somebody has locked for a moment.
TEST_F(BalanceFileTest, WhatCannotBeReadIsNotOverwritten) {
  const std::string path = folder_.path() + "bilans.ASC";
  std::filesystem::create_symlink(path, path);
  StartDayIfNew(path, kToday);
  EXPECT_TRUE(std::filesystem::is_symlink(path));
}

TEST_F(BalanceFileTest, OtherFilesStay) {
  folder_.Write("z1.ASC", "1.5");
  After("4.3.2026\r\n100.");
  EXPECT_EQ(folder_.Names(), (Names{"bilans.ASC", "z1.ASC"}));
}

}  // namespace
}  // namespace velnor

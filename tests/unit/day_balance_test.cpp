#include "food/day_balance.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/temporary_folder.h"

namespace velnor {
namespace {

using namespace std::string_literals;
using Names = std::vector<std::string>;

class DayBalanceTest : public testing::Test {
 protected:
  DayBalanceTest() { std::filesystem::create_directory(folder_.path() + "Ann"); }

  void Write(const std::string& name, std::string_view bytes) const {
    folder_.Write("Ann/" + name, bytes);
  }
  std::string Read(const std::string& name) const { return folder_.Read("Ann/" + name); }
  Names NamesOfFiles() const {
    Names names;
    for (const auto& entry : std::filesystem::directory_iterator(folder_.path() + "Ann")) {
      names.push_back(entry.path().filename().string());
    }
    std::ranges::sort(names);
    return names;
  }
  // What the balance holds after the start of the day, when it held `bytes`.
  std::string After(std::string_view bytes, const std::string& date = "5.3.2026") {
    session_.date_text = date;
    Write("bilans.ASC", bytes);
    EXPECT_TRUE(day_.StartDayIfNew());
    return Read("bilans.ASC");
  }

  TemporaryFolder folder_;
  SessionState session_{.user = UserFolder::In(folder_.path(), "Ann"),
                        .base_folder = folder_.path(),
                        .date_text = "5.3.2026"};
  DayBalance day_{session_};
};

TEST_F(DayBalanceTest, AMissingFileIsMade) {
  EXPECT_TRUE(day_.StartDayIfNew());
  EXPECT_EQ(Read("bilans.ASC"), "5.3.2026");
  EXPECT_EQ(NamesOfFiles(), Names{"bilans.ASC"});
}

TEST_F(DayBalanceTest, AnEmptyFileGetsTheDate) {
  EXPECT_EQ(After(""), "5.3.2026");
  EXPECT_EQ(After("\n"), "5.3.2026");
  EXPECT_EQ(After("\r\n5.3.2026\r\n100."), "5.3.2026");
}

TEST_F(DayBalanceTest, TheSameDayStaysAsItIs) {
  for (const std::string& bytes :
       {"5.3.2026"s, "5.3.2026\n"s, "5.3.2026\r\n100.\r\n1.5\r\n2.\r\n30."s,
        "5.3.2026\n100.\n1.5\n2.\n30.\n"s, "5.3.2026\r\n\0\xFF junk"s,
        "5.3.2026\r\n"s + std::string(10'000, 'x')}) {
    EXPECT_EQ(After(bytes), bytes);
  }
}

TEST_F(DayBalanceTest, AnotherDayIsReplaced) {
  EXPECT_EQ(After("4.3.2026\r\n100.\r\n1.5\r\n2.\r\n30."), "5.3.2026");
  EXPECT_EQ(After("5.3.2027\r\n100."), "5.3.2026");
  EXPECT_EQ(After("15.3.2026\r\n100."), "5.3.2026");
  EXPECT_EQ(After("100.\r\n5.3.2026"), "5.3.2026");
  EXPECT_EQ(After(" 5.3.2026"), "5.3.2026");
  EXPECT_EQ(NamesOfFiles(), Names{"bilans.ASC"});
}

TEST_F(DayBalanceTest, TheDateIsComparedOverItsLength) {
  EXPECT_EQ(After("5.3.20261\r\n100."), "5.3.20261\r\n100.");
  EXPECT_EQ(After("5.3.2026 evening\r\n100."), "5.3.2026 evening\r\n100.");
  EXPECT_EQ(After("5.3.202\r\n100."), "5.3.2026");
  EXPECT_EQ(After("5.3.202\r\n6"), "5.3.2026");
  EXPECT_EQ(After("5.3.2\0026\r\n100."s), "5.3.2026");
  EXPECT_EQ(After("5.3.2026\r\n100.", "15.3.2026"), "15.3.2026");
}

TEST_F(DayBalanceTest, LongAndBinaryFilesAreOtherDays) {
  EXPECT_EQ(After(std::string(10'000, '5')), "5.3.2026");
  EXPECT_EQ(After(std::string(10'000, '\0')), "5.3.2026");
  EXPECT_EQ(After("\0005.3.2026"s), "5.3.2026");
}

TEST_F(DayBalanceTest, WithoutTheFolderNothingHappens) {
  session_.user = UserFolder::In(folder_.path(), "nobody");
  EXPECT_FALSE(day_.StartDayIfNew());
  EXPECT_FALSE(day_.Add({1, 2, 3, 4}));
  EXPECT_FALSE(day_.Add({1, 2, 3, 4}, DayExchanges{1, 2}));
  EXPECT_FALSE(day_.Clear());
  EXPECT_EQ(day_.ReadTotals(), std::nullopt);
  EXPECT_EQ(day_.ReadExchanges(), DayExchanges{});
  EXPECT_EQ(folder_.Names(), Names{"Ann"});
}

// A link to itself can be replaced but not read, as a file that somebody has locked for a moment.
TEST_F(DayBalanceTest, WithoutOneOfTheFilesTheDayStaysAsItIs) {
  const Names names = {"bilans.ASC", "z1.ASC", "z2.ASC"};
  for (const std::string& name : names) {
    Write("bilans.ASC", "5.3.2026\r\n10.\r\n0.\r\n0.\r\n0.");
    Write("z1.ASC", "8.");
    Write("z2.ASC", "1.7");
    const std::string path = folder_.path() + "Ann/" + name;
    std::filesystem::remove(path);
    std::filesystem::create_symlink(path, path);
    EXPECT_FALSE(day_.Add({1, 2, 3, 4}, DayExchanges{1, 2})) << name;
    EXPECT_EQ(day_.Add({}), name != "bilans.ASC") << name;
    EXPECT_TRUE(std::filesystem::is_symlink(path)) << name;
    std::filesystem::remove(path);
    for (const std::string& other : names) {
      if (other == name) continue;
      EXPECT_EQ(Read(other), other == "z1.ASC"   ? "8."
                             : other == "z2.ASC" ? "1.7"
                                                 : "5.3.2026\r\n10.\r\n0.\r\n0.\r\n0.");
    }
  }
  EXPECT_EQ(NamesOfFiles().size(), 4U) << "and the series, and the history";
}

TEST_F(DayBalanceTest, WhatIsWriteProtectedKeepsTheOthersAsTheyAre) {
  const std::map<std::string, std::string> files = {
      {"bilans.ASC", "5.3.2026\r\n10.\r\n0.\r\n0.\r\n0."},
      {"z1.ASC", "8."},
      {"z2.ASC", "1.7"},
      {"wykoda.txt", "5.3.2026;10.;0.;0.;0.;\r\n"}};
  for (const auto& [name, bytes] : files) Write(name, bytes);
  for (const auto& [name, bytes] : files) {
    const std::string path = folder_.path() + "Ann/" + name;
    std::filesystem::permissions(path, std::filesystem::perms{0444});
    EXPECT_FALSE(day_.Add({1, 2, 3, 4}, DayExchanges{1, 2})) << name;
    EXPECT_FALSE(day_.TakeOff({1, 2, 3, 4}, DayExchanges{1, 2})) << name;
    EXPECT_FALSE(day_.Clear()) << name;
    for (const auto& [other, kept] : files) EXPECT_EQ(Read(other), kept) << name;
    std::filesystem::permissions(path, std::filesystem::perms{0644});
  }
  EXPECT_EQ(NamesOfFiles().size(), files.size());
}

TEST_F(DayBalanceTest, TheEnergyOfAnyDayIsTheSecondLine) {
  Write("bilans.ASC", "4.3.2026\r\n100.5\r\n1.\r\n2.\r\n3.");
  EXPECT_EQ(day_.ReadKcalOfAnyDay(), 100.5);
  EXPECT_EQ(Read("bilans.ASC"), "4.3.2026\r\n100.5\r\n1.\r\n2.\r\n3.");
}

TEST_F(DayBalanceTest, ADayThatCannotBeStartedWholeIsNotStarted) {
  Write("bilans.ASC", "4.3.2026\r\n100.\r\n1.\r\n2.\r\n3.");
  Write("z1.ASC", "1.5");
  const std::string path = folder_.path() + "Ann/z2.ASC";
  std::filesystem::create_symlink(path, path);
  EXPECT_FALSE(day_.StartDayIfNew());
  EXPECT_EQ(Read("bilans.ASC"), "4.3.2026\r\n100.\r\n1.\r\n2.\r\n3.");
  EXPECT_FALSE(day_.Add({1, 2, 3, 4}));
  EXPECT_EQ(Read("bilans.ASC"), "4.3.2026\r\n100.\r\n1.\r\n2.\r\n3.");
  std::filesystem::remove(path);
  EXPECT_TRUE(day_.StartDayIfNew());
  EXPECT_EQ(Read("bilans.ASC"), "5.3.2026");
}

TEST_F(DayBalanceTest, ANewDayStartsFromExactlyNothing) {
  Write("bilans.ASC", "4.3.2026\r\n100.\r\n1.5\r\n2.\r\n30.");
  Write("z1.ASC", "3.");
  Write("z2.ASC", "0.24");
  Write("wykoda.txt", "4.3.2026;100.;1.5;2.;30.;\r\n");
  EXPECT_EQ(day_.ReadTotals(), DayTotals{});
  EXPECT_EQ(day_.ReadExchanges(), DayExchanges{});
  EXPECT_EQ(Read("bilans.ASC"), "5.3.2026");
  EXPECT_EQ(Read("z1.ASC"), "");
  EXPECT_EQ(Read("z2.ASC"), "");
  EXPECT_EQ(Read("wykoda.txt"), "4.3.2026;100.;1.5;2.;30.;\r\n");
}

TEST_F(DayBalanceTest, TheSameDayKeepsItsExchanges) {
  Write("bilans.ASC", "5.3.2026");
  Write("z1.ASC", "3.");
  EXPECT_TRUE(day_.StartDayIfNew());
  EXPECT_EQ(Read("z1.ASC"), "3.");
}

TEST_F(DayBalanceTest, TheFirstChangeOfANewDayLeavesExactlyThatFood) {
  Write("bilans.ASC", "4.3.2026\r\n100.\r\n1.5\r\n2.\r\n30.");
  Write("z1.ASC", "3.");
  Write("z2.ASC", "0.24");
  EXPECT_TRUE(day_.Add({70, 1.75, 1, 13.5}, DayExchanges{1.35, 0.16}));
  EXPECT_EQ(Read("bilans.ASC"), "5.3.2026\r\n70.\r\n1.75\r\n1.\r\n13.5");
  EXPECT_EQ(Read("z1.ASC"), "1.35");
  EXPECT_EQ(Read("z2.ASC"), "0.16");
  EXPECT_EQ(Read("wykoda.txt"), "5.3.2026;70.;1.75;1.;13.5;\r\n");
}

TEST_F(DayBalanceTest, AnEmptyBalanceIsANewDay) {
  Write("bilans.ASC", "");
  Write("z1.ASC", "3.");
  EXPECT_TRUE(day_.Add({70, 1.75, 1, 13.5}));
  EXPECT_EQ(Read("bilans.ASC"), "5.3.2026\r\n70.\r\n1.75\r\n1.\r\n13.5");
  EXPECT_EQ(Read("z1.ASC"), "");
}

TEST_F(DayBalanceTest, ChangesAddUp) {
  EXPECT_TRUE(day_.Add({70, 1.75, 1, 13.5}));
  EXPECT_TRUE(day_.Add({1780.5, 70.75, 59.25, 217.25}));
  EXPECT_EQ(Read("bilans.ASC"), "5.3.2026\r\n1850.5\r\n72.5\r\n60.25\r\n230.75");
  EXPECT_EQ(Read("wykoda.txt"), "5.3.2026;1850.5;72.5;60.25;230.75;\r\n");
  EXPECT_TRUE(day_.TakeOff({1780.5, 70.75, 59.25, 217.25}));
  EXPECT_EQ(Read("bilans.ASC"), "5.3.2026\r\n70.\r\n1.75\r\n1.\r\n13.5");
}

TEST_F(DayBalanceTest, NoFigureFallsBelowNothing) {
  EXPECT_TRUE(day_.Add({70, 1.75, 1, 13.5}));
  EXPECT_TRUE(day_.TakeOff({70.5, 1.75, 2, 13}));
  EXPECT_EQ(Read("bilans.ASC"), "5.3.2026\r\n0.\r\n0.\r\n0.\r\n0.5");
  EXPECT_EQ(Read("wykoda.txt"), "5.3.2026;0.;0.;0.;0.5;\r\n");
  EXPECT_TRUE(day_.Add({}, DayExchanges{1, 2}));
  EXPECT_TRUE(day_.TakeOff({}, DayExchanges{1.5, 1.5}));
  EXPECT_EQ(Read("z1.ASC"), "0.");
  EXPECT_EQ(Read("z2.ASC"), "0.5");
}

// It would be read as nothing, too.
TEST_F(DayBalanceTest, ATotalBeyondEveryRangeIsWrittenAsNothing) {
  Write("bilans.ASC", "5.3.2026\r\n1e999\r\n1e308\r\n3\r\n4");
  Write("z1.ASC", "1e999");
  EXPECT_TRUE(day_.Add({1, 1e308, 1, 1}, DayExchanges{1, 1}));
  EXPECT_EQ(Read("bilans.ASC"), "5.3.2026\r\n0.\r\n0.\r\n4.\r\n5.");
  EXPECT_EQ(Read("z1.ASC"), "0.");
}

TEST_F(DayBalanceTest, AddingSumsPlainlyBelowNothingToo) {
  EXPECT_TRUE(day_.Add({-50, 0.0005, -0.0005, 1}, DayExchanges{-2.5, 1}));
  EXPECT_EQ(Read("bilans.ASC"), "5.3.2026\r\n-50.\r\n0.0005\r\n-0.0005\r\n1.");
  EXPECT_EQ(Read("z1.ASC"), "-2.5");
  EXPECT_EQ(Read("wykoda.txt"), "5.3.2026;-50.;0.0005;-0.0005;1.;\r\n");
  EXPECT_TRUE(day_.Add({20, 0, 0, -3}, DayExchanges{0.5, -4}));
  EXPECT_EQ(Read("bilans.ASC"), "5.3.2026\r\n-30.\r\n0.0005\r\n-0.0005\r\n-2.");
  EXPECT_EQ(Read("z1.ASC"), "-2.");
  EXPECT_EQ(Read("z2.ASC"), "-3.");
  EXPECT_TRUE(day_.TakeOff({-30, 0, 0, -2}, DayExchanges{-2, -2.5}));
  EXPECT_EQ(Read("bilans.ASC"), "5.3.2026\r\n0.\r\n0.\r\n0.\r\n0.");
  EXPECT_EQ(Read("z1.ASC"), "0.");
  EXPECT_EQ(Read("z2.ASC"), "0.");
}

// Eight digits are written: taking off again what was added can leave a rest in the last of them.
TEST_F(DayBalanceTest, ARestOfRoundingIsNothing) {
  Write("bilans.ASC", "5.3.2026\r\n0.0009\r\n0.0011\r\n12345.678\r\n12345.678");
  Write("z1.ASC", "0.00009");
  Write("z2.ASC", "0.00011");
  EXPECT_TRUE(day_.TakeOff({0, 0, 12345.669, 12345.667}, DayExchanges{}));
  EXPECT_EQ(Read("bilans.ASC"), "5.3.2026\r\n0.\r\n0.0011\r\n0.\r\n0.011");
  EXPECT_EQ(Read("z1.ASC"), "0.");
  EXPECT_EQ(Read("z2.ASC"), "0.00011");
}

// Written as 1.2345678e-05 it would be read back as 1.23456 by who reads eight characters.
TEST_F(DayBalanceTest, AnExchangeHasNoExponent) {
  EXPECT_TRUE(day_.Add({}, DayExchanges{0.000012345678, -0.000012345678}));
  EXPECT_EQ(Read("z1.ASC"), "0.");
  EXPECT_EQ(Read("z2.ASC"), "0.");
  EXPECT_TRUE(day_.Add({}, DayExchanges{0.00012345678, 0}));
  EXPECT_EQ(day_.ReadExchanges(), (DayExchanges{0.000123, 0}));
}

TEST_F(DayBalanceTest, TotalsHaveEightDigitsInTheBalanceAndSixInTheSeries) {
  EXPECT_TRUE(day_.Add({1234.567891234, 0.1, 0.2, 12345678.9}));
  EXPECT_EQ(Read("bilans.ASC"), "5.3.2026\r\n1234.5679\r\n0.1\r\n0.2\r\n12345679.");
  EXPECT_EQ(Read("wykoda.txt"), "5.3.2026;1234.57;0.1;0.2;1.23457e+07;\r\n");
}

TEST_F(DayBalanceTest, OfAnExchangeFileEightCharactersCount) {
  Write("bilans.ASC", "5.3.2026");
  Write("z1.ASC", "1.23456789");
  Write("z2.ASC", "\r\n5");
  EXPECT_EQ(day_.ReadExchanges(), (DayExchanges{1.234567, 0}));
  EXPECT_TRUE(day_.Add({}, DayExchanges{1, 1}));
  EXPECT_EQ(Read("z1.ASC"), "2.234567");
  EXPECT_EQ(Read("z2.ASC"), "1.");
}

TEST_F(DayBalanceTest, MissingAndJunkExchangeFilesCountAsNothing) {
  Write("bilans.ASC", "5.3.2026");
  Write("z2.ASC", "junk\0 5"s);
  EXPECT_EQ(day_.ReadExchanges(), DayExchanges{});
  EXPECT_TRUE(day_.Add({}, DayExchanges{1.5, 2.5}));
  EXPECT_EQ(Read("z1.ASC"), "1.5");
  EXPECT_EQ(Read("z2.ASC"), "2.5");
}

TEST_F(DayBalanceTest, MakingExchangeFilesKeepsThoseThatAreThere) {
  Write("z1.ASC", "1.5");
  day_.MakeExchangeFiles();
  EXPECT_EQ(Read("z1.ASC"), "1.5");
  EXPECT_EQ(Read("z2.ASC"), "");
}

TEST_F(DayBalanceTest, HostileBalancesReadAsTheirLinesSay) {
  const auto totals = [this](std::string_view bytes) {
    Write("bilans.ASC", bytes);
    return day_.ReadTotals();
  };
  EXPECT_EQ(totals("5.3.2026"), DayTotals{});
  EXPECT_EQ(totals("5.3.2026\n100.\n1.5\n2.\n30."), (DayTotals{100, 1.5, 2, 30}));
  EXPECT_EQ(totals("5.3.2026\r\n100,5\r\n\r\nabc\r\n-5\r\n99"), (DayTotals{100, 0, 0, -5}));
  EXPECT_EQ(totals("5.3.2026\r\n1\0002\r\n7\r\n"s), (DayTotals{1, 7, 0, 0}));
  EXPECT_EQ(totals("5.3.2026\r\n" + std::string(98, ' ') + "5\r\n6\r\n"), (DayTotals{5, 0, 6, 0}))
      << "a line is read in pieces of 99 characters";
  EXPECT_EQ(totals("5.3.2026\r\n" + std::string(100'000, '9')),
            (DayTotals{1e99, 1e99, 1e99, 1e99}));
}

TEST_F(DayBalanceTest, ClearLeavesTheDateAndNothingEaten) {
  Write("bilans.ASC", "5.3.2026\r\n100.\r\n1.5\r\n2.\r\n30.");
  Write("z1.ASC", "3.");
  Write("wykoda.txt", "4.3.2026;100.;1.5;2.;30.;\r\n5.3.2026;100.;1.5;2.;30.;\r\n");
  EXPECT_TRUE(day_.Clear());
  EXPECT_EQ(Read("bilans.ASC"), "5.3.2026");
  EXPECT_EQ(Read("z1.ASC"), "0");
  EXPECT_EQ(Read("z2.ASC"), "0");
  EXPECT_EQ(Read("wykoda.txt"), "4.3.2026;100.;1.5;2.;30.;\r\n5.3.2026;0.;0.;0.;0.;\r\n");
}

TEST_F(DayBalanceTest, OtherFilesStay) {
  Write("waga.ASC", "kept");
  EXPECT_EQ(After("4.3.2026\r\n100."), "5.3.2026");
  EXPECT_EQ(NamesOfFiles(), (Names{"bilans.ASC", "waga.ASC"}));
}

}  // namespace
}  // namespace velnor

#include "activity/burned_calories.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "base/text_file.h"
#include "tests/support/temporary_folder.h"

namespace velnor {
namespace {

using namespace std::string_literals;
using Names = std::vector<std::string>;

TEST(CountBurnedTest, FactorTimesMinutes) {
  const Burned sitting = CountBurned("sitting", "30");
  EXPECT_EQ(sitting.kcal, 9.0F);
  EXPECT_EQ(sitting.KcalText(), "9.");
  EXPECT_EQ(sitting.FatText(), "0.771428585");
  const Burned cooking = CountBurned("cooking", "1");
  EXPECT_EQ(cooking.kcal, 1.75F);
  EXPECT_EQ(cooking.KcalText(), "1.75");
  EXPECT_EQ(cooking.FatText(), "0.150000006");
}

TEST(CountBurnedTest, WhatIsUnknownBurnsNothing) {
  for (const auto& [activity, minutes] : {std::pair{"", "30"},
                                          {"sleeping in", "30"},
                                          {"sitting", ""},
                                          {"sitting", "abc"},
                                          {"sitting", "0"}}) {
    EXPECT_EQ(CountBurned(activity, minutes).KcalText(), "0.") << activity << ' ' << minutes;
    EXPECT_EQ(CountBurned(activity, minutes).FatText(), "0.") << activity << ' ' << minutes;
  }
}

TEST(CountBurnedTest, TheLeadingNumberCounts) {
  EXPECT_EQ(CountBurned("swimming", "12,5").KcalText(), "120.");
  EXPECT_EQ(CountBurned("swimming", " 12.5 min").KcalText(), "125.");
  EXPECT_EQ(CountBurned("swimming", "-3").KcalText(), "-30.");
  EXPECT_EQ(CountBurned("swimming", "-3").FatText(), "-2.57142854");
}

// Minutes are held in single precision before they are multiplied, and so is the product before
// the fat is taken from it.
TEST(CountBurnedTest, IsSinglePrecision) {
  EXPECT_EQ(CountBurned("sleeping", "0.1").KcalText(), "0.100000001");
  EXPECT_EQ(CountBurned("golf", "0.1").KcalText(), "0.420000017");  // not ...9999987
  EXPECT_EQ(CountBurned("sleeping", "16777217").KcalText(), "16777216.");
  EXPECT_EQ(CountBurned("sitting", "1").KcalText(), "0.300000012");
  EXPECT_EQ(CountBurned("swimming", "1e38").kcal, std::numeric_limits<float>::infinity());
  EXPECT_EQ(CountBurned("swimming", "1e38").KcalText(), "inf");
  EXPECT_EQ(CountBurned("sleeping", "1e38").FatText(), "8.57142806e+36");
}

// The day's total of Ann, on 7.3.2008 unless the test says otherwise.
class BurnedTotalTest : public testing::Test {
 protected:
  BurnedTotalTest() {
    std::filesystem::create_directory(folder_.path() + "Ann");
    session_.user = UserFolder::In(folder_.path(), "Ann");
    session_.base_folder = folder_.path();
    session_.date_text = "7.3.2008";
  }
  void Write(std::string_view bytes) const { folder_.Write("Ann/erg.txt", bytes); }
  std::string File() const { return folder_.Read("Ann/erg.txt"); }
  std::string Path() const { return folder_.path() + "Ann/erg.txt"; }

  TemporaryFolder folder_;
  SessionState session_;
  BurnedTotal total_{session_};
};

TEST_F(BurnedTotalTest, IsNothingBeforeAnythingWasRead) {
  Write("7.3.2008;120.;");
  EXPECT_EQ(total_.kcal(), 0.0F);
}

TEST_F(BurnedTotalTest, AMissingFileIsMadeEmpty) {
  EXPECT_EQ(total_.RefreshForToday(), "");
  EXPECT_EQ(total_.kcal(), 0.0F);
  EXPECT_EQ(File(), "");
  std::filesystem::remove(Path());
  EXPECT_EQ(total_.Refresh(), "");
  EXPECT_EQ(File(), "");
  EXPECT_EQ(folder_.Names(), Names{"Ann"});
}

TEST_F(BurnedTotalTest, IsReadAsItStands) {
  Write("7.3.2008;120;");
  EXPECT_EQ(total_.RefreshForToday(), "120");
  EXPECT_EQ(total_.kcal(), 120.0F);
  EXPECT_EQ(File(), "7.3.2008;120;");
  Write("7.3.2008;0.1 kcal;");
  EXPECT_EQ(total_.RefreshForToday(), "0.1 kcal");
  EXPECT_EQ(total_.kcal(), 0.1F);
}

TEST_F(BurnedTotalTest, ReadingWhateverTheDayLeavesTheFile) {
  Write("1.1.1999;77.5;");
  EXPECT_EQ(total_.Refresh(), "77.5");
  EXPECT_EQ(total_.kcal(), 77.5F);
  EXPECT_EQ(File(), "1.1.1999;77.5;");
}

TEST_F(BurnedTotalTest, TheSameDayOfAnotherYearIsTheSameDay) {
  Write("7.3.2008;120;");
  session_.date_text = "7.3.2009";
  EXPECT_EQ(total_.RefreshForToday(), "120");
  EXPECT_EQ(File(), "7.3.2008;120;");
  session_.date_text = "7.3.2099";
  EXPECT_EQ(total_.RefreshForToday(), "120");
  session_.date_text = "7.3.2108";
  EXPECT_EQ(total_.RefreshForToday(), "120");
  EXPECT_EQ(File(), "") << "the sixth character differs";
}

// Of longer dates less of the year is compared: of the longest ones nothing.
TEST_F(BurnedTotalTest, SixCharactersOfLongDatesReachAsFarAsTheYear) {
  session_.date_text = "16.11.2026";
  Write("16.11.1999;5;");
  total_.RefreshForToday();
  EXPECT_EQ(File(), "16.11.1999;5;");
  Write("16.12.2026;5;");
  total_.RefreshForToday();
  EXPECT_EQ(File(), "");
  session_.date_text = "16.1.2026";
  Write("16.1.1999;5;");
  total_.RefreshForToday();
  EXPECT_EQ(File(), "") << "the first digit of the year differs";
}

TEST_F(BurnedTotalTest, YesterdaysTotalIsKnownOnceMore) {
  Write("7.3.2008;120.;");
  session_.date_text = "8.3.2008";
  EXPECT_EQ(total_.RefreshForToday(), "120.");
  EXPECT_EQ(total_.kcal(), 120.0F);
  EXPECT_EQ(File(), "");
  EXPECT_EQ(total_.RefreshForToday(), "");
  EXPECT_EQ(total_.kcal(), 0.0F);
  EXPECT_EQ(File(), "");
}

TEST_F(BurnedTotalTest, AddsToTheDay) {
  EXPECT_EQ(total_.Add("9."), "9.");
  EXPECT_EQ(File(), "7.3.2008;9.;");
  Write("7.3.2008;120;");
  EXPECT_EQ(total_.Add("9"), "129.");
  EXPECT_EQ(total_.kcal(), 129.0F);
  EXPECT_EQ(File(), "7.3.2008;129.;");
  EXPECT_EQ(total_.Add("9"), "138.");
  EXPECT_EQ(total_.Add("-40.5"), "97.5");
  EXPECT_EQ(total_.Add(""), "97.5");
  EXPECT_EQ(total_.Add("abc"), "97.5");
  EXPECT_EQ(File(), "7.3.2008;97.5;");
  EXPECT_EQ(folder_.Names(), Names{"Ann"});
}

// The file tells what was burned, not the total of some earlier reading.
TEST_F(BurnedTotalTest, AddsToWhatTheFileHolds) {
  Write("7.3.2008;120;");
  total_.RefreshForToday();
  Write("7.3.2008;50;");
  EXPECT_EQ(total_.Add("9"), "59.");
}

TEST_F(BurnedTotalTest, AnOldTotalIsAddedToAndDatedToday) {
  Write("6.3.2008;120;");
  EXPECT_EQ(total_.Add("9"), "129.");
  EXPECT_EQ(File(), "7.3.2008;129.;");
}

TEST_F(BurnedTotalTest, AddingOnTheSameDayOfAnotherYearDatesTheFileToday) {
  Write("7.3.2007;120;");
  EXPECT_EQ(total_.RefreshForToday(), "120");
  EXPECT_EQ(total_.Add("9"), "129.");
  EXPECT_EQ(File(), "7.3.2008;129.;");
}

// A day after the other, each seen by the screen before something is added.
TEST_F(BurnedTotalTest, DaysFollowEachOther) {
  total_.RefreshForToday();
  total_.Add("100");
  session_.date_text = "8.3.2008";
  EXPECT_EQ(total_.RefreshForToday(), "100.");
  EXPECT_EQ(total_.Add("25"), "25.");
  EXPECT_EQ(File(), "8.3.2008;25.;");
  session_.date_text = "8.3.2009";
  EXPECT_EQ(total_.RefreshForToday(), "25.");
  EXPECT_EQ(total_.Add("25"), "50.");
  EXPECT_EQ(File(), "8.3.2009;50.;");
  session_.date_text = "18.3.2009";
  total_.RefreshForToday();
  EXPECT_EQ(total_.RefreshForToday(), "");
}

// The total is single precision, which fifteen digits show; what is read back are fourteen
// characters of them.
TEST_F(BurnedTotalTest, CarriesTheNoiseOfSinglePrecision) {
  EXPECT_EQ(total_.Add("123.4"), "123.400001525879");
  EXPECT_EQ(File(), "7.3.2008;123.400001525879;");
  EXPECT_EQ(total_.RefreshForToday(), "123.4000015258");
  EXPECT_EQ(total_.kcal(), 123.4F);
  EXPECT_EQ(total_.Add("0"), "123.400001525879");
}

// Both numbers are added in double precision: in single precision the first is 16777216, to which
// 0.02 adds nothing.
TEST_F(BurnedTotalTest, TakingAnEntryBackLeavesNothing) {
  for (const char* const burned : {"0.300000012", "123.400002", "9", "0.0123456789"}) {
    total_.Clear();
    total_.Add(burned);
    EXPECT_EQ(total_.Add('-' + std::string(burned)), "0.") << burned;
    EXPECT_EQ(total_.kcal(), 0) << burned;
  }
  EXPECT_EQ(total_.Add("0.0001"), "0.") << "9.99999974737875e-05 could not be read again";
  EXPECT_EQ(total_.Add("0.00011"), "0.000110000000859145");
}

TEST_F(BurnedTotalTest, IsRoundedOnceOnly) {
  Write("7.3.2008;16777216.99;");
  EXPECT_EQ(total_.Add("0.02"), "16777218.");
}

TEST_F(BurnedTotalTest, AnInfiniteTotalStartsAgain) {
  EXPECT_EQ(total_.Add("1e39"), "inf");
  EXPECT_EQ(File(), "7.3.2008;inf;");
  EXPECT_EQ(total_.RefreshForToday(), "inf");
  EXPECT_EQ(total_.kcal(), 0.0F);
  EXPECT_EQ(total_.Add("9"), "9.");
}

TEST_F(BurnedTotalTest, ClearEmptiesTheFile) {
  Write("7.3.2008;120;");
  total_.RefreshForToday();
  total_.Clear();
  EXPECT_EQ(total_.kcal(), 0.0F);
  EXPECT_EQ(File(), "");
  std::filesystem::remove(Path());
  total_.Clear();
  EXPECT_EQ(File(), "");
  EXPECT_EQ(total_.RefreshForToday(), "");
}

TEST_F(BurnedTotalTest, EveryUserHasATotal) {
  std::filesystem::create_directory(folder_.path() + "Bob");
  total_.Add("9");
  session_.user = UserFolder::In(folder_.path(), "Bob");
  EXPECT_EQ(total_.RefreshForToday(), "");
  total_.Add("5");
  EXPECT_EQ(File(), "7.3.2008;9.;");
  EXPECT_EQ(folder_.Read("Bob/erg.txt"), "7.3.2008;5.;");
}

// A repaint behind the login dialog finds nobody: no file comes of it.
TEST_F(BurnedTotalTest, LookingWithoutAUserMakesNoFile) {
  session_.user.reset();
  EXPECT_EQ(total_.RefreshForToday(), "");
  EXPECT_EQ(total_.Refresh(), "");
  EXPECT_EQ(folder_.Names(), Names{"Ann"});
}

struct Hostile {
  std::string bytes;
  std::string shown;
  std::string after_looking;
  std::string after_adding_nine;
};

TEST_F(BurnedTotalTest, HostileFiles) {
  const std::string big(100'000, '7');
  const std::string day = "7.3.2008;";
  const std::vector<Hostile> cases = {
      {"", "", "", "9."},
      {";", "", "", "9."},
      {";;;;", "", "", "9."},
      {";120;", "120", "", "129."},
      {"\r\n7.3.2008;120;", "", "", "9."},
      {"\n", "", "", "9."},
      {"7.3.2008", "", "7.3.2008", "9."},
      {"7.3.2008;120", "120", "7.3.2008;120", "129."},
      {"7.3.2008;120;\r\n", "120", "7.3.2008;120;\r\n", "129."},
      {"7.3.2008;120\n;", "120", "7.3.2008;120\n;", "129."},
      {"7.3.20", "", "7.3.20", "9."},
      {"7.3.2", "", "", "9."},
      {"7.3.2;120;", "120", "", "129."},
      {"7.3.2008;;120;", "", "7.3.2008;;120;", "9."},
      {"7.3.2008;x;120;", "x", "7.3.2008;x;120;", "9."},
      {"7.3.2008;120;90;", "120", "7.3.2008;120;90;", "129."},
      {" 7.3.2008;120;", "120", "", "129."},
      {"no semicolon at all", "", "", "9."},
      {"7.3.2008;12\0000;"s, "12", "7.3.2008;12\0000;"s, "21."},
      {"7.3\0002008;120;"s, "", "", "9."},
      {std::string(100, '\0'), "", "", "9."},
      {"\xFF\xFE\x80;\xFF;", "\xFF", "", "9."},
      {big, "", "", "9."},
      {day + big, std::string(14, '7'), day + big, "77777780867072."},
      {"7.3.2008" + big + ";120;", "", "7.3.2008" + big + ";120;", "9."},
      // The second field begins at the 49th character, the last that is read, or behind it.
      {day.substr(0, 8) + std::string(39, ' ') + ";1234;", "1",
       day.substr(0, 8) + std::string(39, ' ') + ";1234;", "10."},
      {day.substr(0, 8) + std::string(40, ' ') + ";1234;", "",
       day.substr(0, 8) + std::string(40, ' ') + ";1234;", "9."},
      {day.substr(0, 8) + std::string(36, ' ') + ";120\r\n", "120",
       day.substr(0, 8) + std::string(36, ' ') + ";120\r\n", "129."},
      {day + std::string(13, ' ') + "1234;", std::string(13, ' ') + "1",
       day + std::string(13, ' ') + "1234;", "10."},
  };
  for (const Hostile& hostile : cases) {
    SCOPED_TRACE(hostile.bytes.substr(0, 60));
    Write(hostile.bytes);
    EXPECT_EQ(total_.RefreshForToday(), hostile.shown);
    EXPECT_EQ(File(), hostile.after_looking);
    Write(hostile.bytes);
    EXPECT_EQ(total_.Add("9"), hostile.after_adding_nine);
    EXPECT_EQ(File(), day + hostile.after_adding_nine + ";");
  }
}

// A link to itself can be replaced but not read, as a file that somebody has locked for a moment.
TEST_F(BurnedTotalTest, WhatCannotBeReadIsNotOverwritten) {
  std::filesystem::create_symlink(Path(), Path());
  EXPECT_EQ(total_.RefreshForToday(), "");
  EXPECT_EQ(total_.Refresh(), "");
  EXPECT_EQ(total_.Add("9"), "9.");
  EXPECT_EQ(total_.kcal(), 9.0F);
  EXPECT_TRUE(std::filesystem::is_symlink(Path()));
}

TEST_F(BurnedTotalTest, WithoutTheFolderNothingIsKept) {
  session_.user = UserFolder::In(folder_.path(), "Zoe");
  EXPECT_EQ(total_.RefreshForToday(), "");
  EXPECT_EQ(total_.Add("9"), "9.");
  EXPECT_EQ(total_.RefreshForToday(), "");
  total_.Clear();
  EXPECT_EQ(folder_.Names(), Names{"Ann"});
}

// Nothing can be written into the folder: the file keeps what it holds.
TEST_F(BurnedTotalTest, AReadOnlyFileKeepsItsBytes) {
  Write("6.3.2008;120;");
  std::filesystem::create_directory(TemporaryPath(Path()));
  EXPECT_EQ(total_.RefreshForToday(), "120");
  EXPECT_EQ(total_.RefreshForToday(), "120");
  EXPECT_EQ(total_.Add("9"), "129.");
  EXPECT_EQ(File(), "6.3.2008;120;");
  EXPECT_EQ(total_.RefreshForToday(), "120");
  EXPECT_EQ(total_.kcal(), 120.0F);
}

}  // namespace
}  // namespace velnor

#include "users/profile.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/committed.h"
#include "tests/support/temporary_folder.h"

namespace velnor {
namespace {

using namespace std::string_literals;

const ProfileLines kAnn = {"35", "170", "women", "very high", "suckling mother"};

class ProfileTest : public testing::Test {
 protected:
  std::string Path() const { return folder_.path() + "info.ASC"; }
  std::string Bytes() const { return folder_.Read("info.ASC"); }
  ProfileLines Read(std::string_view bytes) const {
    return ReadProfileLines(folder_.Write("info.ASC", bytes));
  }

  TemporaryFolder folder_;
};

TEST_F(ProfileTest, WritesFiveLinesWithoutAnEndBehindTheLast) {
  EXPECT_TRUE(Committed(folder_.path(), WriteProfileLines, Path(), kAnn));
  EXPECT_EQ(Bytes(), "35\r\n170\r\nwomen\r\nvery high\r\nsuckling mother");
}

TEST_F(ProfileTest, WritesAZeroForWhatIsEmpty) {
  EXPECT_TRUE(Committed(folder_.path(), WriteProfileLines, Path(), ProfileLines{}));
  EXPECT_EQ(Bytes(), "0\r\n0\r\n0\r\n0\r\n0");
  EXPECT_TRUE(Committed(folder_.path(), WriteProfileLines, Path(),
                        ProfileLines{"", "1.75x", "men", "", "\xB9"}));
  EXPECT_EQ(Bytes(), "0\r\n1.75x\r\nmen\r\n0\r\n\xB9");
}

TEST_F(ProfileTest, WhatCannotBeWrittenIsReported) {
  EXPECT_FALSE(
      Committed(folder_.path(), WriteProfileLines, folder_.path() + "missing/info.ASC", kAnn));
  EXPECT_EQ(folder_.Names(), std::vector<std::string>{});
}

TEST_F(ProfileTest, WritesLinesAsLongAsTheyAre) {
  const std::string line(100, 'x');
  EXPECT_TRUE(Committed(folder_.path(), WriteProfileLines, Path(),
                        ProfileLines{line, line, "men", "low", "none"}));
  EXPECT_EQ(Bytes(), line + "\r\n" + line + "\r\nmen\r\nlow\r\nnone");
}

TEST_F(ProfileTest, EveryLineEndWillDo) {
  EXPECT_EQ(Read("35\r\n170\r\nwomen\r\nvery high\r\nsuckling mother"), kAnn);
  EXPECT_EQ(Read("35\n170\nwomen\nvery high\nsuckling mother"), kAnn);
  EXPECT_EQ(Read("35\r\n170\nwomen\r\nvery high\nsuckling mother\r\n"), kAnn);
  EXPECT_EQ(Read("3\r5\n\r170\r\r\nwomen\nvery high\nsuckling mother\r"), kAnn);
}

TEST_F(ProfileTest, MissingLinesAreEmpty) {
  EXPECT_EQ(ReadProfileLines(Path()), ProfileLines{});
  EXPECT_EQ(ReadProfileLines(folder_.path()), ProfileLines{});
  EXPECT_EQ(Read(""), ProfileLines{});
  EXPECT_EQ(Read("35"), (ProfileLines{"35"}));
  EXPECT_EQ(Read("35\r\n\r\nmen\r\n"), (ProfileLines{"35", "", "men"}));
}

TEST_F(ProfileTest, FiveLinesCount) {
  EXPECT_EQ(Read("35\n170\nwomen\nvery high\nsuckling mother\nmore\nand more\n"), kAnn);
}

TEST_F(ProfileTest, ALineIsReadInPiecesOfNinetyNineCharacters) {
  // The line end is one of them.
  const std::string line(98, 'x');
  EXPECT_EQ(Read(line + "\r\n170\n"), (ProfileLines{line, "170"}));
  EXPECT_EQ(Read(line + "y\r\n170\n"), (ProfileLines{line + "y", "", "170"}));
  EXPECT_EQ(Read(line + "yz\r\n170\n"), (ProfileLines{line + "y", "z", "170"}));
  const std::string piece(99, 'q');
  EXPECT_EQ(Read(std::string(10'000, 'q')), (ProfileLines{piece, piece, piece, piece, piece}));
  // Five of the longest lines that come in one piece each.
  EXPECT_EQ(Read(line + "\r\n" + line + "\r\n" + line + "\r\n" + line + "\r\n" + line + "\r\n"),
            (ProfileLines{line, line, line, line, line}));
}

TEST_F(ProfileTest, NulsEndALineAndOtherBytesAreKept) {
  EXPECT_EQ(Read("35\0 years\r\n170\0\n\0men\n\xFF\x01\x1A\n"s),
            (ProfileLines{"35", "170", "", "\xFF\x01\x1A"}));
}

TEST_F(ProfileTest, ReadsBackWhatWasWritten) {
  ASSERT_TRUE(Committed(folder_.path(), WriteProfileLines, Path(), kAnn));
  EXPECT_EQ(ReadProfileLines(Path()), kAnn);
  ASSERT_TRUE(Committed(folder_.path(), WriteProfileLines, Path(), ProfileLines{}));
  EXPECT_EQ(ReadProfileLines(Path()), (ProfileLines{"0", "0", "0", "0", "0"}));
}

TEST(ProfileOfLinesTest, TakesTheLinesInOrder) {
  const UserProfile profile = ProfileOf(kAnn);
  EXPECT_EQ(profile.age, "35");
  EXPECT_EQ(profile.height, "170");
  EXPECT_EQ(profile.sex, "women");
  EXPECT_EQ(profile.life_style, "very high");
  EXPECT_EQ(profile.other, "suckling mother");
}

TEST(ProfileOfLinesTest, TakesAgeAndHeightOnlyWhenTheyAreNumbers) {
  for (const char* const text : {"", "0", "abc", "x35", "0.9", "-0", "000"}) {
    EXPECT_EQ(ProfileOf({text, "170"}).age, "") << text;
    EXPECT_EQ(ProfileOf({text, "170"}).height, "170") << text;
    EXPECT_EQ(ProfileOf({"35", text}).age, "35") << text;
    EXPECT_EQ(ProfileOf({"35", text}).height, "") << text;
  }
  for (const char* const text : {"35", " 35x", "35.5", "-1", "007"}) {
    EXPECT_EQ(ProfileOf({text, "0"}).age, text);
    EXPECT_EQ(ProfileOf({"0", text}).height, text);
  }
}

TEST(ProfileOfLinesTest, TakesTheOthersAsTheyAre) {
  const UserProfile profile = ProfileOf({"1", "1", "0", "x", ""});
  EXPECT_EQ(profile.sex, "0");
  EXPECT_EQ(profile.life_style, "x");
  EXPECT_EQ(profile.other, "");
}

TEST(ProfileOfLinesTest, CutsTextsToTwentyNineCharacters) {
  const std::string number = "12" + std::string(27, '0');
  const std::string word(29, 'w');
  const UserProfile whole = ProfileOf({number, number, word, word, word});
  EXPECT_EQ(whole.age, number);
  EXPECT_EQ(whole.sex, word);
  const UserProfile cut =
      ProfileOf({number + "0", number + "0", word + "x", word + "x", word + "x"});
  EXPECT_EQ(cut.age, number);
  EXPECT_EQ(cut.height, number);
  EXPECT_EQ(cut.sex, word);
  EXPECT_EQ(cut.life_style, word);
  EXPECT_EQ(cut.other, word);
}

TEST(UserProfileTest, IsCompleteWithFourOfItsFive) {
  const UserProfile complete = {"35", "170", "men", "low", ""};
  EXPECT_TRUE(IsComplete(complete));
  EXPECT_TRUE(IsComplete({" 35x", "1.7", "xyz", "xyz", "none"}));
  EXPECT_FALSE(IsComplete({}));
  for (const char* const text : {"", "0", "abc", "0.9"}) {
    UserProfile profile = complete;
    profile.age = text;
    EXPECT_FALSE(IsComplete(profile)) << text;
    profile = complete;
    profile.height = text;
    EXPECT_FALSE(IsComplete(profile)) << text;
  }
  for (const char* const text : {"", "0", "me"}) {
    UserProfile profile = complete;
    profile.sex = text;
    EXPECT_FALSE(IsComplete(profile)) << text;
    profile = complete;
    profile.life_style = text;
    EXPECT_FALSE(IsComplete(profile)) << text;
  }
}

TEST(UserProfileTest, SexAndOtherAreToldByTheirLetters) {
  const auto of_sex = [](const char* sex) { return UserProfile{.sex = sex}; };
  EXPECT_TRUE(of_sex("men").IsMan());
  EXPECT_FALSE(of_sex("men").IsWoman());
  EXPECT_TRUE(of_sex("women").IsWoman());
  EXPECT_FALSE(of_sex("women").IsMan());
  EXPECT_FALSE(of_sex("").IsMan());
  EXPECT_FALSE(of_sex("").IsWoman());
  EXPECT_FALSE(of_sex("Men").IsMan());

  const auto of_other = [](const char* other) { return UserProfile{.other = other}; };
  for (const std::string_view other : {"pregnant", "suckling mother", "athlete", "none", "0", ""}) {
    const UserProfile profile = of_other(other.data());
    EXPECT_EQ(profile.IsPregnant(), other == "pregnant") << other;
    EXPECT_EQ(profile.IsSucklingMother(), other == "suckling mother") << other;
    EXPECT_EQ(profile.IsAthlete(), other == "athlete") << other;
  }
  EXPECT_TRUE(of_other("xyzk").IsSucklingMother());
  EXPECT_FALSE(of_other("suc").IsSucklingMother());
}

}  // namespace
}  // namespace velnor

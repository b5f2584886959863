#include "activity/personal_limits.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/committed.h"
#include "tests/support/temporary_folder.h"

namespace velnor {
namespace {

using namespace std::string_literals;

constexpr std::string_view kTooSmall =
    "CAUTION!!\nAt least one of the lower limit is too SMALL!\nChange it";
constexpr std::string_view kTooBig =
    "CAUTION!!\nAt least one of the upper limit is too BIG!\nChange it";
constexpr std::string_view kCrossed =
    "CAUTION!!\nLower limit is bigger then upper limit!\nChange it";

const LimitTexts kNone = {};
const LimitTexts kGood = {"2000", "2500", "60", "70", "50", "80", "300", "400"};

class PersonalLimitsTest : public testing::Test {
 protected:
  std::string Path() const { return folder_.path() + "zapot.ASC"; }
  std::string Bytes() const { return folder_.Read("zapot.ASC"); }
  LimitTexts Read(std::string_view bytes) const {
    return ReadPersonalLimits(folder_.Write("zapot.ASC", bytes)).texts;
  }

  TemporaryFolder folder_;
};

TEST_F(PersonalLimitsTest, WritesAMarkAndTheEightTexts) {
  EXPECT_TRUE(Committed(folder_.path(), WritePersonalLimits, Path(), PersonalLimits{kGood}));
  EXPECT_EQ(Bytes(), "1\r\n2000\r\n2500\r\n60\r\n70\r\n50\r\n80\r\n300\r\n400\r\n");
  EXPECT_TRUE(Committed(folder_.path(), WritePersonalLimits, Path(),
                        PersonalLimits{{"1.5x", "", " 2", "1e3", "-1", ".", "0", "\xB9"}}));
  EXPECT_EQ(Bytes(), "1\r\n1.5x\r\n\r\n 2\r\n1e3\r\n-1\r\n.\r\n0\r\n\xB9\r\n");
}

TEST_F(PersonalLimitsTest, WritesThatThereAreNone) {
  ASSERT_TRUE(Committed(folder_.path(), WritePersonalLimits, Path(), PersonalLimits{kGood}));
  EXPECT_TRUE(Committed(folder_.path(), WriteNoLimits, Path()));
  EXPECT_EQ(Bytes(), "0\r\n");
  EXPECT_EQ(ReadPersonalLimits(Path()).texts, kNone);
}

TEST_F(PersonalLimitsTest, WhatCannotBeWrittenIsReported) {
  const std::string path = folder_.path() + "missing/zapot.ASC";
  EXPECT_FALSE(Committed(folder_.path(), WritePersonalLimits, path, PersonalLimits{kGood}));
  EXPECT_FALSE(Committed(folder_.path(), WriteNoLimits, path));
  EXPECT_EQ(folder_.Names(), std::vector<std::string>{});
}

TEST_F(PersonalLimitsTest, ReadsBackWhatWasWritten) {
  const LimitTexts texts = {"99999", "1.5x", "", " 2", "a b", "-1", "0", "9"};
  ASSERT_TRUE(Committed(folder_.path(), WritePersonalLimits, Path(), PersonalLimits{texts}));
  EXPECT_EQ(ReadPersonalLimits(Path()).texts, texts);
}

TEST_F(PersonalLimitsTest, EveryLineEndWillDo) {
  EXPECT_EQ(Read("1\n2000\n2500\n60\n70\n50\n80\n300\n400\n"), kGood);
  EXPECT_EQ(Read("1\r\n2000\r\n2500\r\n60\r\n70\r\n50\r\n80\r\n300\r\n400\r\n"), kGood);
  EXPECT_EQ(Read("1\r\n2000\n2500\r\n60\n70\r\n50\n80\r\n300\n400"), kGood);
  EXPECT_EQ(Read("1\n20\r00\n\r2500\r\r\n60\n70\n50\n80\n300\n400\r"), kGood);
}

TEST_F(PersonalLimitsTest, TheMarkDoesNotCount) {
  EXPECT_EQ(Read("0\n2000\n2500\n60\n70\n50\n80\n300\n400\n"), kGood);
  EXPECT_EQ(Read("\n2000\n2500\n60\n70\n50\n80\n300\n400\n"), kGood);
  EXPECT_EQ(Read("anything at all\n2000\n2500\n60\n70\n50\n80\n300\n400\n"), kGood);
}

TEST_F(PersonalLimitsTest, WhatIsNotThereIsEmpty) {
  const PersonalLimits missing = ReadPersonalLimits(Path());
  EXPECT_EQ(missing.texts, kNone);
  EXPECT_FALSE(std::filesystem::exists(Path()));
  EXPECT_EQ(ReadPersonalLimits(folder_.path()).texts, kNone);
  EXPECT_EQ(Read(""), kNone);
  EXPECT_EQ(Read("0\n"), kNone);
  EXPECT_EQ(Read("0\r\n"), kNone);
  EXPECT_EQ(Read("1"), kNone);
  EXPECT_EQ(Read("1\n2000\n\n60"), (LimitTexts{"2000", "", "60"}));
  for (std::size_t limit = 0; limit < kLimitCount; ++limit) EXPECT_EQ(missing.Number(limit), 0.0F);
}

TEST_F(PersonalLimitsTest, NineLinesCount) {
  EXPECT_EQ(Read("1\n2000\n2500\n60\n70\n50\n80\n300\n400\n5\n6\n7\n"), kGood);
  EXPECT_EQ(Read("\n\n\n\n\n\n\n\n\n5\n6\n7\n"), kNone);
}

TEST_F(PersonalLimitsTest, ATextHasRoomForNineCharacters) {
  EXPECT_EQ(Read("1\n123456789\nb\n"), (LimitTexts{"123456789", "b"}));
  EXPECT_EQ(Read("1\n123456789\n\nc\n"), (LimitTexts{"123456789", "", "c"}));
}

TEST_F(PersonalLimitsTest, ALongerTextGoesOnInTheNextPlace) {
  EXPECT_EQ(Read("1\n1234567890\n"), (LimitTexts{"1234567890"}));
  EXPECT_EQ(Read("1\n123456789012345\n"), (LimitTexts{"123456789012345", "12345"}));
  // A line written between leaves what stands behind its own place.
  EXPECT_EQ(Read("1\n1234567890abcdefghijABC\nb\n"), (LimitTexts{"1234567890b", "b", "ABC"}));
  EXPECT_EQ(Read("1\n1234567890abcdefghijABC\n"),
            (LimitTexts{"1234567890abcdefghijABC", "abcdefghijABC", "ABC"}));
}

TEST_F(PersonalLimitsTest, ALongerTextIsCutWhereTheNextLineIsWritten) {
  EXPECT_EQ(Read("1\n1234567890\n\nc\n"), (LimitTexts{"1234567890", "", "c"}));
  EXPECT_EQ(Read("1\n123456789012345\n\nc\n"), (LimitTexts{"1234567890", "", "c"}));
}

// Nothing stands between ten characters and the line in the next place.
TEST_F(PersonalLimitsTest, ALongerTextRunsIntoTheNextLine) {
  EXPECT_EQ(Read("1\n1234567890\nb\nc\n"), (LimitTexts{"1234567890b", "b", "c"}));
  EXPECT_EQ(Read("1\n123456789012345\nb\nc\n"), (LimitTexts{"1234567890b", "b", "c"}));
}

TEST_F(PersonalLimitsTest, ALongMarkGoesOnInTheFirstLimit) {
  EXPECT_EQ(Read("00000000002000\n"), (LimitTexts{"2000"}));
  EXPECT_EQ(Read("00000000002000\n5\n"), (LimitTexts{"5"}));
}

TEST_F(PersonalLimitsTest, TheLastTextMayBeAsLongAsALine) {
  const std::string first_eight = "1\n2000\n2500\n60\n70\n50\n80\n300\n";
  LimitTexts texts = kGood;
  for (const std::size_t length : {9U, 10U, 15U, 98U, 99U}) {
    texts.back() = std::string(length, '4');
    EXPECT_EQ(Read(first_eight + texts.back() + "\r\n"), texts) << length;
  }
  EXPECT_EQ(Read(first_eight + texts.back() + "5"), texts);
}

TEST_F(PersonalLimitsTest, ALineIsReadInPiecesOfNinetyNineCharacters) {
  // The line end is one of them. The lines behind cut off what runs on.
  const std::string text(98, '7');
  const std::string ten(10, '7');
  EXPECT_EQ(Read("1\n" + text + "\n\nc\n\n\n\n\n\n"), (LimitTexts{ten, "", "c"}));
  EXPECT_EQ(Read("1\n" + text + "8\n\nd\n\n\n\n\n"), (LimitTexts{ten, "", "", "d"}));
  EXPECT_EQ(Read("1\n" + text + "8b\n\nd\n\n\n\n\n"), (LimitTexts{ten + "b", "b", "", "d"}));
}

TEST_F(PersonalLimitsTest, SurvivesEndlessLines) {
  const LimitTexts texts = Read(std::string(10'000, '9') + "\n1\n2\n");
  // Every piece fills the place of the one before it; the last one ends where it ends.
  EXPECT_EQ(texts.back(), std::string(99, '9'));
  EXPECT_EQ(texts.front(), std::string(169, '9'));
  EXPECT_EQ(Read("1\n" + std::string(10'000, '\0') + "\n5\n"), kNone);
  EXPECT_EQ(Read(std::string(10'000, '\n')), kNone);
}

TEST_F(PersonalLimitsTest, NulsEndALineAndOtherBytesAreKept) {
  EXPECT_EQ(Read("1\n20\0 00\r\n25\0\n60\n"s), (LimitTexts{"20", "25", "60"}));
  EXPECT_EQ(Read("\0\n\0x\n2500\n"s), (LimitTexts{"", "2500"}));
  EXPECT_EQ(Read("1\n\xFF\xFE\x01\x1A\t\n\x80\n"), (LimitTexts{"\xFF\xFE\x01\x1A\t", "\x80"}));
}

TEST_F(PersonalLimitsTest, TextsReadAsNumbers) {
  const PersonalLimits limits = {{"12.5", " 7 g", "x", "", "-3", "1e3", "1e999", "263,7"}};
  EXPECT_EQ(limits.Number(kCaloriesLower), 12.5F);
  EXPECT_EQ(limits.Number(kCaloriesUpper), 7.0F);
  EXPECT_EQ(limits.Number(kProteinLower), 0.0F);
  EXPECT_EQ(limits.Number(kProteinUpper), 0.0F);
  EXPECT_EQ(limits.Number(kFatLower), -3.0F);
  EXPECT_EQ(limits.Number(kFatUpper), 1000.0F);
  EXPECT_GT(limits.Number(kCarbohydrateLower), 1e38F);
  EXPECT_EQ(limits.Number(kCarbohydrateUpper), 263.0F);
}

TEST_F(PersonalLimitsTest, AreInForceAboveFourAndUndecidedAtFour) {
  const auto with = [](const std::string& lower) { return PersonalLimits{{lower, "1"}}; };
  EXPECT_FALSE(with("3.9").AreInForce());
  EXPECT_FALSE(with("4.0").AreInForce());
  EXPECT_TRUE(with("4.1").AreInForce());
  EXPECT_FALSE(with("").AreInForce());
  EXPECT_FALSE(with("3.9").AreUndecided());
  EXPECT_TRUE(with("4.0").AreUndecided());
  EXPECT_FALSE(with("4.1").AreUndecided());
  EXPECT_FALSE(with("").AreUndecided());
}

TEST_F(PersonalLimitsTest, ShowAsActiveWhenBothCaloriesAreAboveFive) {
  const auto shown = [](const std::string& lower, const std::string& upper) {
    return PersonalLimits{{lower, upper, "9", "9", "9", "9", "9", "9"}}.ShowAsActive();
  };
  EXPECT_TRUE(shown("5.1", "5.1"));
  EXPECT_FALSE(shown("5.0", "5.1"));
  EXPECT_FALSE(shown("5.1", "5.0"));
  EXPECT_FALSE(shown("5.0", "5.0"));
  EXPECT_FALSE(shown("2000", ""));
  EXPECT_FALSE(shown("", "2000"));
  EXPECT_TRUE(shown("2000", "1900"));
}

// The fault of good limits with one of them changed.
std::optional<std::string_view> FaultWith(Limit limit, const std::string& text) {
  PersonalLimits limits = {{"110", "6999", "10", "239", "10", "239", "25", "1399"}};
  limits.texts[limit] = text;
  return FindFault(limits);
}

TEST(PersonalLimitsFaultTest, TheBoundsThemselvesAreAllowed) {
  EXPECT_EQ(FaultWith(kCaloriesLower, "110"), std::nullopt);
  EXPECT_EQ(FindFault({kGood}), std::nullopt);
}

TEST(PersonalLimitsFaultTest, LowerLimitsMayBeTooSmall) {
  EXPECT_EQ(FaultWith(kCaloriesLower, "109.9"), kTooSmall);
  EXPECT_EQ(FaultWith(kProteinLower, "9.9"), kTooSmall);
  EXPECT_EQ(FaultWith(kFatLower, "9.9"), kTooSmall);
  EXPECT_EQ(FaultWith(kCarbohydrateLower, "24.9"), kTooSmall);
  EXPECT_EQ(FaultWith(kCaloriesLower, "110.1"), std::nullopt);
  EXPECT_EQ(FaultWith(kProteinLower, "10.1"), std::nullopt);
  EXPECT_EQ(FaultWith(kFatLower, "10.1"), std::nullopt);
  EXPECT_EQ(FaultWith(kCarbohydrateLower, "25.1"), std::nullopt);
}

TEST(PersonalLimitsFaultTest, UpperLimitsMayBeTooBig) {
  EXPECT_EQ(FaultWith(kCaloriesUpper, "6999.1"), kTooBig);
  EXPECT_EQ(FaultWith(kProteinUpper, "239.1"), kTooBig);
  EXPECT_EQ(FaultWith(kFatUpper, "239.1"), kTooBig);
  EXPECT_EQ(FaultWith(kCarbohydrateUpper, "1399.1"), kTooBig);
  EXPECT_EQ(FaultWith(kCaloriesUpper, "6998.9"), std::nullopt);
  EXPECT_EQ(FaultWith(kProteinUpper, "238.9"), std::nullopt);
  EXPECT_EQ(FaultWith(kFatUpper, "238.9"), std::nullopt);
  EXPECT_EQ(FaultWith(kCarbohydrateUpper, "1398.9"), std::nullopt);
}

TEST(PersonalLimitsFaultTest, ALowerLimitMayBeAboveItsUpperOne) {
  EXPECT_EQ(FindFault({{"2000", "1900", "60", "70", "50", "80", "300", "400"}}), kCrossed);
  EXPECT_EQ(FindFault({{"2000", "2500", "70.1", "70", "50", "80", "300", "400"}}), kCrossed);
  EXPECT_EQ(FindFault({{"2000", "2500", "60", "70", "80.1", "80", "300", "400"}}), kCrossed);
  EXPECT_EQ(FindFault({{"2000", "2500", "60", "70", "50", "80", "400.1", "400"}}), kCrossed);
  EXPECT_EQ(FindFault({{"2000", "2000", "60", "60", "50", "50", "300", "300"}}), std::nullopt);
}

TEST(PersonalLimitsFaultTest, WhatIsNoNumberIsTooSmallBelowAndCrossedAbove) {
  EXPECT_EQ(FindFault({kNone}), kTooSmall);
  EXPECT_EQ(FaultWith(kCaloriesLower, "abc"), kTooSmall);
  EXPECT_EQ(FaultWith(kCarbohydrateLower, ""), kTooSmall);
  EXPECT_EQ(FaultWith(kFatUpper, "abc"), kCrossed);
}

TEST(PersonalLimitsFaultTest, TooSmallComesBeforeTooBigAndTooBigBeforeCrossed) {
  // All three: the last pair is too small, the first too big, the second crossed.
  EXPECT_EQ(FindFault({{"2000", "7000", "80", "70", "50", "80", "24", "400"}}), kTooSmall);
  EXPECT_EQ(FindFault({{"2000", "2500", "80", "70", "50", "80", "24", "400"}}), kTooSmall);
  EXPECT_EQ(FindFault({{"2000", "2500", "80", "70", "50", "80", "300", "1400"}}), kTooBig);
  EXPECT_EQ(FindFault({{"2000", "1900", "60", "70", "50", "80", "300", "1400"}}), kTooBig);
}

}  // namespace
}  // namespace velnor

#include "body/bmr.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace velnor {
namespace {

UserProfile Person(std::string_view age, std::string_view height, std::string_view sex) {
  return {.age = std::string(age), .height = std::string(height), .sex = std::string(sex)};
}

TEST(ComputeBmr, Men) {
  EXPECT_EQ(ComputeBmr("70", Person("30", "175", "men")), 1701.47F);
  EXPECT_EQ(ComputeBmr("1", Person("", "", "men")), 80.22F);
  EXPECT_EQ(ComputeBmr("", Person("", "1", "men")), 71.47F);
  EXPECT_EQ(ComputeBmr("", Person("1", "", "men")), 59.72F);
}

TEST(ComputeBmr, Women) {
  EXPECT_EQ(ComputeBmr("60", Person("30", "165", "women")), 1405.49F);
  EXPECT_EQ(ComputeBmr("1", Person("", "", "women")), 674.65F);
  EXPECT_EQ(ComputeBmr("", Person("", "1", "women")), 666.95F);
  EXPECT_EQ(ComputeBmr("", Person("1", "", "women")), 660.42F);
}

TEST(ComputeBmr, IsRoundedToSinglePrecisionOnlyAtTheEnd) {
  // 1164.96606 with figures or terms in single precision.
  EXPECT_EQ(ComputeBmr("40", Person("41", "166.1", "women")), 1164.9659423828125F);
}

TEST(ComputeBmr, MissingFiguresCountAsNothing) {
  EXPECT_EQ(ComputeBmr("", Person("", "", "men")), 66.47F);
  EXPECT_EQ(ComputeBmr("abc", Person("x", "y", "women")), 665.09F);
  EXPECT_EQ(ComputeBmr("", Person("9", "", "men")), 5.72F);
  EXPECT_EQ(ComputeBmr(" 70kg", Person("30 years", "175cm", "men")), 1701.47F);
}

TEST(ComputeBmr, WithoutAKnownSexThereIsNone) {
  for (const char* const sex : {"", "0", "Men", "x"}) {
    EXPECT_EQ(ComputeBmr("70", Person("30", "175", sex)), 0.0F) << sex;
  }
}

}  // namespace
}  // namespace velnor

#include "activity/activity_table.h"

#include <cstddef>
#include <gtest/gtest.h>
#include <iterator>
#include <set>
#include <string>
#include <string_view>

#include "activity/burned_calories.h"

namespace velnor {
namespace {

struct ExpectedActivity {
  const char* name;
  const char* factor;
  const char* kcal;
  const char* fat;
};

constexpr ExpectedActivity kExpected[] = {
#include "tests/support/burned_activities.inc"
};

TEST(ActivityTableTest, HasTheHundredAndOneInTheirOrder) {
  ASSERT_EQ(Activities().size(), 101U);
  ASSERT_EQ(std::size(kExpected), 101U);
  for (std::size_t i = 0; i < std::size(kExpected); ++i) {
    EXPECT_EQ(Activities()[i].name, kExpected[i].name) << "row " << i;
    EXPECT_EQ(Activities()[i].factor, kExpected[i].factor) << "row " << i;
  }
}

TEST(ActivityTableTest, EveryActivityIsCountedByItsOwnName) {
  for (const ExpectedActivity& expected : kExpected) {
    EXPECT_EQ(BurnFactor(expected.name), expected.factor) << expected.name;
    const Burned burned = CountBurned(expected.name, "7");
    EXPECT_EQ(burned.KcalText(), expected.kcal) << expected.name;
    EXPECT_EQ(burned.FatText(), expected.fat) << expected.name;
  }
}

TEST(ActivityTableTest, NamesAreShortAndStandOnce) {
  std::set<std::string_view> names;
  for (const ActivityRecord& activity : Activities()) {
    EXPECT_LE(activity.name.size(), 79U) << activity.name;
    EXPECT_TRUE(names.insert(activity.name).second) << activity.name;
  }
}

// "/walking/ upstairs" has 18 characters.
TEST(ActivityTableTest, EightPositionsAndTheLengthOfANameCount) {
  const std::string name = "/walking/ upstairs";
  const std::set<std::size_t> compared = {0, 1, 2, 4, 6, 9, 10, 17};
  for (std::size_t i = 0; i < name.size(); ++i) {
    std::string other = name;
    other[i] = '#';
    EXPECT_EQ(BurnFactor(other), compared.contains(i) ? "" : "6.7") << other;
  }
  EXPECT_EQ(BurnFactor("sitting"), "0.3");
  EXPECT_EQ(BurnFactor("sittiNg"), "0.3");
  EXPECT_EQ(BurnFactor("sittin"), "");
  EXPECT_EQ(BurnFactor("sittingg"), "");
  EXPECT_EQ(BurnFactor("sittin g"), "");
}

TEST(ActivityTableTest, FourCharactersAreAName) {
  EXPECT_EQ(BurnFactor("golf"), "4.2");
  EXPECT_EQ(BurnFactor("joga"), "4.1");
  EXPECT_EQ(BurnFactor("golF"), "");
}

TEST(ActivityTableTest, WhatIsNoActivityHasNoFactor) {
  EXPECT_EQ(BurnFactor(""), "");
  EXPECT_EQ(BurnFactor("g"), "");
  EXPECT_EQ(BurnFactor("Sitting"), "");
  EXPECT_EQ(BurnFactor(std::string(1000, 's')), "");
}

}  // namespace
}  // namespace velnor

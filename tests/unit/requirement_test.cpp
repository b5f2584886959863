#include "activity/requirement.h"

#include <array>
#include <gtest/gtest.h>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace velnor {

// For the messages of failed tests.
void PrintTo(const DailyRequirement& requirement, std::ostream* out) {
  for (const Range& range :
       {requirement.calories, requirement.protein, requirement.fat, requirement.carbohydrate}) {
    *out << range.lower << '-' << range.upper << ' ';
  }
}

namespace {

// What stood there before; no rule gives such values.
constexpr DailyRequirement kBefore = {{-1, -2}, {-3, -4}, {-5, -6}, {-7, -8}};
// The same when no requirement could be found.
constexpr DailyRequirement kUnknown = {{-1, 0}, {-3, -4}, {-5, -6}, {-7, -8}};
constexpr DailyRequirement kInfant = {};

constexpr std::array<std::string_view, 4> kStyles = {"low", "medium", "high", "very high"};
constexpr std::array<std::string_view, 4> kOthers = {"pregnant", "suckling mother", "athlete",
                                                     "none"};

UserProfile Person(std::string_view age, std::string_view sex, std::string_view life_style,
                   std::string_view other) {
  return {std::string(age), "170", std::string(sex), std::string(life_style), std::string(other)};
}

DailyRequirement RequirementOf(const UserProfile& profile, const PersonalLimits& limits = {}) {
  DailyRequirement requirement = kBefore;
  UpdateRequirement(profile, limits, requirement);
  return requirement;
}

DailyRequirement RequirementOf(int age, std::string_view sex, std::string_view life_style,
                               std::string_view other) {
  return RequirementOf(Person(std::to_string(age), sex, life_style, other));
}

DailyRequirement RequirementUnder(const LimitTexts& limits) {
  return RequirementOf(Person("35", "men", "medium", "none"), {limits});
}

std::optional<DailyRequirement> ExpectedOfGrownMan(std::string_view style, bool athlete) {
  if (athlete) return DailyRequirement{{4500, 4500}, {100, 100}, {125, 165}, {655, 745}};
  if (style == "very high")
    return DailyRequirement{{4000, 4500}, {100, 100}, {125, 165}, {655, 745}};
  if (style == "high") return DailyRequirement{{3500, 4000}, {95, 95}, {110, 155}, {550, 660}};
  if (style == "medium") return DailyRequirement{{2800, 3200}, {85, 85}, {90, 125}, {435, 510}};
  if (style == "low") return DailyRequirement{{2400, 2600}, {75, 75}, {75, 100}, {350, 410}};
  return std::nullopt;
}

std::optional<DailyRequirement> ExpectedOfGrownWoman(std::string_view style, bool athlete) {
  if (athlete || style == "very high") {
    return DailyRequirement{{3200, 3600}, {95, 95}, {90, 120}, {435, 510}};
  }
  if (style == "high") return DailyRequirement{{2900, 3200}, {90, 90}, {90, 120}, {435, 510}};
  if (style == "medium") return DailyRequirement{{2400, 2800}, {80, 80}, {80, 110}, {395, 440}};
  if (style == "low") return DailyRequirement{{2100, 2300}, {70, 70}, {65, 90}, {300, 360}};
  return std::nullopt;
}

std::optional<DailyRequirement> ExpectedOfYouth(int age, bool man) {
  if (age >= 16) {
    return man ? DailyRequirement{{3700, 3700}, {100, 100}, {125, 150}, {520, 620}}
               : DailyRequirement{{2700, 2700}, {80, 80}, {80, 110}, {395, 440}};
  }
  if (age >= 13) {
    return man ? DailyRequirement{{3300, 3300}, {95, 95}, {100, 130}, {450, 550}}
               : DailyRequirement{{2800, 2800}, {85, 85}, {90, 120}, {435, 510}};
  }
  return man ? DailyRequirement{{2500, 2600}, {75, 75}, {85, 90}, {360, 370}}
             : DailyRequirement{{2100, 2200}, {70, 70}, {75, 100}, {285, 300}};
}

// What a person needs, decided from the strongest claim down.
DailyRequirement Expected(int age, std::string_view sex, std::string_view style,
                          std::string_view other) {
  if (age >= 70) return {{2100, 2300}, {65, 65}, {65, 80}, {330, 365}};
  const bool man = sex == "men";
  const bool woman = sex == "women";
  if (woman && other == "suckling mother") {
    return {{3400, 3400}, {110, 110}, {95, 130}, {450, 525}};
  }
  if (age < 4) return kInfant;
  if (age < 7) return {{1400, 1700}, {50, 50}, {50, 60}, {196, 238}};
  if (age < 10) return {{1900, 2100}, {57, 63}, {64, 75}, {275, 303}};
  if (!man && !woman) return kUnknown;
  if (age < 21) return ExpectedOfYouth(age, man).value_or(kUnknown);
  const bool athlete = other == "athlete";
  return (man ? ExpectedOfGrownMan(style, athlete) : ExpectedOfGrownWoman(style, athlete))
      .value_or(kUnknown);
}

void CheckEveryAge(std::string_view sex, std::string_view style, std::string_view other) {
  for (int age = 0; age <= 100; ++age) {
    ASSERT_EQ(RequirementOf(age, sex, style, other), Expected(age, sex, style, other))
        << age << ' ' << sex << ' ' << style << ' ' << other;
  }
}

TEST(RequirementTest, FollowsTheTableForEveryPerson) {
  for (const std::string_view sex : {"men", "women"}) {
    for (const std::string_view style : kStyles) {
      for (const std::string_view other : kOthers) CheckEveryAge(sex, style, other);
    }
  }
}

TEST(RequirementTest, FollowsTheTableForWhoHasNotSaidEverything) {
  for (const std::string_view sex : {"men", "women", "", "0"}) {
    for (const std::string_view style : {"low", "", "0"}) {
      for (const std::string_view other : {"athlete", "suckling mother", "none", "", "0"}) {
        CheckEveryAge(sex, style, other);
      }
    }
  }
}

struct Row {
  int age;
  std::string_view sex, style, other;
  DailyRequirement requirement;
};

// clang-format off
constexpr Row kEdges[] = {
    {0,   "men",   "low",       "none",            {{0, 0},       {0, 0},     {0, 0},     {0, 0}}},
    {3,   "men",   "low",       "none",            {{0, 0},       {0, 0},     {0, 0},     {0, 0}}},
    {3,   "women", "very high", "athlete",         {{0, 0},       {0, 0},     {0, 0},     {0, 0}}},
    {4,   "men",   "low",       "none",            {{1400, 1700}, {50, 50},   {50, 60},   {196, 238}}},
    {4,   "women", "high",      "pregnant",        {{1400, 1700}, {50, 50},   {50, 60},   {196, 238}}},
    {6,   "men",   "medium",    "none",            {{1400, 1700}, {50, 50},   {50, 60},   {196, 238}}},
    {6,   "women", "medium",    "none",            {{1400, 1700}, {50, 50},   {50, 60},   {196, 238}}},
    {7,   "men",   "medium",    "none",            {{1900, 2100}, {57, 63},   {64, 75},   {275, 303}}},
    {7,   "women", "medium",    "none",            {{1900, 2100}, {57, 63},   {64, 75},   {275, 303}}},
    {9,   "men",   "high",      "athlete",         {{1900, 2100}, {57, 63},   {64, 75},   {275, 303}}},
    {9,   "women", "high",      "athlete",         {{1900, 2100}, {57, 63},   {64, 75},   {275, 303}}},
    {10,  "men",   "high",      "athlete",         {{2500, 2600}, {75, 75},   {85, 90},   {360, 370}}},
    {10,  "women", "high",      "athlete",         {{2100, 2200}, {70, 70},   {75, 100},  {285, 300}}},
    {12,  "men",   "low",       "none",            {{2500, 2600}, {75, 75},   {85, 90},   {360, 370}}},
    {12,  "women", "low",       "none",            {{2100, 2200}, {70, 70},   {75, 100},  {285, 300}}},
    {13,  "men",   "low",       "none",            {{3300, 3300}, {95, 95},   {100, 130}, {450, 550}}},
    {13,  "women", "low",       "none",            {{2800, 2800}, {85, 85},   {90, 120},  {435, 510}}},
    {15,  "men",   "very high", "none",            {{3300, 3300}, {95, 95},   {100, 130}, {450, 550}}},
    {15,  "women", "very high", "pregnant",        {{2800, 2800}, {85, 85},   {90, 120},  {435, 510}}},
    {16,  "men",   "very high", "none",            {{3700, 3700}, {100, 100}, {125, 150}, {520, 620}}},
    {16,  "women", "very high", "pregnant",        {{2700, 2700}, {80, 80},   {80, 110},  {395, 440}}},
    {20,  "men",   "low",       "athlete",         {{3700, 3700}, {100, 100}, {125, 150}, {520, 620}}},
    {20,  "women", "low",       "athlete",         {{2700, 2700}, {80, 80},   {80, 110},  {395, 440}}},
    {21,  "men",   "low",       "none",            {{2400, 2600}, {75, 75},   {75, 100},  {350, 410}}},
    {21,  "men",   "medium",    "none",            {{2800, 3200}, {85, 85},   {90, 125},  {435, 510}}},
    {21,  "men",   "high",      "none",            {{3500, 4000}, {95, 95},   {110, 155}, {550, 660}}},
    {21,  "men",   "very high", "none",            {{4000, 4500}, {100, 100}, {125, 165}, {655, 745}}},
    {21,  "men",   "low",       "athlete",         {{4500, 4500}, {100, 100}, {125, 165}, {655, 745}}},
    {21,  "women", "low",       "none",            {{2100, 2300}, {70, 70},   {65, 90},   {300, 360}}},
    {21,  "women", "medium",    "none",            {{2400, 2800}, {80, 80},   {80, 110},  {395, 440}}},
    {21,  "women", "high",      "none",            {{2900, 3200}, {90, 90},   {90, 120},  {435, 510}}},
    {21,  "women", "very high", "none",            {{3200, 3600}, {95, 95},   {90, 120},  {435, 510}}},
    {21,  "women", "low",       "athlete",         {{3200, 3600}, {95, 95},   {90, 120},  {435, 510}}},
    {69,  "men",   "low",       "none",            {{2400, 2600}, {75, 75},   {75, 100},  {350, 410}}},
    {69,  "men",   "medium",    "none",            {{2800, 3200}, {85, 85},   {90, 125},  {435, 510}}},
    {69,  "men",   "high",      "none",            {{3500, 4000}, {95, 95},   {110, 155}, {550, 660}}},
    {69,  "men",   "very high", "none",            {{4000, 4500}, {100, 100}, {125, 165}, {655, 745}}},
    {69,  "men",   "low",       "athlete",         {{4500, 4500}, {100, 100}, {125, 165}, {655, 745}}},
    {69,  "women", "low",       "none",            {{2100, 2300}, {70, 70},   {65, 90},   {300, 360}}},
    {69,  "women", "medium",    "none",            {{2400, 2800}, {80, 80},   {80, 110},  {395, 440}}},
    {69,  "women", "high",      "none",            {{2900, 3200}, {90, 90},   {90, 120},  {435, 510}}},
    {69,  "women", "very high", "none",            {{3200, 3600}, {95, 95},   {90, 120},  {435, 510}}},
    {69,  "women", "low",       "athlete",         {{3200, 3600}, {95, 95},   {90, 120},  {435, 510}}},
    {69,  "women", "low",       "suckling mother", {{3400, 3400}, {110, 110}, {95, 130}, {450, 525}}},
    {70,  "men",   "very high", "athlete",         {{2100, 2300}, {65, 65},   {65, 80},   {330, 365}}},
    {70,  "women", "low",       "suckling mother", {{2100, 2300}, {65, 65},   {65, 80},   {330, 365}}},
    {100, "men",   "low",       "none",            {{2100, 2300}, {65, 65},   {65, 80},   {330, 365}}},
};
// clang-format on

TEST(RequirementTest, ChangesWhereAnAgeBandEnds) {
  for (const Row& row : kEdges) {
    EXPECT_EQ(RequirementOf(row.age, row.sex, row.style, row.other), row.requirement)
        << row.age << ' ' << row.sex << ' ' << row.style << ' ' << row.other;
  }
}

TEST(RequirementTest, BeingAnAthleteCountsMoreThanTheLifeStyle) {
  constexpr DailyRequirement kAthlete = {{4500, 4500}, {100, 100}, {125, 165}, {655, 745}};
  EXPECT_EQ(RequirementOf(35, "men", "medium", "athlete"), kAthlete);
  EXPECT_EQ(RequirementOf(35, "men", "", "athlete"), kAthlete);
}

TEST(RequirementTest, NursingCountsAtEveryAgeBelowSeventy) {
  constexpr DailyRequirement kMother = {{3400, 3400}, {110, 110}, {95, 130}, {450, 525}};
  EXPECT_EQ(RequirementOf(28, "women", "high", "suckling mother"), kMother);
  EXPECT_EQ(RequirementOf(2, "women", "low", "suckling mother"), kMother);
  constexpr DailyRequirement kOld = {{2100, 2300}, {65, 65}, {65, 80}, {330, 365}};
  EXPECT_EQ(RequirementOf(72, "women", "low", "suckling mother"), kOld);
  constexpr DailyRequirement kMan = {{2400, 2600}, {75, 75}, {75, 100}, {350, 410}};
  EXPECT_EQ(RequirementOf(28, "men", "low", "suckling mother"), kMan);
}

TEST(RequirementTest, OfAnInfantNothingIsKnown) {
  const DailyRequirement infant = RequirementOf(3, "women", "low", "none");
  EXPECT_EQ(infant.calories.upper, 0);
  EXPECT_FALSE(infant.IsKnown());
  EXPECT_TRUE(RequirementOf(4, "women", "low", "none").IsKnown());
}

TEST(RequirementTest, WithoutAGroupOnlyTheUpperCaloriesChange) {
  EXPECT_EQ(RequirementOf(35, "", "medium", "none"), kUnknown);
  EXPECT_EQ(RequirementOf(15, "", "medium", "suckling mother"), kUnknown);
  EXPECT_EQ(RequirementOf(35, "men", "", "none"), kUnknown);
  EXPECT_EQ(RequirementOf(35, "women", "x", "pregnant"), kUnknown);
  EXPECT_FALSE(kUnknown.IsKnown());
}

TEST(RequirementTest, WordsCountByTheirLetters) {
  EXPECT_EQ(RequirementOf(35, "m", "v", "x"), Expected(35, "men", "very high", "none"));
  EXPECT_EQ(RequirementOf(35, "w", "hi", "x"), Expected(35, "women", "high", "none"));
  EXPECT_EQ(RequirementOf(35, "w", "l", "a"), Expected(35, "women", "low", "athlete"));
  EXPECT_EQ(RequirementOf(35, "w", "l", "xyzk"), Expected(35, "women", "low", "suckling mother"));
  EXPECT_EQ(RequirementOf(35, "w", "l", "suc"), Expected(35, "women", "low", "none"));
  EXPECT_EQ(RequirementOf(35, "Men", "low", "none"), kUnknown);
  EXPECT_EQ(RequirementOf(35, "men", "Low", "none"), kUnknown);
}

TEST(RequirementTest, AgesAreTextsThatBeginWithANumber) {
  const auto of_age = [](std::string_view age) {
    return RequirementOf(Person(age, "men", "low", "none"));
  };
  EXPECT_EQ(of_age(" 35x"), Expected(35, "men", "low", "none"));
  EXPECT_EQ(of_age("20.9"), Expected(20, "men", "low", "none"));
  EXPECT_EQ(of_age(""), kInfant);
  EXPECT_EQ(of_age("abc"), kInfant);
  EXPECT_EQ(of_age("-1"), kInfant);
  EXPECT_EQ(of_age("-99999999999999999999"), kInfant);
  EXPECT_EQ(of_age("99999999999999999999"), Expected(70, "men", "low", "none"));
}

TEST(RequirementTest, LimitsInForceTakeThePlaceOfTheTable) {
  constexpr DailyRequirement kLimits = {{2000, 2500}, {60, 70}, {50, 80}, {300, 400}};
  EXPECT_EQ(RequirementUnder({"2000", "2500", "60", "70", "50", "80", "300", "400"}), kLimits);
  EXPECT_EQ(RequirementOf(Person("2", "", "", ""),
                          {{"2000", "2500", "60", "70", "50", "80", "300", "400"}}),
            kLimits);
}

TEST(RequirementTest, LimitsAreInForceAboveFour) {
  const DailyRequirement table = Expected(35, "men", "medium", "none");
  EXPECT_EQ(RequirementUnder({"3.9", "9", "8", "7", "6", "5", "4", "3"}), table);
  EXPECT_EQ(RequirementUnder({"0", "9", "8", "7", "6", "5", "4", "3"}), table);
  EXPECT_EQ(RequirementUnder({"-5", "9", "8", "7", "6", "5", "4", "3"}), table);
  EXPECT_EQ(RequirementUnder({"x2000", "9", "8", "7", "6", "5", "4", "3"}), table);
  EXPECT_EQ(RequirementUnder({"4.0", "9", "8", "7", "6", "5", "4", "3"}), kUnknown);
  EXPECT_EQ(RequirementUnder({"4", "9", "8", "7", "6", "5", "4", "3"}), kUnknown);
  constexpr DailyRequirement kLimits = {{4, 9}, {8, 7}, {6, 5}, {4, 3}};
  EXPECT_EQ(RequirementUnder({"4.1", "9", "8", "7", "6", "5", "4", "3"}), kLimits);
}

TEST(RequirementTest, LimitsAreCutToWholeNumbers) {
  constexpr DailyRequirement kLimits = {{2000, 2500}, {60, 0}, {-1, 0}, {300, 0}};
  EXPECT_EQ(RequirementUnder({"2000.9", "2500.99", "60.5", "0.9", "-1.9", "junk", "3e2g", ""}),
            kLimits);
}

TEST(RequirementTest, HugeLimitsStayInTheRangeOfWholeNumbers) {
  const DailyRequirement huge =
      RequirementUnder({"1e30", "1e300", "-1e30", "1e999", "2147483648", "-1e999", "5", "-5"});
  constexpr int kNearTheEnd = 2'147'483'000;
  EXPECT_GT(huge.calories.lower, kNearTheEnd);
  EXPECT_GT(huge.calories.upper, kNearTheEnd);
  EXPECT_LT(huge.protein.lower, -kNearTheEnd);
  EXPECT_GT(huge.protein.upper, kNearTheEnd);
  EXPECT_GT(huge.fat.lower, kNearTheEnd);
  EXPECT_LT(huge.fat.upper, -kNearTheEnd);
  EXPECT_EQ(huge.carbohydrate, (Range{5, -5}));
}

}  // namespace
}  // namespace velnor

#include "body/bmi.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "body/bmi_verdicts.h"

namespace velnor {
namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();

UserProfile OfSex(std::string_view sex) { return {.sex = std::string(sex)}; }

std::optional<int> Men(float bmi) { return ClassifyBmi(bmi, OfSex("men")); }
std::optional<int> Women(float bmi) { return ClassifyBmi(bmi, OfSex("women")); }

TEST(ComputeBmi, DividesTheWeightByTheSquareOfTheHeight) {
  EXPECT_EQ(ComputeBmi("70", "175"), 22.857143F);
  EXPECT_EQ(ComputeBmi(" 17.5kg", "100 cm"), 17.5F);
  EXPECT_EQ(ComputeBmi("-70", "175"), -22.857143F);
}

TEST(ComputeBmi, RoundsEveryStepToSinglePrecision) {
  EXPECT_EQ(ComputeBmi("40", "156"), 16.43655777F);     // 16.436554 with a height in double
  EXPECT_EQ(ComputeBmi("70", "151.4"), 30.538396835F);  // 30.538403 when divided by a float 100
  EXPECT_EQ(ComputeBmi("40", "160"), 15.624999046F);    // 15.625 exactly, where nothing is rounded
  EXPECT_EQ(ComputeBmi("40", "157"), 16.227836609F);    // 16.227839 with a square in double
  EXPECT_EQ(ComputeBmi("1", "1e-22"), kInfinity);       // the square is too small for a float
  EXPECT_EQ(ComputeBmi("1e40", "100"), kInfinity);      // the weight too large
}

TEST(ComputeBmi, MissingFiguresCountAsNothing) {
  EXPECT_EQ(ComputeBmi("", "175"), 0.0F);
  EXPECT_EQ(ComputeBmi("abc", "175"), 0.0F);
  EXPECT_EQ(ComputeBmi("70", ""), kInfinity);
  EXPECT_EQ(ComputeBmi("70", "0"), kInfinity);
  EXPECT_TRUE(std::isnan(ComputeBmi("", "")));
  EXPECT_TRUE(std::isnan(ComputeBmi("0", "0")));
}

struct Bound {
  float at;  // the float nearest to the bound
  int below;
  int on;
  int above;
};

void ExpectBounds(const std::vector<Bound>& bounds, std::string_view sex) {
  for (const Bound& bound : bounds) {
    const UserProfile profile = OfSex(sex);
    EXPECT_EQ(ClassifyBmi(std::nextafter(bound.at, 0.0F), profile), bound.below) << bound.at;
    EXPECT_EQ(ClassifyBmi(bound.at, profile), bound.on) << bound.at;
    EXPECT_EQ(ClassifyBmi(std::nextafter(bound.at, 100.0F), profile), bound.above) << bound.at;
  }
}

// The floats of 20.7, 31.1 and 19.1 lie above these bounds, those of the other fractions below.
TEST(ClassifyBmi, BoundsOfMen) {
  ExpectBounds({{17.5F, 1, 1, 2},
                {20.7F, 2, 3, 3},
                {26.4F, 3, 3, 4},
                {27.8F, 4, 4, 5},
                {31.1F, 5, 6, 6},
                {35.0F, 6, 6, 7},
                {40.0F, 7, 7, 8},
                {50.0F, 8, 8, 9}},
               "men");
}

TEST(ClassifyBmi, BoundsOfWomen) {
  ExpectBounds({{17.5F, 1, 1, 2},
                {19.1F, 2, 3, 3},
                {25.8F, 3, 3, 4},
                {27.3F, 4, 4, 5},
                {32.3F, 5, 5, 6},
                {35.0F, 6, 6, 7},
                {40.0F, 7, 7, 8},
                {50.0F, 8, 8, 9}},
               "women");
}

TEST(ClassifyBmi, InsideTheClasses) {
  const std::vector<float> values = {10, 18.5, 23, 27, 30, 33, 37, 45, 60};
  for (std::size_t i = 0; i < values.size(); ++i) {
    EXPECT_EQ(Men(values[i]), static_cast<int>(i) + 1);
    EXPECT_EQ(Women(values[i]), static_cast<int>(i) + 1);
  }
  EXPECT_EQ(Men(50.01F), 9);
  EXPECT_EQ(Women(50.01F), 9);
  EXPECT_EQ(Men(20), 2);  // where the sexes differ
  EXPECT_EQ(Women(20), 3);
  EXPECT_EQ(Men(32), 6);
  EXPECT_EQ(Women(32), 5);
}

TEST(ClassifyBmi, BeyondAllFigures) {
  EXPECT_EQ(Men(0), 1);
  EXPECT_EQ(Women(-1), 1);
  EXPECT_EQ(Men(-kInfinity), 1);
  EXPECT_EQ(Men(kInfinity), 9);
  EXPECT_EQ(Women(kInfinity), 9);
}

TEST(ClassifyBmi, NothingForAnUnknownSexOrNoNumber) {
  for (const char* const sex : {"", "0", "Men", "x"}) {
    EXPECT_EQ(ClassifyBmi(23, OfSex(sex)), std::nullopt) << sex;
  }
  EXPECT_EQ(Men(std::nanf("")), std::nullopt);
  EXPECT_EQ(Women(std::nanf("")), std::nullopt);
}

TEST(BmiMarkerOffset, IsRoundedUpToAPixel) {
  EXPECT_EQ(BmiMarkerOffset(22.857143F), 275);
  EXPECT_EQ(BmiMarkerOffset(25), 300);
  EXPECT_EQ(BmiMarkerOffset(0.001F), 1);
  EXPECT_EQ(BmiMarkerOffset(56.99F), 684);
}

// Twelve times this float is a little more than 202, but not for a float.
TEST(BmiMarkerOffset, IsComputedInSinglePrecision) {
  EXPECT_EQ(BmiMarkerOffset(16.83333396911621F), 202);
}

TEST(BmiVerdict, ThereIsOneForEveryClassAndNoneBesides) {
  const std::vector<std::size_t> lines = {0, 7, 10, 6, 6, 4, 6, 6, 10, 6};
  for (int bmi_class = 0; bmi_class <= kBmiClasses; ++bmi_class) {
    EXPECT_EQ(BmiVerdict(bmi_class).size(), lines[static_cast<std::size_t>(bmi_class)]);
  }
  EXPECT_TRUE(BmiVerdict(-1).empty());
  EXPECT_TRUE(BmiVerdict(10).empty());
}

TEST(BmiNotes, TheAgeNoteShortensAndEndsWithTheYears) {
  const auto lines = [](const char* age) { return BmiAgeNote({.age = age}).size(); };
  EXPECT_EQ(lines("17"), 1U);
  EXPECT_EQ(lines("17.9"), 1U);
  EXPECT_EQ(lines("18"), 2U);
  EXPECT_EQ(lines("19"), 2U);
  EXPECT_EQ(lines("20"), 0U);
  EXPECT_EQ(lines("abc"), 1U);
  EXPECT_EQ(lines(""), 1U);
  EXPECT_EQ(lines("-5"), 1U);
}

TEST(BmiNotes, TwoLettersMakePregnantAndOneAnAthlete) {
  const auto lines = [](const char* other) { return BmiBodyNote({.other = other}).size(); };
  EXPECT_EQ(lines("pregnant"), 3U);
  EXPECT_EQ(lines("pr"), 3U);
  EXPECT_EQ(lines("p"), 0U);
  EXPECT_EQ(lines("patient"), 0U);
  EXPECT_EQ(lines("athlete"), 2U);
  EXPECT_EQ(lines("a"), 2U);
  EXPECT_EQ(lines("suckling mother"), 0U);
  EXPECT_EQ(lines("none"), 0U);
  EXPECT_EQ(lines(""), 0U);
}

}  // namespace
}  // namespace velnor

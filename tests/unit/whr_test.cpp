#include "body/whr.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <string_view>

namespace velnor {
namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();

UserProfile OfSex(std::string_view sex) { return {.sex = std::string(sex)}; }

std::optional<int> Men(float whr) { return ClassifyWhr(whr, OfSex("men")); }
std::optional<int> Women(float whr) { return ClassifyWhr(whr, OfSex("women")); }

float Below(float value) { return std::nextafter(value, 0.0F); }
float Above(float value) { return std::nextafter(value, 2.0F); }

TEST(ComputeWhr, DividesWaistByHip) {
  EXPECT_EQ(ComputeWhr("85", "100"), 0.85F);
  EXPECT_EQ(ComputeWhr(" 80 cm", "100x"), 0.8F);
  EXPECT_EQ(ComputeWhr("70", "100"), 0.7F);
  EXPECT_EQ(ComputeWhr("2", "3"), 2.0F / 3.0F);
}

TEST(ComputeWhr, ReadsBothInSinglePrecision) {
  EXPECT_EQ(ComputeWhr("50.1", "70.3"), 0.712659955F);  // 0.71266001 with either in double
  EXPECT_EQ(ComputeWhr("1e39", "1e38"), kInfinity);     // the waist is too large for a float
}

TEST(ComputeWhr, MissingFiguresCountAsNothing) {
  EXPECT_EQ(ComputeWhr("", "100"), 0.0F);
  EXPECT_EQ(ComputeWhr("80", ""), kInfinity);
  EXPECT_EQ(ComputeWhr("80", "abc"), kInfinity);
  EXPECT_TRUE(std::isnan(ComputeWhr("", "")));
}

TEST(ClassifyWhr, BoundsOfMen) {
  EXPECT_EQ(Men(0.69F), kPearType);
  EXPECT_EQ(Men(Below(0.7F)), kPearType);
  EXPECT_EQ(Men(0.7F), kPearType);  // a little below 0.7
  EXPECT_EQ(Men(Above(0.7F)), kNormType);
  EXPECT_EQ(Men(0.85F), kNormType);
  EXPECT_EQ(Men(Below(1.0F)), kNormType);
  EXPECT_EQ(Men(1.0F), kAppleType);
  EXPECT_EQ(Men(Above(1.0F)), kAppleType);
}

TEST(ClassifyWhr, BoundsOfWomen) {
  EXPECT_EQ(Women(Below(0.8F)), kPearType);
  EXPECT_EQ(Women(0.8F), kPearType);  // 80 by 100
  EXPECT_EQ(Women(Above(0.8F)), kAppleType);
  EXPECT_EQ(Women(0.81F), kAppleType);
}

TEST(ClassifyWhr, WomenAreNeverTheNorm) {
  float whr = 0.5F;
  for (int i = 0; i < 700'000; ++i, whr = Above(whr + 1e-6F)) {
    ASSERT_NE(Women(whr), kNormType) << whr;
    ASSERT_NE(Women(whr), std::nullopt) << whr;
  }
}

TEST(ClassifyWhr, BeyondAllFigures) {
  for (const auto of_sex : {Men, Women}) {
    EXPECT_EQ(of_sex(0), kPearType);
    EXPECT_EQ(of_sex(-1), kPearType);
    EXPECT_EQ(of_sex(kInfinity), kAppleType);
    EXPECT_EQ(of_sex(std::nanf("")), std::nullopt);
  }
}

TEST(ClassifyWhr, NothingForAnUnknownSex) {
  for (const char* const sex : {"", "0", "Men", "x"}) {
    EXPECT_EQ(ClassifyWhr(0.85F, OfSex(sex)), std::nullopt) << sex;
  }
}

}  // namespace
}  // namespace velnor

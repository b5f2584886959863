#include "base/number_text.h"

#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>

namespace velnor {
namespace {

// What the C library prints in its "alternative" general format, which keeps the point, less the
// zeros at the end of the significant digits: the same text by another road.
std::string Reference(double value, int digits) {
  char buffer[400];
  std::snprintf(buffer, sizeof buffer, "%#.*g", digits, value);
  std::string text(buffer);
  const std::size_t e = text.find('e');
  const std::string exponent = e == std::string::npos ? "" : text.substr(e);
  text.resize(std::min(e, text.size()));
  while (text.back() == '0' && text.find('.') != std::string::npos) text.pop_back();
  return text + exponent;
}

TEST(FormatNumberTest, KeepsThePointAndDropsZeros) {
  EXPECT_EQ(FormatNumber(70, 6), "70.");
  EXPECT_EQ(FormatNumber(1.75, 6), "1.75");
  EXPECT_EQ(FormatNumber(0, 6), "0.");
  EXPECT_EQ(FormatNumber(-50, 6), "-50.");
  EXPECT_EQ(FormatNumber(0.05, 6), "0.05");
  EXPECT_EQ(FormatNumber(1.5e-5, 6), "1.5e-05");
  EXPECT_EQ(FormatNumber(1e6, 6), "1.e+06");
  EXPECT_EQ(FormatNumber(999999, 6), "999999.");
  EXPECT_EQ(FormatNumber(999999.5, 6), "1.e+06");
  EXPECT_EQ(FormatNumber(1e-4, 6), "0.0001");
  EXPECT_EQ(FormatNumber(9.9999999e-5, 6), "0.0001");
  EXPECT_EQ(FormatNumber(1.25e120, 6), "1.25e+120");
}

TEST(FormatNumberTest, ShowsSinglePrecisionNoiseWhenAskedForManyDigits) {
  EXPECT_EQ(FormatNumber(123.4F, 15), "123.400001525879");
  EXPECT_EQ(FormatNumber(129.0F, 15), "129.");
}

TEST(FormatNumberTest, RoundsTheExactValue) {
  EXPECT_EQ(FormatNumber(0.125, 2), "0.12");  // a true tie goes to the even digit
  EXPECT_EQ(FormatNumber(0.375, 2), "0.38");
  EXPECT_EQ(FormatNumber(2.675, 3), "2.67");  // the double lies below the tie
}

TEST(FormatNumberTest, WritesWhatIsNotFinite) {
  EXPECT_EQ(FormatNumber(std::numeric_limits<double>::infinity(), 6), "inf");
  EXPECT_EQ(FormatNumber(-std::numeric_limits<double>::infinity(), 6), "-inf");
  EXPECT_EQ(FormatNumber(std::numeric_limits<double>::quiet_NaN(), 6), "nan");
  EXPECT_EQ(FormatNumber(-0.0, 6), "-0.");
}

TEST(FormatNumberTest, BringsTheDigitCountIntoRange) {
  EXPECT_EQ(FormatNumber(1.26, 0), "1.");
  EXPECT_EQ(FormatNumber(0.1, 40), "0.10000000000000001");
}

TEST(FormatNumberTest, AgreesWithTheCLibraryOverTheWholeRange) {
  std::mt19937_64 random(20261116);
  std::uniform_real_distribution<double> exponent(-300, 300);
  std::uniform_real_distribution<double> everyday(-10'000, 10'000);
  for (int i = 0; i < 20'000; ++i) {
    const double anywhere = std::pow(10.0, exponent(random)) * (i % 2 == 0 ? 1 : -1);
    const double usual = everyday(random);
    const double two_decimals = std::round(usual * 100) / 100;
    for (const double value : {anywhere, usual, two_decimals, std::floor(usual),
                               static_cast<double>(static_cast<float>(usual))}) {
      for (int digits = 1; digits <= 17; ++digits) {
        ASSERT_EQ(FormatNumber(value, digits), Reference(value, digits)) << value << ' ' << digits;
      }
    }
  }
}

TEST(ParseNumberTest, ReadsTheLeadingNumber) {
  EXPECT_EQ(ParseNumber("12.5 g"), 12.5);
  EXPECT_EQ(ParseNumber("263,7"), 263);
  EXPECT_EQ(ParseNumber(" \t\n\v\f\r42"), 42);
  EXPECT_EQ(ParseNumber("-3.25"), -3.25);
  EXPECT_EQ(ParseNumber("+7"), 7);
  EXPECT_EQ(ParseNumber(".5"), 0.5);
  EXPECT_EQ(ParseNumber("5."), 5);
  EXPECT_EQ(ParseNumber("1.2.3"), 1.2);
  EXPECT_EQ(ParseNumber("1e3"), 1000);
  EXPECT_EQ(ParseNumber("1E-2x"), 0.01);
  EXPECT_EQ(ParseNumber("2e"), 2);
  EXPECT_EQ(ParseNumber("2e+"), 2);
  EXPECT_EQ(ParseNumber("0.0"), 0);
}

TEST(ParseNumberTest, TakesWhatIsNoNumberForZero) {
  for (const char* const text : {"", " ", "abc", "???", "-", "+", ".", "-.", "+-1", "--1", "   -",
                                 "e5", "nan", "inf", "-infinity", "NaN(1)", "-x", "--"}) {
    EXPECT_EQ(ParseNumber(text), 0.0) << text;
    EXPECT_FALSE(std::signbit(ParseNumber(text))) << text;
  }
  EXPECT_TRUE(std::signbit(ParseNumber("-0")));
  EXPECT_EQ(ParseNumber("0x1p4"), 0);  // the 0 before the x
}

TEST(ParseNumberTest, GoesToInfinityAndToZeroBeyondTheRange) {
  EXPECT_EQ(ParseNumber("1e999"), std::numeric_limits<double>::infinity());
  EXPECT_EQ(ParseNumber("-1e999"), -std::numeric_limits<double>::infinity());
  EXPECT_EQ(ParseNumber("1e-999"), 0);
  EXPECT_EQ(ParseNumber("0." + std::string(400, '0') + "1"), 0);
  EXPECT_EQ(ParseNumber("1" + std::string(400, '0')), std::numeric_limits<double>::infinity());
  EXPECT_EQ(ParseNumber("1e99999999999999999999"), std::numeric_limits<double>::infinity());
  EXPECT_EQ(ParseNumber("1" + std::string(400, '0') + "e-400"), 1);
}

TEST(ParseNumberTest, TellsTooLargeFromTooSmallByItsFirstSignificantDigit) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const std::string zeros(400, '0');
  EXPECT_EQ(ParseNumber("1E999"), kInfinity);
  EXPECT_EQ(ParseNumber("1E-999"), 0);
  EXPECT_EQ(ParseNumber("00001e-400"), 0);
  EXPECT_EQ(ParseNumber(zeros + "1e-400"), 0);
  EXPECT_EQ(ParseNumber(zeros + "1e400"), kInfinity);
  EXPECT_EQ(ParseNumber("0." + zeros + "1e5"), 0);
  EXPECT_EQ(ParseNumber("0." + zeros + "1e399"), 0.01);
  EXPECT_EQ(ParseNumber("0." + zeros + "1e999"), kInfinity);
  EXPECT_EQ(ParseNumber("0.1" + zeros + "e310"), kInfinity);
  // 0.000...1e5 that is small but still a number.
  EXPECT_EQ(ParseNumber("0." + std::string(320, '0') + "1e5"), 1e-316);
}

TEST(ParseNumberTest, AnExponentHasNoBlanks) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const std::string huge = "1" + std::string(400, '0');
  for (const char* const end : {"e -999", "e\t-999", "E -999", "e+ -999", "e- 999", "e +-999"}) {
    EXPECT_EQ(ParseNumber(huge + end), kInfinity) << end;
  }
  const std::string tiny = "0." + std::string(400, '0') + "1";
  for (const char* const end : {"e 999", "e\t+999", "E 999", "e+ 999"}) {
    EXPECT_EQ(ParseNumber(tiny + end), 0) << end;
  }
  EXPECT_EQ(ParseNumber("2e 3"), 2);
}

TEST(ParseNumberTest, AgreesWithTheCLibrary) {
  std::mt19937_64 random(1116);
  std::uniform_real_distribution<double> exponent(-320, 308);
  for (int i = 0; i < 50'000; ++i) {
    char text[64];
    std::snprintf(text, sizeof text, i % 2 == 0 ? "%.17g" : "%.7g",
                  std::pow(10.0, exponent(random)));
    ASSERT_EQ(ParseNumber(text), std::strtod(text, nullptr)) << text;
  }
}

TEST(ParseNumberTest, IgnoresTheLocaleOfTheMachine) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  // Where no locale with a decimal comma is installed, this is a plain repetition.
  for (const char* const name : {"pl_PL.UTF-8", "de_DE.UTF-8"}) {
    if (std::setlocale(LC_ALL, name) != nullptr) break;
  }
  EXPECT_EQ(ParseNumber("1.5"), 1.5);
  EXPECT_EQ(ParseNumber("1,5"), 1);
  EXPECT_EQ(FormatNumber(1.5, 6), "1.5");
  std::setlocale(LC_ALL, before.c_str());
}

TEST(ParseIntegerTest, ReadsTheLeadingWholeNumber) {
  EXPECT_EQ(ParseInteger("18"), 18);
  EXPECT_EQ(ParseInteger("  35 years"), 35);
  EXPECT_EQ(ParseInteger("-4"), -4);
  EXPECT_EQ(ParseInteger("+4"), 4);
  EXPECT_EQ(ParseInteger("17.9"), 17);
  EXPECT_EQ(ParseInteger("abc"), 0);
  EXPECT_EQ(ParseInteger(""), 0);
  EXPECT_EQ(ParseInteger("- 4"), 0);
}

TEST(ParseIntegerTest, StopsAtTheBoundsOfInt) {
  EXPECT_EQ(ParseInteger("2147483647"), 2147483647);
  EXPECT_EQ(ParseInteger("2147483648"), 2147483647);
  EXPECT_EQ(ParseInteger("-2147483648"), std::numeric_limits<int>::min());
  EXPECT_EQ(ParseInteger("-99999999999999999999"), std::numeric_limits<int>::min());
}

TEST(TruncateTwoDecimalsTest, CutsDownwardsAndNeverRounds) {
  EXPECT_EQ(FormatNumber(TruncateTwoDecimals("1234.5678"), 6), "1234.56");
  EXPECT_EQ(FormatNumber(TruncateTwoDecimals("22.8571"), 6), "22.85");
  EXPECT_EQ(FormatNumber(TruncateTwoDecimals("22.999"), 6), "22.99");
  EXPECT_EQ(FormatNumber(TruncateTwoDecimals("80.129"), 6), "80.12");
  EXPECT_EQ(FormatNumber(TruncateTwoDecimals("0.8013"), 6), "0.8");
  EXPECT_EQ(FormatNumber(TruncateTwoDecimals("-1.234"), 6), "-1.24");
  EXPECT_EQ(FormatNumber(TruncateTwoDecimals("70"), 6), "70.");
  EXPECT_EQ(FormatNumber(TruncateTwoDecimals(""), 6), "0.");
}

// In double precision 0.29 would be cut to 0.28, in single precision it is not.
TEST(TruncateTwoDecimalsTest, CountsInSinglePrecision) {
  EXPECT_EQ(TruncateTwoDecimals("0.29"), 0.29F);
  EXPECT_EQ(TruncateTwoDecimals("16777217.5"), 16777218.0F);
}

TEST(TruncateTwoDecimalsTest, TakesNumbersOfAnySize) {
  EXPECT_EQ(TruncateTwoDecimals("1e30"), 1e30F);
  EXPECT_EQ(FormatNumber(TruncateTwoDecimals("1e40"), 6), "nan");
}

TEST(FormatFixedTest, HasExactlyTheDecimalsAskedFor) {
  EXPECT_EQ(FormatFixed(70, 0), "70");
  EXPECT_EQ(FormatFixed(1.745, 1), "1.7");
  EXPECT_EQ(FormatFixed(-0.5, 3), "-0.500");
  EXPECT_EQ(FormatFixed(1e30, 0), "1000000000000000019884624838656");
  EXPECT_EQ(FormatFixed(1, -3), "1");
  EXPECT_EQ(FormatFixed(1, 30), "1.000000000");
}

TEST(FormatFixedTest, ZeroHasNoSign) {
  EXPECT_EQ(FormatFixed(-0.0, 0), "0");
  EXPECT_EQ(FormatFixed(-0.04, 1), "0.0");
  EXPECT_EQ(FormatFixed(-0.06, 1), "-0.1");
}

TEST(FormatFixedTest, WhatIsNotFiniteIsAWord) {
  EXPECT_EQ(FormatFixed(std::numeric_limits<double>::infinity(), 2), "inf");
  EXPECT_EQ(FormatFixed(-std::numeric_limits<double>::infinity(), 2), "-inf");
  EXPECT_EQ(FormatFixed(std::numeric_limits<double>::quiet_NaN(), 2), "nan");
  EXPECT_EQ(FormatFixed(-std::numeric_limits<double>::max(), 9).size(), 1 + 309 + 1 + 9);
}

}  // namespace
}  // namespace velnor

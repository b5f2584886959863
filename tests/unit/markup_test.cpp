#include "diary/markup.h"

#include <gtest/gtest.h>
#include <limits>

namespace velnor {
namespace {

TEST(EscapedTextTest, SignsOfTheMarkupStandForThemselves) {
  EXPECT_EQ(EscapedText("<b onclick='x'>\"a\" & b</b>"),
            "&lt;b onclick=&#39;x&#39;&gt;&quot;a&quot; &amp; b&lt;/b&gt;");
}

TEST(EscapedTextTest, IsUtf8) { EXPECT_EQ(EscapedText("\xBFurek"), "żurek"); }

TEST(EscapedTextTest, ControlSignsAreReplaced) {
  using std::string_view_literals::operator""sv;
  EXPECT_EQ(EscapedText("a\0b\x1F\x7F"
                        "c\td\r\ne"sv),
            "a\uFFFDb\uFFFD\uFFFDc d e");
}

TEST(EscapedTextTest, IsCutBetweenCharacters) {
  EXPECT_EQ(EscapedText("\xBF\xBF\xBF", 2), "żż…");
  EXPECT_EQ(EscapedText("<<<", 2), "&lt;&lt;…");
  EXPECT_EQ(EscapedText("ab", 2), "ab");
}

TEST(NumberTextTest, PartsTheThousands) {
  EXPECT_EQ(NumberText(0), "0");
  EXPECT_EQ(NumberText(999.4), "999");
  EXPECT_EQ(NumberText(1234.56, 1), "1\u202F234.6");
  EXPECT_EQ(NumberText(1234567), "1\u202F234\u202F567");
  EXPECT_EQ(NumberText(-2100), "\u22122\u202F100");
  EXPECT_EQ(NumberText(-0.04, 1), "0.0");
}

TEST(NumberTextTest, WhatIsHugeStandsInPowersOfTen) {
  EXPECT_EQ(NumberText(1e30), "1e30");
  EXPECT_EQ(NumberText(-1.2345e8, 2), "\u22121.23e08");
  EXPECT_EQ(NumberText(std::numeric_limits<double>::infinity()), "inf");
  EXPECT_EQ(NumberText(std::numeric_limits<double>::quiet_NaN()), "–");
}

TEST(NumberTextTest, ChangesHaveASign) {
  EXPECT_EQ(SignedNumberText(0.35, 1), "+0.3");
  EXPECT_EQ(SignedNumberText(-0.36, 1), "\u22120.4");
  EXPECT_EQ(SignedNumberText(0.01, 1), "0.0");
}

TEST(CountTextTest, OneIsNotSeveral) {
  EXPECT_EQ(CountText(1, "day", "days"), "1 day");
  EXPECT_EQ(CountText(0, "day", "days"), "0 days");
  EXPECT_EQ(CountText(1200, "day", "days"), "1\u202F200 days");
}

}  // namespace
}  // namespace velnor

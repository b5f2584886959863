#include "base/code_page.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

namespace velnor {
namespace {

TEST(ToLowerCaseTest, MakesCapitalLettersSmall) {
  EXPECT_EQ(ToLowerCase("Apple Pie 4%"), "apple pie 4%");
  EXPECT_EQ(ToLowerCase(""), "");
  EXPECT_EQ(ToLowerCase("@[`{"), "@[`{");  // the neighbours of A to Z and a to z
}

TEST(ToLowerCaseTest, KnowsThePolishLetters) {
  // A ogonek, C acute, E ogonek, L stroke, N acute, O acute, S acute, Z acute, Z dot
  EXPECT_EQ(ToLowerCase("\xA5\xC6\xCA\xA3\xD1\xD3\x8C\x8F\xAF"),
            "\xB9\xE6\xEA\xB3\xF1\xF3\x9C\x9F\xBF");
}

TEST(ToLowerCaseTest, LeavesSmallLettersAndSignsAlone) {
  EXPECT_EQ(ToLowerCase("\xB9\xE6\xEA\xB3\xF1\xF3\x9C\x9F\xBF"),
            "\xB9\xE6\xEA\xB3\xF1\xF3\x9C\x9F\xBF");
  EXPECT_EQ(ToLowerCase("\xD7\xF7\xDF\x80\xA0\xFF"), "\xD7\xF7\xDF\x80\xA0\xFF");
}

TEST(ToUtf8Test, LeavesTheFirstHalfAlone) {
  EXPECT_EQ(ToUtf8(""), "");
  EXPECT_EQ(ToUtf8("Apple <Pie> 4%\t\x7F"), "Apple <Pie> 4%\t\x7F");
}

// As Python's codec "cp1250" reads the bytes: one of each row of the table, and the Polish letters.
TEST(ToUtf8Test, GivesEverySignItsBytes) {
  EXPECT_EQ(ToUtf8("\x80\x8A\x93\x9F\xA5\xAF\xB3\xBC"), "€Š“źĄŻłĽ");
  EXPECT_EQ(ToUtf8("\xC0\xCF\xD7\xDF\xE5\xEC\xF7\xFF"), "ŔĎ×ßĺě÷˙");
  EXPECT_EQ(ToUtf8("za\xBF\xF3\xB3\xE6 g\xEA\x9Cl\xB9 ja\x9F\xF1"), "zażółć gęślą jaźń");
}

TEST(ToUtf8Test, AByteWithoutASignIsAReplacement) {
  EXPECT_EQ(ToUtf8("a\x81\x83\x88\x90\x98z"), "a\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDz");
}

// Read backwards, no two bytes gave the same sign.
TEST(ToUtf8Test, EverySignIsAnother) {
  std::set<std::string> signs;
  for (int byte = 0x80; byte < 0x100; ++byte) {
    signs.insert(ToUtf8(std::string(1, static_cast<char>(byte))));
  }
  EXPECT_EQ(signs.size(), 128U - 5 + 1);
}

TEST(FoldLettersTest, TakesMarksAndCapitalsAway) {
  EXPECT_EQ(FoldLetters("\xAFUREK \x8Cl\xB9ski, \xB3oso\x9C 4%"), "zurek slaski, losos 4%");
  EXPECT_EQ(FoldLetters("\xC8\xE8\xD8\xF8\xD9\xF9\xDF\xA0\xD7"), "ccrruus \xD7");
}

TEST(IsUtf8Test, TellsSoundTextFromOther) {
  for (const char* const text : {"", "plain", "\xC5\xBC", "\xE2\x82\xAC", "\xF0\x9F\x8D\x8E"}) {
    EXPECT_TRUE(IsUtf8(text)) << text;
  }
  // a small letter of the code page, a sequence cut short, a letter in too long a form, a
  // surrogate, beyond the last code point, a byte that follows nothing
  for (const char* const text : {"\xBFur", "\xC5", "\xE2\x82", "\xC0\xAF", "\xE0\x80\xAF",
                                 "\xED\xA0\x80", "\xF4\x90\x80\x80", "a\x80", "\xFF"}) {
    EXPECT_FALSE(IsUtf8(text)) << text;
  }
}

TEST(FromUtf8Test, KnowsEveryLetterOfThePage) {
  EXPECT_EQ(FromUtf8("plain"), "plain");
  EXPECT_EQ(FromUtf8("\xC4\x84\xC4\x86\xC4\x98\xC5\x81\xC5\x83\xC3\x93\xC5\x9A\xC5\xB9\xC5\xBB"),
            "\xA5\xC6\xCA\xA3\xD1\xD3\x8C\x8F\xAF");
  EXPECT_EQ(FromUtf8("\xE2\x82\xAC\xE2\x80\x93\xCB\x99"), "\x80\x96\xFF");
}

TEST(FromUtf8Test, SignsThatThePageLacksGetAStandIn) {
  EXPECT_EQ(FromUtf8("cr\xC3\xA8me br\xC3\xBBl\xC3\xA9"
                     "e"),
            "creme brul\xE9"
            "e");
  EXPECT_EQ(FromUtf8("jalape\xC3\xB1o, \xC5\x93uf"), "jalapeno, ouf");
  EXPECT_EQ(FromUtf8("e\xCC\x81t\xE2\x80\x8B"), "et");  // a mark of its own, no width
  EXPECT_EQ(FromUtf8("a\xE2\x80\xAF"
                     "b\xE2\x88\x92"
                     "c"),
            "a b-c");  // a narrow space, a minus
  EXPECT_EQ(FromUtf8("\xE8\x8C\xB6 \xF0\x9F\x8D\x8E \xEF\xBF\xBD"), "? ? ?");
}

TEST(FromUtf8Test, ABrokenSequenceIsAQuestionMark) {
  EXPECT_EQ(FromUtf8("a\xC5"), "a?");
  EXPECT_EQ(FromUtf8("\xFF\xC5\xBC"), "?\xBF");
}

TEST(FromUtf16Test, ReadsBothOrdersAndPairs) {
  using namespace std::string_literals;
  EXPECT_EQ(FromUtf16("\x7B\x01u\0"s, false), "\xAFu");
  EXPECT_EQ(FromUtf16("\x01\x7B\0u"s, true), "\xAFu");
  EXPECT_EQ(FromUtf16("\x3C\xD8\x4E\xDF!\0x"s, false), "?!");
}

}  // namespace
}  // namespace velnor

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

}  // namespace
}  // namespace velnor

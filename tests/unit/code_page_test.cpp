#include "base/code_page.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace velnor

#include "base/session.h"

#include <gtest/gtest.h>

namespace velnor {
namespace {

TEST(DateTextTest, JoinsDayMonthAndYearWithoutLeadingZeros) {
  EXPECT_EQ(DateText(16, 11, 2026), "16.11.2026");
  EXPECT_EQ(DateText(5, 3, 2026), "5.3.2026");
  EXPECT_EQ(DateText(1, 1, 2027), "1.1.2027");  // January is 1
  EXPECT_EQ(DateText(31, 12, 2026), "31.12.2026");
}

TEST(SessionStateTest, StartsAtHomeWithNobodyLoggedIn) {
  const SessionState session;
  EXPECT_EQ(session.screen, kHomeScreen);
  EXPECT_EQ(session.user, std::nullopt);
  EXPECT_EQ(session.UserFile("info.ASC"), std::nullopt);
}

}  // namespace
}  // namespace velnor

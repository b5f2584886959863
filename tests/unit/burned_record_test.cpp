#include "activity/burned_record.h"

#include <gtest/gtest.h>
#include <string>

namespace velnor {
namespace {

const BurnedRecord kSitting = {.date = "7.3.2008",
                               .activity = "sitting",
                               .minutes = "30",
                               .kcal = "9.",
                               .fat = "0.771",
                               .other = "at work"};

// 99 of them.
const std::string kDashes =
    "---------------------------------------------------------------------------------------------"
    "------";

TEST(BurnedRecordTest, IsTwoLinesAndALineOfDashes) {
  ASSERT_EQ(kDashes.size(), 99U);
  EXPECT_EQ(BurnedRecordText(kSitting),
            "7.3.2008  activity: sitting  time[min]: 30  calories burned[kcal]: 9."
            "  fat burned[g]: 0.771  \nother: at work\n" +
                kDashes + "\n");
}

TEST(BurnedRecordTest, EmptyTextsStayEmpty) {
  EXPECT_EQ(BurnedRecordText({}),
            "  activity:   time[min]:   calories burned[kcal]:   fat burned[g]:   \nother: \n" +
                kDashes + "\n");
}

}  // namespace
}  // namespace velnor

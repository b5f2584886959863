// The lines that the reports of body measures are made of.

#include <gtest/gtest.h>

#include "body/weight_record.h"
#include "body/whr_record.h"

namespace velnor {
namespace {

TEST(WeightRecordLine, ATabStandsBehindEveryText) {
  EXPECT_EQ(WeightRecordLine({"16.11.2026", "70", "22.85", "after lunch"}),
            "date: 16.11.2026\tbody weight[kg]: 70\tBMI: 22.85\tother: after lunch\t\n");
  EXPECT_EQ(WeightRecordLine({}), "date: \tbody weight[kg]: \tBMI: \tother: \t\n");
}

TEST(WhrRecordLine, NoTabStandsBehindTheLastText) {
  EXPECT_EQ(WhrRecordLine({"16.11.2026", "80.12", "100.", "0.8", "after lunch"}),
            "date: 16.11.2026\twaist[cm]: 80.12\thip[cm]: 100.\tWHR: 0.8\tother: after lunch\n");
  EXPECT_EQ(WhrRecordLine({}), "date: \twaist[cm]: \thip[cm]: \tWHR: \tother: \n");
}

}  // namespace
}  // namespace velnor

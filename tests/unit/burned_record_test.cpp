#include "activity/burned_record.h"

#include <gtest/gtest.h>
#include <string>

#include "tests/support/temporary_folder.h"

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

TEST(BurnedRecordTest, RecordsFollowEachOther) {
  const TemporaryFolder folder;
  const std::string path = folder.path() + "cwiczenia.ASC";
  const std::string record =
      "7.3.2008  activity: sitting  time[min]: 30  calories burned[kcal]: 9."
      "  fat burned[g]: 0.771  \r\nother: at work\r\n" +
      kDashes + "\r\n";
  EXPECT_TRUE(AppendBurnedRecord(path, kSitting));
  EXPECT_EQ(folder.Read("cwiczenia.ASC"), record);
  EXPECT_TRUE(AppendBurnedRecord(path, kSitting));
  EXPECT_EQ(folder.Read("cwiczenia.ASC"), record + record);
}

TEST(BurnedRecordTest, WhatStandsInTheReportStays) {
  const TemporaryFolder folder;
  const std::string path = folder.Write("cwiczenia.ASC", "by hand\nopen line");
  EXPECT_TRUE(AppendBurnedRecord(path, kSitting));
  EXPECT_TRUE(folder.Read("cwiczenia.ASC").starts_with("by hand\nopen line7.3.2008  activity: "));
}

TEST(BurnedRecordTest, AMissingFolderIsToldToTheCaller) {
  const TemporaryFolder folder;
  EXPECT_FALSE(AppendBurnedRecord(folder.path() + "missing/cwiczenia.ASC", kSitting));
}

}  // namespace
}  // namespace velnor

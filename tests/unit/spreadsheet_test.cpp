#include "diary/spreadsheet.h"

#include <gtest/gtest.h>
#include <string>

namespace velnor {
namespace {

constexpr std::string_view kMark = "\xEF\xBB\xBF";

TEST(SpreadsheetFieldTest, StandsInQuotesWhereItMust) {
  EXPECT_EQ(SpreadsheetField("bread; white"), "bread; white");
  EXPECT_EQ(SpreadsheetField("bread, white"), "\"bread, white\"");
  EXPECT_EQ(SpreadsheetField("5\" roll"), "\"5\"\" roll\"");
  EXPECT_EQ(SpreadsheetField("two\r\nlines"), "\"two\r\nlines\"");
  EXPECT_EQ(SpreadsheetField(""), "");
}

TEST(SpreadsheetFieldTest, IsNoFormula) {
  EXPECT_EQ(SpreadsheetField("=1+1"), "'=1+1");
  EXPECT_EQ(SpreadsheetField("+1"), "'+1");
  EXPECT_EQ(SpreadsheetField("-1"), "'-1");
  EXPECT_EQ(SpreadsheetField("@SUM(A1)"), "'@SUM(A1)");
  EXPECT_EQ(SpreadsheetField("\t=1"), "'\t=1");
  EXPECT_EQ(SpreadsheetField("\r=1"), "\"'\r=1\"");
  EXPECT_EQ(SpreadsheetField("=a,b"), "\"'=a,b\"");
  EXPECT_EQ(SpreadsheetField("1+1"), "1+1");
}

TEST(SpreadsheetTest, ALineADay) {
  const DayTable table = FoldHistory(
      "2026-11-17;;weight;;70.5;kg;;;;\n"
      "2026-11-16;08:00:00;food;bread;100;g;250;8.5;1;50\n"
      "2026-11-16;08:00:00;food;milk;100;g;60.25;3;2;5\n"
      "2026-11-16;09:00:00;burned;running;30;min;300;;;\n"
      "2026-11-16;09:00:00;waist-hip;;0.85;;;;;\n");
  EXPECT_EQ(DaysSpreadsheet(table),
            std::string(kMark) +
                "date,kcal,protein,fat,carbohydrate,burned,weight,waist_hip\r\n"
                "2026-11-16,310.25,11.5,3,55,300,,0.85\r\n"
                "2026-11-17,,,,,,70.5,\r\n");
}

TEST(SpreadsheetTest, ALineADeed) {
  const DayTable table = FoldHistory(
      "2026-11-17;;imported;;;;2000;60;70;250\n"
      "2026-11-16;08:00:00;food;=\xBFur;100;g;250;8.5;1;50\n"
      "2026-11-16;08:00:09;removed;=\xBFur;100;g;-250;-8.5;-1;-50\n");
  EXPECT_EQ(DeedsSpreadsheet(table),
            std::string(kMark) +
                "date,time,what,name,amount,unit,kcal,protein,fat,carbohydrate\r\n"
                "2026-11-16,08:00:00,food,'=żur,100,g,250,8.5,1,50\r\n"
                "2026-11-16,08:00:09,removed,'=żur,100,g,-250,-8.5,-1,-50\r\n"
                "2026-11-17,,imported,,,,2000,60,70,250\r\n");
}

TEST(SpreadsheetTest, OfNothingThereIsTheHeader) {
  EXPECT_EQ(DaysSpreadsheet({}).find("\r\n"), DaysSpreadsheet({}).size() - 2);
}

}  // namespace
}  // namespace velnor

#include "food/product_table_reader.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace velnor {
namespace {

using Fields = std::vector<std::string>;

std::vector<TableRow> Rows(std::string_view text, char separator = ',') {
  std::vector<TableRow> rows;
  TableReader reader(text, separator);
  while (std::optional<TableRow> row = reader.Next()) rows.push_back(std::move(*row));
  return rows;
}

Fields OnlyRow(std::string_view text, char separator = ',') {
  const std::vector<TableRow> rows = Rows(text, separator);
  EXPECT_EQ(rows.size(), 1U) << text;
  return rows.empty() ? Fields{} : rows.front().fields;
}

TEST(TableReaderTest, TakesFieldsApartAtTheSeparator) {
  EXPECT_EQ(OnlyRow("a,b;c,,d\n"), (Fields{"a", "b;c", "", "d"}));
  EXPECT_EQ(OnlyRow("a,b;c", ';'), (Fields{"a,b", "c"}));
  EXPECT_EQ(OnlyRow("a\tb\t", '\t'), (Fields{"a", "b", ""}));
  EXPECT_EQ(OnlyRow(","), (Fields{"", ""}));
  EXPECT_TRUE(Rows("").empty());
}

TEST(TableReaderTest, KnowsTheThreeLineEndsAndCountsLines) {
  const std::vector<TableRow> rows = Rows("a\r\nb\n\rc\n");
  ASSERT_EQ(rows.size(), 4U);
  EXPECT_EQ(rows[1].fields, (Fields{"b"}));
  EXPECT_TRUE(rows[2].IsEmpty());
  EXPECT_EQ(rows[3].fields, (Fields{"c"}));
  EXPECT_EQ(rows[3].first_line, 4U);
}

TEST(TableReaderTest, QuotesHoldSeparatorsQuotesAndLineEnds) {
  EXPECT_EQ(OnlyRow(R"("a,b","say ""yes""","")"), (Fields{"a,b", "say \"yes\"", ""}));
  const std::vector<TableRow> rows = Rows("\"one\r\ntwo\nthree\",x\nnext");
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[0].fields, (Fields{"one\r\ntwo\nthree", "x"}));
  EXPECT_EQ(rows[0].first_line, 1U);
  EXPECT_EQ(rows[0].last_line, 3U);
  EXPECT_EQ(rows[1].first_line, 4U);
}

TEST(TableReaderTest, AQuoteInTheMiddleOrWithoutAnEndIsALetter) {
  EXPECT_EQ(OnlyRow("5\" roll,x"), (Fields{"5\" roll", "x"}));
  EXPECT_EQ(OnlyRow("\"a\"b,x"), (Fields{"ab", "x"}));
  const std::vector<TableRow> rows = Rows("\"open,x\nnext,y\n");
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[0].fields, (Fields{"\"open", "x"}));
  EXPECT_EQ(rows[1].fields, (Fields{"next", "y"}));
}

TEST(TableReaderTest, ARowBeyondTheLimitIsToldAndReadPast) {
  const std::string longest(kTableRowLimit, 'x');
  for (const std::string& row :
       {longest + 'x', longest + ",x", '"' + longest + '"', std::string(1'000'000, '"'),
        std::string(kTableRowLimit, ',') + 'x'}) {
    const std::vector<TableRow> rows = Rows(row + "\nnext");
    ASSERT_EQ(rows.size(), 2U) << row.substr(0, 20);
    EXPECT_TRUE(rows[0].is_too_long);
    EXPECT_TRUE(rows[0].fields.empty());
    EXPECT_EQ(rows[1].fields, (Fields{"next"}));
  }
  EXPECT_EQ(OnlyRow(longest), (Fields{longest}));
}

TEST(TableReaderTest, BlanksAloneAreAnEmptyRow) {
  EXPECT_TRUE(Rows(" ,\t,\xA0,\n").front().IsEmpty());
  EXPECT_FALSE(Rows(",,0").front().IsEmpty());
}

TEST(TableTextTest, KnowsHowTheTextIsWritten) {
  const std::string zurek = "\xAFurek \x9Cl\xB9ski";  // in code page 1250
  EXPECT_EQ(TableText("\xC5\xBBurek \xC5\x9Bl\xC4\x85ski"), zurek);
  EXPECT_EQ(TableText("\xEF\xBB\xBF\xC5\xBBurek \xC5\x9Bl\xC4\x85ski"), zurek);
  EXPECT_EQ(TableText(zurek), zurek);
  EXPECT_EQ(TableText(std::string("\xFF\xFE\x7B\x01u\0", 6)), "\xAFu");
  EXPECT_EQ(TableText(std::string("\xFE\xFF\x01\x7B\0u", 6)), "\xAFu");
  // Damaged UTF-8 that bears the mark is UTF-8 all the same.
  EXPECT_EQ(TableText("\xEF\xBB\xBF\xC5\xBBu\xC5"), "\xAFu?");
}

TEST(TableTextTest, WhatHoldsANulIsNoText) {
  EXPECT_EQ(TableText(std::string("PK\3\4\0\0", 6)), std::nullopt);
  EXPECT_EQ(TableText(std::string("\xFF\xFE\0\0a\0", 6)), std::nullopt);
}

TEST(TidyTextTest, LeavesOneBlankBetweenWords) {
  EXPECT_EQ(TidyText("  rye\r\n\tbread\xA0  4% \x7F"), "rye bread 4%");
  EXPECT_EQ(TidyText(" \xA0"), "");
}

}  // namespace
}  // namespace velnor

#include <gtest/gtest.h>
#include <string>

#include "food/food_table.h"
#include "tests/support/temporary_folder.h"

namespace velnor {
namespace {

using namespace std::string_literals;

class UserProductTableTest : public testing::Test {
 protected:
  std::span<const ProductRecord> Load(std::string_view bytes) {
    table_.Load(folder_.Write("data.txt", bytes));
    return table_.products();
  }

  TemporaryFolder folder_;
  UserProductTable table_;
};

TEST_F(UserProductTableTest, SplitsALineIntoItsFields) {
  const auto products = Load("fruits;fresh;apple pie;120;237.5;1.9;11;34.0;\n");
  ASSERT_EQ(products.size(), 1U);
  EXPECT_EQ(products[0].main_category, "fruits");
  EXPECT_EQ(products[0].subcategory, "fresh");
  EXPECT_EQ(products[0].name, "apple pie");
  EXPECT_EQ(products[0].mass, "120");
  EXPECT_EQ(products[0].kcal, "237.5");
  EXPECT_EQ(products[0].protein, "1.9");
  EXPECT_EQ(products[0].fat, "11");
  EXPECT_EQ(products[0].carbohydrate, "34.0");
}

TEST_F(UserProductTableTest, KeepsEmptyFieldsAndIgnoresWhatIsTooMany) {
  const ProductRecord empty = SplitProductLine(";;name;;1;;3;");
  EXPECT_EQ(empty.main_category, "");
  EXPECT_EQ(empty.name, "name");
  EXPECT_EQ(empty.mass, "");
  EXPECT_EQ(empty.kcal, "1");
  EXPECT_EQ(empty.protein, "");
  EXPECT_EQ(empty.fat, "3");
  EXPECT_EQ(empty.carbohydrate, "");
  EXPECT_EQ(SplitProductLine("a;b;c;d;e;f;g;h;i;j;").carbohydrate, "h");
  EXPECT_EQ(SplitProductLine("a;b;c;d;e;f;g;h").carbohydrate, "h");
  EXPECT_EQ(SplitProductLine("a;b;c").name, "c");
  EXPECT_EQ(SplitProductLine("a;b;c").mass, "");
}

// Wherever in a long line the separators stand.
TEST_F(UserProductTableTest, SplitsAtEveryPlaceOfALine) {
  for (std::size_t length = 0; length <= 140; ++length) {
    const std::string first(length, ':');  // its neighbours in the alphabet separate nothing
    const std::string second(140 - length, '<');
    std::string line = first;
    line.append(";\xBB;").append(second).append(";a;b;c;d;e;f");
    const ProductRecord product = SplitProductLine(line);
    EXPECT_EQ(product.main_category, first);
    EXPECT_EQ(product.subcategory, "\xBB");
    EXPECT_EQ(product.name, second);
    EXPECT_EQ(product.mass, "a");
    EXPECT_EQ(product.carbohydrate, "e");
    std::string open_line = first;
    open_line.append(1, ';').append(second);
    const ProductRecord open = SplitProductLine(open_line);
    EXPECT_EQ(open.main_category, first);
    EXPECT_EQ(open.subcategory, second);
    EXPECT_EQ(open.name, "");
  }
}

TEST_F(UserProductTableTest, AMissingFileLeavesItEmpty) {
  Load("fruits;fresh;apple pie;100;1;1;1;1;\n");
  table_.Load(folder_.path() + "missing.txt");
  EXPECT_TRUE(table_.products().empty());
}

TEST_F(UserProductTableTest, IgnoresLinesOfFiveCharactersOrLess) {
  const auto products = Load("a;b;c\n\na;b;cd\nabcde\nfruits;fresh;fig;100;1;1;1;1;");
  ASSERT_EQ(products.size(), 2U);
  EXPECT_EQ(products[0].name, "cd");
  EXPECT_EQ(products[1].name, "fig");
}

TEST_F(UserProductTableTest, ALongLineCountsAsSeveral) {
  const std::string filler(149, 'x');
  const auto products = Load(filler + "m;s;rest;100;1;1;1;1;\nm;s;next;100;1;1;1;1;\n");
  ASSERT_EQ(products.size(), 3U);
  EXPECT_EQ(products[0].main_category, filler);
  EXPECT_EQ(products[1].name, "rest");
  EXPECT_EQ(products[2].name, "next");
}

TEST_F(UserProductTableTest, StopsAfterThreeThousandLinesWhateverTheyHold) {
  std::string lines;
  for (int i = 0; i < 1000; ++i) lines += "\r\n";
  for (int i = 0; i < 5000; ++i) lines += "m;s;product " + std::to_string(i) + ";100;1;1;1;1;\r\n";
  const auto products = Load(lines);
  ASSERT_EQ(products.size(), 2000U);
  EXPECT_EQ(products.back().name, "product 1999");
}

TEST_F(UserProductTableTest, ReadsThreeThousandOfTheLongestLines) {
  std::string lines;
  for (int i = 0; i < 3001; ++i) {
    std::string line = "m;s;" + std::to_string(i) + ";100;1;1;1;1;";
    line.resize(148, '.');
    lines += line + "\r\n";
  }
  const auto products = Load(lines);
  ASSERT_EQ(products.size(), 3000U);
  EXPECT_EQ(products.back().name, "2999");
}

TEST_F(UserProductTableTest, SurvivesJunk) {
  std::string junk = "m;s;before;100;1;1;1;1;\n"s + std::string(10'000, 'j') + "\n" +
                     "m;s;nul\0 hidden;100;1;1;1;1;\r\n"s + std::string(500, '\0') + "\n" +
                     "\xFF\xFE;\x01\x1A;binary;;;;;;;;;;;\nm;s;after;100;1;1;1;1;";
  const auto products = Load(junk);
  ASSERT_FALSE(products.empty());
  EXPECT_EQ(products.front().name, "before");
  EXPECT_EQ(products.back().name, "after");
  bool found_cut_name = false;
  for (const ProductRecord& product : products) found_cut_name |= product.name == "nul";
  EXPECT_TRUE(found_cut_name);
}

}  // namespace
}  // namespace velnor

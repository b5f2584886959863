#include "food/product_search.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

#include "tests/support/temporary_folder.h"

namespace velnor {
namespace {

using Results = std::vector<std::string>;

bool Contains(const Results& results, const std::string& result) {
  return std::ranges::count(results, result) == 1;
}

TEST(SearchProductsTest, FindsPiecesOfSubcategoryAndName) {
  const FoodTable food;
  const Results results = SearchProducts(food, "frozen");
  std::size_t expected = 0;
  for (const ProductRecord& row : food.products) {
    if (row.subcategory == "frozen" || row.name.find("frozen") != std::string_view::npos)
      ++expected;
  }
  EXPECT_EQ(results.size(), expected);
  EXPECT_EQ(std::set<std::string>(results.begin(), results.end()).size(), expected) << "each once";
  EXPECT_EQ(results.front(), "fruits --> frozen --> frozen strawberries");
  EXPECT_TRUE(Contains(results, "fruits --> frozen --> frozen plums"));
}

TEST(SearchProductsTest, LooksAcrossTheBlankBetweenThem) {
  const FoodTable food;
  EXPECT_EQ(SearchProducts(food, "frozen frozen straw"),
            (Results{"fruits --> frozen --> frozen strawberries"}));
  EXPECT_TRUE(SearchProducts(food, "fruits").empty() ||
              !Contains(SearchProducts(food, "fruits"), "fruits --> frozen --> frozen plums"));
}

TEST(SearchProductsTest, CapitalsAndNothingFindNothing) {
  const FoodTable food;
  EXPECT_EQ(SearchProducts(food, "Frozen"), Results{});
  EXPECT_EQ(SearchProducts(food, ""), Results{});
}

TEST(SearchProductsTest, FindsWhatNoChoiceLists) {
  const FoodTable food;
  const auto with_filing = [&](const std::string& main_category, const std::string& subcategory) {
    const Results results = SearchProducts(food, subcategory + " ");
    const std::string filing = main_category + " --> " + subcategory + " --> ";
    return std::ranges::count_if(
        results, [&](const std::string& result) { return result.starts_with(filing); });
  };
  EXPECT_EQ(with_filing("preserves zbo\xBF"
                        "owe",
                        "breakfast"),
            15);
  EXPECT_EQ(with_filing("preserves zbo\xBF"
                        "owe",
                        "other"),
            2);
  EXPECT_EQ(with_filing("preserves zbo\xBF"
                        "owe",
                        "rice"),
            3);
  EXPECT_EQ(with_filing("fruits", "w puszce"), 4);
  EXPECT_EQ(with_filing("meat", "porky"), 1);
  EXPECT_EQ(with_filing("drinks", "gazowane"), 1);
  EXPECT_EQ(with_filing("soup", "inna"), 1);
  EXPECT_EQ(with_filing("dishes",
                        "tradycyjne  mi\xEA"
                        "sne"),
            1);
}

TEST(SearchProductsTest, MarksTheUsersProducts) {
  const TemporaryFolder folder;
  FoodTable food;
  food.user_products.Load(
      folder.Write("data.txt", "fruits;fresh;zz apple pie;100;1;1;1;1;\r\nabc\r\n"));
  EXPECT_EQ(SearchProducts(food, "zz apple"), (Results{"[B] fruits --> fresh --> zz apple pie"}));
  EXPECT_EQ(SearchProducts(food, "fresh zz"), (Results{"[B] fruits --> fresh --> zz apple pie"}));
}

TEST(SearchProductsTest, FindsWhatTheLastLoadBroughtAndNothingElse) {
  const TemporaryFolder folder;
  FoodTable food;
  food.user_products.Load(folder.Write("data.txt", "fruits;fresh;zzz apple;100;1;1;1;1;\r\n"));
  food.user_products.Load(folder.Write(
      "data.txt",
      "abc\r\nfruits;fresh;zzz pear;100;1;1;1;1;\r\nmeat;pork;zzz ham;100;1;1;1;1;\r\n"));
  EXPECT_EQ(SearchProducts(food, "zzz"),
            (Results{"[B] fruits --> fresh --> zzz pear", "[B] meat --> pork --> zzz ham"}));
}

}  // namespace
}  // namespace velnor

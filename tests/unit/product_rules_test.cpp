// The loose comparisons, position by position, on tables made for it.

#include "food/product_rules.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "food/loose_match.h"
#include "tests/support/temporary_folder.h"

namespace velnor {
namespace {

using Names = std::vector<std::string_view>;

constexpr ProductRecord Row(std::string_view main_category, std::string_view subcategory,
                            std::string_view name, std::string_view kcal = "1") {
  return {main_category, subcategory, name, "100", kcal, "2", "3", "4"};
}

// A table of the built-in categories with products of the test's own.
class ProductRulesTest : public testing::Test {
 protected:
  Names Listed(Layout layout, std::span<const ProductRecord> products,
               std::string_view main_category, std::string_view subcategory) {
    food_.products = products;
    return ListProducts(food_, layout, main_category, subcategory);
  }
  void LoadUserProducts(std::string_view lines) {
    food_.user_products.Load(folder_.Write("data.txt", lines));
  }

  TemporaryFolder folder_;
  FoodTable food_;
};

TEST(LooseMatchTest, ReadsNulOutsideTheText) {
  EXPECT_EQ(CharAt("abc", 2), 'c');
  EXPECT_EQ(CharAt("abc", 3), '\0');
  EXPECT_EQ(CharAt("abc", -1), '\0');
  EXPECT_EQ(CharAt("", 0), '\0');
  EXPECT_TRUE(AgreeAt("abc", "axc", {0, 2, 7, -4}));
  EXPECT_FALSE(AgreeAt("abc", "axc", {0, 1}));
  EXPECT_FALSE(AgreeAt("abc", "ab", {2}));
  EXPECT_TRUE(EndsBy("abc", 3));
  EXPECT_FALSE(EndsBy("abc", 2));
}

TEST_F(ProductRulesTest, OffersTheSubcategoriesOfTheChosenCategoryOnly) {
  for (const Layout layout : {Layout::kCounter, Layout::kOverview}) {
    for (const CategoryRecord& category : food_.categories) {
      Names expected;
      for (const std::string_view slot : category.subcategories) {
        if (layout == Layout::kCounter ? slot.size() > 1 : !IsUnusedSlot(slot)) {
          expected.push_back(slot);
        }
      }
      EXPECT_EQ(ListSubcategories(food_, layout, category.main_category), expected);
    }
    EXPECT_EQ(ListSubcategories(food_, layout, ""), Names{});
    EXPECT_EQ(ListSubcategories(food_, layout, "no such category"), Names{});
  }
}

TEST_F(ProductRulesTest, GrainPreservesOfferAnEmptyEntryOnTheOverviewOnly) {
  EXPECT_EQ(ListSubcategories(food_, Layout::kCounter, "grain preserves"),
            (Names{"flour", "groats", "rice", "breakfast", "other"}));
  EXPECT_EQ(ListSubcategories(food_, Layout::kOverview, "grain preserves"),
            (Names{"flour", "groats", "rice", "breakfast", "other", ""}));
}

TEST_F(ProductRulesTest, CategoriesAreComparedFromBothEnds) {
  // "poultry": positions 0 to 2 and the last three; the counter looks at the fourth from the end.
  std::vector<CategoryRecord> categories;
  for (const std::string_view name :
       {"pouXtry", "poulXry", "pouttry", "poultry", "poultryman", "poultr"}) {
    CategoryRecord& category = categories.emplace_back();
    category.main_category = name;
    category.subcategories.fill(kUnusedSlot);
    category.subcategories[3] = name;
  }
  food_.categories = categories;
  EXPECT_EQ(ListSubcategories(food_, Layout::kOverview, "poultry"),
            (Names{"pouXtry", "pouttry", "poultry"}));
  EXPECT_EQ(ListSubcategories(food_, Layout::kCounter, "poultry"), (Names{"poultry"}));
}

TEST_F(ProductRulesTest, BuiltInSubcategoriesAreComparedAtFewPositions) {
  // "cottage cheese", 14 characters. Both: 0, 1, 2, 13. Counter: 7, 4, 3. Overview: 12, 11, 7.
  const ProductRecord products[] = {
      Row("dairy", "cottage cheese", "exact"),    Row("dairy", "cottaXX XXeesX", "wrong end"),
      Row("dairy", "cottaXX XXXXXe", "counter"),  Row("dairy", "cotXXXX XXXese", "overview"),
      Row("dairy", "cottage cheeseX", "longer"),  Row("dairy", "cottage chees", "shorter"),
      Row("dXiry", "cottage cheese", "category"), Row("daXXX", "cottage cheese", "two letters")};
  EXPECT_EQ(Listed(Layout::kCounter, products, "dairy products", "cottage cheese"),
            (Names{"exact", "counter", "two letters"}));
  EXPECT_EQ(Listed(Layout::kOverview, products, "dairy products", "cottage cheese"),
            (Names{"exact", "overview", "two letters"}));
}

TEST_F(ProductRulesTest, UserProductsAreComparedAtOtherPositions) {
  food_.products = {};
  // Category "vegetables", p = 10: 0 to 2, 5, 3, and not longer than the product's.
  // Subcategory "fresh", n = 5: 0 to 2, 2, 1; the overview also at 1.
  LoadUserProducts(
      "vegetables;fresh;exact;100;1;1;1;1;\n"
      "vegeXaXXXX;fresh;middle;100;1;1;1;1;\n"
      "vegetables;freXX;loose end;100;1;1;1;1;\n"
      "vegetable;fresh;shorter;100;1;1;1;1;\n"
      "vegetablesX;fresh;longer;100;1;1;1;1;\n"
      "vegetables;freshX;longer sub;100;1;1;1;1;\n"
      "vegetables;fre;shorter sub;100;1;1;1;1;\n");
  const Names expected = {"exact", "middle", "loose end", "longer", "shorter sub"};
  // "vegetablesX" has p = 11: 5 and 3, and "vegetables" ends by 11.
  EXPECT_EQ(ListProducts(food_, Layout::kCounter, "vegetables", "fresh"), expected);
  EXPECT_EQ(ListProducts(food_, Layout::kOverview, "vegetables", "fresh"), expected);
}

TEST_F(ProductRulesTest, TheOverviewComparesUserSubcategoriesAtOneMorePosition) {
  food_.products = {};
  // "traditional/fish", n = 16: 8, 5 on both; 4 on the overview.
  LoadUserProducts(
      "dishes;traditXXnXX;agrees;100;1;1;1;1;\n"
      "dishes;tradXtional/fish;differs at 4;100;1;1;1;1;\n"
      "dishes;tradiXional/fish;differs at 5;100;1;1;1;1;\n"
      "dishes;traditioXal/fish;differs at 8;100;1;1;1;1;\n");
  EXPECT_EQ(ListProducts(food_, Layout::kCounter, "dishes", "traditional/fish"),
            (Names{"agrees", "differs at 4"}));
  EXPECT_EQ(ListProducts(food_, Layout::kOverview, "dishes", "traditional/fish"),
            (Names{"agrees"}));
}

TEST_F(ProductRulesTest, AUserProductIsListedUnderItsOwnCategoryOnly) {
  food_.products = {};
  LoadUserProducts("vegetables;fresh;chard;100;19;1.8;0.2;2.1;\n");
  for (const CategoryRecord& category : food_.categories) {
    for (const std::string_view subcategory :
         ListSubcategories(food_, Layout::kOverview, category.main_category)) {
      const bool own = category.main_category == "vegetables" && subcategory == "fresh";
      EXPECT_EQ(ListProducts(food_, Layout::kCounter, category.main_category, subcategory).size(),
                own ? 1U : 0U);
      EXPECT_EQ(ListProducts(food_, Layout::kOverview, category.main_category, subcategory).size(),
                own ? 1U : 0U);
    }
  }
}

TEST_F(ProductRulesTest, ListsBuiltInProductsBeforeTheUsers) {
  const ProductRecord products[] = {Row("fruits", "fresh", "pears"),
                                    Row("fruits", "fresh", "figs")};
  LoadUserProducts("fruits;fresh;apple pie;100;1;1;1;1;\n");
  EXPECT_EQ(Listed(Layout::kCounter, products, "fruits", "fresh"),
            (Names{"pears", "figs", "apple pie"}));
}

TEST_F(ProductRulesTest, NamesAreTakenForOneAnotherWhenTheyAgreeWhereItLooks) {
  // "abcdefghijkl", 12 characters. Both: 0 to 2, 11, 10, 9. Counter: 4, 3, 6. Overview: 8, 7, 6.
  const ProductRecord products[] = {Row("m", "s", "abcdefghijkl", "1"),
                                    Row("m", "s", "abcdeXgXXjkl", "2"),
                                    Row("m", "s", "abcXXXghijkl", "3")};
  food_.products = products;
  EXPECT_EQ(FindProduct(food_, Layout::kCounter, "abcdefghijkl")->kcal, "2");
  EXPECT_EQ(FindProduct(food_, Layout::kOverview, "abcdefghijkl")->kcal, "3");
  EXPECT_EQ(FindProduct(food_, Layout::kCounter, "abcXXXghijkl")->kcal, "3");
  EXPECT_EQ(FindProduct(food_, Layout::kCounter, "abcdefghijk"), nullptr);
  EXPECT_EQ(FindProduct(food_, Layout::kCounter, "abcdefghijklm"), nullptr);
}

TEST_F(ProductRulesTest, UserProductsAreLookedUpOnlyWhenNoBuiltInNameMatches) {
  const ProductRecord products[] = {Row("m", "s", "pears", "1")};
  food_.products = products;
  LoadUserProducts(
      "m;s;pears;100;2;2;2;2;\n"
      "m;s;apple pie;100;3;3;3;3;\n"
      "m;s;apple cake;100;5;5;5;5;\n");
  for (const Layout layout : {Layout::kCounter, Layout::kOverview}) {
    EXPECT_EQ(FindProduct(food_, layout, "pears")->kcal, "1");
    EXPECT_EQ(FindProduct(food_, layout, "apple pie")->kcal, "3");
    EXPECT_EQ(FindProduct(food_, layout, "apple cake")->kcal, "5");
    EXPECT_EQ(FindProduct(food_, layout, "peach tart"), nullptr);
  }
}

TEST_F(ProductRulesTest, OfSeveralUserProductsTheLastWins) {
  food_.products = {};
  LoadUserProducts(
      "m;s;apple pie;100;3;3;3;3;\n"
      "m;s;apple pXX;100;4;4;4;4;\n"  // counter and overview: 0 to 2, 4, 3 (and 2)
      "m;s;appleXX;100;5;5;5;5;\n");  // shorter names match as well
  EXPECT_EQ(FindProduct(food_, Layout::kCounter, "apple pie")->kcal, "5");
  EXPECT_EQ(FindProduct(food_, Layout::kOverview, "apple pie")->kcal, "5");
  EXPECT_EQ(FindProduct(food_, Layout::kCounter, "appleXX")->kcal, "5");
}

TEST_F(ProductRulesTest, ShortAndEmptyNamesAreFoundWithoutReadingOutsideThem) {
  food_.products = {};
  LoadUserProducts("mm;ss;;100;7;7;7;7;\nmm;ss;ab;100;8;8;8;8;\n");
  for (const Layout layout : {Layout::kCounter, Layout::kOverview}) {
    EXPECT_EQ(FindProduct(food_, layout, "")->kcal, "7");
    EXPECT_EQ(FindProduct(food_, layout, "ab")->kcal, "8");
    EXPECT_EQ(FindProduct(food_, layout, "a"), nullptr);
  }
}

// The listing behaviour of the real table.

TEST(ListProductsTest, VegetablesAndSweetsListRowsOfAnotherSpelling) {
  const FoodTable food;
  for (const Layout layout : {Layout::kCounter, Layout::kOverview}) {
    EXPECT_EQ(ListProducts(food, layout, "vegetables", "fresh").size(), 49U);
    EXPECT_EQ(ListProducts(food, layout, "vegetables", "tin").size(), 0U);
    EXPECT_EQ(ListProducts(food, layout, "sweets", "chocolate").size(), 32U);
  }
}

TEST(FindProductTest, ADuplicatedNameYieldsItsLaterRow) {
  const FoodTable food;
  for (const std::string_view name : {"tomato soup", "pea soup", "carrot juice"}) {
    const ProductRecord* last = nullptr;
    for (const ProductRecord& row : food.products) {
      if (row.name == name) last = &row;
    }
    EXPECT_EQ(FindProduct(food, Layout::kCounter, name), last);
    EXPECT_EQ(FindProduct(food, Layout::kOverview, name), last);
  }
}

}  // namespace
}  // namespace velnor

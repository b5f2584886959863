// The loose comparisons, position by position, on tables made for it.

#include "food/product_rules.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <vector>

#include "base/loose_match.h"
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
  Names Listed(Matching matching, std::span<const ProductRecord> products,
               std::string_view main_category, std::string_view subcategory) {
    food_.products = products;
    return ListProducts(food_, matching, main_category, subcategory);
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
  for (const Matching matching : {Matching::kCounter, Matching::kOverview}) {
    for (const CategoryRecord& category : food_.categories) {
      Names expected;
      for (const std::optional<std::string_view>& slot : category.subcategories) {
        if (slot && (matching == Matching::kOverview || slot->size() > 1)) {
          expected.push_back(*slot);
        }
      }
      EXPECT_EQ(ListSubcategories(food_, matching, category.main_category), expected);
    }
    EXPECT_EQ(ListSubcategories(food_, matching, ""), Names{});
    EXPECT_EQ(ListSubcategories(food_, matching, "no such category"), Names{});
  }
}

TEST_F(ProductRulesTest, GrainPreservesOfferAnEmptyEntryOnTheOverviewOnly) {
  EXPECT_EQ(ListSubcategories(food_, Matching::kCounter, "grain preserves"),
            (Names{"flour", "groats", "rice", "breakfast", "other"}));
  EXPECT_EQ(ListSubcategories(food_, Matching::kOverview, "grain preserves"),
            (Names{"flour", "groats", "rice", "breakfast", "other", ""}));
}

TEST_F(ProductRulesTest, ASlotIsLeftOutForItsLengthOrForHoldingNothing) {
  CategoryRecord category = {.main_category = "poultry", .subcategories = {}};
  category.subcategories[1] = "ab";
  category.subcategories[2] = "a";
  category.subcategories[4] = "0";
  category.subcategories[11] = "abc";
  food_.categories = {&category, 1};
  EXPECT_EQ(ListSubcategories(food_, Matching::kCounter, "poultry"), (Names{"ab", "abc"}));
  EXPECT_EQ(ListSubcategories(food_, Matching::kOverview, "poultry"),
            (Names{"ab", "a", "0", "abc"}));
}

TEST_F(ProductRulesTest, CategoriesAreComparedFromBothEnds) {
  // "poultry": positions 0 to 2 and the last three; the counter looks at the fourth from the end.
  std::vector<CategoryRecord> categories;
  for (const std::string_view name :
       {"pouXtry", "poulXry", "pouttry", "poultry", "poultryman", "poultr"}) {
    CategoryRecord& category = categories.emplace_back();
    category.main_category = name;
    category.subcategories[3] = name;
  }
  food_.categories = categories;
  EXPECT_EQ(ListSubcategories(food_, Matching::kOverview, "poultry"),
            (Names{"pouXtry", "pouttry", "poultry"}));
  EXPECT_EQ(ListSubcategories(food_, Matching::kCounter, "poultry"), (Names{"poultry"}));
}

TEST_F(ProductRulesTest, BuiltInSubcategoriesAreComparedAtFewPositions) {
  // "cottage cheese", 14 characters. Both: 0, 1, 2, 13. Counter: 7, 4, 3. Overview: 12, 11, 7.
  const ProductRecord products[] = {
      Row("dairy", "cottage cheese", "exact"),    Row("dairy", "cottaXX XXeesX", "wrong end"),
      Row("dairy", "cottaXX XXXXXe", "counter"),  Row("dairy", "cotXXXX XXXese", "overview"),
      Row("dairy", "cottage cheeseX", "longer"),  Row("dairy", "cottage chees", "shorter"),
      Row("dXiry", "cottage cheese", "category"), Row("daXXX", "cottage cheese", "two letters")};
  EXPECT_EQ(Listed(Matching::kCounter, products, "dairy products", "cottage cheese"),
            (Names{"exact", "counter", "two letters"}));
  EXPECT_EQ(Listed(Matching::kOverview, products, "dairy products", "cottage cheese"),
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
  EXPECT_EQ(ListProducts(food_, Matching::kCounter, "vegetables", "fresh"), expected);
  EXPECT_EQ(ListProducts(food_, Matching::kOverview, "vegetables", "fresh"), expected);
}

TEST_F(ProductRulesTest, TheOverviewComparesUserSubcategoriesAtOneMorePosition) {
  food_.products = {};
  // "traditional/fish", n = 16: 8, 5 on both; 4 on the overview.
  LoadUserProducts(
      "dishes;traditXXnXX;agrees;100;1;1;1;1;\n"
      "dishes;tradXtional/fish;differs at 4;100;1;1;1;1;\n"
      "dishes;tradiXional/fish;differs at 5;100;1;1;1;1;\n"
      "dishes;traditioXal/fish;differs at 8;100;1;1;1;1;\n");
  EXPECT_EQ(ListProducts(food_, Matching::kCounter, "dishes", "traditional/fish"),
            (Names{"agrees", "differs at 4"}));
  EXPECT_EQ(ListProducts(food_, Matching::kOverview, "dishes", "traditional/fish"),
            (Names{"agrees"}));
}

TEST_F(ProductRulesTest, TheMiddleOfAUserCategoryIsThatOfTheProductsOwn) {
  food_.products = {};
  // 29 characters: 14 and 9. Of the 23 chosen ones it would be 11 and 7.
  LoadUserProducts(
      "abcdefghijklmnopqrstuvwxyzABC;fresh;goes on;100;1;1;1;1;\n"
      "abcdefg#ijk#mnopqrstuvwxyzABC;fresh;differs at 7 and 11;100;1;1;1;1;\n"
      "abcdefghi#klmnopqrstuvwxyzABC;fresh;differs at 9;100;1;1;1;1;\n"
      "abcdefghijklmn#pqrstuvwxyzABC;fresh;differs at 14;100;1;1;1;1;\n");
  for (const Matching matching : {Matching::kCounter, Matching::kOverview}) {
    EXPECT_EQ(ListProducts(food_, matching, "abcdefghijklmnopqrstuvw", "fresh"),
              (Names{"goes on", "differs at 7 and 11"}));
  }
}

TEST_F(ProductRulesTest, AUserProductIsListedUnderItsOwnCategoryOnly) {
  food_.products = {};
  LoadUserProducts("vegetables;fresh;chard;100;19;1.8;0.2;2.1;\n");
  for (const CategoryRecord& category : food_.categories) {
    for (const std::string_view subcategory :
         ListSubcategories(food_, Matching::kOverview, category.main_category)) {
      const bool own = category.main_category == "vegetables" && subcategory == "fresh";
      EXPECT_EQ(ListProducts(food_, Matching::kCounter, category.main_category, subcategory).size(),
                own ? 1U : 0U);
      EXPECT_EQ(
          ListProducts(food_, Matching::kOverview, category.main_category, subcategory).size(),
          own ? 1U : 0U);
    }
  }
}

TEST_F(ProductRulesTest, ListsBuiltInProductsBeforeTheUsers) {
  const ProductRecord products[] = {Row("fruits", "fresh", "pears"),
                                    Row("fruits", "fresh", "figs")};
  LoadUserProducts("fruits;fresh;apple pie;100;1;1;1;1;\n");
  EXPECT_EQ(Listed(Matching::kCounter, products, "fruits", "fresh"),
            (Names{"pears", "figs", "apple pie"}));
}

TEST_F(ProductRulesTest, NamesAreTakenForOneAnotherWhenTheyAgreeWhereItLooks) {
  // "abcdefghijkl", 12 characters. Both: 0 to 2, 11, 10, 9. Counter: 4, 3, 6. Overview: 8, 7, 6.
  const ProductRecord products[] = {Row("m", "s", "abcdefghijkl", "1"),
                                    Row("m", "s", "abcdeXgXXjkl", "2"),
                                    Row("m", "s", "abcXXXghijkl", "3")};
  food_.products = products;
  EXPECT_EQ(FindProduct(food_, Matching::kCounter, "abcdefghijkl")->kcal, "2");
  EXPECT_EQ(FindProduct(food_, Matching::kOverview, "abcdefghijkl")->kcal, "3");
  EXPECT_EQ(FindProduct(food_, Matching::kCounter, "abcXXXghijkl")->kcal, "3");
  EXPECT_EQ(FindProduct(food_, Matching::kCounter, "abcdefghijk"), nullptr);
  EXPECT_EQ(FindProduct(food_, Matching::kCounter, "abcdefghijklm"), nullptr);
}

TEST_F(ProductRulesTest, UserProductsAreLookedUpOnlyWhenNoBuiltInNameMatches) {
  const ProductRecord products[] = {Row("m", "s", "pears", "1")};
  food_.products = products;
  LoadUserProducts(
      "m;s;pears;100;2;2;2;2;\n"
      "m;s;apple pie;100;3;3;3;3;\n"
      "m;s;apple cake;100;5;5;5;5;\n");
  for (const Matching matching : {Matching::kCounter, Matching::kOverview}) {
    EXPECT_EQ(FindProduct(food_, matching, "pears")->kcal, "1");
    EXPECT_EQ(FindProduct(food_, matching, "apple pie")->kcal, "3");
    EXPECT_EQ(FindProduct(food_, matching, "apple cake")->kcal, "5");
    EXPECT_EQ(FindProduct(food_, matching, "peach tart"), nullptr);
  }
}

TEST_F(ProductRulesTest, OfSeveralUserProductsTheLastWins) {
  food_.products = {};
  LoadUserProducts(
      "m;s;apple pie;100;3;3;3;3;\n"
      "m;s;apple pXX;100;4;4;4;4;\n"  // counter and overview: 0 to 2, 4, 3 (and 2)
      "m;s;appleXX;100;5;5;5;5;\n");  // shorter names match as well
  EXPECT_EQ(FindProduct(food_, Matching::kCounter, "apple pie")->kcal, "5");
  EXPECT_EQ(FindProduct(food_, Matching::kOverview, "apple pie")->kcal, "5");
  EXPECT_EQ(FindProduct(food_, Matching::kCounter, "appleXX")->kcal, "5");
}

TEST_F(ProductRulesTest, ShortAndEmptyNamesAreFoundWithoutReadingOutsideThem) {
  food_.products = {};
  LoadUserProducts("mm;ss;;100;7;7;7;7;\nmm;ss;ab;100;8;8;8;8;\n");
  for (const Matching matching : {Matching::kCounter, Matching::kOverview}) {
    EXPECT_EQ(FindProduct(food_, matching, "")->kcal, "7");
    EXPECT_EQ(FindProduct(food_, matching, "ab")->kcal, "8");
    EXPECT_EQ(FindProduct(food_, matching, "a"), nullptr);
  }
}

// Every comparison, position by position.

// No two characters are the same, and no two of the positions that are counted from either end or
// are a fraction of the length fall together.
constexpr std::string_view kChosenText = "abcdefghijklmnopqrstuvw";
static_assert(kChosenText.size() == 23);

// Whether a row that holds `row` in the field of the comparison is taken for the chosen text.
using Comparison = bool (*)(Matching matching, std::string_view row);

bool IsCategoryTaken(Matching matching, std::string_view row) {
  CategoryRecord category = {.main_category = row, .subcategories = {}};
  category.subcategories.fill("offered");
  FoodTable food;
  food.categories = {&category, 1};
  return !ListSubcategories(food, matching, kChosenText).empty();
}

bool IsBuiltInMainCategoryTaken(Matching matching, std::string_view row) {
  const ProductRecord product = Row(row, "fresh", "name");
  FoodTable food;
  food.products = {&product, 1};
  return !ListProducts(food, matching, kChosenText, "fresh").empty();
}

bool IsBuiltInSubcategoryTaken(Matching matching, std::string_view row) {
  const ProductRecord product = Row("fruits", row, "name");
  FoodTable food;
  food.products = {&product, 1};
  return !ListProducts(food, matching, "fruits", kChosenText).empty();
}

bool IsBuiltInNameTaken(Matching matching, std::string_view row) {
  const ProductRecord product = Row("fruits", "fresh", row);
  FoodTable food;
  food.products = {&product, 1};
  return FindProduct(food, matching, kChosenText) != nullptr;
}

void LoadUserProduct(FoodTable& food, std::string_view three_fields) {
  const TemporaryFolder folder;
  food.products = {};
  food.user_products.Load(folder.Write("data.txt", std::string(three_fields) + ";100;1;2;3;4;\n"));
}

bool IsUserMainCategoryTaken(Matching matching, std::string_view row) {
  FoodTable food;
  LoadUserProduct(food, std::string(row) + ";fresh;name");
  return !ListProducts(food, matching, kChosenText, "fresh").empty();
}

bool IsUserSubcategoryTaken(Matching matching, std::string_view row) {
  FoodTable food;
  LoadUserProduct(food, "fruits;" + std::string(row) + ";name");
  return !ListProducts(food, matching, "fruits", kChosenText).empty();
}

bool IsUserNameTaken(Matching matching, std::string_view row) {
  FoodTable food;
  LoadUserProduct(food, "fruits;fresh;" + std::string(row));
  return FindProduct(food, matching, kChosenText) != nullptr;
}

struct ComparisonCase {
  const char* name;
  Comparison is_taken;
  Matching matching;
  std::vector<int> positions;  // where the row and the chosen text have to agree
  bool may_be_shorter;
  bool may_be_longer;
};

void PrintTo(const ComparisonCase& comparison, std::ostream* out) { *out << comparison.name; }

class ComparisonTest : public testing::TestWithParam<ComparisonCase> {
 protected:
  static bool IsTaken(std::string_view row) {
    return GetParam().is_taken(GetParam().matching, row);
  }
  static bool IsLookedAt(std::size_t position) {
    return std::ranges::count(GetParam().positions, static_cast<int>(position)) != 0;
  }
  // `text`, and what differs from it at one position or wherever the comparison does not look.
  static void ExpectLooksAtItsPositionsOf(std::string_view text) {
    EXPECT_TRUE(IsTaken(text)) << text;
    std::string stranger(text);
    for (std::size_t position = 0; position < text.size(); ++position) {
      std::string row(text);
      row[position] = '#';
      EXPECT_EQ(IsTaken(row), !IsLookedAt(position)) << row;
      if (!IsLookedAt(position)) stranger[position] = '#';
    }
    EXPECT_TRUE(IsTaken(stranger)) << stranger;
  }
};

TEST_P(ComparisonTest, LooksAtItsPositionsOnly) { ExpectLooksAtItsPositionsOf(kChosenText); }

TEST_P(ComparisonTest, TakesShorterAndLongerTextsWhereItMay) {
  EXPECT_EQ(IsTaken(kChosenText.substr(0, 22)), GetParam().may_be_shorter);
  EXPECT_EQ(IsTaken(std::string(kChosenText) + '#'), GetParam().may_be_longer);
  // The positions stay those of the chosen text.
  if (GetParam().may_be_shorter) ExpectLooksAtItsPositionsOf(kChosenText.substr(0, 18));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(
    Every, ComparisonTest,
    testing::Values(
        ComparisonCase{"CategoryOfTheCounter", IsCategoryTaken, Matching::kCounter,
                       {0, 1, 2, 19, 20, 21, 22}, false, false},
        ComparisonCase{"CategoryOfTheOverview", IsCategoryTaken, Matching::kOverview,
                       {0, 1, 2, 20, 21, 22}, false, false},
        ComparisonCase{"BuiltInMainCategoryOfTheCounter", IsBuiltInMainCategoryTaken,
                       Matching::kCounter, {0, 1}, true, true},
        ComparisonCase{"BuiltInMainCategoryOfTheOverview", IsBuiltInMainCategoryTaken,
                       Matching::kOverview, {0, 1}, true, true},
        ComparisonCase{"BuiltInSubcategoryOfTheCounter", IsBuiltInSubcategoryTaken,
                       Matching::kCounter, {0, 1, 2, 5, 7, 11, 22}, false, false},
        ComparisonCase{"BuiltInSubcategoryOfTheOverview", IsBuiltInSubcategoryTaken,
                       Matching::kOverview, {0, 1, 2, 11, 20, 21, 22}, false, false},
        ComparisonCase{"BuiltInNameOfTheCounter", IsBuiltInNameTaken, Matching::kCounter,
                       {0, 1, 2, 5, 7, 11, 20, 21, 22}, false, false},
        ComparisonCase{"BuiltInNameOfTheOverview", IsBuiltInNameTaken, Matching::kOverview,
                       {0, 1, 2, 17, 18, 19, 20, 21, 22}, false, false},
        ComparisonCase{"UserMainCategoryOfTheCounter", IsUserMainCategoryTaken, Matching::kCounter,
                       {0, 1, 2, 7, 11}, false, true},
        ComparisonCase{"UserMainCategoryOfTheOverview", IsUserMainCategoryTaken, Matching::kOverview,
                       {0, 1, 2, 7, 11}, false, true},
        ComparisonCase{"UserSubcategoryOfTheCounter", IsUserSubcategoryTaken, Matching::kCounter,
                       {0, 1, 2, 7, 11}, true, false},
        ComparisonCase{"UserSubcategoryOfTheOverview", IsUserSubcategoryTaken, Matching::kOverview,
                       {0, 1, 2, 5, 7, 11}, true, false},
        ComparisonCase{"UserNameOfTheCounter", IsUserNameTaken, Matching::kCounter,
                       {0, 1, 2, 7, 11}, true, false},
        ComparisonCase{"UserNameOfTheOverview", IsUserNameTaken, Matching::kOverview,
                       {0, 1, 2, 5, 7, 11}, true, false}),
    [](const testing::TestParamInfo<ComparisonCase>& one) { return one.param.name; });
// clang-format on

// The listing behaviour of the real table.

TEST(ListProductsTest, VegetablesAndSweetsListRowsOfAnotherSpelling) {
  const FoodTable food;
  for (const Matching matching : {Matching::kCounter, Matching::kOverview}) {
    EXPECT_EQ(ListProducts(food, matching, "vegetables", "fresh").size(), 49U);
    EXPECT_EQ(ListProducts(food, matching, "vegetables", "tin").size(), 0U);
    EXPECT_EQ(ListProducts(food, matching, "sweets", "chocolate").size(), 32U);
  }
}

TEST(FindProductTest, ADuplicatedNameYieldsItsLaterRow) {
  const FoodTable food;
  for (const std::string_view name : {"tomato soup", "pea soup", "carrot juice"}) {
    const ProductRecord* last = nullptr;
    for (const ProductRecord& row : food.products) {
      if (row.name == name) last = &row;
    }
    EXPECT_EQ(FindProduct(food, Matching::kCounter, name), last);
    EXPECT_EQ(FindProduct(food, Matching::kOverview, name), last);
  }
}

}  // namespace
}  // namespace velnor

// Finding built-in products by name and by place: that the loose comparisons take no row for
// another, and that every row is listed where it belongs.

#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "base/loose_match.h"
#include "base/number_text.h"
#include "food/food_table.h"
#include "food/product_rules.h"

namespace velnor {
namespace {

using Filing = std::pair<std::string, std::string>;  // main category, subcategory

class LookupTest : public testing::TestWithParam<Matching> {};

// Of two rows with one name the later stands for both.
TEST_P(LookupTest, ChoosingARowGivesThatRow) {
  const FoodTable food;
  std::map<std::string_view, const ProductRecord*> last_of_its_name;
  for (const ProductRecord& row : food.products) last_of_its_name[row.name] = &row;
  for (const ProductRecord& row : food.products) {
    const ProductRecord* const found = FindProduct(food, GetParam(), row.name);
    ASSERT_NE(found, nullptr) << row.name;
    EXPECT_EQ(found, last_of_its_name[row.name]) << row.name << " is taken for " << found->name;
  }
}

// Of a name that stands twice, the row that is chosen is the one people mean, and the other is the
// same food ready to eat: a soup is never counted as its powder.
TEST_P(LookupTest, AnEqualNameGivesTheFoodThatIsMeant) {
  const FoodTable food;
  const std::map<std::string_view, Filing> meant = {{"carrot juice", {"drinks", "juice"}},
                                                    {"pea soup", {"soup", "traditional"}},
                                                    {"tomato soup", {"soup", "traditional"}}};
  for (const auto& [name, filing] : meant) {
    const ProductRecord* const chosen = FindProduct(food, GetParam(), name);
    EXPECT_EQ(Filing(chosen->main_category, chosen->subcategory), filing) << name;
    EXPECT_EQ(FindListedProduct(food, name), chosen) << name;
    for (const ProductRecord& row : food.products) {
      if (row.name != name) continue;
      EXPECT_LE(ParseNumber(row.kcal), 2 * ParseNumber(chosen->kcal)) << name;
      EXPECT_GE(ParseNumber(row.kcal), ParseNumber(chosen->kcal) / 2) << name;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(BothPickers, LookupTest,
                         testing::Values(Matching::kCounter, Matching::kOverview));

// Taking a food off today's list finds it by its first four and last two characters and its length.
TEST(ProductLookupTest, RemovalFromTheListMistakesNoRowForAnother) {
  for (const ProductRecord& row : BuiltInProducts()) {
    const int n = Length(row.name);
    for (const ProductRecord& other : BuiltInProducts()) {
      if (Length(other.name) != n || other.name == row.name) continue;
      EXPECT_FALSE(AgreeAt(row.name, other.name, {0, 1, 2, 3, n - 1, n - 2}))
          << row.name << " and " << other.name;
    }
  }
}

// Where the rows of a place are listed, in the spelling of the combo boxes; empty: nowhere.
Filing ListedUnder(const Filing& filing) {
  std::string main_category = filing.first;
  if (main_category == "vegetable") main_category = "vegetables";
  if (main_category == "sweets&snacks") main_category = "sweets";
  const FoodTable food;
  for (const CategoryRecord& category : food.categories) {
    if (category.main_category != main_category) continue;
    for (const std::optional<std::string_view>& slot : category.subcategories) {
      if (slot == filing.second) return {main_category, filing.second};
    }
  }
  return {};
}

TEST_P(LookupTest, EveryRowIsListedOnceWhereItBelongsAndNowhereElse) {
  const FoodTable food;
  std::map<Filing, std::multiset<std::string>> expected;
  int never_listed = 0;
  for (const ProductRecord& row : food.products) {
    const Filing place =
        ListedUnder({std::string(row.main_category), std::string(row.subcategory)});
    if (place.first.empty()) {
      ++never_listed;
    } else {
      expected[place].insert(std::string(row.name));
    }
  }
  EXPECT_EQ(never_listed, 20 + 4 + 1 + 1 + 1 + 1 + 13);  // 13: preserved vegetables

  std::map<Filing, std::multiset<std::string>> actual;
  for (const CategoryRecord& category : food.categories) {
    for (const std::string_view subcategory :
         ListSubcategories(food, GetParam(), category.main_category)) {
      for (const std::string_view name :
           ListProducts(food, GetParam(), category.main_category, subcategory)) {
        actual[{std::string(category.main_category), std::string(subcategory)}].insert(
            std::string(name));
      }
    }
  }
  EXPECT_EQ(actual, expected);
}

}  // namespace
}  // namespace velnor

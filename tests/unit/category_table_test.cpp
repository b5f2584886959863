#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "food/food_table.h"

namespace velnor {
namespace {

TEST(CategoryTableTest, HoldsTheMainCategoriesAndTheirSubcategoriesInOrder) {
  using Subcategories = std::vector<std::string>;
  const std::vector<std::pair<std::string, Subcategories>> expected = {
      {"poultry", {"goose", "turkey", "chicken", "duck", "giblets", "hen", "other"}},
      {"fruits", {"frozen", "fresh", "dried", "preserves", "tin", "other"}},
      {"vegetables", {"fresh", "frozen", "tin", "dried", "other"}},
      {"grain preserves", {"flour", "groats", "rice", "breakfast", "other", ""}},
      {"dairy products", {"cheese", "cottage cheese", "processed cheese", "eggs", "other"}},
      {"drinks", {"juice", "carbonated", "non-carbonated", "compote", "syrup", "other"}},
      {"fats", {"plant fats", "animal fats", "other"}},
      {"sweets",
       {"chocolate", "ice cream", "small cakes", "candy", "chocolate bar", "cake", "crisps",
        "dessert", "other", "gummi"}},
      {"fish", {"fresh", "smoked", "fish preserves", "seafood", "frozen", "other"}},
      {"spices", {"sauce", "dry spices", "wet spices", "other", "herbs"}},
      {"milk preserves", {"drinks", "milk", "cream", "other"}},
      {"meat", {"mutton", "veal", "pork", "beef", "preserves", "other", "horsemeat", "game"}},
      {"sausages", {"pork/beef", "offal", "turkey", "chicken", "other"}},
      {"noodles", {"pasta", "other"}},
      {"bread", {"rye", "mixed", "wheat", "other"}},
      {"soup", {"frozen", "traditional", "other", "pouder", "instant"}},
      {"mushrooms", {"fresh", "dried", "other"}},
      {"pulse and nutts", {"nutts", "pulse", "other"}},
      {"alcohol", {"beer", "wine", "other", "vodka"}},
      {"other", {"sugar", "honey", "no category"}},
      {"dishes", {"traditional/meat", "other", "salad", "traditional/no meat", "traditional/fish"}},
      {"tinned food", {"poultry", "pork/beef", "offal", "fish", "other"}},
  };
  std::vector<std::pair<std::string, Subcategories>> actual;
  for (const CategoryRecord& row : BuiltInCategories()) {
    Subcategories used;
    for (const std::optional<std::string_view>& slot : row.subcategories) {
      if (slot) used.emplace_back(*slot);
    }
    actual.emplace_back(row.main_category, used);
  }
  EXPECT_EQ(actual, expected);
}

TEST(CategoryTableTest, KeepsTheEmptyNameOfGrainPreservesInTheNinthSlot) {
  const CategoryRecord& grain = BuiltInCategories()[3];
  for (std::size_t slot = 5; slot < grain.subcategories.size(); ++slot) {
    EXPECT_EQ(grain.subcategories[slot].has_value(), slot == 8) << slot;
  }
  EXPECT_EQ(grain.subcategories[8], "");
}

}  // namespace
}  // namespace velnor

// Which subcategories a main category offers, which products a subcategory lists, and which product
// a chosen name stands for. The comparisons are loose on purpose: they let "sweets&snacks" rows
// appear under "sweets", and they keep out rows whose category is spelled in another language.

#ifndef VELNOR_FOOD_PRODUCT_RULES_H_
#define VELNOR_FOOD_PRODUCT_RULES_H_

#include <string_view>
#include <vector>

#include "food/food_table.h"

namespace velnor {

// The rules of comparison: the two screens that pick products compare at different positions.
enum class Matching {
  kCounter,   // as the nutrition counter does
  kOverview,  // as the products overview does
};

// The names of the main categories, in table order.
std::vector<std::string_view> ListMainCategories(const FoodTable& food);

// The subcategory names offered under `main_category`, in slot order. The counter leaves out names
// of one character or none; the overview leaves out unused slots only, so it offers the empty name
// of "grain preserves". A main category that matches no row gives nothing.
std::vector<std::string_view> ListSubcategories(const FoodTable& food, Matching matching,
                                                std::string_view main_category);

// The names of the products under `main_category` and `subcategory`: built-in products first, then
// the user's, each in table order; a name that stands twice comes twice.
std::vector<std::string_view> ListProducts(const FoodTable& food, Matching matching,
                                           std::string_view main_category,
                                           std::string_view subcategory);

// The product that `name` stands for: of several matching built-in rows the last; the user's
// products are looked through, by the same rule of the last, only when no built-in row matches.
// Returns null if nothing matches. The record lives as long as the tables are not reloaded.
const ProductRecord* FindProduct(const FoodTable& food, Matching matching, std::string_view name);

// The product that a line of the food list names, by the same rules of the last and of the user's
// products; but the comparison is another one, and the same for both tables.
const ProductRecord* FindListedProduct(const FoodTable& food, std::string_view name);

}  // namespace velnor

#endif  // VELNOR_FOOD_PRODUCT_RULES_H_

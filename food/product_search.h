// Finding products by a piece of their subcategory or name.

#ifndef VELNOR_FOOD_PRODUCT_SEARCH_H_
#define VELNOR_FOOD_PRODUCT_SEARCH_H_

#include <string>
#include <string_view>
#include <vector>

#include "food/food_table.h"

namespace velnor {

// Where the products are filed whose subcategory, a blank and name hold `query` as it stands,
// capital letters and all: "fruits --> frozen --> frozen strawberries", in table order, the user's
// own behind the others and marked "[B] ". An empty query finds nothing.
std::vector<std::string> SearchProducts(const FoodTable& food, std::string_view query);

}  // namespace velnor

#endif  // VELNOR_FOOD_PRODUCT_SEARCH_H_

#include "food/product_search.h"

#include <span>

namespace velnor {
namespace {

constexpr std::string_view kArrow = " --> ";
constexpr std::string_view kOwnMark = "[B] ";

void Search(std::span<const ProductRecord> products, std::string_view query, std::string_view mark,
            std::vector<std::string>& results) {
  std::string text;
  for (const ProductRecord& product : products) {
    text.assign(product.subcategory).append(1, ' ').append(product.name);
    if (text.find(query) == std::string::npos) continue;
    std::string& result = results.emplace_back(mark);
    result.append(product.main_category).append(kArrow);
    result.append(product.subcategory).append(kArrow).append(product.name);
  }
}

}  // namespace

std::vector<std::string> SearchProducts(const FoodTable& food, std::string_view query) {
  std::vector<std::string> results;
  if (query.empty()) return results;
  Search(food.products, query, "", results);
  Search(food.user_products.products(), query, kOwnMark, results);
  return results;
}

}  // namespace velnor

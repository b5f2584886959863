#include "food/product_search.h"

#include <span>

namespace velnor {
namespace {

constexpr std::string_view kArrow = " --> ";
constexpr std::string_view kOwnMark = "[B] ";

void Search(std::span<const ProductRecord> products, const SearchText& text, std::string_view query,
            std::string_view mark, std::vector<std::string>& results) {
  for (const std::size_t place : text.Find(query)) {
    const ProductRecord& product = products[place];
    std::string& result = results.emplace_back();
    result.reserve(mark.size() + product.main_category.size() + product.subcategory.size() +
                   product.name.size() + 2 * kArrow.size());
    result.append(mark).append(product.main_category).append(kArrow);
    result.append(product.subcategory).append(kArrow).append(product.name);
  }
}

}  // namespace

std::vector<std::string> SearchProducts(const FoodTable& food, std::string_view query) {
  std::vector<std::string> results;
  Search(food.products, food.product_text, query, "", results);
  Search(food.user_products.products(), food.user_products.search_text(), query, kOwnMark, results);
  return results;
}

}  // namespace velnor

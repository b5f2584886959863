#include "food/product_rules.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <span>

#include "base/loose_match.h"

namespace velnor {
namespace {

bool IsChosenCategory(Matching matching, std::string_view row, std::string_view chosen) {
  const int n = Length(chosen);
  return AgreeAt(row, chosen, {0, 1, 2, n - 1, n - 2, n - 3}) && EndsBy(row, n) &&
         (matching == Matching::kOverview || AgreeAt(row, chosen, {n - 4}));
}

bool IsOffered(Matching matching, std::string_view name) {
  return matching == Matching::kOverview || name.size() > 1;
}

// Of the main category only the first two characters count: that is what lets the "vegetable" and
// "sweets&snacks" rows in.
bool IsListedBuiltIn(Matching matching, const ProductRecord& product,
                     std::string_view main_category, std::string_view subcategory) {
  const std::string_view row = product.subcategory;
  const int n = Length(subcategory);
  if (Length(row) != n || !AgreeAt(row, subcategory, {0, 1, 2, n - 1})) return false;
  const bool agrees = matching == Matching::kCounter
                          ? AgreeAt(row, subcategory, {n / 2, n / 3, n / 4})
                          : AgreeAt(row, subcategory, {n - 2, n - 3, n / 2});
  return agrees && AgreeAt(product.main_category, main_category, {0, 1});
}

bool IsListedUserProduct(Matching matching, const ProductRecord& product,
                         std::string_view main_category, std::string_view subcategory) {
  const int p = Length(product.main_category);
  const int n = Length(subcategory);
  return AgreeAt(product.main_category, main_category, {0, 1, 2, p / 2, p / 3}) &&
         EndsBy(main_category, p) &&
         AgreeAt(product.subcategory, subcategory, {0, 1, 2, n / 2, n / 3}) &&
         EndsBy(product.subcategory, n) &&
         (matching == Matching::kCounter || AgreeAt(product.subcategory, subcategory, {n / 4}));
}

bool IsNamedBuiltIn(Matching matching, std::string_view row, std::string_view name) {
  const int n = Length(name);
  if (!AgreeAt(row, name, {0, 1, 2, n - 1, n - 2, n - 3}) || !EndsBy(row, n)) return false;
  return matching == Matching::kCounter ? AgreeAt(row, name, {n / 2, n / 3, n / 4})
                                        : AgreeAt(row, name, {n - 4, n - 5, n - 6});
}

bool IsNamedUserProduct(Matching matching, std::string_view row, std::string_view name) {
  const int n = Length(name);
  return AgreeAt(row, name, {0, 1, 2, n / 2, n / 3}) && EndsBy(row, n) &&
         (matching == Matching::kCounter || AgreeAt(row, name, {n / 4}));
}

bool IsNamedByList(std::string_view row, std::string_view name) {
  const int n = Length(name);
  return AgreeAt(row, name, {0, 1, 2, 3, n - 1, n - 2}) && EndsBy(row, n);
}

const ProductRecord* FindLast(std::span<const ProductRecord> products, const auto& matches) {
  const auto found =
      std::find_if(products.rbegin(), products.rend(),
                   [&](const ProductRecord& product) { return matches(product.name); });
  return found == products.rend() ? nullptr : &*found;
}

// The user's products are looked through only when no built-in row matches.
const ProductRecord* FindInTables(const FoodTable& food, const auto& built_in, const auto& users) {
  const ProductRecord* const found = FindLast(food.products, built_in);
  return found != nullptr ? found : FindLast(food.user_products.products(), users);
}

}  // namespace

std::vector<std::string_view> ListMainCategories(const FoodTable& food) {
  std::vector<std::string_view> names;
  std::ranges::transform(food.categories, std::back_inserter(names),
                         &CategoryRecord::main_category);
  return names;
}

std::vector<std::string_view> ListSubcategories(const FoodTable& food, Matching matching,
                                                std::string_view main_category) {
  std::vector<std::string_view> names;
  for (const CategoryRecord& row : food.categories) {
    if (!IsChosenCategory(matching, row.main_category, main_category)) continue;
    for (const std::optional<std::string_view>& slot : row.subcategories) {
      if (slot && IsOffered(matching, *slot)) names.push_back(*slot);
    }
  }
  return names;
}

std::vector<std::string_view> ListProducts(const FoodTable& food, Matching matching,
                                           std::string_view main_category,
                                           std::string_view subcategory) {
  std::vector<std::string_view> names;
  for (const ProductRecord& product : food.products) {
    if (IsListedBuiltIn(matching, product, main_category, subcategory))
      names.push_back(product.name);
  }
  for (const ProductRecord& product : food.user_products.products()) {
    if (IsListedUserProduct(matching, product, main_category, subcategory)) {
      names.push_back(product.name);
    }
  }
  return names;
}

const ProductRecord* FindProduct(const FoodTable& food, Matching matching, std::string_view name) {
  return FindInTables(
      food, [=](std::string_view row) { return IsNamedBuiltIn(matching, row, name); },
      [=](std::string_view row) { return IsNamedUserProduct(matching, row, name); });
}

const ProductRecord* FindListedProduct(const FoodTable& food, std::string_view name) {
  const auto matches = [=](std::string_view row) { return IsNamedByList(row, name); };
  return FindInTables(food, matches, matches);
}

}  // namespace velnor

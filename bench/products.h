// Products as people add them, for benchmarks that need many.

#ifndef VELNOR_BENCH_PRODUCTS_H_
#define VELNOR_BENCH_PRODUCTS_H_

#include <cstddef>
#include <string>

#include "food/food_table.h"

namespace velnor::bench {

// The bytes of a products file with `count` lines: built-in products in turn, each under a name of
// its own.
inline std::string ProductsFile(std::size_t count) {
  const std::span<const ProductRecord> products = BuiltInProducts();
  std::string text;
  for (std::size_t i = 0; i < count; ++i) {
    const ProductRecord& product = products[i * 7 % products.size()];
    const std::string name = std::string(product.name) + ' ' + std::to_string(i);
    for (const std::string_view field :
         {product.main_category, product.subcategory, std::string_view(name), product.mass,
          product.kcal, product.protein, product.fat, product.carbohydrate}) {
      text.append(field) += ';';
    }
    text += "\r\n";
  }
  return text;
}

}  // namespace velnor::bench

#endif  // VELNOR_BENCH_PRODUCTS_H_

// The built-in products. product_rows.inc is the table itself, one product a line;
// docs/food-data.md says where its figures come from and how to replace it.

#include "food/food_table.h"

namespace velnor {
namespace {

constexpr ProductRecord kProducts[] = {
#include "food/product_rows.inc"
};

}  // namespace

std::span<const ProductRecord> BuiltInProducts() { return kProducts; }

}  // namespace velnor

// The file of the products that users added: one product a line, eight fields each followed by ";".

#ifndef VELNOR_FOOD_USER_PRODUCT_FILE_H_
#define VELNOR_FOOD_USER_PRODUCT_FILE_H_

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/transaction.h"
#include "food/food_table.h"
#include "users/user_files.h"

namespace velnor {

// Characters of a name that a product has at least.
inline constexpr std::size_t kShortestProductName = 4;
// What a product's figures are for where nothing else is said, in grams.
inline constexpr std::string_view kUsualProductMass = "100";

// Adds the product as a line of its own at the end of the file, which is made when it is missing.
// A ";" inside a field is not kept from breaking the line's fields. Returns false, with
// nothing changed, if the file cannot be read.
[[nodiscard]] bool AddUserProduct(Transaction& deed, const std::string& path,
                                  const ProductRecord& product);

// Adds many products.
[[nodiscard]] bool AddUserProducts(Transaction& deed, const std::string& path,
                                   std::span<const ProductRecord> products);

// Characters of a product's name that removing looks at: longer names are never removed.
inline constexpr std::size_t kRemovableNameLimit = 59;

// The names (third fields) in the first 1000 lines of the file, in its order. A line is taken in
// pieces of at most 299 characters; one without a third field has no name.
std::vector<std::string> ReadUserProductNames(const std::string& path);

// Whether removing `name` takes this line (at most 149 characters) away. The comparison is loose:
// the line's name must be as long as `name`, and somewhere in the line, not only in its name, the
// first four, a quarter, a third, the middle and the last of its characters must follow one
// another. Only the first kRemovableNameLimit characters of the line's name count, so longer names
// never match.
bool IsRemovedWith(std::string_view line, std::string_view name);

// Takes every line that IsRemovedWith away. Empty lines among the first 3000 go too; a line longer
// than 149 characters becomes several; lines behind the 3000th stay as they are. Does nothing when
// no line goes. Returns false if the file could not be read.
[[nodiscard]] bool RemoveUserProduct(Transaction& deed, const std::string& path,
                                     std::string_view name);

}  // namespace velnor

#endif  // VELNOR_FOOD_USER_PRODUCT_FILE_H_

// The food tables: 22 main categories with their subcategories, the built-in products, and the
// products the user added. Read by the nutrition counter and everything that weighs food.

#ifndef VELNOR_FOOD_FOOD_TABLE_H_
#define VELNOR_FOOD_FOOD_TABLE_H_

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velnor {

struct CategoryRecord {
  std::string_view main_category;
  std::array<std::optional<std::string_view>, 12> subcategories;  // an unused slot holds nothing
};

// All fields are code page 1250 text. The numbers are decimal text and are read with ParseNumber
// where they are used, so "263,7" counts as 263 and "???" as 0.
struct ProductRecord {
  std::string_view main_category;
  std::string_view subcategory;
  std::string_view name;
  std::string_view mass;          // g, the quantity that the four values below refer to
  std::string_view kcal;          // kcal
  std::string_view protein;       // g
  std::string_view fat;           // g
  std::string_view carbohydrate;  // g, available carbohydrate
};

// The fields in the order in which a line of the user products file has them.
inline constexpr std::array kProductFields = {
    &ProductRecord::main_category, &ProductRecord::subcategory, &ProductRecord::name,
    &ProductRecord::mass,          &ProductRecord::kcal,        &ProductRecord::protein,
    &ProductRecord::fat,           &ProductRecord::carbohydrate};

std::span<const CategoryRecord> BuiltInCategories();  // in the order of the combo boxes
std::span<const ProductRecord> BuiltInProducts();     // values per 100 g

// The products of the user products file: 3000 slots, a line of the file in each. Views into the
// text it was loaded from; every Load replaces all of it.
class UserProductTable {
 public:
  static constexpr std::size_t kSlots = 3000;
  // Characters of a line; the rest of a longer one counts as another line.
  static constexpr std::size_t kLineLimit = 149;
  // Lines this short are remains, not products.
  static constexpr std::size_t kShortLine = 5;

  UserProductTable() = default;
  UserProductTable(const UserProductTable&) = delete;
  UserProductTable& operator=(const UserProductTable&) = delete;

  // Reads `path` into the slots. A missing file leaves all of them free. A line of five characters
  // or less uses up its slot and leaves it free; what follows the 3000th line is not read.
  void Load(const std::string& path);

  // The products in use, in the order of the file.
  std::span<const ProductRecord> products() const { return products_; }

  // Another number after every Load: what was taken from the products before has gone.
  unsigned generation() const { return generation_; }

  // How many more lines the file can have that are read.
  std::size_t free_slots() const { return free_slots_; }

 private:
  std::string text_;
  std::vector<ProductRecord> products_;
  std::size_t free_slots_ = kSlots;
  unsigned generation_ = 0;
};

// Splits a line of the user products file at ";" into the eight fields. Missing fields are empty,
// text behind the eighth ";" is ignored.
ProductRecord SplitProductLine(std::string_view line);

struct FoodTable {
  std::span<const CategoryRecord> categories = BuiltInCategories();
  std::span<const ProductRecord> products = BuiltInProducts();
  UserProductTable user_products;
};

}  // namespace velnor

#endif  // VELNOR_FOOD_FOOD_TABLE_H_

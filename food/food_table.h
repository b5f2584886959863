// The food tables: 22 main categories with their subcategories, the built-in products, and the
// products the user added. Read by the nutrition counter and everything that weighs food.

#ifndef VELNOR_FOOD_FOOD_TABLE_H_
#define VELNOR_FOOD_FOOD_TABLE_H_

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "food/search_text.h"

namespace velnor {

// Fills the places of a category row that hold no subcategory. A slot is recognised as unused by
// being this very text object, not by reading "0".
inline constexpr char kUnusedSlotText[] = "0";
inline constexpr std::string_view kUnusedSlot = kUnusedSlotText;

constexpr bool IsUnusedSlot(std::string_view slot) { return slot.data() == kUnusedSlotText; }

struct CategoryRecord {
  std::string_view main_category;
  std::array<std::string_view, 12> subcategories;
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

inline constexpr std::size_t kProductFieldCount = 8;

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

  // What they are found by, in the same order.
  const SearchText& search_text() const { return search_text_; }

  // How many more lines the file can have that are read.
  std::size_t free_slots() const { return free_slots_; }

 private:
  std::string text_;
  std::vector<ProductRecord> products_;
  SearchText search_text_;
  std::size_t free_slots_ = kSlots;
};

// Splits a line of the user products file at ";" into the eight fields, in the order of
// ProductRecord. Missing fields are empty, text behind the eighth ";" is ignored.
ProductRecord SplitProductLine(std::string_view line);

// What products are found by: subcategory, a blank, name of each.
SearchText SearchTextOf(std::span<const ProductRecord> products);

struct FoodTable {
  std::span<const CategoryRecord> categories = BuiltInCategories();
  std::span<const ProductRecord> products = BuiltInProducts();
  SearchText product_text = SearchTextOf(products);
  UserProductTable user_products;
};

}  // namespace velnor

#endif  // VELNOR_FOOD_FOOD_TABLE_H_

// Products of the user's own from a table of another program: what of it can be added, what not and
// why. Used by the dialog that imports; changes nothing itself.

#ifndef VELNOR_FOOD_PRODUCT_IMPORT_H_
#define VELNOR_FOOD_PRODUCT_IMPORT_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "food/food_table.h"

namespace velnor {

// Bytes of a table. It is many times what the slots of the user's products could hold.
inline constexpr std::size_t kImportLimit = std::size_t{8} * 1024 * 1024;

// Where a product is filed.
struct ProductCategory {
  std::string main_category;
  std::string subcategory;
};

// A product as its line in the user products file will have it. Figures are decimal text with a
// point, at most eight characters.
struct ImportedProduct {
  ProductCategory category;
  std::string name;
  std::string mass;          // g
  std::string kcal;          // kcal
  std::string protein;       // g
  std::string fat;           // g
  std::string carbohydrate;  // g

  // Views into this object.
  ProductRecord AsRecord() const;
};

struct LeftOutRow {
  std::size_t first_line;  // of the table, counted from 1
  std::size_t last_line;
  std::string_view reason;  // "no calories"
};

struct ImportPlan {
  // Why nothing of the table can be used, for a message box; empty when its rows could be read.
  std::string problem = {};
  std::vector<ImportedProduct> products = {};  // in the order of the table
  std::vector<LeftOutRow> left_out = {};       // likewise
  std::size_t already_there = 0;  // rows with the name and figures of a product that there is
  std::size_t fitting = 0;        // how many of `products` the free slots hold
};

// Reads the table `bytes`: its first line that is not empty names the columns, in any order and
// case, without what stands in brackets: name, kcal, protein, fat and carbohydrate, each also under
// its other names, and optionally mass, main and sub. Columns of other names are read past, and so
// is energy in kJ. The separator is the one with which the most columns have such a name. A name is
// written in small letters, with "," for ";", and cut to what removing can read. A row that names
// no mass is for 100 g, one that names neither category goes to `filed_under`, which is taken as it
// is. `bytes` beyond kImportLimit, or without such a first line, are a problem. Products that are
// there already, in `food` or earlier in the table, are counted and not doubled.
ImportPlan PlanImport(std::string_view bytes, const FoodTable& food,
                      const ProductCategory& filed_under);

// What became of a plan of which `added` products were added, in the words of a message box: "2,431
// products were added, 12 left out: line 7: no calories; ..." Of the left-out rows the first ones.
std::string ImportReport(const ImportPlan& plan, std::size_t added);

// What is said before a plan is carried out that is more than the slots hold, as a question when
// some of it would fit.
std::string TooManyProducts(const ImportPlan& plan);

}  // namespace velnor

#endif  // VELNOR_FOOD_PRODUCT_IMPORT_H_

// A table of products from another program: what the import makes of it fits the file of the user's
// products, whatever the table is.

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "base/text_file.h"
#include "food/product_import.h"
#include "food/product_rules.h"
#include "food/user_product_file.h"
#include "fuzz/program_run.h"
#include "tests/support/committed.h"

namespace velnor {
namespace {

constexpr std::size_t kListed = 20;  // products of a plan that the lists are asked for

void RequireSound(const ImportPlan& plan) {
  Require(plan.problem.empty() || (plan.products.empty() && plan.left_out.empty()),
          "a table with a problem gives nothing");
  Require(plan.fitting <= plan.products.size(), "no more fits than there is");
  std::size_t line = 0;
  for (const LeftOutRow& row : plan.left_out) {
    Require(row.first_line > line && row.last_line >= row.first_line, "lines ascend");
    Require(!row.reason.empty(), "there is a reason");
    line = row.first_line;
  }
  Require(ImportReport(plan, plan.fitting).size() < 1000, "a report fits its box");
}

void RequireEqual(const ProductRecord& read, const ProductRecord& planned) {
  Require(std::ranges::all_of(kProductFields,
                              [&](auto field) { return read.*field == planned.*field; }),
          "what was planned is read back");
  Require(read.name.size() >= kShortestProductName && read.name.size() <= kRemovableNameLimit,
          "a name can be added and removed");
}

void RequireListed(const FoodTable& food, const ProductRecord& product) {
  for (const Matching matching : {Matching::kCounter, Matching::kOverview}) {
    const auto listed = ListProducts(food, matching, product.main_category, product.subcategory);
    Require(std::ranges::find(listed, product.name) != listed.end(), "the product is listed");
    Require(FindProduct(food, matching, product.name) != nullptr, "the product is found");
  }
}

}  // namespace
}  // namespace velnor

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velnor;  // NOLINT(google-build-using-namespace)
  const std::string_view table = InputText(data, size);
  const TemporaryFolder folder;
  const std::string path = folder.path() + "data.txt";
  FoodTable food;
  const ImportPlan plan = PlanImport(table, food, {"other", "no category"});
  RequireSound(plan);
  std::vector<ProductRecord> records;
  for (std::size_t i = 0; i < plan.fitting; ++i) records.push_back(plan.products[i].AsRecord());
  if (records.empty()) return 0;
  Require(Committed(folder.path(), AddUserProducts, path, records), "the products are written");
  food.user_products.Load(path);
  const auto products = food.user_products.products();
  Require(products.size() == records.size(), "a product is a line");
  for (std::size_t i = 0; i < records.size(); ++i) {
    RequireEqual(products[i], records[i]);
    if (i < kListed) RequireListed(food, products[i]);
  }
  const ImportPlan again = PlanImport(table, food, {"other", "no category"});
  Require(plan.fitting < plan.products.size() || again.products.empty(),
          "the same table again has nothing new");
  return 0;
}

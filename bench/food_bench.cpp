// The food tables: searching, choosing a subcategory, reloading the user's products.

#include <algorithm>
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include "bench/products.h"
#include "food/food_table.h"
#include "food/product_rules.h"
#include "food/product_search.h"
#include "tests/support/temporary_folder.h"

namespace velnor::bench {
namespace {

constexpr std::int64_t kAllProducts = 3000;
constexpr const char* kQueries[] = {"xylitol", "strawberries", "milk", "e"};

// The food tables with that many products of the user's in them.
class LoadedFood {
 public:
  explicit LoadedFood(std::int64_t count)
      : path_(folder_.Write("data.txt", ProductsFile(static_cast<std::size_t>(count)))) {
    food_.user_products.Load(path_);
  }
  const FoodTable& food() const { return food_; }
  UserProductTable& user_products() { return food_.user_products; }
  const std::string& path() const { return path_; }

 private:
  TemporaryFolder folder_;
  std::string path_;
  FoodTable food_;
};

void Search(benchmark::State& state) {
  const LoadedFood loaded(state.range(1));
  const std::string query = kQueries[state.range(0)];
  std::size_t found = 0;
  for (auto _ : state) {
    const auto results = SearchProducts(loaded.food(), query);
    found = results.size();
    benchmark::DoNotOptimize(results.data());
  }
  state.SetLabel(std::to_string(found) + " found");
}

void ChooseSubcategory(benchmark::State& state) {
  const LoadedFood loaded(state.range(1));
  const Matching matching = state.range(0) == 0 ? Matching::kCounter : Matching::kOverview;
  for (auto _ : state) {
    benchmark::DoNotOptimize(ListProducts(loaded.food(), matching, "vegetables", "fresh"));
  }
}

// One pass that touches each record once, and of its subcategory the first letter: less cannot
// decide whether it is listed.
void ChooseSubcategoryFloor(benchmark::State& state) {
  const LoadedFood loaded(kAllProducts);
  for (auto _ : state) {
    unsigned sum = 0;
    for (const auto products : {loaded.food().products, loaded.food().user_products.products()}) {
      for (const ProductRecord& product : products) {
        sum += static_cast<unsigned char>(product.subcategory.front());
      }
    }
    benchmark::DoNotOptimize(sum);
  }
}

void Reload(benchmark::State& state) {
  LoadedFood loaded(state.range(0));
  for (auto _ : state) {
    loaded.user_products().Load(loaded.path());
    benchmark::DoNotOptimize(loaded.user_products().products().data());
  }
}

// Reading the file with bare calls and finding its separators.
void ReloadFloor(benchmark::State& state) {
  const LoadedFood loaded(kAllProducts);
  for (auto _ : state) {
    const int file = open(loaded.path().c_str(), O_RDONLY);
    struct stat status = {};
    fstat(file, &status);
    std::string text(static_cast<std::size_t>(status.st_size), '\0');
    const ssize_t got = read(file, text.data(), text.size());
    close(file);
    if (got != status.st_size) state.SkipWithError("the products file cannot be read");
    std::size_t separators = 0;
    const std::string_view bytes = text;
    for (std::size_t start = 0; start < bytes.size();) {
      const std::size_t line_end = std::min(bytes.find('\n', start), bytes.size());
      const std::string_view line = bytes.substr(start, line_end - start);
      for (std::size_t at = 0; (at = line.find(';', at)) != std::string::npos; ++at) ++separators;
      start = line_end + 1;
    }
    benchmark::DoNotOptimize(separators);
  }
}

BENCHMARK(Search)->ArgsProduct({{0, 1, 2, 3}, {0, 300, kAllProducts}});
BENCHMARK(ChooseSubcategory)->ArgsProduct({{0, 1}, {0, 300, kAllProducts}});
BENCHMARK(ChooseSubcategoryFloor);
BENCHMARK(Reload)->Arg(0)->Arg(300)->Arg(kAllProducts);
BENCHMARK(ReloadFloor);

}  // namespace
}  // namespace velnor::bench

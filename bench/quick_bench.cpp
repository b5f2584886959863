// Finding a food while it is typed: what every key costs, and what opening the dialog does, by the
// products of the user's and by the lines of the history.

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <string>

#include "bench/products.h"
#include "food/eating_habits.h"
#include "food/quick_find.h"
#include "tests/support/temporary_folder.h"

namespace velnor::bench {
namespace {

constexpr std::size_t kShown = 100;
constexpr int kLinesADay = 11;  // with which ten years have 40,000 lines
constexpr const char* kQueries[] = {"e", "mil", "frozen straw", "zzzz"};

// Days of eating, every one of the same number of foods from the built-in table.
std::string History(std::int64_t lines) {
  std::string history = std::string(kHistoryHeader) + '\n';
  const auto products = BuiltInProducts();
  for (std::int64_t i = 0; i < lines; ++i) {
    const std::int64_t day = i / kLinesADay;
    char date[16] = {};
    std::snprintf(date, sizeof date, "%04d-%02d-%02d", static_cast<int>(2016 + day / 336),
                  static_cast<int>(day / 28 % 12 + 1), static_cast<int>(day % 28 + 1));
    const std::size_t place = static_cast<std::size_t>(i * i + 7 * i) % products.size();
    history += HistoryLine({.date = date,
                            .time = i % 2 == 0 ? "08:15:00" : "19:40:00",
                            .name = std::string(products[place].name),
                            .amount = 100,
                            .unit = "g",
                            .kcal = 237,
                            .protein = 1.9,
                            .fat = 11,
                            .carbohydrate = 34});
  }
  return history;
}

class Person {
 public:
  Person(std::int64_t products, std::int64_t lines) : habits_(History(lines)) {
    food_.user_products.Load(
        folder_.Write("data.txt", ProductsFile(static_cast<std::size_t>(products))));
  }
  QuickFind& find() { return find_; }
  FoodTable& food() { return food_; }

 private:
  TemporaryFolder folder_;
  FoodTable food_;
  EatingHabits habits_;
  QuickFind find_{food_, habits_};
};

const int kToday = DayNumber("2026-11-21");

void QuickFindKey(benchmark::State& state) {
  Person person(state.range(1), state.range(2));
  const std::string query = kQueries[state.range(0)];
  for (auto _ : state) {
    benchmark::DoNotOptimize(person.find().Find(query, kToday, kShown).data());
  }
}

void QuickFindEmpty(benchmark::State& state) {
  constexpr int kHour = 8;
  Person person(state.range(0), state.range(1));
  for (auto _ : state) {
    benchmark::DoNotOptimize(person.find().EatenAround(kHour, kToday, kShown).data());
  }
}

// The first key after the dialog was opened has the products to take in.
void QuickFindFirstKey(benchmark::State& state) {
  Person person(state.range(0), 0);
  const EatingHabits habits;
  for (auto _ : state) {
    QuickFind find(person.food(), habits);
    benchmark::DoNotOptimize(find.Find("mil", kToday, kShown).data());
  }
}

void HabitsRead(benchmark::State& state) {
  const std::string history = History(state.range(0));
  for (auto _ : state) {
    const EatingHabits habits(history);
    benchmark::DoNotOptimize(habits.Find("apples"));
  }
}

BENCHMARK(QuickFindKey)->ArgsProduct({{0, 1, 2, 3}, {0, 300, 3000}, {40'000}});
BENCHMARK(QuickFindEmpty)->ArgsProduct({{0, 300, 3000}, {40'000}});
BENCHMARK(QuickFindFirstKey)->Arg(0)->Arg(300)->Arg(3000);
BENCHMARK(HabitsRead)->Arg(0)->Arg(4000)->Arg(40'000);

}  // namespace
}  // namespace velnor::bench

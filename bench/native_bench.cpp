// Runs the native benchmarks, each in turn with its floor, and prints what the medians say. The
// exit code is 1 when something could not be measured; a missed bound is only marked.

#include <benchmark/benchmark.h>
#include <cstdio>
#include <exception>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "bench/file_bench.h"
#include "bench/table.h"

namespace velnor::bench {
namespace {

struct ComparedRow {
  const char* what;
  const char* measured;
  const char* floor;
  double bound;
};

constexpr ComparedRow kInMemory[] = {
    {"subcategory chosen, counter", "ChooseSubcategory/0/3000", "ChooseSubcategoryFloor", 2},
    {"subcategory chosen, overview", "ChooseSubcategory/1/3000", "ChooseSubcategoryFloor", 2},
    {"3000 user products reloaded", "Reload/3000", "ReloadFloor", 2},
    {"16 numbers to text, 6 digits", "Format/6", "FormatFloor/6", 1},
    {"16 numbers to text, 8 digits", "Format/8", "FormatFloor/8", 1},
    {"diary of ten years, beside reading it", "Diary/3652", "DiaryFloor/3652", 0},
};

struct GrowthRow {
  const char* what;
  const char* cost[3];  // null: not measured at that size
};

constexpr GrowthRow kByProducts[] = {
    {"search, 12 letters", {"Search/1/0", "Search/1/300", "Search/1/3000"}},
    {"subcategory chosen",
     {"ChooseSubcategory/0/0", "ChooseSubcategory/0/300", "ChooseSubcategory/0/3000"}},
    {"user products reloaded", {"Reload/0", "Reload/300", "Reload/3000"}},
    {"product added to its file",
     {"ProductAppend/0/real_time", "ProductAppend/300/real_time", "ProductAppend/3000/real_time"}},
    {"product removed from its file",
     {nullptr, "ProductRemove/300/real_time", "ProductRemove/3000/real_time"}},
};

// With ten years of history.
constexpr GrowthRow kQuickAdd[] = {
    {"key, 1 letter",
     {"QuickFindKey/0/0/40000", "QuickFindKey/0/300/40000", "QuickFindKey/0/3000/40000"}},
    {"key, 3 letters",
     {"QuickFindKey/1/0/40000", "QuickFindKey/1/300/40000", "QuickFindKey/1/3000/40000"}},
    {"key, 2 words",
     {"QuickFindKey/2/0/40000", "QuickFindKey/2/300/40000", "QuickFindKey/2/3000/40000"}},
    {"key, nothing found",
     {"QuickFindKey/3/0/40000", "QuickFindKey/3/300/40000", "QuickFindKey/3/3000/40000"}},
    {"what is eaten at this time",
     {"QuickFindEmpty/0/40000", "QuickFindEmpty/300/40000", "QuickFindEmpty/3000/40000"}},
    {"first key after the products changed",
     {"QuickFindFirstKey/0", "QuickFindFirstKey/300", "QuickFindFirstKey/3000"}},
};

constexpr GrowthRow kByHistory[] = {
    {"habits read", {"HabitsRead/0", "HabitsRead/4000", "HabitsRead/40000"}},
};

constexpr GrowthRow kByLines[] = {
    {"food added and told", {"FoodTold/1/real_time", "FoodTold/40000/real_time", nullptr}},
    {"day begun", {"DayBegun/1/real_time", "DayBegun/40000/real_time", nullptr}},
};

constexpr GrowthRow kByBytes[] = {
    {"record added to a report",
     {"ReportAppend/1000/real_time", "ReportAppend/100000/real_time",
      "ReportAppend/10000000/real_time"}},
    {"report read",
     {"ReportRead/1000/real_time", "ReportRead/100000/real_time", "ReportRead/10000000/real_time"}},
};

constexpr GrowthRow kByDaysOfHistory[] = {
    {"diary made of a history", {"Diary/30", "Diary/365", "Diary/3652"}},
    {"copy of a day, three people",
     {"DailyCopy/30/real_time", "DailyCopy/365/real_time", "DailyCopy/3652/real_time"}},
};

struct AllowedRow {
  const char* what;
  const char* measured;
  double microseconds;
};

// What a person waits for after a key is measured against what is not felt as waiting.
constexpr AllowedRow kAllowed[] = {
    {"diary of ten years", "Diary/3652", 150'000},
    {"copy of ten years of three people", "DailyCopy/3652/real_time", 200'000},
};

// Keeps the median of every benchmark, in microseconds, and says nothing until the end.
class MedianReporter final : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.error_occurred) {
        std::fprintf(stderr, "%s: %s\n", run.benchmark_name().c_str(), run.error_message.c_str());
      } else if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median") {
        const double nanoseconds = run.GetAdjustedRealTime();
        medians_[run.run_name.str()] = nanoseconds / 1000;
      }
    }
  }

  // Nothing when the benchmark failed or does not exist; that is remembered.
  std::optional<double> Find(const char* name) {
    const auto found = medians_.find(name);
    if (found != medians_.end()) return found->second;
    std::fprintf(stderr, "not measured: %s\n", name);
    complete_ = false;
    return std::nullopt;
  }
  bool complete() const { return complete_; }

 private:
  std::map<std::string, double> medians_;
  bool complete_ = true;
};

std::vector<Comparison> Compare(MedianReporter& medians, std::span<const ComparedRow> rows) {
  std::vector<Comparison> compared;
  for (const ComparedRow& row : rows) {
    const std::optional<double> measured = medians.Find(row.measured);
    const std::optional<double> floor = medians.Find(row.floor);
    if (measured && floor) compared.push_back({row.what, *measured, *floor, row.bound});
  }
  return compared;
}

std::vector<Comparison> CompareAllowed(MedianReporter& medians) {
  std::vector<Comparison> compared;
  for (const AllowedRow& row : kAllowed) {
    const std::optional<double> measured = medians.Find(row.measured);
    if (measured) compared.push_back({row.what, *measured, row.microseconds, 1});
  }
  return compared;
}

std::vector<Growth> Grow(MedianReporter& medians, std::span<const GrowthRow> rows) {
  std::vector<Growth> grown;
  for (const GrowthRow& row : rows) {
    Growth& growth = grown.emplace_back(Growth{row.what, {}});
    for (const char* const cost : row.cost) {
      growth.costs.push_back(cost == nullptr ? std::nullopt : medians.Find(cost));
    }
  }
  return grown;
}

int Run(int argc, char** argv) {
  // Repetitions of all benchmarks in turn and in a new order each time: what else the machine does
  // falls on a cost and on its floor alike. Arguments given by hand come last and win.
  std::vector<std::string> arguments = {argv[0], "--benchmark_enable_random_interleaving=true",
                                        "--benchmark_repetitions=15", "--benchmark_min_time=0.02"};
  arguments.insert(arguments.end(), argv + 1, argv + argc);
  std::vector<char*> pointers;
  pointers.reserve(arguments.size());
  for (std::string& argument : arguments) pointers.push_back(argument.data());
  auto count = static_cast<int>(pointers.size());
  benchmark::Initialize(&count, pointers.data());

  MedianReporter medians;
  benchmark::RunSpecifiedBenchmarks(&medians);
  PrintComparisons("in memory", "us", Compare(medians, kInMemory));
  PrintComparisons("to the disk", "us", CompareFileWork());
  PrintComparisons("beside what is allowed", "us", CompareAllowed(medians));
  PrintGrowth("by products of the user's", "us", {"0", "300", "3000"}, Grow(medians, kByProducts));
  PrintGrowth("quick add, by products of the user's", "us", {"0", "300", "3000"},
              Grow(medians, kQuickAdd));
  PrintGrowth("quick add, by lines of history", "us", {"0", "4,000", "40,000"},
              Grow(medians, kByHistory));
  PrintGrowth("by lines of history", "us", {"1", "40,000"}, Grow(medians, kByLines));
  PrintGrowth("by days in the chart", "us", {"1", "20"}, GrowFileWork());
  PrintGrowth("by bytes of a report", "us", {"1,000", "100,000", "10,000,000"},
              Grow(medians, kByBytes));
  PrintGrowth("by days of a history", "us", {"30", "365", "3652"}, Grow(medians, kByDaysOfHistory));
  return medians.complete() ? 0 : 1;
}

}  // namespace
}  // namespace velnor::bench

int main(int argc, char** argv) {
  try {
    return velnor::bench::Run(argc, argv);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "native_bench: %s\n", error.what());
    return 1;
  }
}

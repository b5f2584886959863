// What a person waits for: from the press to everything painted, at the built velnor.exe and from
// outside it, beside a bare window that does the same visible work.
//
// Usage: waits_bench.exe [PRESSES [PROGRAM [DEED...]]]
// Every deed is done so often (100), in rounds; in each round velnor.exe is started with several
// numbers of own products and after it the bare window: what else the machine does falls on both.
// PROGRAM is another velnor.exe than the one beside this; of the deeds only those whose names have
// a DEED in them are done. Prints tables for docs/performance.md. The exit code is 1 when something
// could not be measured.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "bench/deeds.h"
#include "bench/table.h"

namespace velnor::bench {
namespace {

using desktop::WorkFolder;

constexpr int kPresses = 100;
constexpr int kRounds = 10;
constexpr int kOwnProducts[] = {0, 300, 3000};
constexpr int kMany = 3000;
constexpr const char* kStart = "start to first complete paint";
constexpr Bound kStartBound = {1.10, 0};
constexpr DWORD kShortCalm = 200;  // of a window that was only opened
constexpr double kAtMostMs = 50;   // at the 99th percentile with many own products

// By the deed and the number of own products.
using Samples = std::map<std::pair<std::string, int>, std::vector<double>>;

struct Plan {
  int presses = kPresses;
  std::string program = "velnor.exe";
  std::vector<std::string> only;  // all of them if empty
};

struct Setting {
  int own_products;
  WorkFolder folder;
  FoodTable food;

  explicit Setting(int own) : own_products(own) {
    WriteAnn(folder, own);
    food.user_products.Load(folder.path() + "data.txt");
  }
};

bool IsWanted(const Plan& plan, std::string_view deed) {
  const auto is_meant = [deed](const std::string& part) {
    return deed.find(part) != std::string_view::npos;
  };
  return plan.only.empty() || std::ranges::any_of(plan.only, is_meant);
}

double TimeOf(const TimedDeed& deed, Stage& stage) {
  const double begin = Milliseconds();
  deed.press(stage);
  return Milliseconds() - begin;
}

// The first press is not counted: it may fill what is kept from then on.
void SampleDeed(const TimedDeed& deed, Stage& stage, int presses, std::vector<double>& samples) {
  stage.Learn(deed.work);
  deed.once(stage);
  for (int i = -1; i < presses; ++i) {
    deed.before(stage);
    Sleep(2);
    const double ms = TimeOf(deed, stage);
    if (i >= 0) samples.push_back(ms);
    deed.after(stage);
  }
  deed.at_end(stage);
}

// Deeds that do not depend on own products are done with none and with many, and have one floor.
bool IsDone(const Plan& plan, Player player, const TimedDeed& deed, int own_products) {
  const bool is_end = own_products == kMany || (own_products == 0 && player == Player::kVelnor);
  return IsWanted(plan, deed.name) && (deed.depends_on_products || is_end);
}

void SampleSetting(const Plan& plan, Player player, const Setting& setting, Samples& samples) {
  WriteAnn(setting.folder, setting.own_products);
  Stage stage(player, plan.program, setting.folder);
  if (player == Player::kVelnor) LogIn(stage);
  for (const TimedDeed& deed : AllDeeds(setting.food)) {
    if (!IsDone(plan, player, deed, setting.own_products)) continue;
    try {
      SampleDeed(deed, stage, plan.presses / kRounds, samples[{deed.name, setting.own_products}]);
    } catch (const std::exception& error) {
      throw std::runtime_error(deed.name + ": " + error.what());
    }
  }
}

struct Row {
  std::string what;
  const std::vector<double>* waits;
  const std::vector<double>* floor;
  Bound bound;
};

std::string Verdict(const Row& row) {
  const double allowed = Median(*row.floor) * row.bound.times_floor + row.bound.more_ms;
  const bool is_slow = Median(*row.waits) > allowed;
  const bool is_late =
      NinetyNinth(*row.waits) > kAtMostMs && row.bound.times_floor != kStartBound.times_floor;
  std::string verdict = is_slow ? "**missed**" : "";
  if (is_late) verdict += is_slow ? ", **late**" : "**late**";
  return verdict;
}

void PrintRow(const Row& row) {
  char text[200];
  const double waits = Median(*row.waits);
  const double floor = Median(*row.floor);
  std::snprintf(text, sizeof text,
                "| %s | %.1f | %.1f | %.1f | %.1f | %.2f | %.1f | %.1f | %.1f | %s |",
                row.what.c_str(), waits, NinetyNinth(*row.waits), floor, NinetyNinth(*row.floor),
                waits / floor, floor * row.bound.times_floor + row.bound.more_ms, Least(*row.waits),
                Least(*row.floor), Verdict(row).c_str());
  std::puts(text);
}

void PrintWaits(const std::vector<Row>& rows) {
  std::puts("\n## What a person waits for\n");
  std::puts("| ms | waits | p99 | floor | p99 | ratio | at most | least | its floor | |");
  std::puts("|---|---|---|---|---|---|---|---|---|---|");
  for (const Row& row : rows) PrintRow(row);
}

// Medians, by the number of own products.
void PrintGrowth(const Samples& waits, const std::vector<TimedDeed>& deeds) {
  std::puts("\nHow it grows with own products:\n");
  std::puts("| ms | 0 | 300 | 3000 |");
  std::puts("|---|---|---|---|");
  for (const TimedDeed& deed : deeds) {
    if (!waits.contains({deed.name, kMany})) continue;
    std::string line = "| " + deed.name;
    for (const int own_products : kOwnProducts) {
      const auto found = waits.find({deed.name, own_products});
      char text[20] = "";
      if (found != waits.end()) std::snprintf(text, sizeof text, "%.1f", Median(found->second));
      line += std::string(" | ") + text;
    }
    std::puts((line + " |").c_str());
  }
}

std::vector<Row> RowsOf(const std::vector<TimedDeed>& deeds, int own_products, const Samples& waits,
                        const Samples& floors) {
  std::vector<Row> rows;
  for (const TimedDeed& deed : deeds) {
    const auto found = waits.find({deed.name, own_products});
    const auto floor = floors.find({deed.name, own_products});
    if (found == waits.end() || floor == floors.end()) continue;
    std::string what = deed.name;
    if (!deed.detail.empty()) what += ", " + deed.detail;
    rows.push_back({what, &found->second, &floor->second, deed.bound});
  }
  return rows;
}

// A window opens for the first time; it has the program's duties in either.
void SampleStarts(const Plan& plan, const WorkFolder& folder, Samples& waits, Samples& floors) {
  for (int i = 0; i < plan.presses; ++i) {
    waits[{kStart, kMany}].push_back(
        Started(plan.program, kVelnorClass, folder.path(), kShortCalm).start_ms());
    floors[{kStart, kMany}].push_back(
        Started("bare_window.exe 0", kBareClass, folder.path(), kShortCalm).start_ms());
  }
}

int Run(const Plan& plan) {
  std::vector<std::unique_ptr<Setting>> settings;
  for (const int own_products : kOwnProducts) {
    settings.push_back(std::make_unique<Setting>(own_products));
  }
  Samples waits;
  Samples floors;
  for (int round = 0; round < kRounds; ++round) {
    for (const auto& setting : settings) SampleSetting(plan, Player::kVelnor, *setting, waits);
    for (const auto& setting : settings) SampleSetting(plan, Player::kBare, *setting, floors);
  }
  std::vector<Row> rows;
  if (IsWanted(plan, kStart)) {
    SampleStarts(plan, settings.back()->folder, waits, floors);
    rows.push_back({kStart, &waits.at({kStart, kMany}), &floors.at({kStart, kMany}), kStartBound});
  }
  for (const auto& setting : settings) {
    const std::vector<Row> more =
        RowsOf(AllDeeds(setting->food), setting->own_products, waits, floors);
    rows.insert(rows.end(), more.begin(), more.end());
  }
  PrintWaits(rows);
  PrintGrowth(waits, AllDeeds(settings.back()->food));
  return 0;
}

}  // namespace
}  // namespace velnor::bench

int main(int argc, char** argv) {
  velnor::bench::Plan plan;
  if (argc > 1) plan.presses = std::atoi(argv[1]);
  if (argc > 2) plan.program = argv[2];
  for (int i = 3; i < argc; ++i) plan.only.emplace_back(argv[i]);
  try {
    return velnor::bench::Run(plan);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "waits_bench: %s\n", error.what());
    return 1;
  }
}

// The screens.

#include <algorithm>

#include "activity/activity_table.h"
#include "bench/deed_parts.h"
#include "shell/screens.h"

namespace velnor::bench {
namespace {

std::vector<std::string> ActivityNames() {
  std::vector<std::string> names;
  for (const ActivityRecord& activity : Activities()) names.emplace_back(activity.name);
  return names;
}

Work ScreenWork(const ScreenRow& screen) {
  Work work = {On(screen.command)};
  if (screen.id == kBurnedScreen) work.push_back(Do(kFill, 159, ActivityNames()));
  work.push_back(Do(kScreen, screen.id));
  return work;
}

}  // namespace

// Each from a screen that has no controls.
void AddScreens(std::vector<TimedDeed>& deeds) {
  for (const ScreenRow& screen : Screens()) {
    if (screen.command == 0) continue;
    const bool is_start = screen.id == kExchangesScreen;
    TimedDeed deed = {.name = "screen " + std::to_string(screen.id) + " opened",
                      .work = ScreenWork(screen),
                      .press = Send(screen.command),
                      .before = Send(is_start ? kOpenWeightChart : kOpenExchanges)};
    Append(deed.work, is_start ? Work{On(kOpenWeightChart), Do(kScreen, kWeightChartScreen)}
                               : Work{On(kOpenExchanges), Do(kScreen, kExchangesScreen)});
    deeds.push_back(deed);
  }
  for (const int command : {kOpenCounter, kOpenBurned, kOpenCaloriesChart}) {
    const auto* const screen = &*std::ranges::find(Screens(), command, &ScreenRow::command);
    deeds.push_back({.name = "screen " + std::to_string(screen->id) + " repainted",
                     .bound = kListBound,
                     .work = ScreenWork(*screen),
                     .press = Send(command),
                     .once = Send(command)});
  }
  // An edit that holds the text already is not filled again: another report comes before.
  std::string report;
  while (report.size() + 80 < 29'999) {
    report += "16.11.2026  swimming  60 min  burned: 412.5 kcal  in the lake\r\n";
  }
  report.resize(29'999, '.');
  deeds.push_back({.name = "report of 29,999 characters",
                   .work = {On(215), Do(kText, 119, {report}), Do(kScreen, 11), On(214),
                            Do(kText, 119, {""}), Do(kScreen, 5)},
                   .press = Send(215),
                   .once = Writing("Ann\\cwiczenia.ASC", report),
                   .before = Send(214)});
  // What a function of functions holds is freed with it; the analyser loses sight of that.
  // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks)
}

}  // namespace velnor::bench

// The history of a person, whatever it holds: its reader, the habits of eating that are made of it,
// and a day's deeds that are told behind it.

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "food/eating_habits.h"
#include "fuzz/day.h"
#include "fuzz/program_run.h"
#include "users/history_file.h"

namespace velnor {
namespace {

constexpr const char* kHistory = "Ann/dziennik.csv";
constexpr std::string_view kToday = "2026-11-16";  // of the run

std::vector<HistoryEntry> ReadAll(std::string_view bytes) {
  HistoryReader reader(bytes);
  std::vector<HistoryEntry> entries;
  while (std::optional<HistoryEntry> entry = reader.Next()) entries.push_back(*entry);
  return entries;
}

bool IsFigure(std::optional<double> figure) { return !figure || std::isfinite(*figure); }

void CheckEntry(const HistoryEntry& entry) {
  Require(IsIsoDate(entry.date), "an entry has a date");
  Require(entry.time.empty() || entry.time.size() == 8, "an entry has a time or none");
  for (const auto& figure :
       {entry.amount, entry.kcal, entry.protein, entry.fat, entry.carbohydrate}) {
    Require(IsFigure(figure), "a figure is a number");
  }
}

// A line that the program writes is one entry again, the figures of which are written the same.
void CheckWrittenAgain(const HistoryEntry& entry) {
  const std::string line = HistoryLine(entry);
  const std::vector<HistoryEntry> again = ReadAll(line);
  // A name of more line ends than a name is believed to have is read in no pieces that are entries.
  if (std::ranges::count(entry.name + entry.unit, '\n') > 4) return;
  Require(again.size() == 1, "a written line is an entry");
  Require(again[0].name == entry.name && again[0].unit == entry.unit, "names come back");
  Require(HistoryLine(again[0]) == line, "and it is written the same");
}

// What the history tells of today, and how much was told in all; nothing when that is no number.
struct Told {
  double kcal = 0;
  double moved = 0;
};
Told ToldOfToday(const ProgramRun& run) {
  Told told;
  for (const HistoryEntry& entry : ReadAll(run.Read(kHistory))) {
    if (entry.date != kToday || !CountsInDay(entry.kind)) continue;
    told.kcal += entry.kcal.value_or(0);
    told.moved += std::abs(entry.kcal.value_or(0));
  }
  return told;
}

void RequireTold(const ProgramRun& run, double kcal) {
  const Told told = ToldOfToday(run);
  if (!std::isfinite(told.moved)) return;  // what others wrote is beyond all numbers
  Require(std::abs(told.kcal - kcal) <= 1e-6 + 1e-7 * told.moved, "the sums are the day's totals");
}

}  // namespace
}  // namespace velnor

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velnor;  // NOLINT(google-build-using-namespace)
  const std::string_view input = InputText(data, size);
  for (const HistoryEntry& entry : ReadAll(input)) {
    CheckEntry(entry);
    CheckWrittenAgain(entry);
  }
  static_cast<void>(EatingHabits(input));
  ProgramRun run;
  run.MakeUser();
  run.Write(kHistory, input);
  run.Start();
  run.LogIn();
  RequireTold(run, 0);
  EatStrawberries(run);
  RequireTold(run, 70);
  const std::string after = run.Read(kHistory);
  Require(after.starts_with(input), "no byte that stood there has changed");
  Require(!ReadAll(after).empty() && ReadAll(after).back().name == "frozen strawberries",
          "the food stands at the end");
  TakeOffFirst(run);
  RequireTold(run, 0);
  return 0;
}

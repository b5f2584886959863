// The day's balance: read by the login, the counter, the balance screen and the energy balance,
// written by the food list.

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

#include "food/day_balance.h"
#include "fuzz/day.h"

namespace velnor {
namespace {

constexpr const char* kFile = "Ann/bilans.ASC";
constexpr int kOpenBalance = 233;
constexpr int kOpenEnergyBalance = 239;
constexpr int kClearList = 146;
constexpr int kClearDay = 165;

DayTotals ReadTotals(ProgramRun& run) {
  const std::optional<DayTotals> totals = DayBalance(run.program().session()).ReadTotals();
  Require(totals.has_value(), "a balance that exists is read");
  return *totals;
}

bool IsSum(double sum, double before, double added) { return AgreeAsStored(sum, before + added); }

// What is eaten is added to what the file held; taken off, it is gone again.
void Eat(ProgramRun& run) {
  const DayTotals before = ReadTotals(run);
  EatStrawberries(run);
  const DayTotals after = ReadTotals(run);
  Require(IsSum(after.kcal, before.kcal, 70) && IsSum(after.protein, before.protein, 1.75) &&
              IsSum(after.fat, before.fat, 1) &&
              IsSum(after.carbohydrate, before.carbohydrate, 13.5),
          "the totals are what was there and what was eaten");
  RequireSoundDay(run);
  run.Open(kOpenBalance);
  TakeOffFirst(run);
  const DayTotals rest = ReadTotals(run);
  Require(AgreeAsStored(rest.kcal, std::max(0.0, after.kcal - 70)), "what is taken off is gone");
  RequireSoundDay(run);
}

}  // namespace
}  // namespace velnor

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velnor;  // NOLINT(google-build-using-namespace)
  ProgramRun run;
  run.MakeUser();
  run.Write(kFile, InputText(data, size));
  const auto before = run.AllFiles();
  run.Start();
  run.LogIn();
  run.Open(kOpenBalance);
  run.Open(kOpenEnergyBalance);
  run.RequireUnchanged(before, {kFile, "Ann/z1.ASC", "Ann/z2.ASC", "Ann/erg.txt"});
  Eat(run);
  EatStrawberries(run);
  run.Press(kClearList);
  RequireSoundDay(run);
  run.Open(kOpenBalance);
  run.Press(kClearDay);
  Require(ReadTotals(run) == DayTotals{}, "a cleared day has nothing eaten");
  RequireSoundDay(run);
  return 0;
}

// The day's exchanges, two files of a number each: the input holds both, divided by "|".

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

#include "food/day_balance.h"
#include "fuzz/day.h"

namespace velnor {
namespace {

constexpr const char* kCarbohydrate = "Ann/z1.ASC";
constexpr const char* kProteinFat = "Ann/z2.ASC";
constexpr int kOpenBalance = 233;
constexpr int kClearList = 146;

// Eight characters are read of a file, which hold all figures that a day of a person's can reach.
bool IsOfThisWorld(double exchange) { return std::abs(exchange) < 1e6; }

void RequireExchange(double got, double before, double expected) {
  if (!IsOfThisWorld(before)) return;
  Require(std::abs(got - expected) <= 1e-3 + 1e-5 * std::abs(expected),
          "the exchanges are what was there and what was eaten");
}

void RequireSum(double sum, double before, double added) {
  RequireExchange(sum, before, before + added);
}

void RequireRest(double rest, double before, double taken) {
  RequireExchange(rest, before, std::max(0.0, before - taken));
}

void Eat(ProgramRun& run) {
  const DayBalance day(run.program().session());
  const DayExchanges before = day.ReadExchanges();
  EatStrawberries(run);
  const DayExchanges after = day.ReadExchanges();
  RequireSum(after.carbohydrate, before.carbohydrate, 1.35);
  RequireSum(after.protein_fat, before.protein_fat, 0.16);
  RequireSoundDay(run);
  run.Open(kOpenBalance);
  TakeOffFirst(run);
  const DayExchanges rest = day.ReadExchanges();
  RequireRest(rest.carbohydrate, after.carbohydrate, 1.35);
  RequireRest(rest.protein_fat, after.protein_fat, 0.16);
  RequireSoundDay(run);
}

}  // namespace
}  // namespace velnor

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velnor;  // NOLINT(google-build-using-namespace)
  ProgramRun run;
  run.MakeUser();
  run.Write("Ann/bilans.ASC", kTestDate);
  std::string_view input = InputText(data, size);
  run.Write(kCarbohydrate, TakeUpTo('|', input));
  run.Write(kProteinFat, input);
  const auto before = run.AllFiles();
  run.Start();
  run.LogIn();
  run.Open(kOpenBalance);
  run.RequireUnchanged(before, {});
  Eat(run);
  EatStrawberries(run);
  run.Press(kClearList);
  RequireSoundDay(run);
  run.Open(kOpenBalance);
  return 0;
}

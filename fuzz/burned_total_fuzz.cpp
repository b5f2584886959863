// The day's total of burned calories: read by the activities screen and the energy balance, written
// by the former.

#include <cmath>
#include <string>
#include <string_view>

#include "activity/burned_calories.h"
#include "base/number_text.h"
#include "fuzz/day.h"

namespace velnor {
namespace {

constexpr const char* kFile = "Ann/erg.txt";
constexpr int kOpenActivities = 238;
constexpr int kOpenEnergyBalance = 239;
constexpr int kActivities = 159;
constexpr int kMinutes = 160;
constexpr int kCount = 161;
constexpr int kCalories = 163;
constexpr int kAdd = 177;
constexpr int kClear = 179;

// Fourteen characters are read of the total, which hold every figure that a day can reach.
bool IsOfThisWorld(double kcal) { return kcal == 0 || (kcal > 1e-3 && kcal < 1e9); }

double ReadTotal(ProgramRun& run) {
  BurnedTotal total(run.program().session());
  total.Refresh();
  return total.kcal();
}

void Burn(ProgramRun& run) {
  run.Open(kOpenActivities);
  run.form().Choose(kActivities, run.form().ItemText(kActivities, 0));
  run.form().SetText(kMinutes, "37.5");
  run.Press(kCount);
  const double burned = ParseNumber(run.form().Text(kCalories));
  Require(burned > 0, "an activity burns calories");
  const double before = ReadTotal(run);
  run.Press(kAdd);
  const double after = ReadTotal(run);
  const bool can_be_told = IsOfThisWorld(before) && IsOfThisWorld(before + burned);
  Require(!can_be_told || std::abs(after - (before + burned)) <= 1e-6 * (before + burned),
          "the total is what was there and what was burned");
  Require(run.Read(kFile).starts_with(std::string(kTestDate) + ';'), "the total is of today");
}

void CountBalance(ProgramRun& run) {
  run.Open(kOpenEnergyBalance);
  run.form().SetText(181, "1500");
  run.Press(182);
  run.Open(kOpenEnergyBalance);
}

}  // namespace
}  // namespace velnor

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velnor;  // NOLINT(google-build-using-namespace)
  ProgramRun run;
  run.MakeUser();
  run.Write("Ann/bilans.ASC", std::string(kTestDate) + "\r\n1850.5\r\n72.\r\n60.\r\n230.");
  run.Write(kFile, InputText(data, size));
  const auto before = run.AllFiles();
  run.Start();
  run.LogIn();
  CountBalance(run);
  run.RequireUnchanged(before, {});
  Burn(run);
  CountBalance(run);
  Burn(run);
  run.Press(kClear);
  Require(run.Read(kFile).empty(), "a cleared total is empty");
  CountBalance(run);
  run.RequireUnchanged(before, {kFile});
  return 0;
}

// The series of the nutrient charts: read by the four charts, written with every change of the day.

#include <string>
#include <string_view>

#include "fuzz/day.h"
#include "fuzz/series.h"

namespace velnor {
namespace {

constexpr const char* kFile = "Ann/wykoda.txt";

}  // namespace
}  // namespace velnor

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velnor;  // NOLINT(google-build-using-namespace)
  ProgramRun run;
  run.MakeUser();
  run.Write("Ann/bilans.ASC", kTestDate);
  run.Write(kFile, InputText(data, size));
  const auto before = run.AllFiles();
  run.Start();
  run.LogIn();
  LookAtCharts(run, {271, 272, 273, 274});
  run.RequireUnchanged(before, {});
  const SeriesFile series(run, kFile);
  EatStrawberries(run);
  RequireDayAdded(series, SeriesFile(run, kFile), "16.11.2026;70.;1.75;1.;13.5;");
  run.RequireUnchanged(before, {kFile, "Ann/bilans.ASC", "Ann/z1.ASC", "Ann/z2.ASC"});
  LookAtCharts(run, {271, 272, 273, 274});
  return 0;
}

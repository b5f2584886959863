// The series of the weight chart: read by the chart, written with every weight record.

#include <string>
#include <string_view>

#include "fuzz/series.h"

namespace velnor {
namespace {

constexpr const char* kFile = "Ann/wykwag.txt";
constexpr int kOpenBmi = 221;
constexpr int kSaveRecord = 103;
constexpr int kOpenChart = 270;

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
  LookAtCharts(run, {kOpenChart});
  run.RequireUnchanged(before, {});
  const SeriesFile series(run, kFile);
  run.Open(kOpenBmi);
  run.Press(kSaveRecord);
  run.dialog()->SetText(710, "70.5");
  run.dialog()->SetText(711, "24.123");
  run.PressInDialog(kOkButton);
  RequireDayAdded(series, SeriesFile(run, kFile), "16.11.2026;70.5;24.12;");
  run.RequireUnchanged(before, {kFile, "Ann/waga.ASC"});
  LookAtCharts(run, {kOpenChart});
  return 0;
}

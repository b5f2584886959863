// The personal limits: read by the login and everything that measures by the requirement, written
// by the requirement screen.

#include <string>
#include <string_view>

#include "activity/personal_limits.h"
#include "fuzz/program_run.h"

namespace velnor {
namespace {

constexpr const char* kFile = "Ann/zapot.ASC";
constexpr int kActivate = 174;
constexpr int kClear = 175;
constexpr int kFirstEdit = 166;
constexpr int kOpenRequirement = 232;
constexpr std::size_t kTypedLimit = 5;  // characters that are read of an edit

constexpr std::string_view kSeries =
    "13.11.2026;1850.5;72.5;60.25;230.75;\r\n"
    "14.11.2026;2850.5;82.5;90.25;330.75;\r\n"
    "15.11.2026;850.5;32.5;30.25;130.75;\r\n";

void LookAtScreens(ProgramRun& run) {
  for (const int command : {231, 233, 271, 272, 273, 274, kOpenRequirement}) run.Open(command);
}

LimitTexts ShownLimits(const FakeForm& form) {
  LimitTexts texts;
  for (std::size_t limit = 0; limit < kLimitCount; ++limit) {
    texts[limit] = form.ReadText(kFirstEdit + static_cast<int>(limit), kTypedLimit);
  }
  return texts;
}

void Activate(ProgramRun& run) {
  const PersonalLimits typed = {ShownLimits(run.form())};
  const std::string before = run.Read(kFile);
  run.Press(kActivate);
  if (FindFault(typed)) {
    Require(run.Read(kFile) == before, "limits with a fault are not written");
    return;
  }
  const PersonalLimits read = ReadPersonalLimits(run.Path(kFile));
  Require(read.texts == typed.texts, "the limits written are read back");
  Require(read.AreInForce(), "limits without a fault are in force");
}

}  // namespace
}  // namespace velnor

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velnor;  // NOLINT(google-build-using-namespace)
  ProgramRun run;
  run.MakeUser();
  run.Write("Ann/wykoda.txt", kSeries);
  run.Write(kFile, InputText(data, size));
  const auto before = run.AllFiles();
  run.Start();
  run.LogIn();
  LookAtScreens(run);
  run.RequireUnchanged(before, {"Ann/bilans.ASC", "Ann/z1.ASC", "Ann/z2.ASC"});
  Activate(run);
  LookAtScreens(run);
  run.Press(kClear);
  Require(!ReadPersonalLimits(run.Path(kFile)).AreInForce(), "cleared limits are not in force");
  LookAtScreens(run);
  return 0;
}

// The profile of a user: read by the login, the calculators and the profile dialog, which writes
// it.

#include <string>
#include <string_view>

#include "fuzz/program_run.h"
#include "users/profile.h"

namespace velnor {
namespace {

constexpr const char* kFile = "Ann/info.ASC";
constexpr int kOpenProfile = 204;
constexpr int kOpenBmi = 221;
constexpr int kOpenWhr = 224;
constexpr int kOpenBmr = 225;
constexpr int kOpenRequirement = 232;
constexpr int kOpenBalance = 233;

constexpr std::size_t kLongestSaved = 98;  // characters of a text

void UseCalculators(ProgramRun& run) {
  run.Open(kOpenBmi);
  run.form().SetText(101, "70");
  run.Press(102);
  run.Open(kOpenWhr);
  run.form().SetText(104, "80");
  run.form().SetText(105, "100");
  run.Press(106);
  run.Open(kOpenBmr);
  run.Press(176);
  run.Open(kOpenRequirement);
  run.Open(kOpenBalance);
}

// Saving what the dialog shows writes it, and it is read back.
void Save(ProgramRun& run) {
  run.Choose(kOpenProfile);
  const auto shown = [&run](int id) {
    const std::string text = run.dialog()->Text(id).substr(0, kLongestSaved);
    return text.empty() ? "0" : text;
  };
  const ProfileLines lines = {shown(704), shown(705), shown(706), shown(707), shown(708)};
  const bool contradicts =
      lines[2] == "men" && (lines[4] == "pregnant" || lines[4] == "suckling mother");
  run.PressInDialog(kOkButton);
  Require(run.dialog() == nullptr, "the dialog closes");
  const ProfileLines read = ReadProfileLines(run.Path(kFile));
  for (std::size_t line = 0; line < lines.size(); ++line) {
    Require(read[line] == (contradicts && line == 4 ? "0" : lines[line]),
            "the profile written is read back");
  }
}

}  // namespace
}  // namespace velnor

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velnor;  // NOLINT(google-build-using-namespace)
  ProgramRun run;
  run.MakeUser(kFuzzUser, InputText(data, size));
  const auto before = run.AllFiles();
  run.Start();
  run.LogIn();
  UseCalculators(run);
  run.RequireUnchanged(before, {"Ann/bilans.ASC", "Ann/z1.ASC", "Ann/z2.ASC"});
  Save(run);
  UseCalculators(run);
  return 0;
}

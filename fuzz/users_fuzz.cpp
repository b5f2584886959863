// The list of users: read by the login and the users dialog, rewritten by the latter.

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/program_run.h"
#include "users/user_registry.h"

namespace velnor {
namespace {

constexpr int kOpenLogin = 200;
constexpr int kOpenUsers = 202;
constexpr int kOpenExchanges = 252;
constexpr int kList = 700;

std::vector<std::string> Sorted(std::vector<std::string> names) {
  std::ranges::sort(names);
  return names;
}

UserRegistry ReadRegistry(const ProgramRun& run) {
  std::optional<UserRegistry> registry = ReadUserRegistry(run.Path("users.ASC"));
  Require(registry.has_value(), "a list that exists is read");
  for (const std::string& name : registry->names) {
    Require(IsFolderName(name), "every name names a folder of the start-up folder");
  }
  return std::move(*registry);
}

void LogEveryoneIn(ProgramRun& run, const std::vector<std::string>& names) {
  constexpr std::size_t kMost = 3;
  for (std::size_t i = 0; i < std::min(names.size(), kMost); ++i) {
    run.Choose(kOpenLogin);
    run.PressInDialog(kCancelButton);
    run.LogIn(names[i]);
    run.Open(kOpenExchanges);
    run.Choose(201);
  }
}

// Confirming the list without a change writes the names that were read, in order.
void Confirm(ProgramRun& run, const UserRegistry& registry) {
  run.Choose(kOpenUsers);
  Require(Sorted(run.dialog()->Items(kList)) == Sorted(registry.names), "every name is offered");
  run.PressInDialog(kOkButton);
  Require(run.dialog() == nullptr, "a list that can be written is written");
  const std::string bytes = run.Read("users.ASC");
  Require(bytes.ends_with(registry.rest), "what is not shown stays");
  // Line ends that were shorter before can make it longer than what is shown.
  if (!registry.rest.empty() || bytes.size() > kRegistryLimit) return;
  const UserRegistry again = ReadRegistry(run);
  Require(Sorted(again.names) == Sorted(registry.names), "the names written are read back");
  Require(RegistryBytes(again) == bytes, "a list written is one that would be written");
}

}  // namespace
}  // namespace velnor

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velnor;  // NOLINT(google-build-using-namespace)
  ProgramRun run;
  run.Write("users.ASC", InputText(data, size));
  const auto before = run.AllFiles();
  run.Start();
  const UserRegistry registry = ReadRegistry(run);
  LogEveryoneIn(run, registry.names);
  run.RequireUnchanged(before, {});
  Confirm(run, registry);
  run.RequireUnchanged(before, {"users.ASC"});
  return 0;
}

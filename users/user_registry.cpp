#include "users/user_registry.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

#include "base/code_page.h"
#include "base/file_calls.h"
#include "base/text_file.h"
#include "food/day_balance.h"
#include "reports/report_file.h"

namespace velnor {
namespace {

constexpr std::string_view kForbiddenSigns = " +-\\./:|`;\"~><!@#$%^&*()\t";

constexpr const char* kFirstFiles[] = {"waga.ASC", "mirvo.ASC",     "info.ASC",   "zestaw.ASC",
                                       "whr.ASC",  "cwiczenia.ASC", "wykwag.txt", "wykoda.txt"};

constexpr const char* kAllFiles[] = {"waga.ASC",   "mirvo.ASC",     "info.ASC",  "zestaw.ASC",
                                     "whr.ASC",    "cwiczenia.ASC", "zapot.ASC", "bilans.ASC",
                                     "wykwag.txt", "wykoda.txt",    "erg.txt"};

// A file and what an interrupted write of it has left.
void DeleteWithTemporary(const std::string& path) {
  std::remove(path.c_str());
  std::remove(TemporaryPath(path).c_str());
}

constexpr std::string_view kDevices[] = {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"};
constexpr std::string_view kNumberedDevices[] = {"COM", "LPT"};

char Capital(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

// What counts is what stands before the first point, without blanks at its end.
bool IsDevice(std::string_view name) {
  std::string stem(name.substr(0, name.find('.')));
  stem.erase(stem.find_last_not_of(' ') + 1);
  std::ranges::transform(stem, stem.begin(), Capital);
  if (std::ranges::find(kDevices, stem) != std::end(kDevices)) return true;
  if (stem.empty() || stem.back() < '1' || stem.back() > '9') return false;
  stem.pop_back();
  return std::ranges::find(kNumberedDevices, stem) != std::end(kNumberedDevices);
}

bool IsLineEnd(char c) { return c == '\r' || c == '\n'; }

// Where the last whole name within the limit ends; what follows is not shown.
std::size_t WholeNamesEnd(std::string_view text) {
  if (text.size() <= kRegistryLimit) return text.size();
  std::size_t end = kRegistryLimit;
  while (end > 0 && !IsLineEnd(text[end])) --end;
  return end;
}

}  // namespace

std::optional<UserRegistry> ReadUserRegistry(const std::string& path) {
  const std::optional<std::string> read = ReadFileToRewrite(path, kWholeFile);
  if (!read) return std::nullopt;
  const std::string& text = *read;
  const std::size_t end = WholeNamesEnd(text);
  const std::size_t names_end = std::min(text.find('\0'), end);

  UserRegistry registry;
  std::size_t start = 0;
  while (start < names_end) {
    const std::size_t stop = std::min(text.find_first_of("\r\n", start), names_end);
    std::string name = text.substr(start, stop - start);
    if (IsFolderName(name)) registry.names.push_back(std::move(name));
    start = stop + 1;
  }
  const std::size_t rest = text.find_first_not_of("\r\n", end);
  if (rest != std::string::npos) registry.rest = text.substr(rest);
  return registry;
}

std::string RegistryBytes(const UserRegistry& registry) {
  std::string bytes;
  const auto append_line = [&bytes](std::string_view line) {
    if (!bytes.empty()) bytes += "\r\n";
    bytes += line;
  };
  for (const std::string& name : registry.names) append_line(name);
  if (!registry.rest.empty()) append_line(registry.rest);
  return bytes;
}

std::size_t CountForbiddenSigns(std::string_view name) {
  return static_cast<std::size_t>(std::ranges::count_if(
      name, [](char c) { return kForbiddenSigns.find(c) != std::string_view::npos; }));
}

bool IsFolderName(std::string_view name) {
  if (name.empty() || name.size() > kUserNameLimit) return false;
  if (name.find_first_of("\\/:*?\"<>|") != std::string_view::npos || IsDevice(name)) return false;
  // The platform takes dots and blanks off the end of a name: ".. " is the folder above.
  return name.find_first_not_of(". ") != std::string_view::npos &&
         std::ranges::none_of(name, [](char c) { return c >= '\0' && c < ' '; });
}

std::optional<std::string> FindNamesake(const SessionState& session,
                                        const std::vector<std::string>& registered,
                                        const std::string& name) {
  const std::string lower = ToLowerCase(name);
  const auto differs_in_case = [&](const std::string& other) {
    return other != name && ToLowerCase(other) == lower;
  };
  if (std::ranges::find(registered, name) != registered.end()) return std::nullopt;
  const auto user = std::ranges::find_if(registered, differs_in_case);
  if (user != registered.end()) return *user;
  for (const FolderEntry& entry :
       ListFolder(session.base_folder).value_or(std::vector<FolderEntry>())) {
    if (entry.is_folder && differs_in_case(entry.name)) return entry.name;
  }
  return std::nullopt;
}

void CreateUserFiles(const SessionState& session, const std::string& user) {
  MakeFolder(session.FolderOf(user));
  for (const char* const file : kFirstFiles) ReplaceFile(session.FileOf(user, file), "");
}

void DeleteUserFiles(const SessionState& session, const std::string& user) {
  for (const char* const file : kAllFiles) {
    DeleteWithTemporary(session.FileOf(user, file));
  }
  // The day's exchanges are not among the files that go, but what an interrupted write has left of
  // them is nobody's.
  for (const std::string_view file : {kCarbohydrateExchangeFile, kProteinFatExchangeFile}) {
    std::remove(TemporaryPath(session.FileOf(user, file)).c_str());
  }
  for (const ReportFile& report : Reports()) {
    DeleteWithTemporary(RestPath(session.FileOf(user, report.file_name)));
  }
  if (!user.empty()) RemoveFolder(session.FolderOf(user));
}

}  // namespace velnor

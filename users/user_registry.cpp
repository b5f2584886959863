#include "users/user_registry.h"

#include <algorithm>

#include "base/code_page.h"
#include "base/file_calls.h"
#include "base/text_file.h"
#include "base/transaction.h"
#include "users/user_files.h"

namespace velnor {
namespace {

constexpr std::string_view kForbiddenSigns = " +-\\./:|`;\"~><!@#$%^&*()\t";

// The path of a file of the user called `user`, as it was typed: without a name, of the start-up
// folder itself. Returns nothing if it would lie anywhere else.
std::optional<std::string> TypedPath(const SessionState& session, const std::string& user,
                                     std::string_view file_name) {
  if (user.empty()) return session.BaseFile(file_name);
  const std::optional<UserFolder> folder = UserFolder::In(session.base_folder, user);
  return folder ? std::optional(folder->File(file_name)) : std::nullopt;
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
  const std::optional<std::string> text = ReadFileToRewrite(path, kWholeFile);
  return text ? std::optional(ParseUserRegistry(*text)) : std::nullopt;
}

UserRegistry ParseUserRegistry(const std::string& text) {
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
  const std::optional<UserFolder> folder = UserFolder::In(session.base_folder, user);
  if (!folder) return;
  Transaction deed(session.base_folder);
  deed.MakeFolder(folder->path());
  for (const UserFile& file : UserFiles()) {
    if (file.made_with_user) deed.Replace(folder->File(file.name), "");
  }
  deed.CommitUnreported();
}

void DeleteUserFiles(const SessionState& session, const std::string& user) {
  Transaction deed(session.base_folder);
  for (const UserFile& file : UserFiles()) {
    const std::optional<std::string> path = TypedPath(session, user, file.name);
    if (!path) return;
    if (file.goes_with_user) deed.Remove(*path);
    if (file.is_report) deed.Remove(RestPath(*path));
  }
  if (!user.empty()) deed.RemoveFolder(session.base_folder + user);
  deed.CommitUnreported();
}

}  // namespace velnor

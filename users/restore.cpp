#include "users/restore.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

#include "base/code_page.h"
#include "base/file_calls.h"
#include "base/text_file.h"
#include "base/transaction.h"
#include "users/backup.h"
#include "users/user_files.h"
#include "users/user_registry.h"

namespace velnor {
namespace {

constexpr std::string_view kRestorePress = "Restore";

bool AddFile(std::vector<ReadCopy::File>& files, const std::string& folder, std::string name) {
  std::optional<std::string> bytes = ReadFileToRewrite(folder + name, kWholeFile);
  if (!bytes) return false;
  files.push_back({std::move(name), *std::move(bytes)});
  return true;
}

bool AddPerson(ReadCopy& copy, const std::string& folder, const std::string& name) {
  const std::string own = folder + name + kPathSeparator;
  const std::optional<std::vector<FolderEntry>> entries = ListFolder(own);
  if (!entries) return false;
  copy.people.push_back({name, {}});
  return std::ranges::all_of(*entries, [&](const FolderEntry& entry) {
    return entry.is_folder || AddFile(copy.people.back().files, own, entry.name);
  });
}

std::vector<std::string> NamesIn(const ReadCopy& copy) {
  std::vector<std::string> names;
  std::ranges::transform(copy.people, std::back_inserter(names), &ReadCopy::Person::name);
  return names;
}

bool HasFile(const std::vector<ReadCopy::File>& files, std::string_view name) {
  return std::ranges::find(files, name, &ReadCopy::File::name) != files.end();
}

// Adds the names that are not there yet. Names that differ in small and capital letters alone mean
// one folder.
void AddMissing(std::vector<std::string>& names, const std::vector<std::string>& added) {
  for (const std::string& name : added) {
    const bool is_there = std::ranges::any_of(
        names, [&](const std::string& other) { return ToLowerCase(other) == ToLowerCase(name); });
    if (!is_there) names.push_back(name);
  }
}

// The bytes of the list of users as it is afterwards: that of the copy, and behind it whoever is
// listed now; where the copy has none, the one of now and behind it the people of the copy. A copy
// with a list may hold what is left of somebody who had been removed. `present`: the bytes of now.
std::string ListAfter(const ReadCopy& copy, const std::string& present) {
  const auto file = std::ranges::find(copy.shared, kRegistryFile, &ReadCopy::File::name);
  const bool has_list = file != copy.shared.end();
  const std::string& first = has_list ? file->bytes : present;
  UserRegistry registry = ParseUserRegistry(first);
  const std::size_t listed = registry.names.size();
  AddMissing(registry.names, has_list ? ParseUserRegistry(present).names : NamesIn(copy));
  return registry.names.size() == listed ? first : RegistryBytes(registry);
}

void PutPerson(Transaction& deed, const std::string& folder, const ReadCopy::Person& person) {
  const std::string path = folder + person.name;
  const std::string own = path + kPathSeparator;
  if (!IsThere(path)) deed.MakeFolder(path);
  for (const ReadCopy::File& file : person.files) deed.Replace(own + file.name, file.bytes);
  for (const UserFile& file : UserFiles()) {
    const std::string name(file.name);
    if (!HasFile(person.files, name) && IsThere(own + name)) deed.Remove(own + name);
    const std::string rest = RestPath(name);
    if (file.is_report && !HasFile(person.files, rest) && IsThere(own + rest)) {
      deed.Remove(own + rest);
    }
  }
}

}  // namespace

std::optional<ReadCopy> ReadCopyIn(const std::string& folder) {
  if (!IsCopy(folder)) return std::nullopt;
  ReadCopy copy;
  for (const std::string_view name : kSharedFiles) {
    const std::string file(name);
    if (IsThere(folder + file) && !AddFile(copy.shared, folder, file)) return std::nullopt;
  }
  const std::vector<std::string> people = PeopleIn(folder);
  const bool is_read = std::ranges::all_of(
      people, [&](const std::string& name) { return AddPerson(copy, folder, name); });
  return is_read ? std::optional(std::move(copy)) : std::nullopt;
}

std::string PeopleOf(const ReadCopy& copy) { return Joined(NamesIn(copy)); }

RestoreAnswer Restore(const SessionState& session, const ReadCopy& copy) {
  const std::string& folder = session.base_folder;
  if (!MakeCopyBefore(folder, session.clock->Now(), kRestorePress, "")) {
    return RestoreAnswer::kNotCopied;
  }
  Transaction deed(folder);
  if (!deed.has_begun()) return RestoreAnswer::kNotWritten;
  const std::string list_path = folder + std::string(kRegistryFile);
  const std::optional<std::string> present = ReadFileToRewrite(list_path, kWholeFile);
  if (!present) return RestoreAnswer::kNotWritten;
  const std::string list = ListAfter(copy, *present);
  if (list != *present && list.size() > kRegistryLimit) return RestoreAnswer::kListTooLong;
  for (const ReadCopy::File& file : copy.shared) {
    if (file.name != kRegistryFile) deed.Replace(folder + file.name, file.bytes);
  }
  if (list != *present) deed.Replace(list_path, list);
  for (const ReadCopy::Person& person : copy.people) PutPerson(deed, folder, person);
  return deed.Commit() ? RestoreAnswer::kRestored : RestoreAnswer::kNotWritten;
}

}  // namespace velnor

#include "users/backup.h"

#include <algorithm>
#include <set>

#include "base/file_calls.h"
#include "base/folder_lock.h"
#include "base/session.h"
#include "base/text_file.h"
#include "base/transaction.h"
#include "users/history_file.h"
#include "users/profile.h"
#include "users/user_files.h"
#include "users/user_registry.h"

namespace velnor {
namespace {

// What a copy is called until all of it is there.
constexpr std::string_view kPart = ".part";

constexpr std::size_t kDayLength = 10;     // "2026-11-21"
constexpr std::size_t kMonthLength = 7;    // "2026-11"
constexpr std::size_t kMomentLength = 17;  // "2026-11-21 130509"
constexpr std::size_t kAboutLimit = 1000;
constexpr int kTriedNames = 1000;

std::string InFolder(const std::string& folder, std::string_view name) {
  return folder + std::string(name) + kPathSeparator;
}

std::vector<FolderEntry> Entries(const std::string& folder) {
  return ListFolder(folder).value_or(std::vector<FolderEntry>{});
}

bool IsNameOfDay(std::string_view name) { return IsIsoDate(name); }

bool IsNameOfMoment(std::string_view name) {
  return name.size() == kMomentLength && IsIsoDate(name.substr(0, kDayLength)) &&
         name[kDayLength] == ' ' &&
         name.find_first_not_of("0123456789", kDayLength + 1) == std::string_view::npos;
}

// The name of a moment with the next number; after the last one comes the first.
std::string NextMoment(std::string name) {
  std::size_t digit = name.size();
  while (--digit > kDayLength && name[digit] == '9') name[digit] = '0';
  if (digit > kDayLength) ++name[digit];
  return name;
}

bool HoldsFileOfUser(const std::string& folder) {
  return std::ranges::any_of(UserFiles(), [&folder](const UserFile& file) {
    return IsThere(folder + std::string(file.name));
  });
}

// Removes a copy, or what there is of one: files, and folders of files.
void RemoveCopy(const std::string& path) {
  const std::string folder = path + kPathSeparator;
  for (const FolderEntry& entry : Entries(folder)) {
    if (entry.is_folder) {
      const std::string inner = InFolder(folder, entry.name);
      for (const FolderEntry& file : Entries(inner)) PassOver(RemoveFile(inner + file.name));
      PassOver(RemoveFolder(folder + entry.name));
    } else {
      PassOver(RemoveFile(folder + entry.name));
    }
  }
  PassOver(RemoveFolder(path));
}

// Takes the name of a copy off it first: one that is cut off while it goes is no copy any more.
void Discard(const std::string& path) {
  const std::string part = path + std::string(kPart);
  RemoveCopy(part);
  RemoveCopy(RenameFolder(path, part) ? part : path);
}

class Copier {
 public:
  // Returns false if the file could not be copied or is not the same when it is read back.
  bool Copy(const std::string& from, const std::string& to) {
    const std::optional<std::string> bytes = ReadFileToRewrite(from, kWholeFile);
    return bytes && Write(to, *bytes);
  }

  bool Write(const std::string& to, std::string_view bytes) {
    if (!WriteNewFile(to, bytes) || ReadFileToRewrite(to, kWholeFile) != bytes) return false;
    ++size_.files;
    size_.bytes += bytes.size();
    return true;
  }

  // Every file of the folder; folders in it are nobody's of ours.
  bool CopyFolder(const std::string& from, const std::string& to) {
    if (!MakeFolder(to)) return false;
    const std::optional<std::vector<FolderEntry>> entries = ListFolder(from);
    return entries && std::ranges::all_of(*entries, [&](const FolderEntry& entry) {
             return entry.is_folder || Copy(from + entry.name, to + kPathSeparator + entry.name);
           });
  }

  CopySize size() const { return size_; }

 private:
  CopySize size_;
};

bool CopyInto(Copier& copier, const std::string& from, const std::string& to,
              std::string_view person, std::string_view about) {
  if (!MakeFolder(to)) return false;
  const std::string folder = to + kPathSeparator;
  if (!about.empty() && !copier.Write(folder + std::string(kAboutFile), about)) return false;
  if (!person.empty()) {
    return copier.CopyFolder(InFolder(from, person), folder + std::string(person));
  }
  for (const std::string_view file : kSharedFiles) {
    const std::string path = from + std::string(file);
    if (IsThere(path) && !copier.Copy(path, folder + std::string(file))) return false;
  }
  return std::ranges::all_of(PeopleIn(from), [&](const std::string& name) {
    return copier.CopyFolder(InFolder(from, name), folder + name);
  });
}

// The names in the copies folder for which `is_name` holds, the oldest first.
std::vector<std::string> NamesOfCopies(const std::string& copies,
                                       bool (*is_name)(std::string_view)) {
  std::vector<std::string> names;
  for (const FolderEntry& entry : Entries(copies)) {
    if (entry.is_folder && is_name(entry.name)) names.push_back(entry.name);
  }
  std::ranges::sort(names);
  return names;
}

// What cut-off copies have left. Nobody else is making one: who calls this holds the lock.
void RemoveParts(const std::string& copies) {
  for (const FolderEntry& entry : Entries(copies)) {
    if (!entry.is_folder || !entry.name.ends_with(kPart)) continue;
    std::string_view name = entry.name;
    name.remove_suffix(kPart.size());
    if (IsNameOfDay(name) || IsNameOfMoment(name)) RemoveCopy(copies + entry.name);
  }
}

// Of the days, the oldest first: those that are kept no longer.
std::vector<std::string> DaysToDiscard(const std::vector<std::string>& days) {
  std::set<std::string> kept;
  for (std::size_t i = days.size() - std::min(days.size(), kKeptDays); i < days.size(); ++i) {
    kept.insert(days[i]);
  }
  std::vector<std::string> firsts;
  for (const std::string& day : days) {
    if (firsts.empty() || !day.starts_with(firsts.back().substr(0, kMonthLength))) {
      firsts.push_back(day);
    }
  }
  for (std::size_t i = firsts.size() - std::min(firsts.size(), kKeptMonths); i < firsts.size();
       ++i) {
    kept.insert(firsts[i]);
  }
  std::vector<std::string> discarded;
  std::ranges::copy_if(days, std::back_inserter(discarded),
                       [&kept](const std::string& day) { return !kept.contains(day); });
  return discarded;
}

void DiscardOldDays(const std::string& copies, std::string_view made) {
  const std::vector<std::string> days = NamesOfCopies(copies, IsNameOfDay);
  if (days.empty() || days.back() != made) return;
  for (const std::string& day : DaysToDiscard(days)) Discard(copies + day);
}

void DiscardOldPresses(const std::string& copies, std::string_view made) {
  const std::vector<std::string> moments = NamesOfCopies(copies, IsNameOfMoment);
  if (moments.empty() || moments.back() != made) return;
  for (std::size_t i = 0; i + kKeptPresses < moments.size(); ++i) Discard(copies + moments[i]);
}

// The copies folder of a data folder, which is made when it is missing.
std::string CopiesFolderOf(const std::string& folder) { return InFolder(folder, kCopiesFolder); }

bool HasCopiesFolder(const std::string& folder) {
  return HasFolder(CopiesFolderOf(folder)) || MakeFolder(folder + std::string(kCopiesFolder));
}

// The first name that is free; one that is taken when too many are.
std::string NewCopyPath(const std::string& folder, std::string_view date) {
  const std::string path = folder + "Velnor " + std::string(date);
  std::string numbered = path;
  for (int number = 2; number < kTriedNames && IsThere(numbered); ++number) {
    numbered = path + " (" + std::to_string(number) + ')';
  }
  return numbered;
}

CopySize SizeOfCopy(const std::string& folder) {
  CopySize size;
  const auto add = [&size](const std::string& path) {
    ++size.files;
    size.bytes += SizeOfFile(path);
  };
  for (const FolderEntry& entry : Entries(folder)) {
    if (!entry.is_folder) {
      add(folder + entry.name);
      continue;
    }
    const std::string inner = InFolder(folder, entry.name);
    for (const FolderEntry& file : Entries(inner)) add(inner + file.name);
  }
  return size;
}

}  // namespace

std::vector<std::string> PeopleIn(const std::string& folder) {
  std::vector<std::string> people;
  const auto add = [&](const std::string& name) {
    if (name != kCopiesFolder && std::ranges::find(people, name) == people.end()) {
      people.push_back(name);
    }
  };
  const UserRegistry registry =
      ReadUserRegistry(folder + std::string(kRegistryFile)).value_or(UserRegistry());
  for (const std::string& name : registry.names) {
    if (IsThere(folder + name)) add(name);
  }
  for (const FolderEntry& entry : Entries(folder)) {
    if (entry.is_folder && IsFolderName(entry.name) &&
        HoldsFileOfUser(InFolder(folder, entry.name))) {
      add(entry.name);
    }
  }
  return people;
}

std::string Joined(const std::vector<std::string>& names) {
  std::string joined;
  for (const std::string& name : names) joined += (joined.empty() ? "" : ", ") + name;
  return joined;
}

bool IsCopy(const std::string& folder) {
  return FileExists(folder + std::string(kRegistryFile)) || !PeopleIn(folder).empty();
}

std::optional<CopySize> MakeCopy(const std::string& from, const std::string& to,
                                 std::string_view person, std::string_view about) {
  const std::string part = to + std::string(kPart);
  if (IsThere(to)) return std::nullopt;
  RemoveCopy(part);
  Copier copier;
  if (CopyInto(copier, from, part, person, about) && RenameFolder(part, to)) return copier.size();
  RemoveCopy(part);
  return std::nullopt;
}

bool MakeDailyCopy(const std::string& folder, std::string_view date) {
  FinishWhatWasBegun(folder);
  const FolderLock lock(folder);
  if (!lock.held() || !HasCopiesFolder(folder)) return false;
  const std::string copies = CopiesFolderOf(folder);
  RemoveParts(copies);
  const std::string path = copies + std::string(date);
  if (IsThere(path)) return true;
  if (!MakeCopy(folder, path)) return false;
  DiscardOldDays(copies, date);
  return true;
}

bool MakeCopyBefore(const std::string& folder, const Moment& moment, std::string_view about,
                    std::string_view person) {
  FinishWhatWasBegun(folder);
  const FolderLock lock(folder);
  if (!lock.held() || !HasCopiesFolder(folder)) return false;
  const std::string copies = CopiesFolderOf(folder);
  RemoveParts(copies);
  std::string name = moment.date + ' ';
  std::ranges::copy_if(moment.time, std::back_inserter(name), [](char c) { return c != ':'; });
  // Of several presses within one second each has its copy, under the next number that is free. On
  // a disk that has gone every name seems to be taken.
  for (int i = 0; i < kTriedNames && IsThere(copies + name); ++i) name = NextMoment(name);
  if (!MakeCopy(folder, copies + name, person, about)) return false;
  DiscardOldPresses(copies, name);
  return true;
}

std::optional<NewCopy> MakeCopyIn(const std::string& from, const std::string& folder,
                                  std::string_view date) {
  FinishWhatWasBegun(from);
  const FolderLock lock(from);
  if (!lock.held()) return std::nullopt;
  const std::string path = NewCopyPath(folder, date);
  const std::optional<CopySize> size = MakeCopy(from, path);
  return size ? std::optional(NewCopy{path, *size}) : std::nullopt;
}

std::vector<ListedCopy> ListCopies(const std::string& folder) {
  const std::string copies = CopiesFolderOf(folder);
  std::vector<ListedCopy> listed;
  for (const FolderEntry& entry : Entries(copies)) {
    if (!entry.is_folder || !(IsNameOfDay(entry.name) || IsNameOfMoment(entry.name))) continue;
    const std::string inner = InFolder(copies, entry.name);
    listed.push_back({.path = copies + entry.name,
                      .name = entry.name,
                      .people = Joined(PeopleIn(inner)),
                      .about = ReadFile(inner + std::string(kAboutFile), kAboutLimit),
                      .size = SizeOfCopy(inner)});
  }
  std::ranges::sort(listed, std::ranges::greater(), &ListedCopy::name);
  return listed;
}

}  // namespace velnor

#include "base/transaction.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "base/file_calls.h"
#include "base/note.h"
#include "base/session.h"
#include "base/text_file.h"

namespace velnor {
namespace {

std::string NotePath(const std::string& folder) { return folder + std::string(kNoteFile); }

// What a note of another version is renamed to. It stays for the program that can read it, and
// with it the files it names.
std::string KeptAside(const std::string& note) { return note + ".obcy"; }

// Gives the note of another version a name under which nobody takes it for ours. Returns false if
// it has kept its own.
bool PutAside(const std::string& note) {
  constexpr int kMostKept = 99;
  std::string aside = KeptAside(note);
  for (int number = 2; IsThere(aside) && number <= kMostKept; ++number) {
    aside = KeptAside(note) + '.' + std::to_string(number);
  }
  return ReplaceByRename(note, aside);
}

// Whether the new bytes that the change needs are there and whole; nothing when that cannot be
// told.
std::optional<bool> IsWhole(const std::string& folder, const Change& change) {
  if (change.kind != ChangeKind::kReplace) return true;
  const std::string path = PathOf(folder, change.beside);
  errno = 0;
  if (!File(OpenFile(path, "rb"))) {
    const bool has_taken_its_place = errno == ENOENT;
    return has_taken_its_place ? std::optional<bool>(true) : std::nullopt;
  }
  const std::optional<std::string> bytes =
      ReadFileToRewrite(path, static_cast<std::size_t>(change.size) + 1);
  if (!bytes) return std::nullopt;
  return bytes->size() == change.size && Checksum(*bytes) == change.checksum;
}

std::optional<bool> IsWhole(const std::string& folder, const Note& note) {
  if (note.state != NoteState::kWhole) return false;
  for (const Change& change : note.changes) {
    const std::optional<bool> whole = IsWhole(folder, change);
    if (whole != true) return whole;
  }
  return true;
}

// Returns false if there is a note whose changes could not all be made.
bool FinishNote(const std::string& folder) {
  const std::string path = NotePath(folder);
  if (!IsThere(path)) return true;
  const std::optional<std::string> bytes = ReadFileToRewrite(path, kNoteLimit + 1);
  if (!bytes) return false;
  const Note note = ReadNote(*bytes);
  if (note.state == NoteState::kOtherVersion) return PutAside(path);
  const std::optional<bool> is_whole = IsWhole(folder, note);
  if (!is_whole) return false;
  const auto carry_out = [&](const Change& change) { return CarryOut(folder, change); };
  if (*is_whole && !std::ranges::all_of(note.changes, carry_out)) return false;
  return RemoveFile(path);
}

}  // namespace

Transaction::Transaction(const std::string& folder)
    : folder_(folder),
      lock_(std::in_place, folder),
      has_begun_(lock_->held() && FinishNote(folder)) {}

Transaction::~Transaction() { DropNewFiles(); }

void Transaction::Replace(const std::string& path, std::string_view bytes) {
  Change* const change = Put(ChangeKind::kReplace, path);
  if (change != nullptr) has_failed_ = !WriteBeside(*change, bytes);
}

void Transaction::Append(const std::string& path, std::string_view text) {
  Change* const change = Put(ChangeKind::kAppend, path);
  if (change != nullptr) change->text += WithCrLf(text);
}

void Transaction::Remove(const std::string& path) {
  if (IsThere(path)) Put(ChangeKind::kRemove, path);
}

void Transaction::MakeFolder(const std::string& path) {
  if (HasFolder(path + kPathSeparator)) return;
  Put(ChangeKind::kMakeFolder, path);
  if (IsThere(path)) has_failed_ = true;  // something else has the name
}

void Transaction::RemoveFolder(const std::string& path) {
  if (IsThere(path)) Put(ChangeKind::kRemoveFolder, path);
}

void Transaction::CommitUnreported() { PassOver(Commit()); }

bool Transaction::Commit() {
  const bool done = has_begun_ && !has_failed_ && Prepare() && MakeAll();
  if (!done) DropNewFiles();
  changes_.clear();
  has_begun_ = false;
  lock_.reset();
  return done;
}

// The change of the file as it is known so far; null when nothing may be changed.
Change* Transaction::Put(ChangeKind kind, const std::string& path) {
  if (!has_begun_ || has_failed_) return nullptr;
  std::string noted = path.starts_with(folder_) ? path.substr(folder_.size()) : "";
  std::ranges::replace(noted, kPathSeparator, '/');
  const auto known = std::ranges::find(changes_, noted, &Change::path);
  if (!StaysInside(noted) || (known != changes_.end() && known->kind != kind)) {
    has_failed_ = true;
    return nullptr;
  }
  if (known != changes_.end()) return &*known;
  changes_.push_back({.kind = kind, .path = std::move(noted)});
  return &changes_.back();
}

// Of a file whose folder is to be made the new bytes wait in the start-up folder.
bool Transaction::WriteBeside(Change& change, std::string_view bytes) {
  const std::string path = PathOf(folder_, change.path);
  if (IsWriteProtected(path)) return false;
  const std::string beside =
      WillHaveFolder(change) ? NotePath(folder_) + '.' + std::to_string(&change - changes_.data())
                             : path;
  if (change.beside.empty()) change.beside = TemporaryPath(beside).substr(folder_.size());
  std::ranges::replace(change.beside, kPathSeparator, '/');
  change.size = bytes.size();
  change.checksum = Checksum(bytes);
  return WriteNewFile(PathOf(folder_, change.beside), bytes);
}

bool Transaction::WillHaveFolder(const Change& change) const {
  const std::string folder = change.path.substr(0, change.path.find_last_of('/'));
  return std::ranges::any_of(changes_, [&](const Change& made) {
    return made.kind == ChangeKind::kMakeFolder && made.path == folder;
  });
}

// Finds out what can be known before anything is changed.
bool Transaction::Prepare() {
  const auto is_prepared = [this](Change& change) {
    return change.kind != ChangeKind::kAppend || PrepareAppend(change);
  };
  if (!std::ranges::all_of(changes_, is_prepared)) return false;
  std::erase_if(changes_, [](const Change& change) {
    return change.kind == ChangeKind::kAppend && change.text.empty();
  });
  std::ranges::stable_sort(changes_, {}, &Change::kind);
  return IsAlone() || std::ranges::all_of(changes_, [this](const Change& change) {
           const bool takes_a_place =
               change.kind == ChangeKind::kReplace || change.kind == ChangeKind::kRemove;
           return !takes_a_place || CanBeChanged(PathOf(folder_, change.path));
         });
}

// What is appended to a missing file is a new file.
bool Transaction::PrepareAppend(Change& change) {
  const std::string path = PathOf(folder_, change.path);
  if (!CanBeChanged(path)) return false;
  errno = 0;
  const File file(OpenFile(path, "r+b"));
  if (file) {
    const std::optional<std::uint64_t> size = SizeOf(file.get());
    change.size = size.value_or(0);
    return size.has_value();
  }
  if (errno != ENOENT || (!HasFolder(path) && !WillHaveFolder(change))) return false;
  change.kind = ChangeKind::kReplace;
  return WriteBeside(change, std::exchange(change.text, ""));
}

// One file that is replaced or removed is old or new by itself.
bool Transaction::IsAlone() const {
  return changes_.size() == 1 && changes_.front().kind != ChangeKind::kAppend;
}

bool Transaction::MakeAll() {
  if (changes_.empty()) return true;
  if (!IsAlone()) return MakeWrittenDown();
  const Change& change = changes_.front();
  if (change.kind != ChangeKind::kReplace) return CarryOut(folder_, change);
  return ReplaceByRename(PathOf(folder_, change.beside), PathOf(folder_, change.path));
}

bool Transaction::MakeWrittenDown() const {
  const std::string note = NoteBytes(changes_);
  if (note.size() > kNoteLimit || !ReplaceFile(NotePath(folder_), note)) return false;
  const auto carry_out = [this](const Change& change) { return CarryOut(folder_, change); };
  const auto refused = std::ranges::find_if_not(changes_, carry_out);
  if (refused == changes_.end()) {
    // One that stays is carried out once more, which changes nothing.
    PassOver(RemoveFile(NotePath(folder_)));
    return true;
  }
  return !TakeBackUpTo(*refused);
}

// Makes it as though nothing had been begun, after `refused` has been refused. Returns false if
// that cannot be done any more: then the note stands.
bool Transaction::TakeBackUpTo(const Change& refused) const {
  for (const Change& change : changes_) {
    const bool can_be_taken_back = change.kind <= ChangeKind::kAppend;
    const bool is_refused = &change == &refused;
    if (!can_be_taken_back && !is_refused) return false;
    // Of a text that was refused a part may stand there.
    const bool is_made = can_be_taken_back && (!is_refused || change.kind == ChangeKind::kAppend);
    if (is_made && !TakeBack(folder_, change)) return false;
    if (is_refused) return RemoveFile(NotePath(folder_));
  }
  return false;
}

void Transaction::DropNewFiles() const {
  for (const Change& change : changes_) {
    if (!change.beside.empty()) PassOver(RemoveFile(PathOf(folder_, change.beside)));
  }
}

void FinishWhatWasBegun(const std::string& folder) {
  if (IsThere(NotePath(folder))) const Transaction finished(folder);
}

void OpenDataFolder(const std::string& folder) {
  const Transaction opened(folder);
  if (!opened.has_begun() || IsThere(KeptAside(NotePath(folder)))) return;
  RemoveLeftovers(folder);
  for (const FolderEntry& entry : ListFolder(folder).value_or(std::vector<FolderEntry>{})) {
    if (entry.is_folder) RemoveLeftovers(folder + entry.name + kPathSeparator);
  }
}

}  // namespace velnor

#include "base/note.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <iterator>
#include <optional>

#include "base/user_folder.h"

namespace velnor {
namespace {

constexpr std::string_view kVersion = "1";

struct KindRow {
  ChangeKind kind;
  std::string_view name;
};

constexpr KindRow kKinds[] = {
    {ChangeKind::kMakeFolder, "make"},    {ChangeKind::kAppend, "append"},
    {ChangeKind::kReplace, "replace"},    {ChangeKind::kRemove, "remove"},
    {ChangeKind::kRemoveFolder, "clear"},
};

std::string Hexadecimal(std::uint64_t number) {
  std::array<char, 17> text = {};
  std::snprintf(text.data(), text.size(), "%016llx", static_cast<unsigned long long>(number));
  return text.data();
}

// Takes the bytes of a note apart, from the first on.
class Cursor {
 public:
  explicit Cursor(std::string_view rest) : rest_(rest) {}

  // What stands before the next `end`, which is passed; nothing when there is none.
  std::optional<std::string_view> Until(char end) {
    const std::size_t length = rest_.find(end);
    if (length == std::string_view::npos) return std::nullopt;
    const std::string_view word = rest_.substr(0, length);
    rest_.remove_prefix(length + 1);
    return word;
  }

  std::optional<std::uint64_t> Number(char end, int base = 10) {
    const std::optional<std::string_view> word = Until(end);
    std::uint64_t number = 0;
    if (!word) return std::nullopt;
    const char* const stop = word->data() + word->size();
    const auto [read_to, error] = std::from_chars(word->data(), stop, number, base);
    if (error != std::errc() || read_to != stop) return std::nullopt;
    return number;
  }

  std::optional<std::string_view> Bytes(std::uint64_t length) {
    if (length > rest_.size()) return std::nullopt;
    const std::string_view bytes = rest_.substr(0, length);
    rest_.remove_prefix(bytes.size());
    return bytes;
  }

  std::string_view rest() const { return rest_; }

 private:
  std::string_view rest_;
};

std::optional<Change> ReadChange(Cursor& cursor) {
  const std::optional<std::string_view> name = cursor.Until(' ');
  const auto* const row = std::ranges::find(kKinds, name.value_or(""), &KindRow::name);
  const std::optional<std::uint64_t> size = cursor.Number(' ');
  const std::optional<std::uint64_t> checksum = cursor.Number(' ', 16);
  const std::optional<std::uint64_t> length = cursor.Number('\n');
  const std::optional<std::string_view> path = cursor.Until('\n');
  const std::optional<std::string_view> beside = cursor.Until('\n');
  if (row == std::end(kKinds) || !size || !checksum || !length || !path || !beside) {
    return std::nullopt;
  }
  const bool has_beside = row->kind == ChangeKind::kReplace;
  if (!StaysInside(*path) || (has_beside ? !StaysInside(*beside) : !beside->empty())) {
    return std::nullopt;
  }
  const std::optional<std::string_view> text = cursor.Bytes(*length);
  if (!text || cursor.Until('\n') != "") return std::nullopt;
  return Change{row->kind, std::string(*path), std::string(*beside),
                *size,     *checksum,          std::string(*text)};
}

}  // namespace

std::uint64_t Checksum(std::string_view bytes) {
  constexpr std::uint64_t kBasis = 0xcbf29ce484222325;
  constexpr std::uint64_t kPrime = 0x100000001b3;
  std::uint64_t sum = kBasis;
  for (const char byte : bytes) sum = (sum ^ static_cast<unsigned char>(byte)) * kPrime;
  return sum;
}

std::string NoteBytes(std::span<const Change> changes) {
  std::string body;
  for (const Change& change : changes) {
    body += std::ranges::find(kKinds, change.kind, &KindRow::kind)->name;
    body += ' ' + std::to_string(change.size) + ' ' + Hexadecimal(change.checksum) + ' ' +
            std::to_string(change.text.size()) + '\n';
    body += change.path + '\n' + change.beside + '\n' + change.text + '\n';
  }
  return std::string(kNoteFile) + ' ' + std::string(kVersion) + ' ' + Hexadecimal(Checksum(body)) +
         ' ' + std::to_string(body.size()) + '\n' + body;
}

bool StaysInside(std::string_view path) {
  if (std::ranges::any_of(path, [](char c) { return (c >= '\0' && c < ' ') || c == ':'; })) {
    return false;
  }
  for (;;) {
    const std::size_t end = path.find_first_of("/\\");
    const std::string_view name = path.substr(0, end);
    if (name.find_first_not_of(". ") == std::string_view::npos || IsDeviceName(name)) return false;
    if (end == std::string_view::npos) return true;
    path.remove_prefix(end + 1);
  }
}

Note ReadNote(std::string_view bytes) {
  Cursor cursor(bytes);
  if (cursor.Until(' ') != kNoteFile) return {};
  const std::optional<std::string_view> version = cursor.Until(' ');
  if (!version || version->empty() ||
      version->find_first_not_of("0123456789") != std::string_view::npos) {
    return {};
  }
  if (version != kVersion) return {NoteState::kOtherVersion};
  const std::optional<std::uint64_t> checksum = cursor.Number(' ', 16);
  const std::optional<std::uint64_t> size = cursor.Number('\n');
  if (!checksum || size != cursor.rest().size() || checksum != Checksum(cursor.rest())) return {};
  Note note = {NoteState::kWhole};
  while (!cursor.rest().empty()) {
    std::optional<Change> change = ReadChange(cursor);
    if (!change) return {};
    note.changes.push_back(std::move(*change));
  }
  return note;
}

}  // namespace velnor

#include "base/text_file.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <utility>
#include <vector>

#include "base/file_calls.h"

namespace velnor {
namespace {

// Of the name of a temporary file, what stands behind the name of the file whose place it is to
// take: this, the number of the process, and the ending.
constexpr std::string_view kTemporaryMark = ".velnor-";
constexpr std::string_view kTemporaryEnding = ".new";

File Open(const std::string& path, const char* mode) { return File(OpenFile(path, mode)); }

bool IsTemporaryName(std::string_view name) {
  const std::size_t mark = name.rfind(kTemporaryMark);
  if (mark == std::string_view::npos || !name.ends_with(kTemporaryEnding)) return false;
  name.remove_suffix(kTemporaryEnding.size());
  const std::string_view process = name.substr(mark + kTemporaryMark.size());
  return !process.empty() && process.find_first_not_of("0123456789") == std::string_view::npos;
}

}  // namespace

std::optional<std::string> ReadFileToRewrite(const std::string& path, std::size_t limit) {
  errno = 0;
  const File file = Open(path, "rb");
  if (!file) {
    // The systems give the same error for a missing folder. With it, on a stick or in the network,
    // the file may come back before it is rewritten.
    const bool is_missing = errno == ENOENT && HasFolder(path);
    return is_missing ? std::optional<std::string>("") : std::nullopt;
  }
  constexpr std::size_t kBlock = 65'536;
  std::string text;
  while (text.size() < limit) {
    const std::size_t had = text.size();
    const std::size_t wanted = std::min(limit - had, kBlock);
    text.resize(had + wanted);
    const std::size_t got = std::fread(text.data() + had, 1, wanted, file.get());
    text.resize(had + got);
    if (got < wanted) break;
  }
  if (std::ferror(file.get()) != 0) return std::nullopt;
  return text;
}

std::string ReadFile(const std::string& path, std::size_t limit) {
  return ReadFileToRewrite(path, limit).value_or("");
}

std::optional<char> LastByteOf(const std::string& path) {
  const File file = Open(path, "rb");
  if (!file) return std::nullopt;
  const std::optional<std::uint64_t> size = SizeOf(file.get());
  char last = '\0';
  if (!size || *size == 0 || !SeekTo(file.get(), *size - 1) ||
      std::fread(&last, 1, 1, file.get()) != 1) {
    return std::nullopt;
  }
  return last;
}

bool FileExists(const std::string& path) { return Open(path, "rb") != nullptr; }

bool WriteAndClose(File file, std::string_view bytes) {
  // An empty file has nothing to bring to the disk.
  const bool written =
      bytes.empty() || (std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size() &&
                        FlushToDisk(file.get()));
  // Closing reports what the system could not write until then.
  return std::fclose(file.release()) == 0 && written;
}

bool WriteNewFile(const std::string& path, std::string_view bytes) {
  File file = Open(path, "wb");
  if (!file) return false;
  if (WriteAndClose(std::move(file), bytes)) return true;
  PassOver(RemoveFile(path));
  return false;
}

std::string TemporaryPath(const std::string& path) {
  return path + std::string(kTemporaryMark) + std::to_string(ProcessId()) +
         std::string(kTemporaryEnding);
}

void RemoveLeftovers(const std::string& folder) {
  for (const FolderEntry& entry : ListFolder(folder).value_or(std::vector<FolderEntry>{})) {
    if (!entry.is_folder && IsTemporaryName(entry.name)) PassOver(RemoveFile(folder + entry.name));
  }
}

bool ReplaceFile(const std::string& path, std::string_view bytes) {
  // To take the place of a file, a system asks the folder's leave and not always the file's.
  const std::string temporary = TemporaryPath(path);
  if (IsWriteProtected(path) || !WriteNewFile(temporary, bytes)) return false;
  if (ReplaceByRename(temporary, path)) return true;
  PassOver(RemoveFile(temporary));
  return false;
}

std::string WithCrLf(std::string_view text) {
  std::string result;
  result.reserve(text.size() + text.size() / 16);
  char previous = '\0';
  for (const char c : text) {
    if (c == '\n' && previous != '\r') result += '\r';
    result += c;
    previous = c;
  }
  return result;
}

std::optional<std::string_view> LineReader::Next() {
  const std::optional<std::string_view> piece = NextWhole();
  if (!piece || !has_nul_) return piece;
  return piece->substr(0, piece->find('\0'));
}

std::optional<std::string_view> LineReader::NextWhole() {
  if (rest_.empty()) return std::nullopt;
  // A line end may begin with the last character of the piece and have its second one behind it.
  const std::size_t line_feed = rest_.substr(0, limit_ + 1).find('\n');
  std::size_t end = std::min(limit_, rest_.size());  // of the piece's own characters
  std::size_t consumed = end;                        // the piece and its line end
  if (line_feed != std::string_view::npos) {
    const bool after_return = line_feed > 0 && rest_[line_feed - 1] == '\r';
    if (after_return || line_feed < limit_) {
      end = after_return ? line_feed - 1 : line_feed;
      consumed = line_feed + 1;
    }
  }
  const std::string_view piece = rest_.substr(0, end);
  rest_.remove_prefix(consumed);
  return piece;
}

}  // namespace velnor

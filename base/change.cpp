#include "base/change.h"

#include <algorithm>
#include <cerrno>
#include <optional>
#include <utility>

#include "base/file_calls.h"
#include "base/session.h"
#include "base/text_file.h"

namespace velnor {
namespace {

enum class Tail {
  kUntold,
  kEmpty,
  kTorn,        // less than the text, or as much of something else
  kWhole,       // the text, and perhaps more
  kOfSomebody,  // more than the text, and something else
};

// What stands in the file behind the size it had before the text was appended.
Tail TailOf(std::FILE* file, const Change& append) {
  const std::optional<std::uint64_t> size = SizeOf(file);
  if (!size) return Tail::kUntold;
  if (*size == append.size) return Tail::kEmpty;
  if (*size < append.size) return Tail::kOfSomebody;
  if (!SeekTo(file, append.size)) return Tail::kUntold;
  std::string tail(append.text.size() + 1, '\0');
  tail.resize(std::fread(tail.data(), 1, tail.size(), file));
  if (std::ferror(file) != 0) return Tail::kUntold;
  if (tail.starts_with(append.text)) return Tail::kWhole;
  return tail.size() > append.text.size() ? Tail::kOfSomebody : Tail::kTorn;
}

bool Append(const std::string& path, const Change& change) {
  errno = 0;
  File file(OpenFile(path, "r+b"));
  if (!file) return errno == ENOENT;
  switch (TailOf(file.get(), change)) {
    case Tail::kUntold:
      return false;
    case Tail::kOfSomebody:
      return true;
    case Tail::kEmpty:
    case Tail::kTorn:
    case Tail::kWhole:  // perhaps not on the disk yet
      return SeekTo(file.get(), change.size) && WriteAndClose(std::move(file), change.text);
  }
  return false;
}

bool Replace(const std::string& path, const std::string& beside) {
  return !IsThere(beside) || ReplaceByRename(beside, path);
}

bool RemoveEmptyFolder(const std::string& path) {
  RemoveLeftovers(path + kPathSeparator);
  if (RemoveFolder(path) || !IsThere(path)) return true;
  // What a person has put into it keeps it.
  const auto entries = ListFolder(path);
  return entries && !entries->empty();
}

}  // namespace

bool CarryOut(const std::string& folder, const Change& change) {
  const std::string path = PathOf(folder, change.path);
  switch (change.kind) {
    case ChangeKind::kMakeFolder:
      return MakeFolder(path) || HasFolder(path + kPathSeparator);
    case ChangeKind::kAppend:
      return Append(path, change);
    case ChangeKind::kReplace:
      return Replace(path, PathOf(folder, change.beside));
    case ChangeKind::kRemove:
      return RemoveFile(path);
    case ChangeKind::kRemoveFolder:
      return RemoveEmptyFolder(path);
  }
  return false;
}

bool TakeBack(const std::string& folder, const Change& change) {
  const std::string path = PathOf(folder, change.path);
  if (change.kind == ChangeKind::kMakeFolder) return RemoveFolder(path) || !IsThere(path);
  const File file(OpenFile(path, "r+b"));
  return file && CutTo(file.get(), change.size);
}

std::string PathOf(const std::string& folder, std::string_view noted) {
  std::string path(noted);
  std::ranges::replace(path, '/', kPathSeparator);
  return folder + path;
}

}  // namespace velnor

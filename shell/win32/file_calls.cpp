#include "base/file_calls.h"

#include <windows.h>

#include <cerrno>
#include <fcntl.h>
#include <io.h>
#include <string_view>

#include "shell/win32/wide_path.h"

namespace velnor {
namespace {

constexpr int kTries = 10;
constexpr DWORD kBetweenTries = 50;  // milliseconds
constexpr DWORD kSharedWithAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// In the start-up folder while somebody holds its lock.
constexpr std::string_view kLockFile = "velnor.blokada";

bool IsMissing(DWORD error) {
  return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

// Whether the file could not be had because somebody, a backup or a virus scanner say, has it open,
// or is just removing it, and not because it may not be written at all.
bool IsOpenElsewhere(const std::wstring& path, DWORD error) {
  if (error == ERROR_SHARING_VIOLATION) return true;
  if (error != ERROR_ACCESS_DENIED) return false;
  constexpr DWORD kNeverReplaced = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY;
  const DWORD attributes = GetFileAttributesW(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return !IsMissing(GetLastError());
  return (attributes & kNeverReplaced) == 0;
}

// Does `call` on the file again while somebody else has it open, for half a second.
template <typename Call>
bool UntilFree(const std::wstring& path, Call call) {
  for (int tries = 1;; ++tries) {
    if (call()) return true;
    if (tries == kTries || !IsOpenElsewhere(path, GetLastError())) return false;
    Sleep(kBetweenTries);
  }
}

// How the two libraries open a file, by the mode's first letter and whether it has a plus sign.
struct ModeRow {
  std::string_view mode;
  DWORD access;
  DWORD creation;
  int flags;
};

constexpr ModeRow kModes[] = {
    {"rb", GENERIC_READ, OPEN_EXISTING, _O_RDONLY},
    {"r+b", GENERIC_READ | GENERIC_WRITE, OPEN_EXISTING, _O_RDWR},
    {"wb", GENERIC_WRITE, CREATE_ALWAYS, _O_WRONLY},
};

bool HasAttributes(const std::wstring& path, DWORD wanted) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & wanted) == wanted;
}

}  // namespace

std::FILE* OpenFile(const std::string& path, const char* mode) {
  for (const ModeRow& row : kModes) {
    if (row.mode != mode) continue;
    const HANDLE handle = CreateFileW(WidePath(path).c_str(), row.access, kSharedWithAll, nullptr,
                                      row.creation, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
      errno = IsMissing(GetLastError()) ? ENOENT : EACCES;
      return nullptr;
    }
    const int descriptor =
        _open_osfhandle(reinterpret_cast<std::intptr_t>(handle), row.flags | _O_BINARY);
    std::FILE* const file = descriptor < 0 ? nullptr : _fdopen(descriptor, mode);
    if (file == nullptr && descriptor < 0) CloseHandle(handle);
    if (file == nullptr && descriptor >= 0) _close(descriptor);
    return file;
  }
  errno = EINVAL;
  return nullptr;
}

bool FlushToDisk(std::FILE* file) { return std::fflush(file) == 0 && _commit(_fileno(file)) == 0; }

std::optional<std::uint64_t> SizeOf(std::FILE* file) {
  if (_fseeki64(file, 0, SEEK_END) != 0) return std::nullopt;
  const __int64 size = _ftelli64(file);
  if (size < 0) return std::nullopt;
  return static_cast<std::uint64_t>(size);
}

bool SeekTo(std::FILE* file, std::uint64_t place) {
  return _fseeki64(file, static_cast<__int64>(place), SEEK_SET) == 0;
}

bool CutTo(std::FILE* file, std::uint64_t size) {
  return std::fflush(file) == 0 && _chsize_s(_fileno(file), static_cast<__int64>(size)) == 0;
}

bool ReplaceByRename(const std::string& from, const std::string& to) {
  const std::wstring old_name = WidePath(from);
  const std::wstring new_name = WidePath(to);
  return UntilFree(new_name, [&] {
    return MoveFileExW(old_name.c_str(), new_name.c_str(),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
  });
}

bool RemoveFile(const std::string& path) {
  const std::wstring name = WidePath(path);
  return UntilFree(name,
                   [&] { return DeleteFileW(name.c_str()) != 0 || IsMissing(GetLastError()); });
}

bool IsThere(const std::string& path) {
  return GetFileAttributesW(WidePath(path).c_str()) != INVALID_FILE_ATTRIBUTES ||
         !IsMissing(GetLastError());
}

bool IsWriteProtected(const std::string& path) {
  return HasAttributes(WidePath(path), FILE_ATTRIBUTE_READONLY);
}

bool CanBeChanged(const std::string& path) {
  const std::wstring name = WidePath(path);
  return UntilFree(name, [&] {
    const HANDLE handle = CreateFileW(name.c_str(), DELETE | GENERIC_WRITE, kSharedWithAll, nullptr,
                                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return IsMissing(GetLastError());
    CloseHandle(handle);
    return true;
  });
}

bool HasFolder(const std::string& path) {
  // In wide characters: in some code pages the second byte of a letter looks like a separator.
  const std::wstring name = WidePath(path);
  const std::size_t separator = name.find_last_of(L"\\/");
  return separator == std::wstring::npos ||
         HasAttributes(name.substr(0, separator + 1), FILE_ATTRIBUTE_DIRECTORY);
}

bool MakeFolder(const std::string& path) {
  return CreateDirectoryW(WidePath(path).c_str(), nullptr) != 0;
}

bool RemoveFolder(const std::string& path) { return RemoveDirectoryW(WidePath(path).c_str()) != 0; }

bool RenameFolder(const std::string& from, const std::string& to) {
  return MoveFileExW(WidePath(from).c_str(), WidePath(to).c_str(), MOVEFILE_WRITE_THROUGH) != 0;
}

std::uint64_t SizeOfFile(const std::string& path) {
  WIN32_FILE_ATTRIBUTE_DATA file = {};
  if (GetFileAttributesExW(WidePath(path).c_str(), GetFileExInfoStandard, &file) == 0) return 0;
  return std::uint64_t{file.nFileSizeHigh} << 32U | file.nFileSizeLow;
}

std::optional<std::vector<FolderEntry>> ListFolder(const std::string& path) {
  WIN32_FIND_DATAW found = {};
  const HANDLE search = FindFirstFileW(WidePath(path + "\\*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return std::nullopt;
  std::vector<FolderEntry> entries;
  do {
    std::string name = NarrowPath(found.cFileName);
    // What is only a link to a folder may lead anywhere.
    constexpr DWORD kKinds = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
    const bool is_folder = (found.dwFileAttributes & kKinds) == FILE_ATTRIBUTE_DIRECTORY;
    if (name != "." && name != "..") entries.push_back({std::move(name), is_folder});
  } while (FindNextFileW(search, &found) != 0);
  const bool all = GetLastError() == ERROR_NO_MORE_FILES;
  FindClose(search);
  if (!all) return std::nullopt;
  return entries;
}

LockAnswer LockFolder(const std::string& folder, LockHandle& handle) {
  const std::wstring path = WidePath(folder + std::string(kLockFile));
  // A file that is just going is refused too, and no longer there when it is looked at.
  constexpr int kLooks = 5;
  for (int look = 0; look < kLooks; ++look) {
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, OPEN_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (file != INVALID_HANDLE_VALUE) {
      handle = reinterpret_cast<LockHandle>(file);
      return LockAnswer::kLocked;
    }
    if (IsOpenElsewhere(path, GetLastError())) return LockAnswer::kHeldElsewhere;
  }
  return LockAnswer::kRefused;
}

void UnlockFolder(LockHandle handle) { CloseHandle(reinterpret_cast<HANDLE>(handle)); }

unsigned long ProcessId() { return GetCurrentProcessId(); }

void Pause(int milliseconds) { Sleep(static_cast<DWORD>(milliseconds)); }

}  // namespace velnor

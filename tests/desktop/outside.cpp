#include "tests/desktop/outside.h"

#include <cstddef>
#include <cstdio>
#include <stdexcept>

namespace velnor::desktop {
namespace {

// Null on Windows itself.
using UnixPathOf = char*(__cdecl*)(const WCHAR* path);

UnixPathOf FindUnixPathOf() {
  const FARPROC function =
      GetProcAddress(GetModuleHandleA("kernel32.dll"), "wine_get_unix_file_name");
  return reinterpret_cast<UnixPathOf>(reinterpret_cast<void*>(function));
}

void LookInto(const Folder& folder, const std::string& inside, Snapshot& snapshot) {
  for (const std::string& name : folder.Names(inside)) {
    std::string path = inside.empty() ? "" : inside + '\\';
    path += name;
    const DWORD attributes = GetFileAttributesA((folder.path() + path).c_str());
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
      snapshot[path] = "(folder)";
      LookInto(folder, path, snapshot);
    } else {
      snapshot[path] = folder.Read(path).value_or("(not to be read)");
    }
  }
}

}  // namespace

Snapshot Look(const Folder& folder) {
  Snapshot snapshot;
  LookInto(folder, "", snapshot);
  return snapshot;
}

// Every line but the first begins with the date and the time.
std::string WithoutTimes(const std::string& history) {
  constexpr std::size_t kDateLength = 10;
  constexpr std::size_t kTimeLength = 9;  // with its separator
  std::string text = history;
  std::size_t line = text.find('\n') + 1;
  while (line > 0 && line < text.size()) {
    text.erase(line + kDateLength, kTimeLength);
    line = text.find('\n', line) + 1;
  }
  return text;
}

Snapshot StateOf(const Folder& folder) {
  Snapshot state = Look(folder);
  std::erase_if(state, [](const auto& file) { return file.first.starts_with(kFolderOfCopies); });
  for (auto& [path, bytes] : state) {
    if (path.ends_with("dziennik.csv")) bytes = WithoutTimes(bytes);
  }
  return state;
}

int RunBelowWine(const std::string& command) {
  if (FindUnixPathOf() == nullptr) return -1;
  // Wine starts such a program and knows no more of it: it tells by a file that it has ended.
  const WorkFolder told;
  const std::string script = command + "\necho $? >" + QuotedUnixPath(told.path()) + "/status.new" +
                             " && mv " + QuotedUnixPath(told.path()) + "/status.new " +
                             QuotedUnixPath(told.path()) + "/status\n";
  told.Write("script", script);
  std::string command_line = R"("Z:\bin\sh" )" + QuotedUnixPath(told.path()) + "/script";
  STARTUPINFOA start = {};
  start.cb = sizeof start;
  PROCESS_INFORMATION process = {};
  if (CreateProcessA("Z:\\bin\\sh", command_line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                     nullptr, &start, &process) == 0) {
    return -1;
  }
  WaitUntil([&] { return told.Read("status").has_value(); });
  return std::atoi(told.Read("status").value_or("-1").c_str());
}

std::string QuotedUnixPath(const std::string& path) {
  const std::wstring wide(path.begin(), path.end());
  const UnixPathOf unix_path_of = FindUnixPathOf();
  char* const unix_path = unix_path_of == nullptr ? nullptr : unix_path_of(wide.c_str());
  if (unix_path == nullptr) throw std::runtime_error("no path below Wine: " + path);
  std::string quoted = std::string("\"") + unix_path + '"';
  HeapFree(GetProcessHeap(), 0, unix_path);
  return quoted;
}

std::string PathOfUnix(const std::string& unix_path) {
  std::string path = "Z:" + unix_path;
  for (char& c : path) {
    if (c == '/') c = '\\';
  }
  return path;
}

HeldFile::HeldFile(const std::string& path, DWORD sharing)
    : file_(CreateFileA(path.c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING, 0, nullptr)) {
  if (file_ == INVALID_HANDLE_VALUE) throw std::runtime_error("cannot hold " + path);
}

HeldFile::~HeldFile() { CloseHandle(file_); }

}  // namespace velnor::desktop

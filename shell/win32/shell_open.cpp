#include "shell/win32/shell_open.h"

#include <array>
#include <shellapi.h>
#include <string>

#include "shell/win32/system_library.h"
#include "shell/win32/wide_path.h"

namespace velnor {
namespace {

constexpr INT_PTR kLastError = 32;  // what the calls below give is an error up to this

// Both with a separator at the end.
std::wstring ProgramFolder() {
  std::wstring path(MAX_PATH, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
  return path.substr(0, path.rfind(L'\\') + 1);
}

std::wstring CurrentFolder() {
  std::wstring path(GetCurrentDirectoryW(0, nullptr), L'\0');
  path.resize(GetCurrentDirectoryW(static_cast<DWORD>(path.size()), path.data()));
  return path + L'\\';
}

bool IsFile(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

// The library stays: what it has started may go on in the background.
bool Open(HWND owner, const wchar_t* file, const wchar_t* parameters) {
  const HMODULE library = LoadSystemLibrary("shell32.dll");
  if (library == nullptr) return false;
  const auto execute = FindFunction<decltype(&ShellExecuteW)>(library, "ShellExecuteW");
  if (execute == nullptr) return false;
  const HINSTANCE result = execute(owner, L"open", file, parameters, nullptr, SW_SHOWNORMAL);
  return reinterpret_cast<INT_PTR>(result) > kLastError;
}

bool HasReader(const std::wstring& path) {
  const HMODULE library = LoadSystemLibrary("shell32.dll");
  if (library == nullptr) return false;
  const auto find = FindFunction<decltype(&FindExecutableW)>(library, "FindExecutableW");
  std::array<wchar_t, MAX_PATH> reader = {};
  return find != nullptr &&
         reinterpret_cast<INT_PTR>(find(path.c_str(), nullptr, reader.data())) > kLastError;
}

bool OpenText(HWND owner, const std::wstring& path) {
  if (HasReader(path)) return Open(owner, path.c_str(), nullptr);
  return Open(owner, L"notepad.exe", (L'"' + path + L'"').c_str());
}

}  // namespace

bool OpenGuideFile(HWND owner, std::string_view name) {
  for (const std::wstring& folder : {ProgramFolder(), CurrentFolder()}) {
    const std::wstring path = folder + std::wstring(name.begin(), name.end());
    if (IsFile(path)) return OpenText(owner, path);
  }
  return false;
}

bool OpenInBrowser(HWND owner, const std::string& path) {
  return Open(owner, WidePath(path).c_str(), nullptr);
}

}  // namespace velnor

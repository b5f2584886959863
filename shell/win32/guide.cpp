#include "shell/win32/guide.h"

#include <array>
#include <shellapi.h>
#include <string>

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

template <typename Function>
Function FindFunction(HMODULE library, const char* name) {
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

// The library is loaded here and not with the program, which would start the later for it. It
// stays: what it has started may go on in the background.
bool OpenText(HWND owner, const std::wstring& path) {
  const HMODULE library = LoadLibraryExA("shell32.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  if (library == nullptr) return false;
  const auto find = FindFunction<decltype(&FindExecutableW)>(library, "FindExecutableW");
  const auto execute = FindFunction<decltype(&ShellExecuteW)>(library, "ShellExecuteW");
  if (find == nullptr || execute == nullptr) return false;
  std::array<wchar_t, MAX_PATH> reader = {};
  const bool has_reader =
      reinterpret_cast<INT_PTR>(find(path.c_str(), nullptr, reader.data())) > kLastError;
  const std::wstring quoted = L'"' + path + L'"';
  const HINSTANCE result =
      has_reader ? execute(owner, L"open", path.c_str(), nullptr, nullptr, SW_SHOWNORMAL)
                 : execute(owner, L"open", L"notepad.exe", quoted.c_str(), nullptr, SW_SHOWNORMAL);
  return reinterpret_cast<INT_PTR>(result) > kLastError;
}

}  // namespace

bool OpenGuideFile(HWND owner, std::string_view name) {
  for (const std::wstring& folder : {ProgramFolder(), CurrentFolder()}) {
    const std::wstring path = folder + std::wstring(name.begin(), name.end());
    if (IsFile(path)) return OpenText(owner, path);
  }
  return false;
}

}  // namespace velnor

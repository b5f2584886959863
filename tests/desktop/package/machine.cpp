#include "tests/desktop/package/machine.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <stdexcept>

#include "tests/desktop/driver.h"

namespace velnor::desktop {
namespace {

constexpr DWORD kPatience = 60'000;  // ms

constexpr wchar_t kShellFolders[] =
    LR"(Software\Microsoft\Windows\CurrentVersion\Explorer\User Shell Folders)";

void SetShellFolder(const wchar_t* name, const std::wstring& path) {
  RegSetKeyValueW(HKEY_CURRENT_USER, kShellFolders, name, REG_EXPAND_SZ, path.c_str(),
                  static_cast<DWORD>((path.size() + 1) * sizeof(wchar_t)));
}

bool IsFolder(const std::string& path) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

void ReadInto(Tree& tree, const std::string& root, const std::string& below) {
  for (const std::string& name : Folder(root + below).Names()) {
    const std::string path = below + name;
    if (IsFolder(root + path)) {
      ReadInto(tree, root, path + '\\');
    } else {
      tree[path] = Folder(root).Read(path).value_or("(cannot be read)");
    }
  }
}

}  // namespace

std::string Environment(const char* name) {
  const char* const value = std::getenv(name);
  if (value == nullptr) throw std::runtime_error(std::string(name) + " is not set");
  return value;
}

std::string KnownFolder(int csidl) {
  std::string path(MAX_PATH, '\0');
  if (SHGetFolderPathA(nullptr, csidl, nullptr, SHGFP_TYPE_CURRENT, path.data()) != S_OK) {
    throw std::runtime_error("no folder " + std::to_string(csidl));
  }
  return path.substr(0, path.find('\0')) + '\\';
}

DWORD RunCommand(std::string command) {
  STARTUPINFOA start = {};
  start.cb = sizeof start;
  PROCESS_INFORMATION process = {};
  if (CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                     &process) == 0) {
    throw std::runtime_error("cannot start " + command);
  }
  DWORD code = STILL_ACTIVE;
  if (WaitForSingleObject(process.hProcess, kPatience) == WAIT_OBJECT_0) {
    GetExitCodeProcess(process.hProcess, &code);
  } else {
    TerminateProcess(process.hProcess, code);
  }
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return code;
}

Tree ReadTree(const std::string& folder) {
  Tree tree;
  ReadInto(tree, folder, "");
  return tree;
}

std::string ShortPath(const std::wstring& path) {
  std::array<wchar_t, MAX_PATH> name = {};
  const DWORD length = GetShortPathNameW(path.c_str(), name.data(), MAX_PATH);
  return {name.data(), name.data() + std::min<DWORD>(length, MAX_PATH)};
}

OtherKnownFolder::OtherKnownFolder(const wchar_t* name, const std::wstring& path) : name_(name) {
  std::array<wchar_t, MAX_PATH> before = {};
  DWORD size = sizeof before;
  if (RegGetValueW(HKEY_CURRENT_USER, kShellFolders, name,
                   RRF_RT_REG_SZ | RRF_RT_REG_EXPAND_SZ | RRF_NOEXPAND, nullptr, before.data(),
                   &size) == ERROR_SUCCESS) {
    before_ = before.data();
  }
  SetShellFolder(name, path);
}

OtherKnownFolder::~OtherKnownFolder() {
  if (before_.empty()) {
    RegDeleteKeyValueW(HKEY_CURRENT_USER, kShellFolders, name_);
  } else {
    SetShellFolder(name_, before_);
  }
}

void RemoveTree(const std::string& folder) {
  for (const std::string& name : Folder(folder).Names()) {
    if (IsFolder(folder + name)) {
      RemoveTree(folder + name + '\\');
    } else {
      DeleteFileA((folder + name).c_str());
    }
  }
  RemoveDirectoryA(folder.c_str());
}

std::optional<std::string> RegistryText(const char* key, const char* name) {
  std::string text(1024, '\0');
  auto size = static_cast<DWORD>(text.size());
  if (RegGetValueA(HKEY_CURRENT_USER, key, name, RRF_RT_REG_SZ, nullptr, text.data(), &size) !=
      ERROR_SUCCESS) {
    return std::nullopt;
  }
  return text.substr(0, text.find('\0'));
}

void SetRegistryText(const char* key, const char* name, const std::string& text) {
  if (RegSetKeyValueA(HKEY_CURRENT_USER, key, name, REG_SZ, text.c_str(),
                      static_cast<DWORD>(text.size() + 1)) != ERROR_SUCCESS) {
    throw std::runtime_error(std::string("cannot set ") + name);
  }
}

Shortcut ReadShortcut(const std::string& path) {
  CoInitialize(nullptr);
  Shortcut shortcut;
  IShellLinkA* link = nullptr;
  IShellLinkW* wide_link = nullptr;
  IPersistFile* file = nullptr;
  if (SUCCEEDED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkA,
                                 reinterpret_cast<void**>(&link))) &&
      SUCCEEDED(link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&file))) &&
      SUCCEEDED(file->Load(std::wstring(path.begin(), path.end()).c_str(), STGM_READ))) {
    std::array<char, MAX_PATH> text = {};
    link->GetPath(text.data(), MAX_PATH, nullptr, 0);
    shortcut.target = text.data();
    link->GetWorkingDirectory(text.data(), MAX_PATH);
    shortcut.start_in = text.data();
    if (SUCCEEDED(link->QueryInterface(IID_IShellLinkW, reinterpret_cast<void**>(&wide_link)))) {
      std::array<wchar_t, MAX_PATH> wide = {};
      wide_link->GetWorkingDirectory(wide.data(), MAX_PATH);
      shortcut.wide_start_in = wide.data();
      wide_link->Release();
    }
  }
  if (file != nullptr) file->Release();
  if (link != nullptr) link->Release();
  CoUninitialize();
  return shortcut;
}

}  // namespace velnor::desktop

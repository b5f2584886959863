// What an installer changes on a machine: files, the registry, shortcuts. Used by the tests of the
// packages, which run on a machine of their own (a new Wine prefix).

#ifndef VELNOR_TESTS_PACKAGE_MACHINE_H_
#define VELNOR_TESTS_PACKAGE_MACHINE_H_

#include <windows.h>

#include <map>
#include <optional>
#include <shlobj.h>
#include <string>

namespace velnor::desktop {

// A variable that tests/desktop/package/run sets; throws without it.
std::string Environment(const char* name);

// A folder of the person who runs the test, by its CSIDL; with a separator at its end.
std::string KnownFolder(int csidl);

// Runs a command and waits until it has ended; its exit code.
DWORD RunCommand(std::string command);

// The files below a folder by their path in it, byte by byte; none when there is no such folder.
using Tree = std::map<std::string, std::string>;
Tree ReadTree(const std::string& folder);
// The name that the system gives a file beside its own: of letters that every code page has.
std::string ShortPath(const std::wstring& path);
// Removes a folder with everything in it.
void RemoveTree(const std::string& folder);

// A text below HKEY_CURRENT_USER; nothing when there is none.
std::optional<std::string> RegistryText(const char* key, const char* name);
void SetRegistryText(const char* key, const char* name, const std::string& text);

// A folder of the person, by its name in the registry ("Personal"), for as long as the object
// lives.
class OtherKnownFolder {
 public:
  OtherKnownFolder(const wchar_t* name, const std::wstring& path);
  OtherKnownFolder(const OtherKnownFolder&) = delete;
  OtherKnownFolder& operator=(const OtherKnownFolder&) = delete;
  ~OtherKnownFolder();

 private:
  const wchar_t* name_;
  std::wstring before_;
};

struct Shortcut {
  std::string target;
  std::string start_in;
  std::wstring wide_start_in;
};
// Empty texts when there is no such shortcut.
Shortcut ReadShortcut(const std::string& path);

}  // namespace velnor::desktop

#endif  // VELNOR_TESTS_PACKAGE_MACHINE_H_

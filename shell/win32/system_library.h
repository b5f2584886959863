// Libraries of the platform that only some press needs. They are loaded then and not with the
// program, which would start the later for them.

#ifndef VELNOR_SHELL_WIN32_SYSTEM_LIBRARY_H_
#define VELNOR_SHELL_WIN32_SYSTEM_LIBRARY_H_

#include <windows.h>

namespace velnor {

// Loads the library from the platform's own folder. Returns null if there is none of that name.
inline HMODULE LoadSystemLibrary(const char* name) {
  return LoadLibraryExA(name, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
}

// Returns null if the library has no such function.
template <typename Function>
Function FindFunction(HMODULE library, const char* name) {
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

}  // namespace velnor

#endif  // VELNOR_SHELL_WIN32_SYSTEM_LIBRARY_H_

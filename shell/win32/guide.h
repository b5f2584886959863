// Opens the guide, a text file, with what the platform reads such files with.

#ifndef VELNOR_SHELL_WIN32_GUIDE_H_
#define VELNOR_SHELL_WIN32_GUIDE_H_

#include <windows.h>

#include <string_view>

namespace velnor {

// Opens the file of that name beside the program or, when there is none, in the current folder:
// with the program that the person has for such files, else with the platform's editor. Returns
// false if neither folder has it or nothing opens it.
bool OpenGuideFile(HWND owner, std::string_view name);

}  // namespace velnor

#endif  // VELNOR_SHELL_WIN32_GUIDE_H_

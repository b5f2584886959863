// Opens files for the person to read, with what the platform has for them: the guide, the page of
// the diary.

#ifndef VELNOR_SHELL_WIN32_SHELL_OPEN_H_
#define VELNOR_SHELL_WIN32_SHELL_OPEN_H_

#include <windows.h>

#include <string>
#include <string_view>

namespace velnor {

// Opens the file of that name beside the program or, when there is none, in the current folder:
// with the program that the person has for such files, else with the platform's editor. Returns
// false if neither folder has it or nothing opens it.
bool OpenGuideFile(HWND owner, std::string_view name);

// Opens a page, by its path as the program writes it. Returns false if the platform knows no
// browser or cannot start it.
bool OpenInBrowser(HWND owner, const std::string& path);

}  // namespace velnor

#endif  // VELNOR_SHELL_WIN32_SHELL_OPEN_H_

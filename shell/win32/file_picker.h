// The platform's own dialog for choosing a file.

#ifndef VELNOR_SHELL_WIN32_FILE_PICKER_H_
#define VELNOR_SHELL_WIN32_FILE_PICKER_H_

#include <windows.h>

#include <optional>
#include <string>

#include "base/main_window.h"

namespace velnor {

// Lets the person choose a file that there is, over `owner`, and waits. Its path as the program
// writes it; nothing when none was chosen, or when there is no such dialog. The current folder
// stays.
std::optional<std::string> PickFile(HWND owner, const FileKind& kind);

}  // namespace velnor

#endif  // VELNOR_SHELL_WIN32_FILE_PICKER_H_

// The platform's own dialogs for choosing a file and a folder.

#ifndef VELNOR_SHELL_WIN32_FILE_PICKER_H_
#define VELNOR_SHELL_WIN32_FILE_PICKER_H_

#include <windows.h>

#include <optional>
#include <string>
#include <string_view>

#include "base/main_window.h"

namespace velnor {

// Lets the person choose a file that there is, over `owner`, and waits. Its path as the program
// writes it; nothing when none was chosen, or when there is no such dialog. The current folder
// stays.
std::optional<std::string> PickFile(HWND owner, const FileKind& kind);

// The same with a folder of the disk.
std::optional<std::string> PickFolder(HWND owner, std::string_view title);

}  // namespace velnor

#endif  // VELNOR_SHELL_WIN32_FILE_PICKER_H_

// Hosts dialog objects in the platform's dialog windows. One procedure serves all of them.

#ifndef VELNOR_SHELL_WIN32_DIALOG_HOST_H_
#define VELNOR_SHELL_WIN32_DIALOG_HOST_H_

#include <windows.h>

#include "base/dialog.h"

namespace velnor {

// Opens the dialog template `resource_id` over `owner` and returns when it is closed. A template
// that cannot be opened is treated as closed at once.
void RunModalDialog(HINSTANCE instance, HWND owner, int resource_id, Dialog& dialog);

}  // namespace velnor

#endif  // VELNOR_SHELL_WIN32_DIALOG_HOST_H_

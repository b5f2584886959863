// Hosts dialog objects in the platform's dialog windows. One procedure serves all of them.

#ifndef VELNOR_SHELL_WIN32_DIALOG_HOST_H_
#define VELNOR_SHELL_WIN32_DIALOG_HOST_H_

#include <windows.h>

#include <functional>
#include <memory>

#include "base/dialog.h"

namespace velnor {

// Opens the dialog template `resource_id` over `owner` and returns when it is closed. A template
// that cannot be opened is treated as closed at once.
void RunModalDialog(HINSTANCE instance, HWND owner, int resource_id, Dialog& dialog);

// Opens and shows the dialog template `resource_id` over `owner` and returns its window, null when
// it cannot be opened. `on_close` is called with the window when the dialog closes itself.
HWND OpenModelessDialog(HINSTANCE instance, HWND owner, int resource_id,
                        std::unique_ptr<Dialog> dialog, std::function<void(HWND)> on_close);

// Offers a message that was taken off the queue to the dialog `window`, if it is a key that dialogs
// may take and was pressed in one of its controls. Returns false if the dialog leaves it to the
// platform.
bool OfferKey(HWND window, const MSG& message);

}  // namespace velnor

#endif  // VELNOR_SHELL_WIN32_DIALOG_HOST_H_

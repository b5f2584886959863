// The border that nothing thrown crosses on its way to the window system: the procedures of the
// main window and of the dialogs run what they do behind it.

#ifndef VELNOR_SHELL_WIN32_FAULT_BARRIER_H_
#define VELNOR_SHELL_WIN32_FAULT_BARRIER_H_

#include <windows.h>

namespace velnor {

// Says in a box that something could not be done. `window` is the main window or a dialog over it.
// While such a box is open, another fault stays silent: the repaints behind a box may fail as well.
void ReportFault(HWND window);

// Returns what `call` returns. When it throws, which the library does for want of memory, the
// person is told, `on_fault` is returned and the program goes on.
template <typename Call, typename Result>
Result BehindBarrier(HWND window, Result on_fault, const Call& call) {
  try {
    return call();
  } catch (...) {
    ReportFault(window);
    return on_fault;
  }
}

}  // namespace velnor

#endif  // VELNOR_SHELL_WIN32_FAULT_BARRIER_H_

// Runs inside the watched program: the platform loads it there and calls it before every message.

#include <windows.h>

#include "tests/desktop/list_watch.h"

namespace velnor::desktop {
namespace {

// The memory shared with the tests; null when nobody watches. Held for the life of the process.
ListWatchCounts* Counts() {
  static ListWatchCounts* const counts = [] {
    const HANDLE memory = OpenFileMappingA(FILE_MAP_ALL_ACCESS, FALSE, kListWatchMemory);
    return static_cast<ListWatchCounts*>(
        MapViewOfFile(memory, FILE_MAP_ALL_ACCESS, 0, 0, sizeof(ListWatchCounts)));
  }();
  return counts;
}

void Count(HWND window, UINT message, WPARAM wparam) {
  ListWatchCounts* const counts = Counts();
  if (counts == nullptr || window != counts->list) return;
  if (message == WM_SETREDRAW) counts->is_put_off = wparam == FALSE ? 1 : 0;
  if (message == WM_PAINT) ++counts->paints;
  if (message == LB_ADDSTRING || message == LB_INSERTSTRING) {
    ++counts->added;
    if (counts->is_put_off == 0) ++counts->added_and_drawn;
  }
}

}  // namespace
}  // namespace velnor::desktop

extern "C" {

__declspec(dllexport) LRESULT CALLBACK OnSent(int code, WPARAM wparam, LPARAM lparam) {
  const auto* const sent = reinterpret_cast<const CWPSTRUCT*>(lparam);
  if (code == HC_ACTION) velnor::desktop::Count(sent->hwnd, sent->message, sent->wParam);
  return CallNextHookEx(nullptr, code, wparam, lparam);
}

// Painting is asked for when the queue is empty, and taken from it as posted messages are.
__declspec(dllexport) LRESULT CALLBACK OnPosted(int code, WPARAM wparam, LPARAM lparam) {
  const auto* const posted = reinterpret_cast<const MSG*>(lparam);
  if (code == HC_ACTION && wparam == PM_REMOVE) {
    velnor::desktop::Count(posted->hwnd, posted->message, posted->wParam);
  }
  return CallNextHookEx(nullptr, code, wparam, lparam);
}

}  // extern "C"

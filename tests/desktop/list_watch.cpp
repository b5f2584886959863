#include "tests/desktop/list_watch.h"

#include <stdexcept>

namespace velnor::desktop {

ListWatch::ListWatch(HWND list)
    : memory_(CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0,
                                 sizeof(ListWatchCounts), kListWatchMemory)),
      counts_(static_cast<ListWatchCounts*>(
          MapViewOfFile(memory_, FILE_MAP_ALL_ACCESS, 0, 0, sizeof(ListWatchCounts)))),
      library_(LoadLibraryA("list_watch.dll")) {
  if (counts_ == nullptr || library_ == nullptr) throw std::runtime_error("no list can be watched");
  *counts_ = ListWatchCounts();
  counts_->list = list;
  const DWORD thread = GetWindowThreadProcessId(list, nullptr);
  const auto hook = [this, thread](int kind, const char* name) {
    const auto procedure =
        reinterpret_cast<HOOKPROC>(reinterpret_cast<void*>(GetProcAddress(library_, name)));
    return SetWindowsHookExA(kind, procedure, library_, thread);
  };
  sent_ = hook(WH_CALLWNDPROC, "OnSent");
  posted_ = hook(WH_GETMESSAGE, "OnPosted");
  if (sent_ == nullptr || posted_ == nullptr) throw std::runtime_error("no list can be watched");
}

ListWatch::~ListWatch() {
  UnhookWindowsHookEx(posted_);
  UnhookWindowsHookEx(sent_);
  FreeLibrary(library_);
  UnmapViewOfFile(counts_);
  CloseHandle(memory_);
}

}  // namespace velnor::desktop

// What a list box of the running program is sent while it is filled. The list_watch.dll beside the
// tests looks at the program's messages from within; both sides read this.

#ifndef VELNOR_TESTS_DESKTOP_LIST_WATCH_H_
#define VELNOR_TESTS_DESKTOP_LIST_WATCH_H_

#include <windows.h>

namespace velnor::desktop {

inline constexpr char kListWatchMemory[] = "velnor list watch";  // shared by name

struct ListWatchCounts {
  HWND list = nullptr;       // whose messages count
  LONG is_put_off = 0;       // whether its drawing is put off at the moment
  LONG added = 0;            // items added
  LONG added_and_drawn = 0;  // of these, while its drawing was not put off
  LONG paints = 0;           // paint messages
};

// Counts from its making on, until it goes. `list` is a control of another program, of which one
// list can be watched.
class ListWatch {
 public:
  explicit ListWatch(HWND list);
  ListWatch(const ListWatch&) = delete;
  ListWatch& operator=(const ListWatch&) = delete;
  ~ListWatch();

  const ListWatchCounts& counts() const { return *counts_; }

 private:
  HANDLE memory_;
  ListWatchCounts* counts_;
  HMODULE library_;
  HHOOK sent_;
  HHOOK posted_;
};

}  // namespace velnor::desktop

#endif  // VELNOR_TESTS_DESKTOP_LIST_WATCH_H_

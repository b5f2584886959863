// The menu of our own: its items stand in the title-bar menu, behind the platform's, and in the one
// that a right click on the screen opens. The menu bar has none of them.

#ifndef VELNOR_SHELL_OWN_MENU_H_
#define VELNOR_SHELL_OWN_MENU_H_

#include <span>

#include "base/session.h"

namespace velnor {

struct Parts;

// The ids of the items, in the range of system commands: above 0, below 0xF000, and multiples of 16
// because the system keeps the low four bits to itself. Ids of the menu bar may be equal to them.
inline constexpr int kQuickAddItem = 0x150;
inline constexpr int kDiaryItem = 0x110;
inline constexpr int kBackUpItem = 0x120;
inline constexpr int kRestoreItem = 0x130;
inline constexpr int kImportItem = 0x140;

struct OwnMenuItem {
  int id;
  const char* text;
  bool needs_user;  // greyed while nobody is logged in
  void (*run)(Parts& parts);
};

// All items, from top to bottom.
std::span<const OwnMenuItem> OwnMenuItems();

bool CanBeChosen(const OwnMenuItem& item, const SessionState& session);

// Carries out the item `id` if it can be chosen. Returns false, and does nothing, if no item has
// that id.
bool RunOwnMenuItem(Parts& parts, int id, std::span<const OwnMenuItem> items = OwnMenuItems());

}  // namespace velnor

#endif  // VELNOR_SHELL_OWN_MENU_H_

// The registry of the screens of the main window: a row each. One screen is shown at a time.

#ifndef VELNOR_SHELL_SCREENS_H_
#define VELNOR_SHELL_SCREENS_H_

#include <span>
#include <string_view>
#include <vector>

#include "base/control.h"
#include "base/screen.h"
#include "base/session.h"
#include "shell/menu_states.h"

namespace velnor {

struct Parts;

// The background pictures by resource name, each 800 by 550 pixels, in the order of loading.
std::span<const char* const> BackgroundNames();

struct ScreenRow {
  ScreenId id;
  int command;  // the menu command that chooses it; 0: none does
  std::string_view background;
  Availability availability;  // of its menu item
  std::span<const ControlRow> (*controls)();
  Screen& (*screen)(Parts& parts);
};

// All screens, by number.
std::span<const ScreenRow> Screens();

// The row of a screen; null when there is none of that number.
const ScreenRow* FindScreen(ScreenId id);

// The keys of the controls that the screen shows.
std::vector<int> ShownKeys(const ScreenRow& row);

// The controls of all screens in the order in which they are made and hidden: by id. A control that
// several screens show is there once.
std::span<const ControlRow> MainWindowControls();

// Makes the screen the current one and asks for a repaint.
void ShowScreen(Parts& parts, ScreenId id);

}  // namespace velnor

#endif  // VELNOR_SHELL_SCREENS_H_

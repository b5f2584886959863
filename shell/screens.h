// The screens of the main window: 21 of them, one shown at a time.

#ifndef VELNOR_SHELL_SCREENS_H_
#define VELNOR_SHELL_SCREENS_H_

#include <span>
#include <string_view>

#include "base/canvas.h"
#include "base/session.h"

namespace velnor {

class Program;

// The background pictures by resource name, each 800 by 550 pixels, in the order of loading.
std::span<const char* const> BackgroundNames();

struct ScreenRow {
  ScreenId id;
  int command;  // the menu command that selects it; 0: none does
  std::string_view background;
  std::span<const int> controls;                    // keys of the controls it shows
  void (*paint)(Program& program, Canvas& canvas);  // its own texts; null: none yet
  void (*before)(Program& program) = nullptr;       // what the command does first; null: nothing
};

// All screens, by number.
std::span<const ScreenRow> Screens();

}  // namespace velnor

#endif  // VELNOR_SHELL_SCREENS_H_

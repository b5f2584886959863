// What keys do on the screens of the main window, beyond what the platform's controls do by
// themselves: the table of keys that carry out a command, and what Enter presses.

#ifndef VELNOR_SHELL_KEYBOARD_H_
#define VELNOR_SHELL_KEYBOARD_H_

#include "base/session.h"

namespace velnor {

struct Parts;

// Keys by the platform's numbers; a letter's number is that of the capital.
inline constexpr int kTabKey = 0x09;
inline constexpr int kEnterKey = 0x0D;
inline constexpr int kF1Key = 0x70;

// A key going down, and which of the others are held.
struct KeyPress {
  int key = 0;
  bool control = false;
  bool shift = false;
  bool alt = false;
  bool operator==(const KeyPress&) const = default;
};

// Carries out the command of the key. Returns false, and does nothing, if it has none.
bool RunKey(Parts& parts, const KeyPress& press);

// The button that Enter presses while the control `focused_key` of `screen` has the focus: in a
// field of one line the main button of the screen, on a button that button. 0: none, then the key
// is the control's.
int ButtonOfEnter(ScreenId screen, int focused_key);

}  // namespace velnor

#endif  // VELNOR_SHELL_KEYBOARD_H_

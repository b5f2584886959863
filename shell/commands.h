// The commands of the menu that do something other than choosing a screen: what each does, and when
// its item can be chosen.

#ifndef VELNOR_SHELL_COMMANDS_H_
#define VELNOR_SHELL_COMMANDS_H_

#include <span>

#include "shell/menu_states.h"

namespace velnor {

struct Parts;

struct CommandRow {
  int id;
  void (*run)(Parts& parts);
  Availability availability;
};

// All of them, by id.
std::span<const CommandRow> Commands();

// Logs the user out without a word: greys the menu, closes the dialogs that work on the user's data
// and shows the home screen.
void EndSession(Parts& parts);

// Carries out the menu command `id`, be it that of a screen or one of these. Returns false, and
// does nothing, if `id` is no command: such an id belongs to a control.
bool RunCommand(Parts& parts, int id);

}  // namespace velnor

#endif  // VELNOR_SHELL_COMMANDS_H_

// Which menu items can be chosen when: four states, applied as people log in and out.

#ifndef VELNOR_SHELL_MENU_STATES_H_
#define VELNOR_SHELL_MENU_STATES_H_

#include "base/main_window.h"

namespace velnor {

enum class MenuState {
  kLoggedOut,    // at start
  kLoggedIn,     // after login
  kAfterLogout,  // after the logout command
  kUserRemoved,  // after removing the user who is logged in
};

// Enables and greys the items that the state lists; an item that it does not list keeps what it
// had. Two differences between the logged-out states are wanted: command 237 stays enabled after
// logout, and "Burn fat and calories" stays enabled when its user was removed.
void ApplyMenuState(MenuState state, MainWindow& window);

}  // namespace velnor

#endif  // VELNOR_SHELL_MENU_STATES_H_

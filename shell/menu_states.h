// Which menu items can be chosen when: four states, applied as people log in and out. The tables of
// screens and of commands say for each item what the states do to it.

#ifndef VELNOR_SHELL_MENU_STATES_H_
#define VELNOR_SHELL_MENU_STATES_H_

#include <array>

#include "base/main_window.h"

namespace velnor {

enum class MenuState {
  kLoggedOut,    // at start
  kLoggedIn,     // after login
  kAfterLogout,  // after the logout command
  kUserRemoved,  // after removing the user who is logged in
};

enum class ItemState { kEnabled, kGreyed, kKept };

// What becomes of a menu item, by MenuState.
using Availability = std::array<ItemState, 4>;

inline constexpr Availability kAlways = {ItemState::kEnabled, ItemState::kEnabled,
                                         ItemState::kEnabled, ItemState::kEnabled};
inline constexpr Availability kWithUser = {ItemState::kGreyed, ItemState::kEnabled,
                                           ItemState::kGreyed, ItemState::kGreyed};
inline constexpr Availability kWithoutUser = {ItemState::kEnabled, ItemState::kGreyed,
                                              ItemState::kEnabled, ItemState::kEnabled};
// As the resource file has it.
inline constexpr Availability kNeverTouched = {ItemState::kKept, ItemState::kKept, ItemState::kKept,
                                               ItemState::kKept};
// The differences between the states without a user are wanted.
inline constexpr Availability kAlwaysButKeptAtLogout = {ItemState::kEnabled, ItemState::kEnabled,
                                                        ItemState::kKept, ItemState::kEnabled};
inline constexpr Availability kWithUserAndAfterLogout = {ItemState::kGreyed, ItemState::kEnabled,
                                                         ItemState::kEnabled, ItemState::kGreyed};
inline constexpr Availability kWithUserButKeptAtRemoval = {ItemState::kGreyed, ItemState::kEnabled,
                                                           ItemState::kGreyed, ItemState::kKept};

// Enables and greys the items of all screens and commands.
void ApplyMenuState(MenuState state, MainWindow& window);

}  // namespace velnor

#endif  // VELNOR_SHELL_MENU_STATES_H_

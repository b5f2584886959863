#include "shell/menu_states.h"

#include <cstddef>

#include "shell/commands.h"
#include "shell/screens.h"

namespace velnor {
namespace {

void Apply(const Availability& availability, MenuState state, int command, MainWindow& window) {
  const ItemState item = availability[static_cast<std::size_t>(state)];
  if (item != ItemState::kKept) window.EnableMenuItem(command, item == ItemState::kEnabled);
}

}  // namespace

void ApplyMenuState(MenuState state, MainWindow& window) {
  for (const ScreenRow& screen : Screens()) {
    if (screen.command != 0) Apply(screen.availability, state, screen.command, window);
  }
  for (const CommandRow& command : Commands()) {
    Apply(command.availability, state, command.id, window);
  }
}

}  // namespace velnor

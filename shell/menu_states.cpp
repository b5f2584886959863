#include "shell/menu_states.h"

#include <array>
#include <cstddef>

namespace velnor {
namespace {

enum ItemState { kEnabled, kGreyed, kKept };

struct MenuRow {
  int command;
  std::array<ItemState, 4> in_state;  // by MenuState
};

// clang-format off
constexpr MenuRow kRows[] = {
    // command, logged out, logged in, after logout, user removed
    {200, {kEnabled, kGreyed, kEnabled, kEnabled}},
    {201, {kGreyed, kEnabled, kGreyed, kGreyed}},
    {202, {kEnabled, kEnabled, kEnabled, kEnabled}},
    {203, {kEnabled, kEnabled, kEnabled, kEnabled}},
    {204, {kGreyed, kEnabled, kGreyed, kGreyed}},
    {210, {kGreyed, kEnabled, kGreyed, kGreyed}},
    {211, {kGreyed, kEnabled, kGreyed, kGreyed}},
    {212, {kGreyed, kEnabled, kGreyed, kGreyed}},
    {213, {kGreyed, kEnabled, kGreyed, kGreyed}},
    {214, {kGreyed, kEnabled, kGreyed, kGreyed}},
    {215, {kGreyed, kEnabled, kGreyed, kGreyed}},
    {220, {kGreyed, kEnabled, kGreyed, kGreyed}},
    {221, {kGreyed, kEnabled, kGreyed, kGreyed}},
    {222, {kGreyed, kEnabled, kGreyed, kGreyed}},
    {223, {kGreyed, kEnabled, kGreyed, kGreyed}},
    {224, {kGreyed, kEnabled, kGreyed, kGreyed}},
    {225, {kGreyed, kEnabled, kGreyed, kGreyed}},
    {230, {kGreyed, kEnabled, kGreyed, kGreyed}},
    {231, {kGreyed, kEnabled, kGreyed, kGreyed}},
    {232, {kGreyed, kEnabled, kGreyed, kGreyed}},
    {233, {kGreyed, kEnabled, kGreyed, kGreyed}},
    {234, {kGreyed, kEnabled, kGreyed, kGreyed}},
    {235, {kGreyed, kEnabled, kGreyed, kGreyed}},
    {236, {kEnabled, kEnabled, kEnabled, kEnabled}},
    {237, {kGreyed, kEnabled, kEnabled, kGreyed}},
    {238, {kGreyed, kEnabled, kGreyed, kKept}},
    {239, {kGreyed, kEnabled, kGreyed, kGreyed}},
    {240, {kEnabled, kEnabled, kKept, kEnabled}},
    {241, {kEnabled, kEnabled, kKept, kEnabled}},
    {250, {kEnabled, kEnabled, kEnabled, kEnabled}},
    {251, {kEnabled, kEnabled, kEnabled, kEnabled}},
    {270, {kGreyed, kEnabled, kGreyed, kGreyed}},
    {271, {kGreyed, kEnabled, kGreyed, kGreyed}},
    {272, {kGreyed, kEnabled, kGreyed, kGreyed}},
    {273, {kGreyed, kEnabled, kGreyed, kGreyed}},
    {274, {kGreyed, kEnabled, kGreyed, kGreyed}},
};
// clang-format on

}  // namespace

void ApplyMenuState(MenuState state, MainWindow& window) {
  for (const MenuRow& row : kRows) {
    const ItemState item = row.in_state[static_cast<std::size_t>(state)];
    if (item != kKept) window.EnableMenuItem(row.command, item == kEnabled);
  }
}

}  // namespace velnor

#include "tests/desktop/open_menu.h"

#include <algorithm>
#include <cstddef>

namespace velnor::desktop {
namespace {

constexpr char kMenuClass[] = "#32768";
constexpr UINT kGetMenuHandle = 0x01E1;  // what the window of a menu is asked for its menu
constexpr POINT kFreeSpot = {300, 70};   // of every screen: neither control nor list

HWND FindMenuWindow(const App& app) {
  HWND window = nullptr;
  while ((window = FindWindowExA(nullptr, window, kMenuClass, nullptr)) != nullptr) {
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    if (owner == GetProcessId(app.process()) && IsWindowVisible(window) != 0) return window;
  }
  return nullptr;
}

HMENU MenuOf(HWND window) {
  return reinterpret_cast<HMENU>(SendMessageA(window, kGetMenuHandle, 0, 0));
}

}  // namespace

OpenMenu::OpenMenu(const App& app) : app_(app) {
  WaitUntil([&] { return MenuIsOpen(app); });
  window_ = FindMenuWindow(app);
}

// By its command: how a person opens it is up to the window manager, which has the title bar.
OpenMenu OpenMenu::OfTitleBar(const App& app) {
  PostMessageA(app.main().handle(), WM_SYSCOMMAND, SC_KEYMENU, ' ');
  return OpenMenu(app);
}

OpenMenu OpenMenu::AtPoint(const App& app, int x, int y) {
  POINT point = {x, y};
  ClientToScreen(app.main().handle(), &point);
  RightClickAt(point);
  return OpenMenu(app);
}

OpenMenu OpenMenu::ByKeyboard(const App& app) {
  PressKey(VK_F10, KeyModifier::kShift);
  return OpenMenu(app);
}

std::vector<App::MenuItem> OpenMenu::Items() const { return app_.ItemsOf(MenuOf(window_)); }

bool OpenMenu::Choose(int id) const {
  const std::vector<App::MenuItem> items = Items();
  const auto item = std::ranges::find(items, id, &App::MenuItem::id);
  if (item == items.end() || !item->enabled) {
    Close();
    return false;
  }
  const RECT place = app_.ItemPlace(MenuOf(window_), static_cast<UINT>(item - items.begin()));
  ClickAt({(place.left + place.right) / 2, (place.top + place.bottom) / 2});
  return WaitUntil([this] { return !MenuIsOpen(app_); });
}

// Of a menu that hangs on the title bar or the menu bar, the first press leaves the bar active.
void OpenMenu::Close() const {
  WaitUntil([this] {
    if (!IsInMenuMode(app_)) return true;
    PressKey(VK_ESCAPE);
    return false;
  });
}

bool IsInMenuMode(const App& app) {
  GUITHREADINFO info = {};
  info.cbSize = sizeof info;
  const DWORD thread = GetWindowThreadProcessId(app.main().handle(), nullptr);
  return GetGUIThreadInfo(thread, &info) != FALSE && (info.flags & GUI_INMENUMODE) != 0;
}

bool MenuIsOpen(const App& app) { return FindMenuWindow(app) != nullptr; }

bool ChooseFromTitleBarMenu(const App& app, int id) {
  const OpenMenu menu = OpenMenu::OfTitleBar(app);
  return menu.is_open() && menu.Choose(id);
}

bool ChooseFromContextMenu(const App& app, int id) {
  const OpenMenu menu = OpenMenu::AtPoint(app, kFreeSpot.x, kFreeSpot.y);
  return menu.is_open() && menu.Choose(id);
}

}  // namespace velnor::desktop

// The menus that drop down over the running program: the title-bar menu and the context menu of its
// screen. Opened, read and chosen from as a person does, with mouse and keys.

#ifndef VELNOR_TESTS_DESKTOP_OPEN_MENU_H_
#define VELNOR_TESTS_DESKTOP_OPEN_MENU_H_

#include <vector>

#include "tests/desktop/driver.h"

namespace velnor::desktop {

class OpenMenu {
 public:
  // Each opens the menu and waits for it. The context menu by a right click on that point of the
  // client area, or with the keyboard (Shift+F10), in which case the focus says where.
  static OpenMenu OfTitleBar(const App& app);
  static OpenMenu AtPoint(const App& app, int x, int y);
  static OpenMenu ByKeyboard(const App& app);

  // Whether a menu came.
  bool is_open() const { return window_ != nullptr; }
  std::vector<App::MenuItem> Items() const;
  // Clicks on the item. Returns false when there is none or it is grey; the menu is closed then.
  bool Choose(int id) const;
  void Close() const;

 private:
  explicit OpenMenu(const App& app);

  const App& app_;
  HWND window_ = nullptr;
};

// Whether a menu of the program is open, and whether one is open or the menu bar has the keyboard.
bool MenuIsOpen(const App& app);
bool IsInMenuMode(const App& app);

// Choose from a menu that they open. Return false when the item is not there or grey.
bool ChooseFromTitleBarMenu(const App& app, int id);
bool ChooseFromContextMenu(const App& app, int id);

}  // namespace velnor::desktop

#endif  // VELNOR_TESTS_DESKTOP_OPEN_MENU_H_

// The two menus that hold the items of our own: the title-bar menu and the context menu of the
// screen. The main window hands its messages here first.

#ifndef VELNOR_SHELL_WIN32_OWN_MENUS_H_
#define VELNOR_SHELL_WIN32_OWN_MENUS_H_

#include <windows.h>

#include "shell/program.h"

namespace velnor {

class OwnMenus {
 public:
  // `window` shows the menus, `program` carries out what is chosen; both outlive this.
  OwnMenus(HWND window, Program& program) : window_(window), program_(program) {}

  // Puts the items into the title-bar menu, behind a separator. Without items it stays as it is.
  void AddToTitleBarMenu() const;

  // A message of the window. Returns whether it has been dealt with; otherwise it takes its course.
  bool OnMessage(UINT message, WPARAM wparam, LPARAM lparam) const;

 private:
  bool OnContextMenu(HWND clicked, LPARAM place) const;
  void OpenContextMenu(POINT at) const;
  POINT PlaceForKeyboard() const;

  HWND window_;
  Program& program_;
};

}  // namespace velnor

#endif  // VELNOR_SHELL_WIN32_OWN_MENUS_H_

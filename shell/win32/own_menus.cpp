#include "shell/win32/own_menus.h"

#include <windowsx.h>

#include "shell/own_menu.h"

namespace velnor {
namespace {

constexpr WPARAM kSystemCommandMask = 0xFFF0;  // the system uses the low four bits
constexpr LPARAM kByKeyboard = -1;             // as the place of a click

void AppendItems(HMENU menu) {
  for (const OwnMenuItem& item : OwnMenuItems()) {
    AppendMenuA(menu, MF_STRING, static_cast<UINT_PTR>(item.id), item.text);
  }
}

void GreyItems(HMENU menu, const SessionState& session) {
  for (const OwnMenuItem& item : OwnMenuItems()) {
    const UINT state = CanBeChosen(item, session) ? MF_ENABLED : MF_GRAYED;
    EnableMenuItem(menu, static_cast<UINT>(item.id), MF_BYCOMMAND | state);
  }
}

bool IsList(HWND control) {
  char name[16] = {};
  GetClassNameA(control, name, sizeof name);
  return lstrcmpiA(name, "listbox") == 0 || lstrcmpiA(name, "combobox") == 0;
}

}  // namespace

void OwnMenus::AddToTitleBarMenu() const {
  if (OwnMenuItems().empty()) return;
  const HMENU menu = GetSystemMenu(window_, FALSE);
  AppendMenuA(menu, MF_SEPARATOR, 0, nullptr);
  AppendItems(menu);
}

bool OwnMenus::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) const {
  switch (message) {
    case WM_SYSCOMMAND:
      return RunOwnMenuItem(program_, static_cast<int>(wparam & kSystemCommandMask));
    case WM_INITMENUPOPUP:
      if (HIWORD(lparam) != FALSE) GreyItems(reinterpret_cast<HMENU>(wparam), program_.session());
      return false;
    case WM_CONTEXTMENU:
      return OnContextMenu(reinterpret_cast<HWND>(wparam), lparam);
    default:
      return false;
  }
}

// Edits open a menu of the platform's own and never ask. A click on a list stays without a menu;
// the keyboard has no other place to click on. The title bar and the menu bar keep what they have.
bool OwnMenus::OnContextMenu(HWND clicked, LPARAM place) const {
  if (OwnMenuItems().empty()) return false;
  if (place == kByKeyboard) {
    OpenContextMenu(PlaceForKeyboard());
    return true;
  }
  const POINT at = {GET_X_LPARAM(place), GET_Y_LPARAM(place)};
  POINT in_client = at;
  ScreenToClient(window_, &in_client);
  RECT client = {};
  GetClientRect(window_, &client);
  if (IsList(clicked) || PtInRect(&client, in_client) == FALSE) return false;
  OpenContextMenu(at);
  return true;
}

void OwnMenus::OpenContextMenu(POINT at) const {
  const HMENU menu = CreatePopupMenu();
  AppendItems(menu);
  GreyItems(menu, program_.session());
  const int chosen =
      TrackPopupMenu(menu, TPM_RETURNCMD | TPM_RIGHTBUTTON, at.x, at.y, 0, window_, nullptr);
  DestroyMenu(menu);
  if (chosen != 0) RunOwnMenuItem(program_, chosen);
}

// Below the control that has the focus, or in the corner of the screen below its header.
POINT OwnMenus::PlaceForKeyboard() const {
  constexpr POINT kBelowHeader = {10, 24};
  const HWND focused = GetFocus();
  if (focused != nullptr && IsChild(window_, focused) != FALSE) {
    RECT place = {};
    GetWindowRect(focused, &place);
    return {place.left, place.bottom};
  }
  POINT at = kBelowHeader;
  ClientToScreen(window_, &at);
  return at;
}

}  // namespace velnor

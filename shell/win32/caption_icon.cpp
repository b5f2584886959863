#include "shell/win32/caption_icon.h"

#include <initializer_list>

#include "res/ids.h"

namespace velnor {
namespace {

constexpr int kIconResource = ID_ICON;

// What the platform calls the class of dialogs and message boxes.
constexpr char kDialogClass[] = "#32770";

LRESULT CALLBACK OnWindowEvent(int event, WPARAM wparam, LPARAM lparam) {
  auto* const window = reinterpret_cast<HWND>(wparam);
  char name[16] = {};
  if (event == HCBT_ACTIVATE && GetClassNameA(window, name, sizeof name) != 0 &&
      lstrcmpA(name, kDialogClass) == 0) {
    SetCaptionIcon(window);
  }
  return CallNextHookEx(nullptr, event, wparam, lparam);
}

}  // namespace

HICON ProgramIcon() {
  return LoadIconA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(kIconResource));
}

void SetCaptionIcon(HWND window) {
  const auto icon = reinterpret_cast<LPARAM>(ProgramIcon());
  for (const WPARAM size : {WPARAM{ICON_SMALL}, WPARAM{ICON_BIG}})
    SendMessageA(window, WM_SETICON, size, icon);
}

BoxIcons::BoxIcons()
    : hook_(SetWindowsHookExA(WH_CBT, OnWindowEvent, nullptr, GetCurrentThreadId())) {}

BoxIcons::~BoxIcons() {
  if (hook_ != nullptr) UnhookWindowsHookEx(hook_);
}

}  // namespace velnor

#include "shell/win32/screen_keys.h"

#include "shell/keyboard.h"
#include "shell/tab_order.h"
#include "shell/win32/number_field.h"

namespace velnor {
namespace {

static_assert(kTabKey == VK_TAB);
static_assert(kEnterKey == VK_RETURN);
static_assert(kF1Key == VK_F1);

constexpr int kFrameWidth = 2;  // pixels
constexpr LPARAM kIsRepeated = 1 << 30;

bool IsDown(int key) { return GetKeyState(key) < 0; }

bool HoldsOneLine(HWND control) {
  char name[16] = {};
  GetClassNameA(control, name, sizeof name);
  return lstrcmpiA(name, "edit") == 0 && (GetWindowLongA(control, GWL_STYLE) & ES_MULTILINE) == 0;
}

RECT FrameAround(HWND window, HWND control) {
  RECT frame = {};
  GetWindowRect(control, &frame);
  MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&frame), 2);
  InflateRect(&frame, kFrameWidth, kFrameWidth);
  return frame;
}

}  // namespace

bool ScreenKeys::OnMessage(MSG& message) {
  TypePointForComma(message);
  if (message.hwnd != window_ && IsChild(window_, message.hwnd) == FALSE) return false;
  if (message.message == WM_LBUTTONDOWN) by_keys_ = false;
  return message.message == WM_KEYDOWN && OnKeyDown(message);
}

bool ScreenKeys::OnKeyDown(const MSG& message) {
  const KeyPress press = {.key = static_cast<int>(message.wParam),
                          .control = IsDown(VK_CONTROL),
                          .shift = IsDown(VK_SHIFT),
                          .alt = IsDown(VK_MENU)};
  UpdateWindow(window_);  // a screen that has just been chosen shows its controls first
  if (press.key == kTabKey && !press.control && !press.alt) {
    MoveFocus(press.shift);
    return true;
  }
  // A key that is kept down does once what it does.
  const bool repeated = (message.lParam & kIsRepeated) != 0;
  if (press == KeyPress{.key = kEnterKey}) return repeated || PressButton();
  return !repeated && RunKey(program_, press);
}

// As in the platform's dialogs the text of a field is selected, so that typing replaces it. That of
// a report is not.
void ScreenKeys::MoveFocus(bool backwards) {
  const int next = NextInTabOrder(TabOrder(form_.UsableKeys()), form_.KeyOf(GetFocus()), backwards);
  const HWND control = form_.Find(next);
  if (control == nullptr) return;
  by_keys_ = true;
  SendMessageA(window_, WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
  SetFocus(control);
  if (HoldsOneLine(control)) SendMessageA(control, EM_SETSEL, 0, -1);
}

bool ScreenKeys::PressButton() const {
  const int button = ButtonOfEnter(program_.session().screen, form_.KeyOf(GetFocus()));
  if (button == 0) return false;
  SendMessageA(window_, WM_COMMAND, static_cast<WPARAM>(MAKELONG(button, BN_CLICKED)),
               reinterpret_cast<LPARAM>(form_.Find(button)));
  return true;
}

void ScreenKeys::UpdateFrame(HDC picture) {
  const HWND focused = GetFocus();
  const bool on_screen = by_keys_ && form_.KeyOf(focused) != 0 && IsWindowVisible(focused) != FALSE;
  const HWND wanted = on_screen ? focused : nullptr;
  if (wanted == framed_) return;
  const HDC context = GetDC(window_);
  form_.ClipTo(context);
  if (framed_ != nullptr) {
    const RECT old = FrameAround(window_, framed_);
    BitBlt(context, old.left, old.top, old.right - old.left, old.bottom - old.top, picture,
           old.left, old.top, SRCCOPY);
  }
  if (wanted != nullptr) {
    RECT frame = FrameAround(window_, wanted);
    for (int ring = 0; ring < kFrameWidth; ++ring) {
      FrameRect(context, &frame, GetSysColorBrush(COLOR_HIGHLIGHT));
      InflateRect(&frame, -1, -1);
    }
  }
  ReleaseDC(window_, context);
  framed_ = wanted;
}

}  // namespace velnor

// The driver's real input events.

#include <windows.h>

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

#include "tests/desktop/driver.h"

namespace velnor::desktop {
namespace {

void SendInputs(std::vector<INPUT> inputs) {
  for (INPUT& input : inputs) {
    SendInput(1, &input, sizeof input);
    Sleep(1);
  }
}

INPUT KeyInput(WORD virtual_key, bool up) {
  INPUT input = {};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = virtual_key;
  input.ki.wScan = static_cast<WORD>(MapVirtualKeyA(virtual_key, 0));
  input.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
  return input;
}

// A pixel of a screen `extent` pixels long on the scale of 0 to 65,535 of an input event's place.
LONG OnScreenScale(LONG pixel, LONG extent) { return (pixel * 65536 + extent / 2) / extent; }

// Press and release each carry their place: the window system tells the program of a moved cursor
// late, and such a word from the click before takes the cursor back there, under a click that has
// none.
void Click(POINT on_display, DWORD press_flag, DWORD release_flag) {
  INPUT press = {};
  press.type = INPUT_MOUSE;
  press.mi.dx = OnScreenScale(on_display.x, GetSystemMetrics(SM_CXSCREEN));
  press.mi.dy = OnScreenScale(on_display.y, GetSystemMetrics(SM_CYSCREEN));
  press.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE | press_flag;
  INPUT release = press;
  release.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE | release_flag;
  SendInputs({press, release});
}

// By KeyModifier.
constexpr std::array<WORD, 4> kModifierKeys = {0, VK_MENU, VK_CONTROL, VK_SHIFT};

}  // namespace

void ClickOn(HWND control) {
  RECT place = {};
  GetWindowRect(control, &place);
  ClickAt({(place.left + place.right) / 2, (place.top + place.bottom) / 2});
}

void ClickAt(POINT on_display) { Click(on_display, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP); }

void RightClickAt(POINT on_display) {
  Click(on_display, MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP);
}

void TurnWheel(int distance) {
  INPUT turn = {};
  turn.type = INPUT_MOUSE;
  turn.mi.dwFlags = MOUSEEVENTF_WHEEL;
  turn.mi.mouseData = static_cast<DWORD>(distance);
  SendInputs({turn});
}

void TypeKeys(std::string_view keys) {
  for (const char key : keys) {
    const SHORT code = VkKeyScanA(key);
    SendInputs({KeyInput(LOBYTE(code), false), KeyInput(LOBYTE(code), true)});
  }
}

void PressKey(WORD virtual_key, KeyModifier modifier) {
  std::vector<INPUT> inputs = {KeyInput(virtual_key, false), KeyInput(virtual_key, true)};
  if (modifier != KeyModifier::kNone) {
    const WORD held = kModifierKeys[static_cast<std::size_t>(modifier)];
    inputs.insert(inputs.begin(), KeyInput(held, false));
    inputs.push_back(KeyInput(held, true));
  }
  SendInputs(inputs);
}

}  // namespace velnor::desktop

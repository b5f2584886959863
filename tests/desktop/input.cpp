// The driver's real input events.

#include <windows.h>

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

}  // namespace

// Press and release each carry their place: the window system tells the program of a moved cursor
// late, and such a word from the click before takes the cursor back there, under a click that has
// none.
void ClickOn(HWND control) {
  RECT place = {};
  GetWindowRect(control, &place);
  INPUT press = {};
  press.type = INPUT_MOUSE;
  press.mi.dx = OnScreenScale((place.left + place.right) / 2, GetSystemMetrics(SM_CXSCREEN));
  press.mi.dy = OnScreenScale((place.top + place.bottom) / 2, GetSystemMetrics(SM_CYSCREEN));
  press.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE | MOUSEEVENTF_LEFTDOWN;
  INPUT release = press;
  release.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE | MOUSEEVENTF_LEFTUP;
  SendInputs({press, release});
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

void PressKey(WORD virtual_key, bool with_alt) {
  std::vector<INPUT> inputs = {KeyInput(virtual_key, false), KeyInput(virtual_key, true)};
  if (with_alt) {
    inputs.insert(inputs.begin(), KeyInput(VK_MENU, false));
    inputs.push_back(KeyInput(VK_MENU, true));
  }
  SendInputs(inputs);
}

}  // namespace velnor::desktop

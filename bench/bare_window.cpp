// The floor of the desktop benchmarks: a window of the size of the program's with as many hidden
// children of the same classes, which copies one picture when it is painted, and nothing else.
//
// Usage: bare_window.exe [SCREEN]
// With the number of a screen it has the program's duties: it loads all pictures and the menu, and
// at every paint hides all children and shows those of that screen. What the difference costs is
// the platform's.

#include <windows.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <map>
#include <vector>

#include "base/form.h"
#include "shell/controls.h"
#include "shell/screens.h"

namespace velnor::bench {
namespace {

constexpr char kClass[] = "bare window";
constexpr char kPicture[] = "POS";
constexpr int kMenu = 501;
constexpr int kWidth = 800;
constexpr int kHeight = 600;

constexpr std::array kClassNames = {"button", "combobox", "edit", "listbox", "static"};

struct BareWindow {
  HBITMAP picture = nullptr;
  BITMAP size = {};
  bool has_duties = false;
  std::vector<HWND> children;
  std::vector<HWND> shown;  // of those, at every paint
};

void MakeChildren(BareWindow& self, HWND window, const ScreenRow* screen) {
  std::map<int, HWND> by_key;
  for (const ControlRow& row : MainWindowControls()) {
    const char* const class_name = kClassNames[static_cast<std::size_t>(row.control_class)];
    const HWND child = CreateWindowExA(
        row.has_sunken_edge() ? WS_EX_CLIENTEDGE : 0, class_name, row.text, WS_CHILD | row.style,
        row.place.x, row.place.y, row.place.width, row.place.height, window,
        reinterpret_cast<HMENU>(static_cast<INT_PTR>(row.id)), nullptr, nullptr);
    self.children.push_back(child);
    if (!by_key.emplace(row.id, child).second) by_key.emplace(SecondControl(row.id), child);
  }
  if (screen == nullptr) return;
  for (const int key : screen->controls) self.shown.push_back(by_key.at(key));
}

void Paint(const BareWindow& self, HWND window) {
  if (self.has_duties) {
    for (const HWND child : self.children) ShowWindow(child, SW_HIDE);
  }
  PAINTSTRUCT paint;
  const HDC context = BeginPaint(window, &paint);
  const HDC memory = CreateCompatibleDC(context);
  const HGDIOBJ previous = SelectObject(memory, self.picture);
  BitBlt(context, 0, 0, self.size.bmWidth, self.size.bmHeight, memory, 0, 0, SRCCOPY);
  SelectObject(memory, previous);
  DeleteDC(memory);
  for (const HWND child : self.shown) ShowWindow(child, SW_SHOWNORMAL);
  EndPaint(window, &paint);
}

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  const auto* const self =
      reinterpret_cast<const BareWindow*>(GetWindowLongPtrA(window, GWLP_USERDATA));
  if (message == WM_PAINT && self != nullptr) {
    Paint(*self, window);
    return 0;
  }
  if (message == WM_DESTROY) PostQuitMessage(0);
  return DefWindowProcA(window, message, wparam, lparam);
}

int Run(HINSTANCE instance, const char* screen_number, int show_command) {
  const auto screen = std::ranges::find(Screens(), std::atoi(screen_number), &ScreenRow::id);
  BareWindow self;
  self.has_duties = *screen_number != '\0' && screen != Screens().end();
  self.picture = LoadBitmapA(instance, kPicture);
  GetObjectA(self.picture, sizeof self.size, &self.size);

  WNDCLASSEXA window_class = {};
  window_class.cbSize = sizeof window_class;
  window_class.lpfnWndProc = Procedure;
  window_class.hInstance = instance;
  window_class.hCursor = LoadCursorA(nullptr, IDC_ARROW);
  window_class.lpszClassName = kClass;
  RegisterClassExA(&window_class);
  const HMENU menu = self.has_duties ? LoadMenuA(instance, MAKEINTRESOURCEA(kMenu)) : nullptr;
  if (self.has_duties) {
    for (const char* const name : BackgroundNames()) LoadBitmapA(instance, name);
  }
  const HWND window =
      CreateWindowExA(0, kClass, kClass, WS_BORDER | WS_SYSMENU | WS_MINIMIZEBOX, CW_USEDEFAULT,
                      CW_USEDEFAULT, kWidth, kHeight, nullptr, menu, instance, nullptr);
  if (window == nullptr || self.picture == nullptr) return 1;
  MakeChildren(self, window, self.has_duties ? &*screen : nullptr);
  SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&self));
  ShowWindow(window, show_command);

  MSG message;
  while (GetMessageA(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageA(&message);
  }
  return 0;
}

}  // namespace
}  // namespace velnor::bench

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR command_line, int show_command) {
  return velnor::bench::Run(instance, command_line, show_command);
}

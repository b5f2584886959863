// The floor of the desktop benchmarks: a window of the size of the program's with as many hidden
// children of the same classes, which copies one picture when it is painted, and nothing else.
//
// Usage: bare_window.exe [SCREEN | work]
// With the number of a screen it has the program's duties: it loads the menu, and at every paint
// hides all children and shows those of that screen. What the difference costs is
// the platform's. With "work" it does at a command what it has been told to do for it.

#include <windows.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <map>
#include <string_view>
#include <vector>

#include "base/control.h"
#include "base/form.h"
#include "bench/bare_worker.h"
#include "shell/screens.h"

namespace velnor::bench {
namespace {

constexpr char kClass[] = "bare window";
constexpr char kPicture[] = "POS";
constexpr std::string_view kWorking = "work";
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
  bool works = false;
  std::map<std::string_view, HDC> pictures = {};  // to work with, ready to be copied
  BareWorker worker = {};
};

HFONT FontOf(const ControlRow& row) {
  constexpr BYTE kCentralEuropean = 238;
  const Font font = row.font;
  LOGFONTA description = {};
  description.lfHeight = font.height;
  description.lfWeight = font.weight;
  description.lfCharSet = kCentralEuropean;
  description.lfQuality = ANTIALIASED_QUALITY;
  return CreateFontIndirectA(&description);
}

void MakeChildren(BareWindow& self, HWND window, const ScreenRow* screen) {
  std::map<int, HWND> by_key;
  for (const ControlRow& row : MainWindowControls()) {
    const char* const class_name = kClassNames[static_cast<std::size_t>(row.control_class)];
    // A working window paints around its children; a frame is seen through.
    const DWORD frame = self.works ? WS_EX_TRANSPARENT : 0;
    const HWND child = CreateWindowExA(
        row.has_sunken_edge() ? WS_EX_CLIENTEDGE : frame, class_name, row.text,
        WS_CHILD | row.style, row.place.x, row.place.y, row.place.width, row.place.height, window,
        reinterpret_cast<HMENU>(static_cast<INT_PTR>(row.id())), nullptr, nullptr);
    self.children.push_back(child);
    if (self.works) SendMessageA(child, WM_SETFONT, reinterpret_cast<WPARAM>(FontOf(row)), FALSE);
    by_key.emplace(row.key, child);
  }
  if (self.works) self.worker.Begin(window, by_key);
  if (screen == nullptr) return;
  for (const int key : ShownKeys(*screen)) self.shown.push_back(by_key.at(key));
}

// Each in the format of the display and selected for good.
void PreparePictures(BareWindow& self, HINSTANCE instance) {
  const HDC screen = GetDC(nullptr);
  for (const char* const name : BackgroundNames()) {
    const HDC memory = CreateCompatibleDC(screen);
    SelectObject(memory, LoadBitmapA(instance, name));
    self.pictures[name] = memory;
  }
  ReleaseDC(nullptr, screen);
}

void PaintScreen(const BareWindow& self, HWND window) {
  const auto screen = std::ranges::find(Screens(), self.worker.screen(), &ScreenRow::id);
  PAINTSTRUCT paint;
  const HDC context = BeginPaint(window, &paint);
  BitBlt(context, 0, 0, self.size.bmWidth, self.size.bmHeight, self.pictures.at(screen->background),
         0, 0, SRCCOPY);
  EndPaint(window, &paint);
}

void Paint(const BareWindow& self, HWND window) {
  if (self.works) {
    PaintScreen(self, window);
    return;
  }
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
  auto* const self = reinterpret_cast<BareWindow*>(GetWindowLongPtrA(window, GWLP_USERDATA));
  if (message == WM_COPYDATA && self != nullptr) {
    const auto* const sent = reinterpret_cast<const COPYDATASTRUCT*>(lparam);
    self->worker.Learn({static_cast<const char*>(sent->lpData), sent->cbData});
    return TRUE;
  }
  if (message == WM_COMMAND && self != nullptr) {
    self->worker.OnCommand(LOWORD(wparam), HIWORD(wparam));
    return 0;
  }
  if (message == WM_PAINT && self != nullptr) {
    Paint(*self, window);
    return 0;
  }
  if (message == WM_DESTROY) PostQuitMessage(0);
  return DefWindowProcA(window, message, wparam, lparam);
}

int Run(HINSTANCE instance, const std::string_view argument, int show_command) {
  const auto screen = std::ranges::find(Screens(), std::atoi(argument.data()), &ScreenRow::id);
  BareWindow self;
  self.works = argument == kWorking;
  self.has_duties = !self.works && !argument.empty() && screen != Screens().end();
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
  const HWND window =
      CreateWindowExA(0, kClass, kClass, WS_BORDER | WS_SYSMENU | WS_MINIMIZEBOX, CW_USEDEFAULT,
                      CW_USEDEFAULT, kWidth, kHeight, nullptr, menu, instance, nullptr);
  if (self.works) {
    PreparePictures(self, instance);
    SetWindowLongA(window, GWL_STYLE, GetWindowLongA(window, GWL_STYLE) | WS_CLIPCHILDREN);
  }
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

// The platform says how it is called.
// NOLINTNEXTLINE(readability-non-const-parameter)
int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR command_line, int show_command) {
  return velnor::bench::Run(instance, command_line, show_command);
}

// The windows of the driver: their controls, texts and lists, from another process.

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <stdexcept>

#include "tests/desktop/driver.h"

namespace velnor::desktop {
namespace {

std::string ToNarrow(const std::wstring& wide) {
  const int size = static_cast<int>(wide.size());
  std::string narrow(wide.size() * 2, '\0');
  narrow.resize(static_cast<std::size_t>(
      WideCharToMultiByte(1250, 0, wide.data(), size, narrow.data(),
                          static_cast<int>(narrow.size()), nullptr, nullptr)));
  return narrow;
}

struct ListMessages {
  UINT count, text_length, text, selection, select;
};
constexpr ListMessages kListBox = {LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT, LB_GETCURSEL,
                                   LB_SETCURSEL};
constexpr ListMessages kComboBox = {CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT, CB_GETCURSEL,
                                    CB_SETCURSEL};

const ListMessages& MessagesOf(HWND control) {
  std::array<char, 16> name = {};
  GetClassNameA(control, name.data(), static_cast<int>(name.size()));
  return lstrcmpiA(name.data(), "combobox") == 0 ? kComboBox : kListBox;
}

// From another process the texts of lists come whole only through the wide messages.
std::string ItemText(HWND control, LRESULT index) {
  const ListMessages& messages = MessagesOf(control);
  const LRESULT length = SendMessageW(control, messages.text_length, static_cast<WPARAM>(index), 0);
  std::wstring text(static_cast<std::size_t>(std::max<LRESULT>(length, 0)) + 1, L'\0');
  SendMessageW(control, messages.text, static_cast<WPARAM>(index),
               reinterpret_cast<LPARAM>(text.data()));
  text.resize(std::wcslen(text.c_str()));
  return ToNarrow(text);
}

}  // namespace

std::string Window::Caption() const {
  std::string text(256, '\0');
  text.resize(static_cast<std::size_t>(GetWindowTextA(handle_, text.data(), 256)));
  return text;
}

HWND Window::Control(int id, int nth) const {
  for (const HWND control : Controls()) {
    if (GetDlgCtrlID(control) == id && nth-- == 0) return control;
  }
  return nullptr;
}

std::vector<HWND> Window::Controls() const {
  std::vector<HWND> controls;
  HWND child = nullptr;
  while ((child = FindWindowExA(handle_, child, nullptr, nullptr)) != nullptr) {
    controls.push_back(child);
  }
  return controls;
}

bool Window::IsShown(int id, int nth) const { return IsWindowVisible(Control(id, nth)) != 0; }

int Window::FocusedId() const {
  GUITHREADINFO info = {};
  info.cbSize = sizeof info;
  if (GetGUIThreadInfo(GetWindowThreadProcessId(handle_, nullptr), &info) == FALSE) return 0;
  return info.hwndFocus == nullptr ? 0 : GetDlgCtrlID(info.hwndFocus);
}

std::string Window::Text(int id) const {
  const HWND control = Control(id);
  const LRESULT length = SendMessageA(control, WM_GETTEXTLENGTH, 0, 0);
  std::string text(static_cast<std::size_t>(length) + 1, '\0');
  const LRESULT copied = SendMessageA(control, WM_GETTEXT, static_cast<WPARAM>(text.size()),
                                      reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(copied));
  return text;
}

void Window::SetText(int id, const std::string& text) const {
  SendMessageA(Control(id), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

std::vector<std::string> Window::Items(int id) const {
  const HWND control = Control(id);
  const LRESULT count = SendMessageW(control, MessagesOf(control).count, 0, 0);
  std::vector<std::string> items;
  for (LRESULT index = 0; index < count; ++index) items.push_back(ItemText(control, index));
  return items;
}

std::optional<std::string> Window::Selected(int id) const {
  const HWND control = Control(id);
  const LRESULT index = SendMessageW(control, MessagesOf(control).selection, 0, 0);
  if (index < 0) return std::nullopt;
  return ItemText(control, index);
}

bool Window::Choose(int id, const std::string& item) const {
  const std::vector<std::string> items = Items(id);
  const auto found = std::ranges::find(items, item);
  if (found == items.end()) return false;
  const HWND control = Control(id);
  SendMessageW(control, MessagesOf(control).select, static_cast<WPARAM>(found - items.begin()), 0);
  Command(id, LBN_SELCHANGE);
  return true;
}

void Window::Command(int id, int notification) const {
  SendMessageA(handle_, WM_COMMAND, static_cast<WPARAM>(MAKELONG(id, notification)),
               reinterpret_cast<LPARAM>(Control(id)));
}

void Window::PostCommand(int id) const {
  PostMessageA(handle_, WM_COMMAND, static_cast<WPARAM>(MAKELONG(id, 0)),
               reinterpret_cast<LPARAM>(Control(id)));
}

void Window::SavePicture(const std::string& path) const {
  RECT place = {};
  GetWindowRect(handle_, &place);
  const int width = place.right - place.left;
  const int height = place.bottom - place.top;

  const HDC screen = GetDC(nullptr);
  const HDC memory = CreateCompatibleDC(screen);
  const HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
  const HGDIOBJ previous = SelectObject(memory, bitmap);
  BitBlt(memory, 0, 0, width, height, screen, place.left, place.top, SRCCOPY);
  SelectObject(memory, previous);

  BITMAPINFOHEADER header = {};
  header.biSize = sizeof header;
  header.biWidth = width;
  header.biHeight = height;
  header.biPlanes = 1;
  header.biBitCount = 24;
  const std::size_t row_bytes = (static_cast<std::size_t>(width) * 3 + 3) / 4 * 4;
  std::vector<char> pixels(row_bytes * static_cast<std::size_t>(height));
  BITMAPINFO info = {};
  info.bmiHeader = header;
  GetDIBits(screen, bitmap, 0, static_cast<UINT>(height), pixels.data(), &info, DIB_RGB_COLORS);
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);

  BITMAPFILEHEADER file_header = {};
  file_header.bfType = 0x4D42;  // "BM"
  file_header.bfOffBits = sizeof file_header + sizeof header;
  file_header.bfSize = file_header.bfOffBits + static_cast<DWORD>(pixels.size());
  std::FILE* const file = std::fopen(path.c_str(), "wb");
  if (file == nullptr) throw std::runtime_error("cannot write the picture " + path);
  std::fwrite(&file_header, sizeof file_header, 1, file);
  std::fwrite(&header, sizeof header, 1, file);
  std::fwrite(pixels.data(), 1, pixels.size(), file);
  std::fclose(file);
}

}  // namespace velnor::desktop

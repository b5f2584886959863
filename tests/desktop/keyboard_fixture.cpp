#include "tests/desktop/keyboard_fixture.h"

#include <cstddef>

namespace velnor::desktop {

std::vector<char> Look(const Window& window, RECT part) {
  POINT corner = {part.left, part.top};
  ClientToScreen(window.handle(), &corner);
  BITMAPINFO info = {};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = part.right - part.left;
  info.bmiHeader.biHeight = part.bottom - part.top;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  const auto width = static_cast<std::size_t>(info.bmiHeader.biWidth);
  std::vector<char> pixels(width * static_cast<std::size_t>(info.bmiHeader.biHeight) * 4);
  const HDC screen = GetDC(nullptr);
  const HDC memory = CreateCompatibleDC(screen);
  const HBITMAP bitmap =
      CreateCompatibleBitmap(screen, info.bmiHeader.biWidth, info.bmiHeader.biHeight);
  const HGDIOBJ previous = SelectObject(memory, bitmap);
  BitBlt(memory, 0, 0, info.bmiHeader.biWidth, info.bmiHeader.biHeight, screen, corner.x, corner.y,
         SRCCOPY);
  SelectObject(memory, previous);
  GetDIBits(screen, bitmap, 0, static_cast<UINT>(info.bmiHeader.biHeight), pixels.data(), &info,
            DIB_RGB_COLORS);
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);
  return pixels;
}

}  // namespace velnor::desktop

#include "shell/win32/gdi_canvas.h"

#include <algorithm>

#include "shell/screens.h"

namespace velnor {
namespace {

constexpr BYTE kCentralEuropean = 238;  // EASTEUROPE_CHARSET: code page 1250 letters

COLORREF ToColorRef(Colour colour) { return RGB(colour.red, colour.green, colour.blue); }

HFONT MakeFont(const Font& font) {
  LOGFONTA description = {};
  description.lfHeight = font.height;
  description.lfWeight = font.weight;
  description.lfItalic = font.italic ? TRUE : FALSE;
  description.lfCharSet = kCentralEuropean;
  description.lfQuality = font.smooth ? ANTIALIASED_QUALITY : NONANTIALIASED_QUALITY;
  return CreateFontIndirectA(&description);
}

}  // namespace

GdiResources::~GdiResources() {
  for (const auto& [name, background] : backgrounds_) DeleteObject(background.bitmap);
  for (const CachedFont& cached : fonts_) DeleteObject(cached.handle);
}

void GdiResources::LoadBackgrounds(HINSTANCE instance) {
  for (const char* const name : BackgroundNames()) {
    const HBITMAP bitmap = LoadBitmapA(instance, name);
    BITMAP size = {};
    if (bitmap == nullptr) continue;
    GetObjectA(bitmap, sizeof size, &size);
    backgrounds_[name] = {bitmap, size.bmWidth, size.bmHeight};
  }
}

const GdiResources::Background* GdiResources::FindBackground(std::string_view name) const {
  const auto found = backgrounds_.find(name);
  return found == backgrounds_.end() ? nullptr : &found->second;
}

HFONT GdiResources::FontFor(const Font& font) {
  const auto cached = std::ranges::find(fonts_, font, &CachedFont::font);
  if (cached != fonts_.end()) return cached->handle;
  fonts_.push_back({font, MakeFont(font)});
  return fonts_.back().handle;
}

HDC BackBuffer::Begin(HWND window, int width, int height, HBRUSH surface) {
  if (context_ == nullptr || width != width_ || height != height_) {
    Discard();
    const HDC screen = GetDC(window);
    context_ = CreateCompatibleDC(screen);
    bitmap_ = CreateCompatibleBitmap(screen, width, height);
    ReleaseDC(window, screen);
    if (context_ == nullptr || bitmap_ == nullptr) {
      Discard();
      return nullptr;
    }
    previous_ = SelectObject(context_, bitmap_);
    width_ = width;
    height_ = height;
  }
  const RECT all = {0, 0, width, height};
  FillRect(context_, &all, surface);
  return context_;
}

void BackBuffer::Discard() {
  if (previous_ != nullptr) SelectObject(context_, previous_);
  if (bitmap_ != nullptr) DeleteObject(bitmap_);
  if (context_ != nullptr) DeleteDC(context_);
  context_ = nullptr;
  bitmap_ = nullptr;
  previous_ = nullptr;
}

GdiCanvas::GdiCanvas(HDC context, GdiResources& resources)
    : context_(context), saved_state_(SaveDC(context)), resources_(resources) {
  SetBkMode(context_, TRANSPARENT);
}

GdiCanvas::~GdiCanvas() {
  RestoreDC(context_, saved_state_);
  if (pen_ != nullptr) DeleteObject(pen_);
}

void GdiCanvas::CopyBackground(std::string_view name) {
  const GdiResources::Background* const background = resources_.FindBackground(name);
  if (background == nullptr) return;
  const HDC memory = CreateCompatibleDC(context_);
  const HGDIOBJ previous = SelectObject(memory, background->bitmap);
  BitBlt(context_, 0, 0, background->width, background->height, memory, 0, 0, SRCCOPY);
  SelectObject(memory, previous);
  DeleteDC(memory);
}

void GdiCanvas::SetFont(const Font& font) { SelectObject(context_, resources_.FontFor(font)); }

void GdiCanvas::SetTextColour(Colour colour) { SetTextColor(context_, ToColorRef(colour)); }

void GdiCanvas::SetPen(const Pen& pen) {
  const HPEN next = CreatePen(PS_SOLID, pen.width, ToColorRef(pen.colour));
  SelectObject(context_, next);
  if (pen_ != nullptr) DeleteObject(pen_);
  pen_ = next;
}

void GdiCanvas::DrawText(Point at, std::string_view text) {
  TextOutA(context_, at.x, at.y, text.data(), static_cast<int>(text.size()));
}

void GdiCanvas::DrawPolyline(std::span<const Point> points) {
  if (points.empty()) return;
  MoveToEx(context_, points.front().x, points.front().y, nullptr);
  for (const Point& point : points.subspan(1)) LineTo(context_, point.x, point.y);
}

}  // namespace velnor

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

void CopyBitmap(HDC to, HBITMAP bitmap, int width, int height) {
  const HDC memory = CreateCompatibleDC(to);
  const HGDIOBJ previous = SelectObject(memory, bitmap);
  BitBlt(to, 0, 0, width, height, memory, 0, 0, SRCCOPY);
  SelectObject(memory, previous);
  DeleteDC(memory);
}

}  // namespace

GdiResources::~GdiResources() {
  if (prepared_.bitmap != nullptr) DeleteObject(prepared_.bitmap);
  for (const auto& [name, background] : backgrounds_) DeleteObject(background.bitmap);
  for (const CachedFont& cached : fonts_) DeleteObject(cached.handle);
}

void GdiResources::LoadBackgrounds(HINSTANCE instance) {
  for (const char* const name : BackgroundNames()) {
    auto* const bitmap =
        static_cast<HBITMAP>(LoadImageA(instance, name, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
    BITMAP size = {};
    if (bitmap == nullptr) continue;
    GetObjectA(bitmap, sizeof size, &size);
    backgrounds_[name] = {bitmap, size.bmWidth, size.bmHeight};
  }
}

const GdiResources::Background& GdiResources::PrepareBackground(HDC context,
                                                                std::string_view name) {
  if (name == prepared_name_) return prepared_;
  if (prepared_.bitmap != nullptr) DeleteObject(prepared_.bitmap);
  prepared_ = {};
  prepared_name_.clear();
  const auto found = backgrounds_.find(name);
  if (found == backgrounds_.end()) return prepared_;
  const auto& [bitmap, width, height] = found->second;
  const HDC memory = CreateCompatibleDC(context);
  const HBITMAP picture = CreateCompatibleBitmap(context, width, height);
  const HGDIOBJ previous = SelectObject(memory, picture);
  CopyBitmap(memory, bitmap, width, height);
  SelectObject(memory, previous);
  DeleteDC(memory);
  if (picture == nullptr) return prepared_;
  prepared_ = {picture, width, height};
  prepared_name_ = name;
  return prepared_;
}

HFONT GdiResources::FontFor(const Font& font) {
  const auto cached = std::ranges::find(fonts_, font, &CachedFont::font);
  if (cached != fonts_.end()) return cached->handle;
  fonts_.push_back({font, MakeFont(font)});
  return fonts_.back().handle;
}

HDC BackBuffer::Begin(HWND window, int width, int height) {
  if (context_ != nullptr && width == width_ && height == height_) return context_;
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

GdiCanvas::GdiCanvas(HDC context, HBRUSH surface, GdiResources& resources)
    : context_(context), surface_(surface), saved_state_(SaveDC(context)), resources_(resources) {
  SetBkMode(context_, TRANSPARENT);
}

GdiCanvas::~GdiCanvas() {
  RestoreDC(context_, saved_state_);
  if (pen_ != nullptr) DeleteObject(pen_);
}

void GdiCanvas::CopyBackground(std::string_view name) {
  const auto& [bitmap, width, height] = resources_.PrepareBackground(context_, name);
  if (bitmap != nullptr) CopyBitmap(context_, bitmap, width, height);
  RECT all = {};
  GetClipBox(context_, &all);
  const RECT right_of_it = {width, 0, all.right, height};
  const RECT below_it = {0, height, all.right, all.bottom};
  if (width < all.right) FillRect(context_, &right_of_it, surface_);
  if (height < all.bottom) FillRect(context_, &below_it, surface_);
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

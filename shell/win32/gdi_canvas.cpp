#include "shell/win32/gdi_canvas.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "shell/screens.h"

namespace velnor {
namespace {

// People go to and fro between two screens. More would not be felt: to prepare one takes 2 ms.
constexpr std::size_t kMostPrepared = 2;

constexpr BYTE kCentralEuropean = 238;  // EASTEUROPE_CHARSET: code page 1250 letters

COLORREF ToColorRef(Colour colour) { return RGB(colour.red, colour.green, colour.blue); }

int MeanWidth(HFONT font) {
  const HDC screen = GetDC(nullptr);
  const HGDIOBJ previous = SelectObject(screen, font);
  TEXTMETRICA metrics = {};
  GetTextMetricsA(screen, &metrics);
  SelectObject(screen, previous);
  ReleaseDC(nullptr, screen);
  return metrics.tmAveCharWidth;
}

HFONT MakeFont(const Font& font) {
  LOGFONTA description = {};
  description.lfHeight = font.height;
  description.lfWeight = font.weight;
  description.lfItalic = font.italic ? TRUE : FALSE;
  description.lfCharSet = kCentralEuropean;
  description.lfQuality = ANTIALIASED_QUALITY;
  const HFONT made = CreateFontIndirectA(&description);
  if (!font.narrow || made == nullptr) return made;
  // A width can only be asked for in pixels, and whose face has which is known from the font alone.
  description.lfWidth = (MeanWidth(made) * 5 + 3) / 6;
  DeleteObject(made);
  return CreateFontIndirectA(&description);
}

// They stand behind the header and the table of colours.
const void* PixelsOf(const BITMAPINFO& picture) {
  const BITMAPINFOHEADER& header = picture.bmiHeader;
  const std::size_t colours = header.biClrUsed != 0 ? header.biClrUsed : 1U << header.biBitCount;
  return reinterpret_cast<const char*>(&picture) + header.biSize + colours * sizeof(RGBQUAD);
}

}  // namespace

HDC MemoryPicture::Begin(int width, int height) {
  if (context_ != nullptr && width == width_ && height == height_) return context_;
  Discard();
  const HDC screen = GetDC(nullptr);
  context_ = CreateCompatibleDC(screen);
  bitmap_ = CreateCompatibleBitmap(screen, width, height);
  ReleaseDC(nullptr, screen);
  if (context_ == nullptr || bitmap_ == nullptr) {
    Discard();
    return nullptr;
  }
  previous_ = SelectObject(context_, bitmap_);
  width_ = width;
  height_ = height;
  return context_;
}

void MemoryPicture::Discard() {
  if (previous_ != nullptr) SelectObject(context_, previous_);
  if (bitmap_ != nullptr) DeleteObject(bitmap_);
  if (context_ != nullptr) DeleteDC(context_);
  context_ = nullptr;
  bitmap_ = nullptr;
  previous_ = nullptr;
}

GdiResources::~GdiResources() {
  for (const CachedFont& cached : fonts_) DeleteObject(cached.handle);
}

void GdiResources::FindBackgrounds(HINSTANCE instance) {
  for (const char* const name : BackgroundNames()) {
    const HRSRC place = FindResourceA(instance, name, RT_BITMAP);
    const HGLOBAL picture = place == nullptr ? nullptr : LoadResource(instance, place);
    const void* const bytes = picture == nullptr ? nullptr : LockResource(picture);
    if (bytes != nullptr) backgrounds_[name] = static_cast<const BITMAPINFO*>(bytes);
  }
}

GdiResources::Background GdiResources::PrepareBackground(std::string_view name) {
  const auto found = backgrounds_.find(name);
  if (found == backgrounds_.end()) return {};
  const BITMAPINFO& picture = *found->second;
  const int width = picture.bmiHeader.biWidth;
  const int height = picture.bmiHeader.biHeight;
  auto prepared = std::ranges::find(prepared_, name, &PreparedPicture::name);
  const bool is_new = prepared == prepared_.end();
  if (is_new && prepared_.size() < kMostPrepared) prepared_.emplace_back();
  if (is_new) prepared = std::prev(prepared_.end());
  prepared_.splice(prepared_.begin(), prepared_, prepared);
  const HDC context = prepared->picture.Begin(width, height);
  const bool is_prepared =
      context != nullptr &&
      (!is_new || SetDIBitsToDevice(context, 0, 0, static_cast<DWORD>(width),
                                    static_cast<DWORD>(height), 0, 0, 0, static_cast<UINT>(height),
                                    PixelsOf(picture), &picture, DIB_RGB_COLORS) != 0);
  prepared->name = is_prepared ? name : "";
  if (!is_prepared) return {};
  return {context, width, height};
}

HFONT GdiResources::FontFor(const Font& font) {
  const auto cached = std::ranges::find(fonts_, font, &CachedFont::font);
  if (cached != fonts_.end()) return cached->handle;
  fonts_.push_back({font, MakeFont(font)});
  return fonts_.back().handle;
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
  const auto [picture, width, height] = resources_.PrepareBackground(name);
  if (picture == nullptr) {
    is_complete_ = false;
  } else {
    BitBlt(context_, 0, 0, width, height, picture, 0, 0, SRCCOPY);
  }
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

void GdiCanvas::WriteText(Point at, std::string_view text) {
  TextOutA(context_, at.x, at.y, text.data(), static_cast<int>(text.size()));
}

void GdiCanvas::DrawPolyline(std::span<const Point> points) {
  if (points.empty()) return;
  MoveToEx(context_, points.front().x, points.front().y, nullptr);
  for (const Point& point : points.subspan(1)) LineTo(context_, point.x, point.y);
}

}  // namespace velnor

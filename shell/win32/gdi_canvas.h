// Painting with the platform's device contexts.

#ifndef VELNOR_SHELL_WIN32_GDI_CANVAS_H_
#define VELNOR_SHELL_WIN32_GDI_CANVAS_H_

#include <windows.h>

#include <list>
#include <map>
#include <string>
#include <vector>

#include "base/canvas.h"

namespace velnor {

// A picture in memory, in the format of the display, with the device context to draw into it and to
// copy from it. It stays selected: selecting it anew costs more than copying it.
class MemoryPicture {
 public:
  MemoryPicture() = default;
  MemoryPicture(const MemoryPicture&) = delete;
  MemoryPicture& operator=(const MemoryPicture&) = delete;
  ~MemoryPicture() { Discard(); }

  // The context, for a picture of that size in pixels with whatever was drawn into it before. It
  // serves until the next call with another size. Returns null if the system refuses one.
  HDC Begin(int width, int height);

 private:
  void Discard();

  HDC context_ = nullptr;
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ previous_ = nullptr;
  int width_ = 0;
  int height_ = 0;
};

// The pictures and fonts of the main window. They live as long as it does.
class GdiResources {
 public:
  GdiResources() = default;
  GdiResources(const GdiResources&) = delete;
  GdiResources& operator=(const GdiResources&) = delete;
  ~GdiResources();

  // Finds the background pictures, of 256 colours, in the resources of the program; one that is
  // missing is left out, and copying it does nothing.
  void FindBackgrounds(HINSTANCE instance);

  struct Background {
    HDC context = nullptr;  // to copy it from
    int width = 0;
    int height = 0;
  };
  // A picture in the format of the display; it serves until the next call. Without a context when
  // there is no such picture or no memory for it.
  Background PrepareBackground(std::string_view name);

  // Made when first asked for and kept.
  HFONT FontFor(const Font& font);

 private:
  struct CachedFont {
    Font font;
    HFONT handle;
  };
  // Where they stand in the program's file, which the system keeps in memory as far as it is used.
  std::map<std::string, const BITMAPINFO*, std::less<>> backgrounds_;
  struct PreparedPicture {
    std::string name;
    MemoryPicture picture;
  };
  // In the format of the display, the one that was copied last first.
  std::list<PreparedPicture> prepared_;
  std::vector<CachedFont> fonts_;
};

// One painting of the whole of a device context, which is put back as it was when the canvas goes.
// What the background does not cover gets the colour of `surface`.
class GdiCanvas final : public Canvas {
 public:
  GdiCanvas(HDC context, HBRUSH surface, GdiResources& resources);
  GdiCanvas(const GdiCanvas&) = delete;
  GdiCanvas& operator=(const GdiCanvas&) = delete;
  ~GdiCanvas() override;

  // Whether everything has been drawn so far; not a background for which there was no memory.
  bool is_complete() const { return is_complete_; }

  void CopyBackground(std::string_view name) override;
  void SetFont(const Font& font) override;
  void SetTextColour(Colour colour) override;
  void SetPen(const Pen& pen) override;
  void WriteText(Point at, std::string_view text) override;
  void DrawPolyline(std::span<const Point> points) override;

 private:
  HDC context_;
  HBRUSH surface_;
  int saved_state_;
  GdiResources& resources_;
  HPEN pen_ = nullptr;
  bool is_complete_ = true;
};

}  // namespace velnor

#endif  // VELNOR_SHELL_WIN32_GDI_CANVAS_H_

// What a screen paints on. The window system draws for real; tests keep a list of what was drawn.
// Coordinates are client pixels of the main window, x to the right, y downwards.

#ifndef VELNOR_BASE_CANVAS_H_
#define VELNOR_BASE_CANVAS_H_

#include <cstdint>
#include <span>
#include <string_view>

namespace velnor {

struct Point {
  int x = 0;
  int y = 0;
  bool operator==(const Point&) const = default;
};

struct Colour {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  bool operator==(const Colour&) const = default;
};

// A font of the platform's default face, Central European letters.
struct Font {
  int height = 0;  // of the character cell, pixels
  int weight = 0;  // 0 = the platform's regular weight, 700 = bold
  bool italic = false;
  bool narrow = false;  // its letters have five sixths of the face's own width
  bool operator==(const Font&) const = default;
};

struct Pen {
  Colour colour;
  int width = 1;  // pixels
  bool operator==(const Pen&) const = default;
};

// The colours and fonts that more than one screen uses.
inline constexpr Colour kBlack{0, 0, 0};
inline constexpr Colour kRed{255, 0, 0};
inline constexpr Font kBodyFont{14, 0, false};
inline constexpr Font kTitleFont{18, 700, true};

// A fresh canvas has a black pen one pixel wide, black text and the platform's own font. A choice
// holds until the next one of its kind. Text never paints a background of its own.
class Canvas {
 public:
  virtual ~Canvas() = default;

  // Copies the background picture called `name` to the top left corner at its own size. An unknown
  // name copies nothing.
  virtual void CopyBackground(std::string_view name) = 0;

  virtual void SetFont(const Font& font) = 0;
  virtual void SetTextColour(Colour colour) = 0;
  virtual void SetPen(const Pen& pen) = 0;

  // Writes one line of code page 1250 text with its top left corner at `at`.
  virtual void WriteText(Point at, std::string_view text) = 0;

  // Draws from point to point with the pen. As the platform draws lines, the last point itself is
  // not drawn. Fewer than two points draw nothing.
  virtual void DrawPolyline(std::span<const Point> points) = 0;

  void DrawLine(Point from, Point to) {
    const Point points[] = {from, to};
    DrawPolyline(points);
  }
};

// A text at its place: the rows of which a screen's fixed texts are made.
struct PlacedText {
  Point at;
  std::string_view text;
};

inline void WriteTexts(Canvas& canvas, std::span<const PlacedText> texts) {
  for (const PlacedText& row : texts) canvas.WriteText(row.at, row.text);
}

}  // namespace velnor

#endif  // VELNOR_BASE_CANVAS_H_

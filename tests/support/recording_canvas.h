// A canvas that keeps what was drawn, in order, each with the font, colour and pen it was drawn in.

#ifndef VELNOR_TESTS_SUPPORT_RECORDING_CANVAS_H_
#define VELNOR_TESTS_SUPPORT_RECORDING_CANVAS_H_

#include <ostream>
#include <string>
#include <vector>

#include "base/canvas.h"

namespace velnor {

struct DrawnText {
  std::string text;
  Point at;
  Font font;
  Colour colour;
  bool operator==(const DrawnText&) const = default;
};

struct DrawnLine {
  std::vector<Point> points;
  Pen pen;
  bool operator==(const DrawnLine&) const = default;
};

inline void PrintTo(const DrawnText& drawn, std::ostream* out) {
  *out << '"' << drawn.text << "\" at (" << drawn.at.x << ", " << drawn.at.y << ") height "
       << drawn.font.height << " weight " << drawn.font.weight
       << (drawn.font.italic ? " italic" : "") << " RGB(" << int{drawn.colour.red} << ", "
       << int{drawn.colour.green} << ", " << int{drawn.colour.blue} << ')';
}

inline void PrintTo(const DrawnLine& drawn, std::ostream* out) {
  for (const Point& point : drawn.points) *out << '(' << point.x << ", " << point.y << ") ";
  *out << "width " << drawn.pen.width;
}

class RecordingCanvas final : public Canvas {
 public:
  void CopyBackground(std::string_view name) override { backgrounds.emplace_back(name); }
  void SetFont(const Font& font) override { font_ = font; }
  void SetTextColour(Colour colour) override { text_colour_ = colour; }
  void SetPen(const Pen& pen) override { pen_ = pen; }
  void WriteText(Point at, std::string_view text) override {
    texts.push_back({std::string(text), at, font_, text_colour_});
  }
  void DrawPolyline(std::span<const Point> points) override {
    lines.push_back({{points.begin(), points.end()}, pen_});
  }

  std::vector<std::string> backgrounds;
  std::vector<DrawnText> texts;
  std::vector<DrawnLine> lines;

 private:
  Font font_;
  Colour text_colour_;
  Pen pen_;
};

}  // namespace velnor

#endif  // VELNOR_TESTS_SUPPORT_RECORDING_CANVAS_H_

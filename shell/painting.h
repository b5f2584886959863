// A painting as the screens asked for it, kept to be drawn later or not at all: a repaint that asks
// for what is drawn already need not draw it again. Used by the main window.

#ifndef VELNOR_SHELL_PAINTING_H_
#define VELNOR_SHELL_PAINTING_H_

#include <cstddef>
#include <string>
#include <variant>
#include <vector>

#include "base/canvas.h"

namespace velnor {

// Equal paintings look the same, drawn on canvases of the same size.
class Painting final : public Canvas {
 public:
  void CopyBackground(std::string_view name) override;
  void SetFont(const Font& font) override;
  void SetTextColour(Colour colour) override;
  void SetPen(const Pen& pen) override;
  void WriteText(Point at, std::string_view text) override;
  void DrawPolyline(std::span<const Point> points) override;

  // Does to `canvas` what was done to this, in the same order.
  void DrawOn(Canvas& canvas) const;

  bool operator==(const Painting& other) const {
    return steps_ == other.steps_ && letters_ == other.letters_ && points_ == other.points_;
  }

 private:
  struct Background {
    std::size_t length;  // of its name
    bool operator==(const Background&) const = default;
  };
  struct Text {
    Point at;
    std::size_t length;
    bool operator==(const Text&) const = default;
  };
  struct Polyline {
    std::size_t count;
    bool operator==(const Polyline&) const = default;
  };

  std::vector<std::variant<Background, Font, Colour, Pen, Text, Polyline>> steps_;
  std::string letters_;        // of all names and texts, one behind the other
  std::vector<Point> points_;  // of all lines
};

}  // namespace velnor

#endif  // VELNOR_SHELL_PAINTING_H_

#include "shell/painting.h"

#include <span>

namespace velnor {
namespace {

// Goes through a painting; what has a length takes the next letters or points.
class Drawing {
 public:
  Drawing(Canvas& canvas, std::string_view letters, std::span<const Point> points)
      : canvas_(canvas), letters_(letters), points_(points) {}

  void operator()(const Font& font) { canvas_.SetFont(font); }
  void operator()(const Colour& colour) { canvas_.SetTextColour(colour); }
  void operator()(const Pen& pen) { canvas_.SetPen(pen); }
  void operator()(const auto& step) {
    if constexpr (requires { step.count; }) {
      canvas_.DrawPolyline(points_.first(step.count));
      points_ = points_.subspan(step.count);
    } else {
      const std::string_view text = letters_.substr(0, step.length);
      letters_.remove_prefix(step.length);
      if constexpr (requires { step.at; }) {
        canvas_.WriteText(step.at, text);
      } else {
        canvas_.CopyBackground(text);
      }
    }
  }

 private:
  Canvas& canvas_;
  std::string_view letters_;
  std::span<const Point> points_;
};

}  // namespace

void Painting::CopyBackground(std::string_view name) {
  steps_.emplace_back(Background{name.size()});
  letters_ += name;
}

void Painting::SetFont(const Font& font) { steps_.emplace_back(font); }

void Painting::SetTextColour(Colour colour) { steps_.emplace_back(colour); }

void Painting::SetPen(const Pen& pen) { steps_.emplace_back(pen); }

void Painting::WriteText(Point at, std::string_view text) {
  steps_.emplace_back(Text{at, text.size()});
  letters_ += text;
}

void Painting::DrawPolyline(std::span<const Point> points) {
  steps_.emplace_back(Polyline{points.size()});
  points_.insert(points_.end(), points.begin(), points.end());
}

void Painting::DrawOn(Canvas& canvas) const {
  Drawing drawing(canvas, letters_, points_);
  for (const auto& step : steps_) std::visit(drawing, step);
}

}  // namespace velnor

#include "diary/svg.h"

#include <array>
#include <utility>

#include "base/number_text.h"

namespace velnor {
namespace {

constexpr std::array<std::string_view, 3> kAnchors = {"start", "middle", "end"};

std::string Coordinate(double value) {
  std::string text = FormatFixed(value, 1);
  if (text.ends_with(".0")) text.resize(text.size() - 2);
  return text;
}

std::string Pair(const PlotPoint& point) { return Coordinate(point.x) + ' ' + Coordinate(point.y); }

}  // namespace

void SvgPath::MoveTo(const PlotPoint& point) { data_ += 'M' + Pair(point); }

void SvgPath::LineTo(const PlotPoint& point) { data_ += 'L' + Pair(point); }

void SvgPath::VerticalTo(double y) { data_ += 'V' + Coordinate(y); }

void SvgPath::Dot(const PlotPoint& point) {
  MoveTo(point);
  data_ += "h0";
}

SvgDrawing::SvgDrawing(const Head& head)
    : text_("<svg id=\"" + head.id + "\" class=\"" + std::string(head.css_class) +
            "\" viewBox=\"0 0 " + Coordinate(head.width) + ' ' + Coordinate(head.height) +
            R"(" role="img" aria-labelledby=")" + head.id + "-t " + head.id + "-d\"><title id=\"" +
            head.id + "-t\">" + head.title + "</title><desc id=\"" + head.id + "-d\">" +
            head.description + "</desc>\n") {}

void SvgDrawing::Attribute(std::string_view name, double value) {
  text_ += ' ';
  text_ += name;
  text_ += "=\"" + Coordinate(value) + '"';
}

void SvgDrawing::Line(const PlotPoint& from, const PlotPoint& to, std::string_view css_class) {
  text_ += "<path class=\"" + std::string(css_class) + "\" d=\"M" + Pair(from) + 'L' + Pair(to) +
           "\"/>\n";
}

void SvgDrawing::Rectangle(const PlotPoint& corner, double width, double height,
                           std::string_view css_class) {
  if (width < 0 || height < 0) return;
  text_ += "<rect class=\"" + std::string(css_class) + '"';
  Attribute("x", corner.x);
  Attribute("y", corner.y);
  Attribute("width", width);
  Attribute("height", height);
  text_ += "/>\n";
}

void SvgDrawing::Path(const SvgPath& path, std::string_view css_class, double stroke_width) {
  if (path.IsEmpty()) return;
  text_ += "<path class=\"" + std::string(css_class) + '"';
  if (stroke_width > 0) Attribute("stroke-width", stroke_width);
  text_ += " d=\"" + path.data() + "\"/>\n";
}

void SvgDrawing::Text(const PlotPoint& at, TextAnchor anchor, std::string_view text,
                      std::string_view css_class) {
  text_ += "<text class=\"" + std::string(css_class) + '"';
  Attribute("x", at.x);
  Attribute("y", at.y);
  if (anchor != TextAnchor::kStart) {
    text_ += " text-anchor=\"";
    text_ += kAnchors[static_cast<std::size_t>(anchor)];
    text_ += '"';
  }
  text_ += '>';
  text_ += text;
  text_ += "</text>\n";
}

std::string SvgDrawing::Finish() { return std::move(text_) + "</svg>\n"; }

}  // namespace velnor

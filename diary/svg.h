// A drawing of the diary's page: lines, areas and texts as SVG. Colours and fonts are classes of
// the page's style sheet. Used by the plots.

#ifndef VELNOR_DIARY_SVG_H_
#define VELNOR_DIARY_SVG_H_

#include <string>
#include <string_view>

namespace velnor {

// In the units of the drawing, y downwards. Written with one decimal.
struct PlotPoint {
  double x = 0;
  double y = 0;
};

// The outline of one or more lines.
class SvgPath {
 public:
  void MoveTo(const PlotPoint& point);
  void LineTo(const PlotPoint& point);
  // From the last point to that height.
  void VerticalTo(double y);
  void Close() { data_ += 'z'; }
  // A point by itself, seen where lines have round ends.
  void Dot(const PlotPoint& point);

  bool IsEmpty() const { return data_.empty(); }
  const std::string& data() const { return data_; }

 private:
  std::string data_;
};

enum class TextAnchor { kStart, kMiddle, kEnd };

class SvgDrawing {
 public:
  struct Head {
    std::string id;  // of the page's elements its own
    std::string_view css_class;
    double width = 0;
    double height = 0;
    std::string title;        // what a screen reader reads first, escaped
    std::string description;  // and then
  };

  explicit SvgDrawing(const Head& head);

  void Line(const PlotPoint& from, const PlotPoint& to, std::string_view css_class);
  // Of a width or height below zero nothing is drawn.
  void Rectangle(const PlotPoint& corner, double width, double height, std::string_view css_class);
  // An empty path is left out. A width of 0 is that of the class.
  void Path(const SvgPath& path, std::string_view css_class, double stroke_width = 0);
  // `text` is escaped; `at` lies on its base line.
  void Text(const PlotPoint& at, TextAnchor anchor, std::string_view text,
            std::string_view css_class);

  // The whole element; nothing can be drawn after it.
  std::string Finish();

 private:
  void Attribute(std::string_view name, double value);

  std::string text_;
};

}  // namespace velnor

#endif  // VELNOR_DIARY_SVG_H_

#include "tests/support/legibility.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace velnor {
namespace {

// Advances of the face that the program gets, in thousandths of its size: Liberation Sans under
// Wine, whose letters are as wide as those of Arial.
struct LetterWidth {
  std::string_view letters;
  int width;
};
constexpr LetterWidth kLetterWidths[] = {
    {"'", 191},       {"ijl", 222}, {" !,./:;I[\\]ft|", 278},
    {"()-`r", 333},   {"\"*", 389}, {"cksvxyzJ", 500},
    {"+<=>~", 584},   {"FTZ", 611}, {"ABEKPSVXY&", 667},
    {"CDHNRUw", 722}, {"GOQ", 778}, {"Mm", 833},
    {"%", 889},       {"W", 944},   {"@", 1015},
};
constexpr int kOtherWidth = 556;
constexpr int kBoldPercent = 107;
constexpr int kNarrowPercent = 86;  // five sixths and what hinting adds
constexpr int kRegularWeight = 400;
// For what hinting adds at some sizes: measured on whole lines, at most five in a hundred.
constexpr int kSafetyPercent = 105;

int WidthOf(char letter) {
  for (const LetterWidth& row : kLetterWidths) {
    if (row.letters.find(letter) != std::string_view::npos) return row.width;
  }
  return kOtherWidth;
}

// The size of a face whose cell is that high; a cell is 1.149 sizes.
int SizeOf(int cell_height) { return (cell_height * 1000 + 930) / 1149; }

// Gathers the pixels under one mark.
class Ground {
 public:
  Ground(const Picture& picture, Colour colour) : picture_(picture), colour_(colour) {}

  // Corners included.
  void Cover(Point from, Point to) {
    for (int y = std::max(from.y, 0); y <= std::min(to.y, picture_.height() - 1); ++y) {
      for (int x = std::max(from.x, 0); x <= std::min(to.x, picture_.width() - 1); ++x) {
        Hold(picture_.At(x, y));
      }
    }
  }

  Mark Worst(MarkKind kind, std::string what, Point at) const {
    Mark mark = {kind, std::move(what), at, colour_, colour_, 1.0};
    if (seen_.empty()) return mark;
    mark.under = *std::ranges::min_element(
        seen_, {}, [this](Colour under) { return Contrast(colour_, under); });
    mark.contrast = Contrast(colour_, mark.under);
    return mark;
  }

 private:
  void Hold(Colour under) {
    if (std::ranges::find(seen_, under) == seen_.end()) seen_.push_back(under);
  }

  const Picture& picture_;
  Colour colour_;
  std::vector<Colour> seen_;  // each once; on a surface there is one
};

void CoverLine(Ground& ground, Point from, Point to, int pen) {
  const int steps = std::max(std::abs(to.x - from.x), std::abs(to.y - from.y));
  const int before = (pen - 1) / 2;
  const int behind = pen / 2;
  for (int step = 0; step <= steps; ++step) {
    const double part = steps == 0 ? 0.0 : static_cast<double>(step) / steps;
    const int x = from.x + static_cast<int>(std::lround(part * (to.x - from.x)));
    const int y = from.y + static_cast<int>(std::lround(part * (to.y - from.y)));
    ground.Cover({x - before, y - before}, {x + behind, y + behind});
  }
}

std::string PointText(Point point) {
  return '(' + std::to_string(point.x) + ", " + std::to_string(point.y) + ')';
}

Mark MeasureText(const DrawnText& drawn, const Picture& background) {
  Ground ground(background, drawn.colour);
  ground.Cover(drawn.at, {drawn.at.x + WidestExtent(drawn.font, drawn.text) - 1,
                          drawn.at.y + drawn.font.height - 1});
  return ground.Worst(MarkKind::kText, drawn.text, drawn.at);
}

Mark MeasureLine(const DrawnLine& drawn, const Picture& background) {
  Ground ground(background, drawn.pen.colour);
  for (std::size_t i = 1; i < drawn.points.size(); ++i) {
    CoverLine(ground, drawn.points[i - 1], drawn.points[i], drawn.pen.width);
  }
  return ground.Worst(MarkKind::kLine,
                      PointText(drawn.points.front()) + " to " + PointText(drawn.points.back()),
                      drawn.points.front());
}

}  // namespace

int WidestExtent(const Font& font, std::string_view text) {
  int width = 0;
  for (const char letter : text) width += (WidthOf(letter) * SizeOf(font.height) + 510) / 1000;
  if (font.weight > kRegularWeight) width = width * kBoldPercent / 100;
  if (font.narrow) width = width * kNarrowPercent / 100;
  return (width * kSafetyPercent + 99) / 100;
}

std::vector<Mark> MeasureMarks(const RecordingCanvas& canvas, const Picture& background) {
  std::vector<Mark> marks;
  for (const DrawnText& drawn : canvas.texts) {
    if (drawn.text.find_first_not_of(' ') == std::string::npos) continue;
    marks.push_back(MeasureText(drawn, background));
  }
  for (const DrawnLine& drawn : canvas.lines) {
    if (drawn.points.size() > 1) marks.push_back(MeasureLine(drawn, background));
  }
  return marks;
}

}  // namespace velnor

#include <algorithm>

#include "diary/calendar.h"
#include "diary/markup.h"
#include "diary/plots.h"

namespace velnor {
namespace {

constexpr double kBarShare = 0.5;  // of a weekday's place
constexpr double kDateBelow = 20;
constexpr double kNumberAbove = 7;
constexpr double kRoomAbove = 1.1;       // for the numbers over the bars
constexpr double kWidestNumber = 10000;  // has no room over its bar
constexpr double kLeastTop = 500;        // kcal

}  // namespace

std::string DrawWeekdayPlot(const PlotShape& shape, const PlotHead& head,
                            std::span<const WeekdayMean> means, const ValueBand& needed) {
  double top = std::max(kLeastTop, needed.upper);
  for (const WeekdayMean& mean : means) top = std::max(top, mean.kcal);
  const PlotPanel panel = {.top = shape.top,
                           .bottom = shape.bottom,
                           .axis = ChooseAxis(0, top * kRoomAbove, shape.most_steps)};
  SvgDrawing drawing(DrawingHead(shape, head));
  DrawBand(drawing, shape, panel, needed);
  DrawValueAxis(drawing, shape, panel, "kcal a day");
  const double place = (shape.right - shape.left) / static_cast<double>(means.size());
  SvgPath bars;
  for (std::size_t i = 0; i < means.size(); ++i) {
    const double x = shape.left + (static_cast<double>(i) + 0.5) * place;
    drawing.Text({x, panel.bottom + kDateBelow}, TextAnchor::kMiddle,
                 WeekdayWord(static_cast<int>(i)), "label");
    if (means[i].days == 0) continue;
    bars.MoveTo({x, panel.bottom});
    bars.VerticalTo(panel.Y(means[i].kcal));
  }
  drawing.Path(bars, "bar", place * kBarShare);
  for (std::size_t i = 0; i < means.size(); ++i) {
    if (means[i].days == 0 || top >= kWidestNumber) continue;
    const double x = shape.left + (static_cast<double>(i) + 0.5) * place;
    drawing.Text({x, panel.Y(means[i].kcal) - kNumberAbove}, TextAnchor::kMiddle,
                 NumberText(means[i].kcal), "number");
  }
  drawing.Line({shape.left, panel.bottom}, {shape.right, panel.bottom}, "axis");
  return drawing.Finish();
}

}  // namespace velnor

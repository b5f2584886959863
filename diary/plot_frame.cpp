#include "diary/plot_frame.h"

#include <algorithm>

namespace velnor {
namespace {

constexpr double kLabelGap = 8;
constexpr double kBaseLine = 4.5;     // from the middle of small letters to the line below them
constexpr double kUnitAbove = 14;     // above the field
constexpr double kDateBelow = 20;     // below it
constexpr double kLetterWidth = 7.5;  // about, of a label
constexpr double kTickLength = 5;
constexpr double kPointPitch = 2;  // between the points of a line

constexpr double kEdge = 4;         // beside the field
constexpr double kTelephone = 500;  // wide at the most

}  // namespace

PlotShape WithoutRightAxis(PlotShape shape) {
  if (shape.width <= kTelephone) shape.right = shape.width - kEdge;
  return shape;
}

double PlotPanel::Y(double value) const {
  const double share = (std::clamp(value, axis.low, axis.high) - axis.low) / (axis.high - axis.low);
  return bottom - share * (bottom - top);
}

TimeAxis TimeAxisOf(const PlotShape& shape, const DayRange& range) {
  return {.range = range, .left = shape.left, .right = shape.right};
}

void DrawValueAxis(SvgDrawing& drawing, const PlotShape& shape, const PlotPanel& panel,
                   std::string_view unit) {
  for (const double tick : panel.axis.Ticks()) {
    const double y = panel.Y(tick);
    drawing.Line({shape.left, y}, {shape.right, y}, "grid");
    drawing.Text({shape.left - kLabelGap, y + kBaseLine}, TextAnchor::kEnd,
                 panel.axis.TickText(tick), "label");
  }
  drawing.Text({0, panel.top - kUnitAbove}, TextAnchor::kStart, unit, "unit");
}

void DrawTimeAxis(SvgDrawing& drawing, const PlotShape& shape, const PlotPanel& panel,
                  const TimeAxis& time, bool with_labels) {
  drawing.Line({shape.left, panel.bottom}, {shape.right, panel.bottom}, "axis");
  for (const DateTick& tick : DateTicks(time.range, shape.most_dates)) {
    const double x = time.X(tick.day);
    drawing.Line({x, panel.bottom}, {x, panel.bottom + kTickLength}, "axis");
    if (!with_labels) continue;
    const double reach = static_cast<double>(tick.label.size()) * kLetterWidth / 2;
    const double middle = std::clamp(x, reach, shape.width - reach);
    drawing.Text({middle, panel.bottom + kDateBelow}, TextAnchor::kMiddle, tick.label, "label");
  }
}

void DrawBand(SvgDrawing& drawing, const PlotShape& shape, const PlotPanel& panel,
              const ValueBand& band) {
  if (!band.IsKnown()) return;
  const double upper = panel.Y(band.upper);
  const double lower = panel.Y(band.lower);
  drawing.Rectangle({shape.left, upper}, shape.right - shape.left, lower - upper, "band");
  drawing.Line({shape.left, upper}, {shape.right, upper}, "bound");
  drawing.Line({shape.left, lower}, {shape.right, lower}, "bound");
}

SvgPath CurveThrough(std::span<const DayValue> values, const TimeAxis& time, const PlotPanel& panel,
                     int most_days) {
  SvgPath path;
  const auto are_joined = [&](std::size_t i) {
    return i > 0 && i < values.size() && values[i].day - values[i - 1].day <= most_days;
  };
  for (std::size_t i = 0; i < values.size(); ++i) {
    const PlotPoint point = {time.Middle(values[i].day), panel.Y(values[i].value)};
    if (are_joined(i)) {
      path.LineTo(point);
    } else if (are_joined(i + 1)) {
      path.MoveTo(point);
    } else {
      path.Dot(point);
    }
  }
  return path;
}

ThinnedValues ThinOut(std::span<const DayValue> values, const PlotShape& shape,
                      const DayRange& range) {
  const double places = (shape.right - shape.left) / kPointPitch;
  ThinnedValues thinned = {.step = std::max(1, static_cast<int>(range.Days() / places))};
  for (const DayValue& value : values) {
    const bool is_far =
        thinned.values.empty() || value.day - thinned.values.back().day >= thinned.step;
    if (range.Has(value.day) && is_far) thinned.values.push_back(value);
  }
  return thinned;
}

void DrawBeyond(SvgPath& path, double x, const PlotPanel& panel) {
  path.MoveTo({x - 4, panel.top - 3});
  path.LineTo({x + 4, panel.top - 3});
  path.LineTo({x, panel.top - 10});
  path.Close();
}

void DrawBelow(SvgPath& path, double x, const PlotPanel& panel) {
  path.MoveTo({x - 4, panel.bottom - 10});
  path.LineTo({x + 4, panel.bottom - 10});
  path.LineTo({x, panel.bottom - 3});
  path.Close();
}

void DrawNothing(SvgDrawing& drawing, const PlotShape& shape, const PlotPanel& panel,
                 std::string_view text) {
  const PlotPoint middle = {(shape.left + shape.right) / 2, (panel.top + panel.bottom) / 2};
  drawing.Text(middle, TextAnchor::kMiddle, text, "nothing");
}

}  // namespace velnor

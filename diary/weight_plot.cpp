#include <algorithm>
#include <vector>

#include "diary/plots.h"

namespace velnor {
namespace {

constexpr int kMostTrendDays = 45;  // without a weight, that the line goes across
constexpr double kLabelGap = 8;
constexpr double kBaseLine = 4.5;
constexpr double kUnitAbove = 14;
constexpr double kPointDistance = 3;  // kg, from the trend, that still decides on the axis
constexpr double kSmallPoints = 4;    // a day's place, from which on points are small
constexpr double kLeastSpan = 2;      // kg
constexpr double kLeastMass = 0.1;    // of the index
constexpr double kGreatestMass = 1000;

std::vector<DayValue> Within(std::span<const DayValue> values, const DayRange& range) {
  std::vector<DayValue> inside;
  for (const DayValue& value : values) {
    if (range.Has(value.day)) inside.push_back(value);
  }
  return inside;
}

struct Span {
  double low;
  double high;
};

// Of the trend, and of the points but for those far from it; of all points where there is no trend.
Span SpanOf(std::span<const DayValue> weights, std::span<const DayValue> trend) {
  std::vector<double> values;
  for (const DayValue& value : trend) values.push_back(value.value);
  double low = 0;
  double high = 1e9;
  if (!values.empty()) {
    low = *std::ranges::min_element(values) - kPointDistance;
    high = *std::ranges::max_element(values) + kPointDistance;
  }
  for (const DayValue& weight : weights) {
    if (weight.value >= low && weight.value <= high) values.push_back(weight.value);
  }
  const Span span = {*std::ranges::min_element(values), *std::ranges::max_element(values)};
  const double missing = std::max(0.0, kLeastSpan - (span.high - span.low)) / 2;
  return {span.low - missing, span.high + missing};
}

void DrawMassIndex(SvgDrawing& drawing, const PlotShape& shape, const PlotPanel& panel,
                   double height) {
  const double square = height * height;
  const double low = panel.axis.low / square;
  const double high = panel.axis.high / square;
  if (low < kLeastMass || high > kGreatestMass) return;
  const ValueAxis index = ChooseAxis(low, high, shape.most_steps + 1);
  for (const double tick : index.Ticks()) {
    if (tick < low || tick > high) continue;
    const double y = panel.Y(tick * square);
    drawing.Line({shape.right, y}, {shape.right + 4, y}, "axis");
    drawing.Text({shape.right + kLabelGap, y + kBaseLine}, TextAnchor::kStart, index.TickText(tick),
                 "label");
  }
  drawing.Text({shape.width, panel.top - kUnitAbove}, TextAnchor::kEnd, "BMI", "unit");
}

bool IsDense(const TimeAxis& time) { return time.DayWidth() < kSmallPoints; }

void DrawTrend(SvgDrawing& drawing, std::span<const DayValue> trend, const PlotInput& input,
               const TimeAxis& time, const PlotPanel& panel) {
  const ThinnedValues line = ThinOut(trend, input.shape, input.range);
  const SvgPath curve = CurveThrough(line.values, time, panel, kMostTrendDays + line.step);
  if (IsDense(time)) drawing.Path(curve, "casing");
  drawing.Path(curve, "smooth");
}

void DrawPoints(SvgDrawing& drawing, std::span<const DayValue> points, const TimeAxis& time,
                const PlotPanel& panel) {
  SvgPath dots;
  SvgPath beyond;
  for (const DayValue& point : points) {
    const double x = time.Middle(point.day);
    if (point.value > panel.axis.high) {
      DrawBeyond(beyond, x, panel);
    } else if (point.value < panel.axis.low) {
      DrawBelow(beyond, x, panel);
    } else {
      dots.Dot({x, panel.Y(point.value)});
    }
  }
  drawing.Path(dots, IsDense(time) ? "points small" : "points");
  drawing.Path(beyond, "beyond");
}

}  // namespace

std::optional<ValueAxis> WeightAxis(const PlotShape& shape, const DayRange& range,
                                    std::span<const DayValue> weights,
                                    std::span<const DayValue> trend) {
  const std::vector<DayValue> points = Within(weights, range);
  if (points.empty()) return std::nullopt;
  const Span span = SpanOf(points, Within(trend, range));
  return ChooseAxis(span.low, span.high, shape.most_steps);
}

std::string DrawWeightPlot(const PlotInput& input, std::span<const DayValue> weights,
                           std::span<const DayValue> trend, std::optional<double> height) {
  const PlotShape& shape = input.shape;
  const TimeAxis time = TimeAxisOf(shape, input.range);
  SvgDrawing drawing(DrawingHead(shape, input.head));
  PlotPanel panel = {.top = shape.top, .bottom = shape.bottom};
  const std::optional<ValueAxis> axis = WeightAxis(shape, input.range, weights, trend);
  if (!axis) {
    DrawTimeAxis(drawing, shape, panel, time);
    DrawNothing(drawing, shape, panel, "No weight was saved in these days");
    return drawing.Finish();
  }
  panel.axis = *axis;
  DrawValueAxis(drawing, shape, panel, "kg");
  if (height) DrawMassIndex(drawing, shape, panel, *height);
  // Few points lie on the line, so that none is lost; many would hide it.
  if (!IsDense(time)) DrawTrend(drawing, trend, input, time, panel);
  DrawPoints(drawing, Within(weights, input.range), time, panel);
  if (IsDense(time)) DrawTrend(drawing, trend, input, time, panel);
  DrawTimeAxis(drawing, shape, panel, time);
  return drawing.Finish();
}

std::string DrawDeficitPlot(const PlotInput& input, std::span<const DayValue> deficit,
                            std::span<const DayValue> trend) {
  const PlotShape& shape = input.shape;
  const TimeAxis time = TimeAxisOf(shape, input.range);
  constexpr double kShareAbove = 0.52;
  constexpr double kBetween = 44;
  const double height = shape.bottom - shape.top - kBetween;
  PlotPanel sums = {.top = shape.top, .bottom = shape.top + height * kShareAbove};
  PlotPanel weights = {.top = sums.bottom + kBetween, .bottom = shape.bottom};

  SvgDrawing drawing(DrawingHead(shape, input.head));
  if (deficit.empty()) {
    DrawNothing(drawing, shape, sums, "Nothing was entered in these days");
  } else {
    std::vector<DayValue> thousands(deficit.begin(), deficit.end());
    for (DayValue& value : thousands) value.value /= 1000;
    const auto [low, high] = std::ranges::minmax_element(thousands, {}, &DayValue::value);
    sums.axis = ChooseAxis(std::min(0.0, low->value), std::max(0.0, high->value), 3);
    DrawValueAxis(drawing, shape, sums, "1000 kcal, sum of the deficit");
    drawing.Line({shape.left, sums.Y(0)}, {shape.right, sums.Y(0)}, "axis");
    const ThinnedValues line = ThinOut(thousands, shape, input.range);
    drawing.Path(CurveThrough(line.values, time, sums, line.step), "sum");
  }
  const std::vector<DayValue> inside = Within(trend, input.range);
  if (inside.empty()) {
    DrawNothing(drawing, shape, weights, "Too few weights for a trend");
  } else {
    const Span span = SpanOf({}, inside);
    weights.axis = ChooseAxis(span.low, span.high, 3);
    DrawValueAxis(drawing, shape, weights, "kg, trend of the weight");
    DrawTrend(drawing, trend, input, time, weights);
  }
  DrawTimeAxis(drawing, shape, weights, time);
  return drawing.Finish();
}

}  // namespace velnor

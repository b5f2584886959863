#include <algorithm>
#include <vector>

#include "diary/plots.h"

namespace velnor {
namespace {

constexpr double kBarShare = 0.76;  // of a bar's place
constexpr double kWidestBar = 24;
constexpr double kLeastTop = 500;   // kcal
constexpr double kMostMedians = 3;  // the axis reaches no farther
constexpr double kAboveRequirement = 1.15;

// A few days far above the others leave the axis to these.
double TopOf(const std::vector<std::optional<double>>& means, const ValueBand& needed) {
  std::vector<double> values;
  for (const std::optional<double>& mean : means) {
    if (mean) values.push_back(*mean);
  }
  double top = std::max(kLeastTop, needed.upper * kAboveRequirement);
  if (values.empty()) return top;
  std::ranges::sort(values);
  const double median = values[values.size() / 2];
  return std::max(top, std::min(values.back(), median * kMostMedians));
}

}  // namespace

SvgDrawing::Head DrawingHead(const PlotShape& shape, const PlotHead& head) {
  return {.id = head.id + '-' + std::string(shape.css_class),
          .css_class = shape.css_class,
          .width = shape.width,
          .height = shape.height,
          .title = head.title,
          .description = head.description};
}

std::string DrawCaloriePlot(const PlotInput& input, std::span<const DiaryDay> days,
                            const ValueBand& needed) {
  const PlotShape& shape = input.shape;
  const TimeAxis time = TimeAxisOf(shape, input.range);
  const std::vector<DayValue> eaten = EatenKcal(days);
  const std::vector<DayRange> buckets =
      BucketsOf(input.range, ChooseUnit(input.range, shape.most_buckets));
  const std::vector<std::optional<double>> means = BucketMeans(eaten, buckets);
  const PlotPanel panel = {.top = shape.top,
                           .bottom = shape.bottom,
                           .axis = ChooseAxis(0, TopOf(means, needed), shape.most_steps)};

  SvgDrawing drawing(DrawingHead(shape, input.head));
  DrawBand(drawing, shape, panel, needed);
  DrawValueAxis(drawing, shape, panel, "kcal a day");
  SvgPath bars;
  SvgPath beyond;
  bool is_empty = true;
  for (std::size_t i = 0; i < buckets.size(); ++i) {
    if (!means[i]) continue;
    is_empty = false;
    const double x = (time.X(buckets[i].first) + time.X(buckets[i].last + 1)) / 2;
    bars.MoveTo({x, panel.bottom});
    bars.VerticalTo(panel.Y(*means[i]));
    if (*means[i] > panel.axis.high) DrawBeyond(beyond, x, panel);
  }
  for (const DiaryDay& day : days) {
    if (!input.range.Has(day.day) || !IsEatenDay(day) || CountsInMeans(day)) continue;
    is_empty = false;
    DrawBeyond(beyond, time.Middle(day.day), panel);
  }
  // The place of a whole piece: those at the ends may be cut.
  const auto pieces = static_cast<double>(buckets.size());
  const double place = (shape.right - shape.left) / pieces;
  drawing.Path(bars, "bar", std::min(place * kBarShare, kWidestBar));
  drawing.Path(beyond, "beyond");
  const ThinnedValues line = ThinOut(WeekMeans(eaten, input.range), shape, input.range);
  const SvgPath curve = CurveThrough(line.values, time, panel, line.step);
  const bool is_dense = buckets.size() < static_cast<std::size_t>(input.range.Days());
  drawing.Path(curve, is_dense ? "casing thin" : "casing");
  drawing.Path(curve, is_dense ? "smooth thin" : "smooth");
  DrawTimeAxis(drawing, shape, panel, time);
  if (is_empty) DrawNothing(drawing, shape, panel, "Nothing was entered in these days");
  return drawing.Finish();
}

}  // namespace velnor

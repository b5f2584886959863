#include <algorithm>
#include <array>
#include <vector>

#include "diary/plots.h"

namespace velnor {
namespace {

constexpr double kProteinEnergy = 4;  // kcal a gram
constexpr double kFatEnergy = 9;
constexpr double kCarbohydrateEnergy = 4;

constexpr double kBarShare = 0.84;  // of a bar's place
constexpr double kWidestBar = 24;
constexpr double kPartGap = 1.2;  // between two parts of a bar

constexpr std::array<std::string_view, 3> kPartClasses = {"bar protein", "bar fat",
                                                          "bar carbohydrate"};

}  // namespace

std::optional<EnergyShares> SharesOf(const Nutrients& grams) {
  const double protein = std::max(0.0, grams.protein) * kProteinEnergy;
  const double fat = std::max(0.0, grams.fat) * kFatEnergy;
  const double carbohydrate = std::max(0.0, grams.carbohydrate) * kCarbohydrateEnergy;
  const double sum = protein + fat + carbohydrate;
  if (sum <= 0) return std::nullopt;
  return EnergyShares{
      .protein = protein / sum, .fat = fat / sum, .carbohydrate = carbohydrate / sum};
}

Nutrients SumNutrients(std::span<const DiaryDay> days) {
  Nutrients sum;
  for (const DiaryDay& day : days) {
    if (!CountsInMeans(day)) continue;
    sum.kcal += day.totals.kcal;
    sum.protein += day.totals.protein;
    sum.fat += day.totals.fat;
    sum.carbohydrate += day.totals.carbohydrate;
  }
  return sum;
}

std::string DrawSharePlot(const PlotInput& input, std::span<const DiaryDay> days) {
  const PlotShape& shape = input.shape;
  const TimeAxis time = TimeAxisOf(shape, input.range);
  const std::vector<DayRange> buckets =
      BucketsOf(input.range, ChooseUnit(input.range, shape.most_buckets));
  const PlotPanel panel = {
      .top = shape.top, .bottom = shape.bottom, .axis = {.low = 0, .high = 100, .step = 25}};

  SvgDrawing drawing(DrawingHead(shape, input.head));
  DrawValueAxis(drawing, shape, panel, "% of energy");
  std::array<SvgPath, kPartClasses.size()> parts;
  auto day = days.begin();
  for (const DayRange& bucket : buckets) {
    while (day != days.end() && day->day < bucket.first) ++day;
    const auto first = day;
    while (day != days.end() && day->day <= bucket.last) ++day;
    const std::optional<EnergyShares> shares = SharesOf(SumNutrients({first, day}));
    if (!shares) continue;
    const double x = (time.X(bucket.first) + time.X(bucket.last + 1)) / 2;
    const std::array<double, 4> bounds = {0, shares->protein * 100,
                                          (shares->protein + shares->fat) * 100, 100};
    for (std::size_t part = 0; part < parts.size(); ++part) {
      const double from = panel.Y(bounds[part]) - (part == 0 ? 0 : kPartGap);
      const double to = panel.Y(bounds[part + 1]);
      if (to >= from) continue;
      parts[part].MoveTo({x, from});
      parts[part].VerticalTo(to);
    }
  }
  const double place = (shape.right - shape.left) / static_cast<double>(buckets.size());
  bool is_empty = true;
  for (std::size_t part = 0; part < parts.size(); ++part) {
    is_empty = is_empty && parts[part].IsEmpty();
    drawing.Path(parts[part], kPartClasses[part], std::min(place * kBarShare, kWidestBar));
  }
  DrawTimeAxis(drawing, shape, panel, time);
  if (is_empty) DrawNothing(drawing, shape, panel, "Nothing was entered in these days");
  return drawing.Finish();
}

}  // namespace velnor

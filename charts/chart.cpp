#include "charts/chart.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/number_text.h"

namespace velnor {
namespace {

constexpr std::size_t kValueLimit = 5;    // characters of a field that are read
constexpr std::size_t kShortestLine = 5;  // characters that a line needs to have a value
constexpr double kOutOfSight = 20'000;    // pixels; the window system draws no further anyway

constexpr std::string_view kNutrientNote =
    "Graph created automatically basing on data from daily balance";
constexpr std::string_view kNoNutrients = "No data to draw this chart";

// By ChartId.
constexpr std::array<Chart, 5> kCharts = {{
    {.title = "WEIGHT CHART - last 20 entries",
     .note = "Entries are making by writing the report at calculating the BMI rate",
     .unit = "weight[kg]",
     .file = kWeightSeriesFile,
     .no_data = "No datas to draw this chart",
     .field = 2,
     .pixels_per_unit = 1.666667,  // a hair above 5/3: 180 kg lie one pixel above their tick
     .top = 180,
     .step = 15,
     .colour = {0, 0, 188},
     .lower_bound = std::nullopt},
    {.title = "CALORIE CHART - last 20 entries",
     .note = kNutrientNote,
     .unit = "[kcal]",
     .file = kNutrientSeriesFile,
     .no_data = kNoNutrients,
     .field = 2,
     .pixels_per_unit = 0.0625,
     .top = 4800,
     .step = 400,
     .colour = {255, 139, 137},
     .lower_bound = kCaloriesLower},
    {.title = "PROTEINS CHART - last 20 entries",
     .note = kNutrientNote,
     .unit = "[g]",
     .file = kNutrientSeriesFile,
     .no_data = kNoNutrients,
     .field = 3,
     .pixels_per_unit = 1.25,
     .top = 240,
     .step = 20,
     .colour = {255, 255, 255},
     .lower_bound = kProteinLower},
    {.title = "FAT CHART - last 20 entries",
     .note = kNutrientNote,
     .unit = "[g]",
     .file = kNutrientSeriesFile,
     .no_data = kNoNutrients,
     .field = 4,
     .pixels_per_unit = 1.25,
     .top = 240,
     .step = 20,
     .colour = {255, 255, 71},
     .lower_bound = kFatLower},
    {.title = "CARBOHYDRATES CHART - last 20 entries",
     .note = kNutrientNote,
     .unit = "[g]",
     .file = kNutrientSeriesFile,
     .no_data = kNoNutrients,
     .field = 5,
     .pixels_per_unit = 0.125,
     .top = 2400,
     .step = 200,
     .colour = {0, 0, 0},
     .lower_bound = kCarbohydrateLower},
}};

// The field of a line without the semicolon that closes it; empty when the line has fewer fields.
std::string_view FieldOf(std::string_view line, std::size_t field) {
  for (; field > 1; --field) {
    const std::size_t end = line.find(';');
    if (end == std::string_view::npos) return {};
    line.remove_prefix(end + 1);
  }
  return line.substr(0, line.find(';'));
}

}  // namespace

const Chart& FindChart(ChartId id) { return kCharts[static_cast<std::size_t>(id)]; }

int ChartY(const Chart& chart, double value) {
  const double height = std::ceil(value * chart.pixels_per_unit);
  return kChartBottom - static_cast<int>(std::clamp(height, -kOutOfSight, kOutOfSight));
}

double ChartValue(const Chart& chart, std::string_view line) {
  if (line.size() < kShortestLine) return 0.0;
  const double value = ParseNumber(FieldOf(line, chart.field).substr(0, kValueLimit));
  return std::min(value, static_cast<double>(chart.top));
}

std::string_view DayLabel(std::string_view line) {
  const std::size_t second_point = line.find('.', line.find('.') + 1);
  if (second_point == std::string_view::npos) return FieldOf(line, 1);
  return line.substr(0, second_point);
}

std::vector<ChartPoint> ChartPoints(const Chart& chart, const ChartSeries& series) {
  std::vector<ChartPoint> points;
  std::size_t remaining = series.last + 1;
  for (int x = kChartRight; x >= kChartLeft; x -= kChartColumn) {
    if (remaining == 0) {
      points.push_back({{x, kChartBottom}, {}});
      continue;
    }
    const std::string& line = series.slots[--remaining];
    points.push_back({{x, ChartY(chart, ChartValue(chart, line))}, {}});
    if (x != kChartRight) points.back().label = DayLabel(line);
  }
  return points;
}

}  // namespace velnor

// The five charts: what each draws, from which series, and where its points lie. Plain values and
// geometry; the chart screen paints them.

#ifndef VELNOR_CHARTS_CHART_H_
#define VELNOR_CHARTS_CHART_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "activity/personal_limits.h"
#include "base/canvas.h"
#include "charts/chart_file.h"
#include "users/user_files.h"

namespace velnor {

enum class ChartId : std::size_t { kWeight, kCalories, kProteins, kFat, kCarbohydrates };

struct Chart {
  std::string_view title;
  std::string_view note;  // where the entries come from
  std::string_view unit;
  std::string_view file;     // the series, in the folder of the user
  std::string_view no_data;  // what is said when that file is empty
  std::size_t field;         // of a line of the series; 1 is the date
  double pixels_per_unit;
  int top;   // the label of the highest tick; a value above it is drawn at it
  int step;  // from one label down to the next
  Colour colour;
  std::optional<Limit> lower_bound;  // of the requirement drawn behind; the upper one follows it
};

const Chart& FindChart(ChartId id);

// The corners of the plot, pixels. The newest entry stands on the right axis, each older one a
// column further left; at y = kChartBottom a value is 0.
inline constexpr int kChartLeft = 50;
inline constexpr int kChartRight = 750;
inline constexpr int kChartBottom = 450;
inline constexpr int kChartColumn = 35;

// The height at which `value` is drawn: whole pixels above the bottom axis, rounded away from it.
// Values so large that no screen reaches there give 20,000 pixels above or below it.
int ChartY(const Chart& chart, double value);

// The value of a line: its field's first five characters read as a number, at most the chart's top.
// A line of fewer than five characters, or without the field, or with text in it, gives 0.
double ChartValue(const Chart& chart, std::string_view line);

// Day and month of a line: everything before its second point, or when it has no second point the
// whole first field.
std::string_view DayLabel(std::string_view line);

struct ChartPoint {
  Point at;
  std::string label;  // empty: none
  bool operator==(const ChartPoint&) const = default;
};

// The 21 points of a drawn chart from right to left: the newest entry, which has no label, then the
// older ones with theirs, then the bottom axis where there are no more.
std::vector<ChartPoint> ChartPoints(const Chart& chart, const ChartSeries& series);

}  // namespace velnor

#endif  // VELNOR_CHARTS_CHART_H_

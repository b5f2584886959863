// What all plots of the diary have in common: their two shapes, axes with grid and labels, and the
// ways to draw values over time. Used by the plots.

#ifndef VELNOR_DIARY_PLOT_FRAME_H_
#define VELNOR_DIARY_PLOT_FRAME_H_

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "diary/statistics.h"
#include "diary/svg.h"
#include "diary/time_axis.h"
#include "diary/value_axis.h"

namespace velnor {

// A plot is drawn twice, for screens and for telephones; the style sheet shows one of them.
struct PlotShape {
  std::string_view css_class;
  double width;
  double height;
  double left;  // edges of the plot's field
  double right;
  double top;
  double bottom;
  int most_buckets;
  int most_dates;
  int most_steps;  // of values
};

// clang-format off
inline constexpr std::array<PlotShape, 2> kPlotShapes = {{
    {"wide",   880, 290, 56, 836, 30, 258, 400, 11, 5},
    {"narrow", 340, 262, 52, 298, 30, 230, 110,  4, 5},
}};
// clang-format on

// The shape for a plot without an axis on the right: on a telephone the field reaches to the edge.
// On a screen it stays, so that the same day lies in one place in all plots.
PlotShape WithoutRightAxis(PlotShape shape);

// A part of the field with an axis of values of its own.
struct PlotPanel {
  double top = 0;
  double bottom = 0;
  ValueAxis axis = {};

  // Values beyond the axis lie on its end.
  double Y(double value) const;
};

TimeAxis TimeAxisOf(const PlotShape& shape, const DayRange& range);

// Lines and labels of the values, the unit above them.
void DrawValueAxis(SvgDrawing& drawing, const PlotShape& shape, const PlotPanel& panel,
                   std::string_view unit);
// The line below the panel, and the dates when `with_labels`.
void DrawTimeAxis(SvgDrawing& drawing, const PlotShape& shape, const PlotPanel& panel,
                  const TimeAxis& time, bool with_labels = true);

// The requirement as a band with its two bounds; an upper bound of 0 draws nothing.
struct ValueBand {
  double lower = 0;
  double upper = 0;
  bool IsKnown() const { return upper > 0; }
  double Middle() const { return (lower + upper) / 2; }
};
void DrawBand(SvgDrawing& drawing, const PlotShape& shape, const PlotPanel& panel,
              const ValueBand& band);

// A line through the values, parted where more than `most_days` days lie between two. Points alone
// are dots.
SvgPath CurveThrough(std::span<const DayValue> values, const TimeAxis& time, const PlotPanel& panel,
                     int most_days);

// About as many of the values as the field can show, at even distances in days, each with the days
// that it stands for.
struct ThinnedValues {
  std::vector<DayValue> values = {};
  int step = 1;  // days
};
ThinnedValues ThinOut(std::span<const DayValue> values, const PlotShape& shape,
                      const DayRange& range);

// A small mark at the top of the field, for what lies beyond it.
void DrawBeyond(SvgPath& path, double x, const PlotPanel& panel);
// A small mark at the bottom of the field, for what lies below it.
void DrawBelow(SvgPath& path, double x, const PlotPanel& panel);

// "Nothing ..." in the middle of the field.
void DrawNothing(SvgDrawing& drawing, const PlotShape& shape, const PlotPanel& panel,
                 std::string_view text);

}  // namespace velnor

#endif  // VELNOR_DIARY_PLOT_FRAME_H_

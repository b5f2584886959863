// The plots of the diary, each as the SVG element of one shape. Their colours are explained by the
// page, which also says in words what they show. Used by the page.

#ifndef VELNOR_DIARY_PLOTS_H_
#define VELNOR_DIARY_PLOTS_H_

#include <optional>
#include <span>
#include <string>

#include "diary/plot_frame.h"
#include "diary/statistics.h"

namespace velnor {

struct PlotHead {
  std::string id;           // of the page's elements its own
  std::string title;        // escaped
  std::string description;  // what it shows, in words, escaped
};

struct PlotInput {
  const PlotShape& shape;
  PlotHead head;
  DayRange range;
};

// Bars of energy, a day each where there is room, else the mean of a week, a month or a year; the
// mean of seven days as a line; the requirement as a band. `days` reach back six days before the
// range. Days that count in no mean are marked at the top.
std::string DrawCaloriePlot(const PlotInput& input, std::span<const DiaryDay> days,
                            const ValueBand& needed);

// The shares of protein, fat and carbohydrate in the energy of the three: 4, 9 and 4 kcal a gram.
std::string DrawSharePlot(const PlotInput& input, std::span<const DiaryDay> days);

// Weights as points, their trend as a line; the body mass index on the right when the height, in m,
// is known. Weights beyond the axis are marked at its ends. Both series of the whole diary.
std::string DrawWeightPlot(const PlotInput& input, std::span<const DayValue> weights,
                           std::span<const DayValue> trend, std::optional<double> height);

// The axis of that plot: around the trend, and the weights near it. Returns nothing if none lies in
// the range.
std::optional<ValueAxis> WeightAxis(const PlotShape& shape, const DayRange& range,
                                    std::span<const DayValue> weights,
                                    std::span<const DayValue> trend);

// The sum of the deficit above, the trend of the weight below, on one axis of time.
std::string DrawDeficitPlot(const PlotInput& input, std::span<const DayValue> deficit,
                            std::span<const DayValue> trend);

// The mean of each weekday as a bar, the requirement as a band.
std::string DrawWeekdayPlot(const PlotShape& shape, const PlotHead& head,
                            std::span<const WeekdayMean> means, const ValueBand& needed);

// The head of a plot with its shape's class and size.
SvgDrawing::Head DrawingHead(const PlotShape& shape, const PlotHead& head);

// Share of each in the energy of the three, which sum up to 1; nothing where there are no grams.
struct EnergyShares {
  double protein = 0;
  double fat = 0;
  double carbohydrate = 0;
};
std::optional<EnergyShares> SharesOf(const Nutrients& grams);

// The grams that count in the shares, summed over the days.
Nutrients SumNutrients(std::span<const DiaryDay> days);

}  // namespace velnor

#endif  // VELNOR_DIARY_PLOTS_H_

// The axis of time of a plot: where its days lie, into which pieces they are gathered when there
// are more of them than places, and which dates stand below.

#ifndef VELNOR_DIARY_TIME_AXIS_H_
#define VELNOR_DIARY_TIME_AXIS_H_

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "diary/statistics.h"

namespace velnor {

// Every day has a place as wide as the others; a whole number of days lies on its left edge.
struct TimeAxis {
  DayRange range = {};
  double left = 0;
  double right = 0;

  double DayWidth() const { return (right - left) / range.Days(); }
  double X(double day) const { return left + (day - range.first) * DayWidth(); }
  double Middle(DayNumber day) const { return X(day + 0.5); }
};

enum class BucketUnit { kDay, kWeek, kMonth, kYear };

// The least unit by which the range has at most `most` pieces; years when none has so few.
BucketUnit ChooseUnit(const DayRange& range, int most);

// The pieces of the range, which is at most some centuries long: weeks from Monday, months and
// years of the calendar, the first and the last cut to the range.
std::vector<DayRange> BucketsOf(const DayRange& range, BucketUnit unit);

// The mean of the values of each piece; `values` go by day.
std::vector<std::optional<double>> BucketMeans(std::span<const DayValue> values,
                                               std::span<const DayRange> buckets);

struct DateTick {
  double day = 0;  // what the label stands below: the middle of a day, the beginning of a month
  std::string label = {};
  bool operator==(const DateTick&) const = default;
};

// At most `most` dates of the range in even steps, as "5 Mar", "Mar", or "2026" for January and for
// steps of years.
std::vector<DateTick> DateTicks(const DayRange& range, int most);

}  // namespace velnor

#endif  // VELNOR_DIARY_TIME_AXIS_H_

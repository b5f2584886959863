// The axis of values of a plot: round numbers around what is to be shown.

#ifndef VELNOR_DIARY_VALUE_AXIS_H_
#define VELNOR_DIARY_VALUE_AXIS_H_

#include <string>
#include <vector>

namespace velnor {

struct ValueAxis {
  double low = 0;
  double high = 1;
  double step = 1;  // 1, 2 or 5 times a power of ten

  // The steps from low to high.
  std::vector<double> Ticks() const;
  // As many decimals as the step has.
  std::string TickText(double tick) const;
  bool operator==(const ValueAxis&) const = default;
};

// From the round number below `low` to the one above `high`, in at most `most` steps, two where
// that is fewer. Where both are alike, or no finite numbers, a step stands around them, or 0 to 1.
ValueAxis ChooseAxis(double low, double high, int most);

}  // namespace velnor

#endif  // VELNOR_DIARY_VALUE_AXIS_H_

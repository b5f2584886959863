// The scales on which a day's totals are held against the daily requirement: where figures lie on
// them and how they stand to the norm. Drawn by the balance screen.

#ifndef VELNOR_FOOD_BALANCE_SCALE_H_
#define VELNOR_FOOD_BALANCE_SCALE_H_

#include <span>
#include <string>
#include <string_view>

#include "activity/requirement.h"
#include "food/day_balance.h"

namespace velnor {

struct BalanceScale {
  int norm_y;                    // of "NORM" and the tolerance, pixels from the top
  int label_y;                   // of the figures under the axis
  int eaten_y;                   // of the row with the amount eaten
  int out_of_scale_y;            // of the mark for an amount beyond the scale
  std::string_view range_text;   // the tolerance, as it is shown
  int range;                     // the same, in the unit of the scale
  std::string_view eaten_label;  // with the unit
  int unit_per_tick;             // what lies between two ticks
  double pixels_per_unit;
  double DayTotals::*eaten;
  Range DailyRequirement::*norm;
};

// Calories, protein, fat, carbohydrates, from the top of the screen down.
std::span<const BalanceScale> BalanceScales();

inline constexpr int kScaleLeft = 50;  // pixels: where 0 is
inline constexpr int kScaleRight = 750;

// Where an amount lies on the scale; what lies beyond an end gives that end.
int ScaleX(const BalanceScale& scale, double amount);

// Whether an amount lies beyond the right end.
bool IsOutOfScale(const BalanceScale& scale, double amount);

// How an amount stands to the norm: inside it within the tolerance, its ends included.
enum class Standing { kUnknown, kBelow, kInside, kAbove };
Standing StandingOf(const BalanceScale& scale, double amount, const DailyRequirement& requirement);

inline constexpr std::string_view kNorm = "NORM";

// The same in words: "NORM", "+" and what is above the upper bound, "-" and what is missing to the
// lower one, in six digits, or "unavailable".
std::string StandingText(const BalanceScale& scale, double amount,
                         const DailyRequirement& requirement);

}  // namespace velnor

#endif  // VELNOR_FOOD_BALANCE_SCALE_H_

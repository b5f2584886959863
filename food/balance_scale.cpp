#include "food/balance_scale.h"

#include <algorithm>

#include "base/number_text.h"
#include "food/nutrition.h"

namespace velnor {
namespace {

// clang-format off
constexpr BalanceScale kScales[] = {
    {70, 117, 145, 75, "RANGE +/- 100kcal", 100, "eaten[kcal]", 1000, 0.1,
     &DayTotals::kcal, &DailyRequirement::calories},
    {200, 247, 270, 205, "RANGE +/- 8g", 8, "eaten[g]", 40, 2.5,
     &DayTotals::protein, &DailyRequirement::protein},
    {330, 377, 402, 335, "RANGE +/- 8g", 8, "eaten[g]", 40, 2.5,
     &DayTotals::fat, &DailyRequirement::fat},
    {458, 507, 530, 465, "RANGE +/- 20g", 20, "eaten[g]", 200, 0.5,
     &DayTotals::carbohydrate, &DailyRequirement::carbohydrate},
};
// clang-format on

double Pixels(const BalanceScale& scale, double amount) {
  return kScaleLeft + amount * scale.pixels_per_unit;
}

}  // namespace

std::span<const BalanceScale> BalanceScales() { return kScales; }

int ScaleX(const BalanceScale& scale, double amount) {
  return static_cast<int>(std::clamp<double>(Pixels(scale, amount), kScaleLeft, kScaleRight));
}

bool IsOutOfScale(const BalanceScale& scale, double amount) {
  return Pixels(scale, amount) > kScaleRight;
}

Standing StandingOf(const BalanceScale& scale, double amount, const DailyRequirement& requirement) {
  if (!requirement.IsKnown()) return Standing::kUnknown;
  const Range& norm = requirement.*scale.norm;
  if (amount < norm.lower - scale.range) return Standing::kBelow;
  return amount > norm.upper + scale.range ? Standing::kAbove : Standing::kInside;
}

std::string StandingText(const BalanceScale& scale, double amount,
                         const DailyRequirement& requirement) {
  const Range& norm = requirement.*scale.norm;
  switch (StandingOf(scale, amount, requirement)) {
    case Standing::kBelow:
      return '-' + FormatNumber(norm.lower - amount, kShownDigits);
    case Standing::kAbove:
      return '+' + FormatNumber(amount - norm.upper, kShownDigits);
    case Standing::kInside:
      return std::string(kNorm);
    case Standing::kUnknown:
      break;
  }
  return "unavailable";
}

}  // namespace velnor

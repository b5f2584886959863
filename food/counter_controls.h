// The controls of the nutrition counter. Its upper half picks and weighs a product, its lower half
// is the food list, which takes over what the upper half shows.

#ifndef VELNOR_FOOD_COUNTER_CONTROLS_H_
#define VELNOR_FOOD_COUNTER_CONTROLS_H_

namespace velnor::counter {

inline constexpr int kMainCategory = 124;
inline constexpr int kSubcategory = 125;
inline constexpr int kProducts = 126;
inline constexpr int kAddFood = 127;
inline constexpr int kWeight = 128;
inline constexpr int kKcal = 129;
inline constexpr int kProtein = 130;
inline constexpr int kFat = 131;
inline constexpr int kCarbohydrate = 132;
inline constexpr int kProductFrame = 133;
inline constexpr int kList = 134;
inline constexpr int kTotalsFrame = 135;
inline constexpr int kRemoveFood = 136;
inline constexpr int kTotalWeight = 137;
inline constexpr int kTotalKcal = 138;
inline constexpr int kTotalProtein = 139;
inline constexpr int kTotalFat = 140;
inline constexpr int kTotalCarbohydrate = 141;
inline constexpr int kRatioProtein = 142;
inline constexpr int kRatioFat = 143;
inline constexpr int kRatioCarbohydrate = 144;
inline constexpr int kSaveReport = 145;
inline constexpr int kClearList = 146;
inline constexpr int kSaveFood = 147;
inline constexpr int kFind = 149;
inline constexpr int kCarbohydrateExchange = 183;
inline constexpr int kProteinFatExchange = 184;

}  // namespace velnor::counter

#endif  // VELNOR_FOOD_COUNTER_CONTROLS_H_

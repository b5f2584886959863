// The daily balance: what has been eaten today against the daily requirement, on four scales.

#ifndef VELNOR_FOOD_BALANCE_SCREEN_H_
#define VELNOR_FOOD_BALANCE_SCREEN_H_

#include "activity/requirement.h"
#include "base/canvas.h"
#include "food/day_balance.h"

namespace velnor {

// Draws the day as its files hold it now, after starting them afresh when they are of another day.
// A day that cannot be read is drawn as nothing eaten.
void PaintBalance(Canvas& canvas, DayBalance& day, const DailyRequirement& requirement);

}  // namespace velnor

#endif  // VELNOR_FOOD_BALANCE_SCREEN_H_

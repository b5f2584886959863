// The page of weight exchanges: what common household measures of foods weigh. It has no controls
// and keeps nothing.

#ifndef VELNOR_ACTIVITY_EXCHANGES_SCREEN_H_
#define VELNOR_ACTIVITY_EXCHANGES_SCREEN_H_

#include "base/canvas.h"

namespace velnor {

void PaintWeightExchanges(Canvas& canvas);

}  // namespace velnor

#endif  // VELNOR_ACTIVITY_EXCHANGES_SCREEN_H_

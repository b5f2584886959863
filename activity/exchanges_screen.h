// The page of weight exchanges: what common household measures of foods weigh. It has no controls
// and keeps nothing.

#ifndef VELNOR_ACTIVITY_EXCHANGES_SCREEN_H_
#define VELNOR_ACTIVITY_EXCHANGES_SCREEN_H_

#include <span>

#include "base/control.h"
#include "base/screen.h"

namespace velnor {

class ExchangesScreen final : public Screen {
 public:
  static std::span<const ControlRow> Controls() { return {}; }
  void Paint(Canvas& canvas) const override;
};

}  // namespace velnor

#endif  // VELNOR_ACTIVITY_EXCHANGES_SCREEN_H_

// The home screen: a picture, and nothing on it.

#ifndef VELNOR_SHELL_HOME_SCREEN_H_
#define VELNOR_SHELL_HOME_SCREEN_H_

#include <span>

#include "base/control.h"
#include "base/screen.h"

namespace velnor {

class HomeScreen final : public Screen {
 public:
  static std::span<const ControlRow> Controls() { return {}; }
  void Paint(Canvas& /*canvas*/) const override {}
};

}  // namespace velnor

#endif  // VELNOR_SHELL_HOME_SCREEN_H_

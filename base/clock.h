// The moment of a deed. The day of a run is read once, at its start; what goes into a history and
// into the names of copies carries the moment itself.

#ifndef VELNOR_BASE_CLOCK_H_
#define VELNOR_BASE_CLOCK_H_

#include <string>

namespace velnor {

struct Moment {
  std::string date = {};  // "2026-11-21"
  std::string time = {};  // "13:05:09"
};

class Clock {
 public:
  virtual ~Clock() = default;

  // Local time, to the second.
  virtual Moment Now() const = 0;
};

// A clock that stands at the beginning of a day. Used where the time of day does not matter.
class StoppedClock final : public Clock {
 public:
  Moment Now() const override { return {"2000-01-01", "00:00:00"}; }
};
inline const StoppedClock kStoppedClock;

}  // namespace velnor

#endif  // VELNOR_BASE_CLOCK_H_

#include "base/session.h"

namespace velnor {

std::string DateText(int day, int month, int year) {
  return std::to_string(day) + '.' + std::to_string(month) + '.' + std::to_string(year);
}

}  // namespace velnor

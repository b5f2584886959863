// Histories for tests and benchmarks of the diary: people's and hostile ones.

#ifndef VELNOR_TESTS_SUPPORT_DIARY_HISTORIES_H_
#define VELNOR_TESTS_SUPPORT_DIARY_HISTORIES_H_

#include <string>

#include "diary/calendar.h"

namespace velnor {

// What somebody entered on so many days up to `last`: breakfast to supper, eleven lines a day or
// so, with days left out, things taken off again, walks, a weight on most mornings that goes down
// and wavers. The same every time.
std::string LivedHistory(int days, DayNumber last);

// Names full of markup and formulas, figures beyond everything, days of 1970 and of the year 9999,
// broken lines.
std::string HostileHistory(DayNumber last);

}  // namespace velnor

#endif  // VELNOR_TESTS_SUPPORT_DIARY_HISTORIES_H_

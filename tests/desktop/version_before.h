// The files of a version that knew of no history and made no copies, and what they are after the
// first login. Used by the tests of the program and of its packages.

#ifndef VELNOR_TESTS_DESKTOP_VERSION_BEFORE_H_
#define VELNOR_TESTS_DESKTOP_VERSION_BEFORE_H_

#include <map>
#include <string>

#include "tests/desktop/driver.h"

namespace velnor::desktop {

// Byte by byte, by their path in the folder.
using Files = std::map<std::string, std::string>;

// Lays what Ann and Bob have worked on into the folder. A day's files bear `date`.
Files LayVersionBefore(const Folder& folder, const std::string& date);

// Ann, who has a profile, logs in.
void LogInAnn(const App& app);

// The history that Ann gets: the twenty days of her series, and the day of `date`.
std::string HistoryOfVersionBefore(const std::string& date);

}  // namespace velnor::desktop

#endif  // VELNOR_TESTS_DESKTOP_VERSION_BEFORE_H_

// What every screen may know: which screen is shown, who is logged in, where the data lies, which
// day it is. One instance, owned by the program object and passed down by reference.

#ifndef VELNOR_BASE_SESSION_H_
#define VELNOR_BASE_SESSION_H_

#include <optional>
#include <string>
#include <string_view>

#include "base/clock.h"
#include "base/user_folder.h"

namespace velnor {

// Window class, window caption and the caption of message boxes.
inline constexpr std::string_view kTitle = "Velnor calorie counter";

// The number of a screen of the main window, 0 to 20.
using ScreenId = int;
inline constexpr ScreenId kHomeScreen = 0;

struct SessionState {
  ScreenId screen = kHomeScreen;
  // Empty while nobody is logged in. A name chosen in the login dialog counts as logged in before
  // its OK: the header shows it, and files written from then on are that user's.
  std::optional<UserFolder> user = {};
  std::string base_folder = {};         // the start-up directory with a separator at its end
  std::string date_text = {};           // today, as DateText writes it; stays for the whole run
  const Clock* clock = &kStoppedClock;  // of the deeds; lives as long as the session, never null

  // The path of a file in the start-up directory itself.
  std::string BaseFile(std::string_view file_name) const;
  // Returns the path of a file of the user who is logged in, or nothing if nobody is.
  std::optional<std::string> UserFile(std::string_view file_name) const;
};

// Day, month (1 to 12) and four-digit year joined by points, without leading zeros: "5.3.2026".
std::string DateText(int day, int month, int year);

}  // namespace velnor

#endif  // VELNOR_BASE_SESSION_H_

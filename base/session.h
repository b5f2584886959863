// What every screen may know: which screen is shown, who is logged in, where the data lies, which
// day it is. One instance, owned by the program object and passed down by reference.

#ifndef VELNOR_BASE_SESSION_H_
#define VELNOR_BASE_SESSION_H_

#include <filesystem>
#include <string>
#include <string_view>

namespace velnor {

// Window class, window caption and the caption of message boxes.
inline constexpr std::string_view kTitle = "Velnor calorie counter";

// The number of a screen of the main window, 0 to 20.
using ScreenId = int;
inline constexpr ScreenId kHomeScreen = 0;

// Characters of a user's name.
inline constexpr std::size_t kUserNameLimit = 99;

struct SessionState {
  ScreenId screen = kHomeScreen;
  std::string user_name = {};    // at most kUserNameLimit; empty: nobody is logged in
  std::string base_folder = {};  // the start-up directory with a separator at its end
  std::string date_text = {};    // today, as DateText writes it; stays for the whole run

  // The path of a file in the start-up directory itself, and of a user's folder and a file in it.
  std::string BaseFile(std::string_view file_name) const;
  std::string FolderOf(const std::string& user) const;
  std::string FileOf(const std::string& user, std::string_view file_name) const;
  // The path of a file of the user who is logged in; empty, the path of no file, when nobody is.
  std::string UserFile(std::string_view file_name) const;
};

// Between the folders of a path.
inline constexpr char kPathSeparator =
    static_cast<char>(std::filesystem::path::preferred_separator);

// Day, month (1 to 12) and four-digit year joined by points, without leading zeros: "5.3.2026".
std::string DateText(int day, int month, int year);

}  // namespace velnor

#endif  // VELNOR_BASE_SESSION_H_

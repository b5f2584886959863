#include "base/session.h"

namespace velnor {

std::string SessionState::BaseFile(std::string_view file_name) const {
  return base_folder + std::string(file_name);
}

std::optional<std::string> SessionState::UserFile(std::string_view file_name) const {
  return user ? std::optional(user->File(file_name)) : std::nullopt;
}

std::string DateText(int day, int month, int year) {
  return std::to_string(day) + '.' + std::to_string(month) + '.' + std::to_string(year);
}

}  // namespace velnor

#include "base/session.h"

namespace velnor {

std::string SessionState::BaseFile(std::string_view file_name) const {
  return base_folder + std::string(file_name);
}

std::string SessionState::FolderOf(const std::string& user) const { return base_folder + user; }

std::string SessionState::FileOf(const std::string& user, std::string_view file_name) const {
  return FolderOf(user) + kPathSeparator + std::string(file_name);
}

std::string SessionState::UserFile(std::string_view file_name) const {
  return user_name.empty() ? "" : FileOf(user_name, file_name);
}

std::string DateText(int day, int month, int year) {
  return std::to_string(day) + '.' + std::to_string(month) + '.' + std::to_string(year);
}

}  // namespace velnor

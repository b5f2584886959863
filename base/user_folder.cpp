#include "base/user_folder.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace velnor {
namespace {

constexpr std::string_view kDevices[] = {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"};
constexpr std::string_view kNumberedDevices[] = {"COM", "LPT"};

char Capital(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

// What counts is what stands before the first point, without blanks at its end.
bool IsDevice(std::string_view name) {
  std::string stem(name.substr(0, name.find('.')));
  stem.erase(stem.find_last_not_of(' ') + 1);
  std::ranges::transform(stem, stem.begin(), Capital);
  if (std::ranges::find(kDevices, stem) != std::end(kDevices)) return true;
  if (stem.empty() || stem.back() < '1' || stem.back() > '9') return false;
  stem.pop_back();
  return std::ranges::find(kNumberedDevices, stem) != std::end(kNumberedDevices);
}

}  // namespace

bool IsFolderName(std::string_view name) {
  if (name.empty() || name.size() > kUserNameLimit) return false;
  if (name.find_first_of("\\/:*?\"<>|") != std::string_view::npos || IsDevice(name)) return false;
  // The platform takes dots and blanks off the end of a name: ".. " is the folder above.
  return name.find_first_not_of(". ") != std::string_view::npos &&
         std::ranges::none_of(name, [](char c) { return c >= '\0' && c < ' '; });
}

UserFolder::UserFolder(std::string name, std::string path)
    : name_(std::move(name)), path_(std::move(path)) {}

std::optional<UserFolder> UserFolder::In(const std::string& base_folder, const std::string& name) {
  if (!IsFolderName(name)) return std::nullopt;
  return UserFolder(name, base_folder + name);
}

std::string UserFolder::File(std::string_view file_name) const {
  return path_ + kPathSeparator + std::string(file_name);
}

}  // namespace velnor

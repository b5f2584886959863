// The folder of the user who is logged in. Who has none cannot build the path of a user's file: the
// session holds one only while somebody is logged in.

#ifndef VELNOR_BASE_USER_FOLDER_H_
#define VELNOR_BASE_USER_FOLDER_H_

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace velnor {

// Characters of a user's name.
inline constexpr std::size_t kUserNameLimit = 99;

// Between the folders of a path.
inline constexpr char kPathSeparator =
    static_cast<char>(std::filesystem::path::preferred_separator);

// Whether a folder called `name` lies in the start-up folder itself: no separator, no drive, not
// "..", none of the names that mean a device of the platform in every folder ("NUL", "com1.txt").
// An empty name is no folder name, nor is one longer than kUserNameLimit.
bool IsFolderName(std::string_view name);

// Whether a file of that name would be a device. What counts is what stands before the first point,
// without blanks at its end, in capitals or not.
bool IsDeviceName(std::string_view name);

class UserFolder {
 public:
  // The folder of the user `name` in `base_folder`, a path with a separator at its end. Returns
  // nothing if IsFolderName says no. Whether there is such a folder on the disk is not asked.
  static std::optional<UserFolder> In(const std::string& base_folder, const std::string& name);

  const std::string& name() const { return name_; }
  const std::string& path() const { return path_; }  // without a separator at its end
  std::string File(std::string_view file_name) const;

  bool operator==(const UserFolder&) const = default;

 private:
  UserFolder(std::string name, std::string path);

  std::string name_;
  std::string path_;
};

}  // namespace velnor

#endif  // VELNOR_BASE_USER_FOLDER_H_

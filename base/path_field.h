// The field in which a person gives the path of a folder or a file, and the button beside it that
// opens the platform's own choice. Used by the dialogs that have the two.

#ifndef VELNOR_BASE_PATH_FIELD_H_
#define VELNOR_BASE_PATH_FIELD_H_

#include <cstddef>
#include <string>

#include "base/form.h"
#include "base/user_folder.h"
#include "res/ids.h"

namespace velnor {

inline constexpr int kPathField = ID_PATH;
inline constexpr int kBrowseButton = ID_BROWSE;

inline constexpr std::size_t kPathLimit = 1000;  // characters

// As it is typed or pasted. Other programs hand paths over in quotes; those are left out.
inline std::string PathIn(const Form& form) {
  std::string path = form.ReadText(kPathField, kPathLimit);
  std::erase(path, '"');
  return path;
}

// A folder's path with a separator at its end. Slashes of both directions end one.
inline std::string WithSeparator(std::string folder) {
  if (!folder.ends_with('/') && !folder.ends_with(kPathSeparator)) folder += kPathSeparator;
  return folder;
}

}  // namespace velnor

#endif  // VELNOR_BASE_PATH_FIELD_H_

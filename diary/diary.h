// The diary of a person: a page to look at, to print and to hand over, and two tables, made of the
// history. Used by the command that opens it.

#ifndef VELNOR_DIARY_DIARY_H_
#define VELNOR_DIARY_DIARY_H_

#include <string>
#include <string_view>

#include "activity/requirement.h"
#include "base/user_folder.h"
#include "users/profile.h"

namespace velnor {

struct DiaryInputs {
  std::string_view history = {};       // the bytes of its file
  UserProfile profile = {};            // for the height
  RequirementBounds requirement = {};  // upper calories of 0: none is known
  std::string_view date_text = {};     // today, as DateText writes it
  std::string_view user_name = {};
};

struct DiaryFiles {
  std::string page;   // dziennik.html
  std::string days;   // dziennik-dni.csv
  std::string deeds;  // dziennik-potrawy.csv
};

// The bytes of the three files. Whatever the history holds, the page stays below some megabytes. A
// date that is none counts as the day of the last entry; a height outside of 50 to 300 cm as not
// known.
DiaryFiles MakeDiary(const DiaryInputs& inputs);

// Writes the files into the folder of the user, which lies in `base_folder`, all of them or none.
// Returns false if they hold what they held before.
[[nodiscard]] bool WriteDiary(const std::string& base_folder, const UserFolder& user,
                              const DiaryFiles& files);

}  // namespace velnor

#endif  // VELNOR_DIARY_DIARY_H_

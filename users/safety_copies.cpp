#include "users/safety_copies.h"

#include <algorithm>
#include <vector>

#include "users/backup.h"
#include "users/history_file.h"

namespace velnor {
namespace {

constexpr std::string_view kNoCopy =
    "A copy of your data could not be made.\n"
    "Is the disk full, or the folder \"kopie zapasowe\" write-protected?";

}  // namespace

bool SafetyCopies::MakeOfTheDay() {
  return MakeDailyCopy(session_.base_folder, IsoDate(session_.date_text));
}

void SafetyCopies::MakeBefore(std::string_view press, const std::string& person) {
  const std::vector<std::string> people = PeopleIn(session_.base_folder);
  if (std::ranges::find(people, person) == people.end()) return;
  SayIfMissing(MakeCopyBefore(session_.base_folder, session_.clock->Now(), press, person));
}

void SafetyCopies::MakeBefore(std::string_view press) {
  if (session_.user) MakeBefore(press, session_.user->name());
}

void SafetyCopies::SayIfMissing(bool is_made) {
  if (is_made || failure_is_said_) return;
  failure_is_said_ = true;
  message_boxes_.Show({.text = kNoCopy});
}

}  // namespace velnor

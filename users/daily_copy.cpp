#include "users/daily_copy.h"

#include <string_view>

#include "users/backup.h"
#include "users/history_file.h"

namespace velnor {
namespace {

constexpr std::string_view kNoCopy =
    "Today's copy of your data could not be made.\n"
    "Is the disk full, or the folder \"kopie zapasowe\" write-protected?";

}  // namespace

void DailyCopy::Make(const SessionState& session, MessageBoxes& message_boxes) {
  if (MakeDailyCopy(session.base_folder, IsoDate(session.date_text)) || failure_is_said_) return;
  failure_is_said_ = true;
  message_boxes.Show({.text = kNoCopy});
}

}  // namespace velnor

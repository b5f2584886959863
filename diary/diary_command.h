// What "Diary..." does: writes the files of the diary and opens its page.

#ifndef VELNOR_DIARY_DIARY_COMMAND_H_
#define VELNOR_DIARY_DIARY_COMMAND_H_

#include "activity/requirement.h"
#include "base/main_window.h"
#include "base/message_boxes.h"
#include "base/session.h"
#include "users/profile.h"

namespace velnor {

class DiaryCommand {
 public:
  DiaryCommand(const SessionState& session, MainWindow& window, MessageBoxes& message_boxes)
      : session_(session), window_(window), message_boxes_(message_boxes) {}

  // For the user who is logged in; without one nothing happens. A box says where the files are when
  // no browser can be opened, and what went wrong when the history cannot be read or the files not
  // written; then nothing is opened.
  void Run(const UserProfile& profile, const RequirementBounds& requirement) const;

 private:
  const SessionState& session_;
  MainWindow& window_;
  MessageBoxes& message_boxes_;
};

}  // namespace velnor

#endif  // VELNOR_DIARY_DIARY_COMMAND_H_

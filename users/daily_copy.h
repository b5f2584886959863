// The copy that the first login of a day makes of everything, before anything of the new day is
// written.

#ifndef VELNOR_USERS_DAILY_COPY_H_
#define VELNOR_USERS_DAILY_COPY_H_

#include "base/message_boxes.h"
#include "base/session.h"

namespace velnor {

class DailyCopy {
 public:
  // Makes the copy of the session's day unless it is there. One that cannot be made hinders
  // nothing; a box says so at the first time.
  void Make(const SessionState& session, MessageBoxes& message_boxes);

 private:
  bool failure_is_said_ = false;
};

}  // namespace velnor

#endif  // VELNOR_USERS_DAILY_COPY_H_

// The copies that nobody asks for: of everything at the first login of a day, and before a press
// that destroys what a person has written.

#ifndef VELNOR_USERS_SAFETY_COPIES_H_
#define VELNOR_USERS_SAFETY_COPIES_H_

#include <string>
#include <string_view>

#include "base/message_boxes.h"
#include "base/session.h"

namespace velnor {

// A copy that cannot be made hinders nothing: the login and the press go on. A box says so, once in
// the life of the object.
class SafetyCopies {
 public:
  SafetyCopies(const SessionState& session, MessageBoxes& message_boxes)
      : session_(session), message_boxes_(message_boxes) {}

  // The copy of the session's day, unless it is there. Comes before anything of a new day is
  // written; the box comes when all of that is. Returns false if there is no such copy.
  [[nodiscard]] bool MakeOfTheDay();
  void SayIfMissing(bool is_made);

  // The copy of the folder of `person`; `press` says what is about to be done, in a few words. Who
  // is none of the people of the folder has nothing to lose, and gets none: a folder of that name
  // may hold anything.
  void MakeBefore(std::string_view press, const std::string& person);

  // The same for the user who is logged in; nothing when nobody is.
  void MakeBefore(std::string_view press);

 private:
  const SessionState& session_;
  MessageBoxes& message_boxes_;
  bool failure_is_said_ = false;
};

}  // namespace velnor

#endif  // VELNOR_USERS_SAFETY_COPIES_H_

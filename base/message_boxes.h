// The message boxes of the program: a text that the user must answer before going on.

#ifndef VELNOR_BASE_MESSAGE_BOXES_H_
#define VELNOR_BASE_MESSAGE_BOXES_H_

#include <string_view>

#include "base/session.h"

namespace velnor {

// The window that waits while the box is open; kDialog is the one that the person is working in.
enum class MessageOwner { kMainWindow, kDialog, kNone };
enum class MessageButtons { kOk, kYesNo };
enum class MessageIcon { kInformation, kQuestion };
enum class Answer { kOk, kYes, kNo };

struct Message {
  std::string_view text;  // "\n" breaks lines
  std::string_view caption = kTitle;
  MessageButtons buttons = MessageButtons::kOk;
  MessageIcon icon = MessageIcon::kInformation;
  MessageOwner owner = MessageOwner::kMainWindow;
};

class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;

  // Shows the box and waits for the user. Closing a box of yes and no means no.
  virtual Answer Show(const Message& message) = 0;
};

}  // namespace velnor

#endif  // VELNOR_BASE_MESSAGE_BOXES_H_

// The platform's message boxes.

#ifndef VELNOR_SHELL_WIN32_WIN32_MESSAGE_BOXES_H_
#define VELNOR_SHELL_WIN32_WIN32_MESSAGE_BOXES_H_

#include <windows.h>

#include "base/message_boxes.h"

namespace velnor {

class Win32MessageBoxes final : public MessageBoxes {
 public:
  explicit Win32MessageBoxes(HWND main_window) : main_window_(main_window) {}

  Answer Show(const Message& message) override;

 private:
  HWND Owner(MessageOwner owner) const;

  HWND main_window_;
};

}  // namespace velnor

#endif  // VELNOR_SHELL_WIN32_WIN32_MESSAGE_BOXES_H_

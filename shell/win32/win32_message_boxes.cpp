#include "shell/win32/win32_message_boxes.h"

#include <array>
#include <string>

#include "shell/win32/caption_icon.h"

namespace velnor {
namespace {

// By MessageButtons and by MessageIcon.
constexpr std::array<UINT, 2> kButtons = {MB_OK, MB_YESNO};
constexpr std::array<UINT, 2> kIcons = {MB_ICONINFORMATION, MB_ICONQUESTION};

}  // namespace

Answer Win32MessageBoxes::Show(const Message& message) {
  const HWND owner = Owner(message.owner);
  const UINT style = kButtons[static_cast<std::size_t>(message.buttons)] |
                     kIcons[static_cast<std::size_t>(message.icon)];
  const BoxIcons icons;
  const int pressed = MessageBoxA(owner, std::string(message.text).c_str(),
                                  std::string(message.caption).c_str(), style);
  if (message.buttons == MessageButtons::kOk) return Answer::kOk;
  return pressed == IDYES ? Answer::kYes : Answer::kNo;
}

HWND Win32MessageBoxes::Owner(MessageOwner owner) const {
  if (owner == MessageOwner::kNone) return nullptr;
  const HWND active = owner == MessageOwner::kDialog ? GetActiveWindow() : nullptr;
  return active != nullptr ? active : main_window_;
}

}  // namespace velnor

#include "shell/win32/win32_message_boxes.h"

#include <array>

#include "shell/win32/caption_icon.h"
#include "shell/win32/wide_path.h"

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
  // Some boxes name a file, whose path may have letters that the code page lacks.
  const int pressed =
      MessageBoxW(owner, WideText(message.text).c_str(), WideText(message.caption).c_str(), style);
  if (message.buttons == MessageButtons::kOk) return Answer::kOk;
  return pressed == IDYES ? Answer::kYes : Answer::kNo;
}

HWND Win32MessageBoxes::Owner(MessageOwner owner) const {
  if (owner == MessageOwner::kNone) return nullptr;
  const HWND active = owner == MessageOwner::kDialog ? GetActiveWindow() : nullptr;
  return active != nullptr ? active : main_window_;
}

}  // namespace velnor

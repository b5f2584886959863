// The program's icon, for its windows and the captions of its dialogs and boxes.

#ifndef VELNOR_SHELL_WIN32_CAPTION_ICON_H_
#define VELNOR_SHELL_WIN32_CAPTION_ICON_H_

#include <windows.h>

namespace velnor {

HICON ProgramIcon();

// Shows the icon in the window's caption, as far as the window's style has room for one there.
void SetCaptionIcon(HWND window);

// As long as it lives, every box that the platform opens for the program gets the icon when it
// comes up.
class BoxIcons {
 public:
  BoxIcons();
  BoxIcons(const BoxIcons&) = delete;
  BoxIcons& operator=(const BoxIcons&) = delete;
  ~BoxIcons();

 private:
  HHOOK hook_;
};

}  // namespace velnor

#endif  // VELNOR_SHELL_WIN32_CAPTION_ICON_H_

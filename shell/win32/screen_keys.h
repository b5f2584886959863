// The keyboard on the screens of the main window: Tab, Enter, the keys of commands, the point for a
// comma, and the frame around the control that has the focus. The message loop hands every message
// here first.

#ifndef VELNOR_SHELL_WIN32_SCREEN_KEYS_H_
#define VELNOR_SHELL_WIN32_SCREEN_KEYS_H_

#include <windows.h>

#include "shell/program.h"
#include "shell/win32/window_form.h"

namespace velnor {

class ScreenKeys {
 public:
  // All three outlive this; `form` is the one of `window`.
  ScreenKeys(HWND window, MainForm& form, Program& program)
      : window_(window), form_(form), program_(program) {}

  // Returns whether the message has been dealt with; otherwise it takes its course, with a point in
  // place of a comma that was typed into a number field.
  bool OnMessage(MSG& message);

  // The frame follows the focus as long as that is moved by keys; a click takes it off. `picture`
  // is what the window shows around its controls.
  void UpdateFrame(HDC picture);
  // Draws the frame again after the window has been painted.
  void RedrawFrame(HDC picture);

 private:
  bool OnKeyDown(const MSG& message);
  void MoveFocus(bool backwards);
  bool PressButton() const;
  // The control that is to have the frame; null: none.
  HWND ToBeFramed() const;

  HWND window_;
  MainForm& form_;
  Program& program_;
  bool by_keys_ = false;   // how the focus was moved last
  HWND framed_ = nullptr;  // the control with the frame
};

}  // namespace velnor

#endif  // VELNOR_SHELL_WIN32_SCREEN_KEYS_H_

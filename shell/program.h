// The program: what it does when it starts, when a menu item is chosen, when a control says
// something, and when a screen is to be painted. Knows no window system; the entry point gives it
// the interfaces it works through and calls it for every event.

#ifndef VELNOR_SHELL_PROGRAM_H_
#define VELNOR_SHELL_PROGRAM_H_

#include <cstdint>
#include <string>
#include <vector>

#include "base/canvas.h"
#include "base/clock.h"
#include "base/screen.h"
#include "shell/parts.h"

namespace velnor {

class Program {
 public:
  // `base_folder`: the start-up directory with a separator at its end. `date_text`: today. `form`
  // holds the controls of the main window; nothing is asked of the interfaces before Start.
  Program(std::string base_folder, std::string date_text, Form& form, MainWindow& window,
          MessageBoxes& message_boxes, const Clock& clock = kStoppedClock);

  // The menu as it is when nobody is logged in, and the user's products. Called once, when the main
  // window and its controls exist.
  void Start();

  // A menu item was chosen, or the control `id` announced `notification`.
  void OnCommand(int id, int notification);

  // The wheel was turned; `movement` is negative when it was turned towards the user. Returns false
  // if the current screen does nothing with it.
  bool OnMouseWheel(std::int32_t movement);

  // The three steps of every repaint. First all controls are hidden, the current screen is brought
  // up to date and its controls are shown.
  void PreparePaint();
  // Then it is drawn. An unknown screen number draws nothing, and has shown nothing.
  void Paint(Canvas& canvas) const;
  // Last, when the picture can be seen: a screen that refuses says so, once, and gives way to the
  // home screen. May wait for the user and be entered again.
  void FinishPaint();

  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  Parts& parts() { return parts_; }
  const SessionState& session() const { return parts_.session; }

 private:
  // The current one; null when no screen has its number.
  Screen* CurrentScreen() const;

  Parts parts_;
  std::vector<Screen*> screens_;  // of parts_, in the order of the registry
  bool refusal_open_ = false;     // the box of a screen that refused
};

}  // namespace velnor

#endif  // VELNOR_SHELL_PROGRAM_H_

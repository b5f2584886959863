// One screen of the main window. A screen owns all of itself: in its own file lie the rows of its
// controls, its texts, its table of events and its drawing. The shell walks the screens
// (shell/screens.h) and knows nothing of their insides.

#ifndef VELNOR_BASE_SCREEN_H_
#define VELNOR_BASE_SCREEN_H_

#include <algorithm>
#include <optional>
#include <span>

#include "base/canvas.h"
#include "base/message_boxes.h"

namespace velnor {

// Beside these functions every screen has the rows of its controls, by which the shell makes them:
//   static std::span<const ControlRow> Controls();
class Screen {
 public:
  virtual ~Screen() = default;

  // Called when the screen is chosen in the menu.
  virtual void OnChosen() {}

  // Called before every painting: reads files and fills lists and fields.
  virtual void Refresh() {}

  // Draws, and does nothing else. The background and the header are there already; text is in the
  // header's font.
  virtual void Paint(Canvas& canvas) const = 0;

  // Called after every painting. The answer is said in a box, once, and the home screen follows.
  // Returns nothing if the screen stays.
  virtual std::optional<Message> TakeRefusal() { return std::nullopt; }

  // Called for what a control says. Returns false, and does nothing, if that is no event of the
  // screen.
  virtual bool OnControl(int /*id*/, int /*notification*/) { return false; }

  // Called for a turn of the wheel. Returns false, and does nothing, if it is not the screen's.
  virtual bool OnWheel(bool /*down*/) { return false; }
};

// A row of a screen's table of events: what is run when the control announces the notification.
template <typename S>
struct ControlEvent {
  int id;
  int notification;
  void (S::*run)();
};

// Runs the event. Returns false if the table has none for it.
template <typename S>
bool RunEvent(S& screen, std::span<const ControlEvent<S>> events, int id, int notification) {
  const auto event = std::ranges::find_if(events, [=](const ControlEvent<S>& row) {
    return row.id == id && row.notification == notification;
  });
  if (event == events.end()) return false;
  (screen.*event->run)();
  return true;
}

}  // namespace velnor

#endif  // VELNOR_BASE_SCREEN_H_

// The viewer of the report files: one for the five screens, each of which shows the file of its own
// report as free text that can be scrolled, changed and saved, or erased.

#ifndef VELNOR_REPORTS_REPORT_SCREEN_H_
#define VELNOR_REPORTS_REPORT_SCREEN_H_

#include <optional>
#include <string>

#include "base/canvas.h"
#include "base/form.h"
#include "base/main_window.h"
#include "base/message_boxes.h"
#include "base/session.h"

namespace velnor {

class ReportScreen {
 public:
  ReportScreen(const SessionState& session, Form& form, MainWindow& window,
               MessageBoxes& message_boxes);

  // Reads the file again and shows what it holds: changes that were not saved are gone.
  void Paint(Canvas& canvas);

  // The buttons. On a screen without a report, Clear and Save do nothing.
  void Clear();
  void Save();
  void Scroll(ScrollStep step, int times);

  // Scrolls one line. False, with nothing done, on a screen without a report.
  bool OnMouseWheel(bool down);

 private:
  // What the edit was last filled with. The file alone decides what is shown; this only tells, when
  // the text is saved over it, which of its bytes the person has had before them.
  struct Shown {
    std::optional<std::string> path;
    std::string bytes;
  };

  // The path of the current screen's report; nothing when it shows none, or nobody is logged in.
  std::optional<std::string> Path() const;

  const SessionState& session_;
  Form& form_;
  MainWindow& window_;
  MessageBoxes& message_boxes_;
  Shown shown_;
};

}  // namespace velnor

#endif  // VELNOR_REPORTS_REPORT_SCREEN_H_

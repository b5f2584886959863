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

  // The screen was chosen in the menu: a text that could not be saved gives way to the file.
  void Reload() { unsaved_path_.reset(); }

  // Reads the file again and shows what it holds: changes that were not saved are gone. Those that
  // could not be saved stay until they are, or until the report is reloaded or cleared.
  void Paint(Canvas& canvas);

  // The buttons. On a screen without a report, Clear and Save do nothing.
  void Clear();
  void Save();
  void Scroll(ScrollStep step, int times);

  // Scrolls one line. False, with nothing done, on a screen without a report.
  bool OnMouseWheel(bool down);

 private:
  // What the edit was last filled with. This tells, when the text is saved over the file, which of
  // its bytes the person has had before them.
  struct Shown {
    std::optional<std::string> path;
    std::string bytes;
  };

  // The path of the current screen's report; nothing when it shows none, or nobody is logged in.
  std::optional<std::string> Path() const;
  void ShowFile();

  const SessionState& session_;
  Form& form_;
  MainWindow& window_;
  MessageBoxes& message_boxes_;
  Shown shown_;
  std::optional<std::string> unsaved_path_;  // of the report whose text could not be saved
};

}  // namespace velnor

#endif  // VELNOR_REPORTS_REPORT_SCREEN_H_

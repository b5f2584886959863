// The viewer of the report files: one for the five screens, each of which shows the file of its own
// report as free text that can be scrolled, changed and saved, or erased.

#ifndef VELNOR_REPORTS_REPORT_SCREEN_H_
#define VELNOR_REPORTS_REPORT_SCREEN_H_

#include <optional>
#include <span>
#include <string>

#include "base/control.h"
#include "base/form.h"
#include "base/main_window.h"
#include "base/message_boxes.h"
#include "base/screen.h"
#include "base/session.h"
#include "users/safety_copies.h"

namespace velnor {

class ReportScreen final : public Screen {
 public:
  ReportScreen(const SessionState& session, SafetyCopies& copies, Form& form, MainWindow& window,
               MessageBoxes& message_boxes);

  static std::span<const ControlRow> Controls();
  // A text that could not be saved gives way to the file.
  void OnChosen() override { unsaved_path_.reset(); }
  // Reads the file again and shows what it holds: changes that were not saved are gone. Those that
  // could not be saved stay until they are, or until the report is chosen again or cleared.
  void Refresh() override;
  void Paint(Canvas& canvas) const override;
  bool OnControl(int id, int notification) override;
  // Scrolls one line, whatever the distance.
  bool OnWheel(bool down) override;

  // The buttons. Without a report, Clear and Save do nothing. Before Clear, and before Save
  // where the file holds more than was shown, the files of the user are copied.
  void Clear();
  void Save();

 private:
  // What the edit was last filled with. This tells, when the text is saved over the file, which of
  // its bytes the person has had before them.
  struct Shown {
    std::optional<std::string> path;
    std::string bytes;
  };

  // Returns the path of the current screen's report, or nothing if the screen shows none or nobody
  // is logged in.
  std::optional<std::string> Path() const;
  void ShowFile();

  const SessionState& session_;
  SafetyCopies& copies_;
  Form& form_;
  MainWindow& window_;
  MessageBoxes& message_boxes_;
  Shown shown_;
  bool has_rest_ = false;                    // something of the report is kept beside it
  std::optional<std::string> unsaved_path_;  // of the report whose text could not be saved
};

}  // namespace velnor

#endif  // VELNOR_REPORTS_REPORT_SCREEN_H_

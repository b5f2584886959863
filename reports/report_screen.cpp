#include "reports/report_screen.h"

#include <string_view>

#include "base/text_file.h"
#include "reports/report_file.h"

namespace velnor {
namespace {

constexpr int kTextEdit = 119;

constexpr std::string_view kSureToClear =
    "Are You sure You want erase report?\nAll data will be LOST!\n"
    "ADVICE: You can select and copy whole text to another file.";
constexpr std::string_view kSureToSave =
    "Do You want save changes?\nThere`ll be no chance to cancel!";
constexpr std::string_view kRestNote = "What was not shown when changes were saved is kept in ";

Message Question(std::string_view text) {
  return {.text = text, .buttons = MessageButtons::kYesNo};
}

}  // namespace

ReportScreen::ReportScreen(const SessionState& session, Form& form, MainWindow& window,
                           MessageBoxes& message_boxes)
    : session_(session), form_(form), window_(window), message_boxes_(message_boxes) {}

std::optional<std::string> ReportScreen::Path() const {
  const ReportFile* const report = FindReport(session_.screen);
  return report == nullptr ? std::nullopt : session_.UserFile(report->file_name);
}

void ReportScreen::Paint(Canvas& canvas) {
  const ReportFile* const report = FindReport(session_.screen);
  if (report == nullptr) return;
  canvas.SetFont(kTitleFont);
  canvas.WriteText({10, 30}, report->title);
  canvas.SetFont(kBodyFont);
  canvas.DrawLine({5, 55}, {695, 55});
  const std::optional<std::string> path = Path();
  if (path && HasRest(*path)) {
    canvas.WriteText({10, 62}, std::string(kRestNote) + RestPath(std::string(report->file_name)));
  }
  if (!path || path != unsaved_path_) ShowFile();
}

void ReportScreen::ShowFile() {
  unsaved_path_.reset();
  shown_.path = Path();
  shown_.bytes = shown_.path ? LoadReport(*shown_.path) : "";
  // The edit breaks its lines at CR LF only. A new text would cost it caret, selection and place,
  // so it gets none when it has the right one.
  const std::string text = WithCrLf(shown_.bytes);
  if (form_.ReadText(kTextEdit, kWholeText) != text) form_.SetText(kTextEdit, text);
}

void ReportScreen::Clear() {
  const std::optional<std::string> path = Path();
  if (!path || message_boxes_.Show(Question(kSureToClear)) != Answer::kYes) return;
  if (ClearReport(session_.base_folder, *path)) unsaved_path_.reset();
  window_.Invalidate();
}

void ReportScreen::Save() {
  const std::optional<std::string> path = Path();
  if (!path) return;
  // Until the screen is painted, the edit holds the report of the screen before.
  if (shown_.path != path) window_.PaintNow();
  // The box lets repaints through, and every repaint reloads the file: what the person has written
  // is taken before.
  const std::string text = form_.ReadText(kTextEdit, kWholeText);
  const Shown shown = shown_;
  if (message_boxes_.Show(Question(kSureToSave)) != Answer::kYes) return;
  if (SaveReport(session_.base_folder, *path, shown.bytes, text)) {
    unsaved_path_.reset();
  } else {
    unsaved_path_ = path;
    shown_ = shown;
    if (form_.ReadText(kTextEdit, kWholeText) != text) form_.SetText(kTextEdit, text);
  }
  window_.Invalidate();
}

void ReportScreen::Scroll(ScrollStep step, int times) {
  for (int i = 0; i < times; ++i) form_.Scroll(kTextEdit, step);
}

bool ReportScreen::OnMouseWheel(bool down) {
  if (FindReport(session_.screen) == nullptr) return false;
  form_.Scroll(kTextEdit, down ? ScrollStep::kLineDown : ScrollStep::kLineUp);
  return true;
}

}  // namespace velnor

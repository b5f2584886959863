#include "reports/report_screen.h"

#include <cstdint>
#include <string_view>

#include "base/text_file.h"
#include "reports/report_file.h"

namespace velnor {
namespace {

constexpr int kTextEdit = 119;
constexpr int kReadOnlyText = 148;
constexpr int kClear = 151;
constexpr int kSave = 152;

constexpr std::uint32_t kEditStyle = control_style::kBorder | control_style::kMultiLine |
                                     control_style::kScrollVertically |
                                     control_style::kKeepSelection;
constexpr std::uint32_t kReadOnlyStyle = control_style::kVerticalScroll |
                                         control_style::kHorizontalScroll |
                                         control_style::kMultiLine | control_style::kReadOnly;

constexpr ControlRow kControls[] = {
    {.key = kTextEdit,
     .control_class = ControlClass::kEdit,
     .text = "",
     .style = kEditStyle,
     .place = {5, 85, 780, 430},
     .label = "Report"},
    {.key = kReadOnlyText,
     .control_class = ControlClass::kEdit,
     .text = "",
     .style = kReadOnlyStyle,
     .place = {10, 85, 775, 450},
     .label = "Report",
     .is_shown = false},
    Button(kClear, "Clear raport", {580, 23, 115, 29}),
    Button(kSave, "Save changes", {450, 23, 110, 29}),
    Button(153, "V", {750, 520, 30, 23}),
    Button(154, "^", {750, 57, 30, 23}),
    Button(155, "VV", {710, 520, 30, 23}),
    Button(156, "^^", {710, 57, 30, 23}),
    Button(157, "VVV", {650, 520, 45, 23}),
    Button(158, "^^^", {650, 57, 45, 23}),
};

constexpr ControlEvent<ReportScreen> kEvents[] = {
    {kClear, kButtonClicked, &ReportScreen::Clear},
    {kSave, kButtonClicked, &ReportScreen::Save},
};

struct ScrollButton {
  int id;
  ScrollStep step;
  int times;
};
constexpr ScrollButton kScrollButtons[] = {
    {153, ScrollStep::kLineDown, 5},  {154, ScrollStep::kLineUp, 5},
    {155, ScrollStep::kLineDown, 12}, {156, ScrollStep::kLineUp, 12},
    {157, ScrollStep::kPageDown, 1},  {158, ScrollStep::kPageUp, 1},
};

constexpr std::string_view kSureToClear =
    "Are You sure You want erase report?\nAll data will be LOST!\n"
    "ADVICE: You can select and copy whole text to another file.";
constexpr std::string_view kSureToSave =
    "Do You want save changes?\nThere`ll be no chance to cancel!";
constexpr std::string_view kRestNote = "What was not shown when changes were saved is kept in ";

constexpr std::string_view kClearPress = "Clear raport";
constexpr std::string_view kSavePress = "Save changes (long report)";

Message Question(std::string_view text) {
  return {.text = text, .buttons = MessageButtons::kYesNo};
}

}  // namespace

ReportScreen::ReportScreen(const SessionState& session, SafetyCopies& copies, Form& form,
                           MainWindow& window, MessageBoxes& message_boxes)
    : session_(session),
      copies_(copies),
      form_(form),
      window_(window),
      message_boxes_(message_boxes) {}

std::optional<std::string> ReportScreen::Path() const {
  const ReportFile* const report = FindReport(session_.screen);
  return report == nullptr ? std::nullopt : session_.UserFile(report->file_name);
}

std::span<const ControlRow> ReportScreen::Controls() { return kControls; }

bool ReportScreen::OnControl(int id, int notification) {
  for (const ScrollButton& button : kScrollButtons) {
    if (button.id != id || notification != kButtonClicked) continue;
    for (int i = 0; i < button.times; ++i) form_.Scroll(kTextEdit, button.step);
    return true;
  }
  return RunEvent<ReportScreen>(*this, kEvents, id, notification);
}

void ReportScreen::Refresh() {
  const std::optional<std::string> path = Path();
  has_rest_ = path && HasRest(*path);
  if (!path || path != unsaved_path_) ShowFile();
}

void ReportScreen::Paint(Canvas& canvas) const {
  const ReportFile* const report = FindReport(session_.screen);
  if (report == nullptr) return;
  canvas.SetFont(kTitleFont);
  canvas.WriteText({10, 30}, report->title);
  canvas.SetFont(kBodyFont);
  canvas.DrawLine({5, 55}, {695, 55});
  if (!has_rest_) return;
  canvas.WriteText({10, 62}, std::string(kRestNote) + RestPath(std::string(report->file_name)));
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
  if (!path) return;
  // Whose report it is is settled before the question, behind which somebody else may log in.
  const std::string user = session_.user->name();
  if (message_boxes_.Show(Question(kSureToClear)) != Answer::kYes) return;
  copies_.MakeBefore(kClearPress, user);
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
  const std::string user = session_.user->name();
  if (message_boxes_.Show(Question(kSureToSave)) != Answer::kYes) return;
  if (IsCut(*path, shown.bytes)) copies_.MakeBefore(kSavePress, user);
  if (SaveReport(session_.base_folder, *path, shown.bytes, text)) {
    unsaved_path_.reset();
  } else {
    unsaved_path_ = path;
    shown_ = shown;
    if (form_.ReadText(kTextEdit, kWholeText) != text) form_.SetText(kTextEdit, text);
  }
  window_.Invalidate();
}

bool ReportScreen::OnWheel(bool down) {
  form_.Scroll(kTextEdit, down ? ScrollStep::kLineDown : ScrollStep::kLineUp);
  return true;
}

}  // namespace velnor

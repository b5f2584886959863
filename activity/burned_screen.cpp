#include "activity/burned_screen.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <memory>
#include <vector>

#include "activity/activity_table.h"
#include "activity/burned_record_dialog.h"

namespace velnor {
namespace {

constexpr int kActivities = 159;
constexpr int kMinutes = 160;
constexpr int kCount = 161;
constexpr int kSaveReport = 162;
constexpr int kCalories = 163;
constexpr int kFat = 164;
constexpr int kAdd = 177;
constexpr int kRemove = 178;
constexpr int kClear = 179;
constexpr int kTotal = 180;

// Nothing can be taken off the total: the button is there and never shown.
constexpr ControlRow HiddenButton(int key, const char* text, Rectangle place) {
  ControlRow row = Button(key, text, place);
  row.is_shown = false;
  return row;
}

constexpr ControlRow kControls[] = {
    ListBox(kActivities, {25, 100, 330, 350}, "choose activity"),
    NumberField(kMinutes, {380, 100, 50, 23}, kMinutesLimit, "time[min]"),
    MainButton(kCount, "Count", {460, 95, 100, 35}),
    Button(kSaveReport, "Save raport", {380, 180, 100, 35}),
    LongFigure(kCalories, {235, 470, 73, 23}),
    LongFigure(kFat, {235, 510, 73, 23}),
    Button(kAdd, "ADD", {320, 465, 150, 23}),
    HiddenButton(kRemove, "REMOVE", {320, 490, 150, 23}),
    Button(kClear, "CLEAR", {320, 515, 150, 23}),
    LongFigure(kTotal, {600, 490, 73, 23}),
};

constexpr ControlEvent<BurnedScreen> kEvents[] = {
    {kCount, kButtonClicked, &BurnedScreen::Count},
    {kSaveReport, kButtonClicked, &BurnedScreen::OpenRecord},
    {kAdd, kButtonClicked, &BurnedScreen::Add},
    {kClear, kButtonClicked, &BurnedScreen::Clear},
};

constexpr std::size_t kCaloriesLimit = 14;

constexpr std::string_view kZero = "0";

constexpr Font kStrongFont{15, 700, false};

constexpr PlacedText kBodyTexts[] = {
    {{25, 80}, "choose activity"},
    {{380, 80}, "time[min]"},
    {{380, 230}, "MANUAL:"},
    {{380, 245}, "1.Choose one kind of activity from the list."},
    {{380, 260}, "2.Inscribe duration of given exercise."},
    {{380, 275}, "3.Click the \"Count\" button."},
    {{380, 290}, "4.If You use daytime energy balance click \"Add\"."},
    {{380, 305}, "5.You can clear daily balance by pressing \"clear\" buttton."},
    {{380, 320}, "6.You can save activity report for later view."},
    {{380, 335}, "7.ATTENTION! We suppose that 60% of burned energy become from fat."},
};

constexpr PlacedText kStrongTexts[] = {
    {{380, 355}, "If You want to add new activity to database - write to us - we`ll add it!"},
    {{130, 470}, "Burned[kcal]:"},
    {{130, 510}, "Fat loose[g]:"},
    {{510, 470}, "YOUR ALL-OUT DAYTIME BALANCE  [kcal]"},
};

}  // namespace

BurnedScreen::BurnedScreen(const SessionState& session, BurnedTotal& total, Form& form,
                           MainWindow& window, MessageBoxes& message_boxes)
    : session_(session),
      total_(total),
      form_(form),
      window_(window),
      message_boxes_(message_boxes) {}

std::span<const ControlRow> BurnedScreen::Controls() { return kControls; }

bool BurnedScreen::OnControl(int id, int notification) {
  return RunEvent<BurnedScreen>(*this, kEvents, id, notification);
}

void BurnedScreen::Refresh() {
  std::vector<std::string_view> names;
  std::ranges::transform(Activities(), std::back_inserter(names), &ActivityRecord::name);
  form_.FillItems(kActivities, names);
  const std::string total = total_.RefreshForToday();
  form_.SetText(kTotal, total.empty() ? kZero : total);
}

void BurnedScreen::Paint(Canvas& canvas) const {
  canvas.SetFont(kTitleFont);
  canvas.WriteText({10, 30}, "burned calories counting");
  canvas.DrawLine({5, 55}, {695, 55});
  canvas.SetFont(kBodyFont);
  WriteTexts(canvas, kBodyTexts);
  canvas.SetFont(kStrongFont);
  WriteTexts(canvas, kStrongTexts);
}

void BurnedScreen::Count() {
  counted_activity_ = form_.SelectedText(kActivities).value_or("");
  counted_minutes_ = form_.ReadText(kMinutes, kMinutesLimit);
  const Burned burned = CountBurned(counted_activity_, counted_minutes_);
  form_.SetText(kCalories, burned.KcalText());
  form_.SetText(kFat, burned.FatText());
}

void BurnedScreen::Add() {
  form_.SetText(kTotal, total_.Add(form_.ReadText(kCalories, kCaloriesLimit), counted_activity_,
                                   counted_minutes_));
  window_.Invalidate();
}

void BurnedScreen::Clear() {
  total_.Clear();
  form_.SetText(kTotal, kZero);
  message_boxes_.Show({.text = "Balance has been cleared", .owner = MessageOwner::kNone});
  window_.Invalidate();
}

void BurnedScreen::OpenRecord() {
  window_.OpenSessionDialog(
      kBurnedRecordResource,
      std::make_unique<BurnedRecordDialog>(session_, RecordOfToday(), counted_activity_));
}

BurnedRecord BurnedScreen::RecordOfToday() const {
  return {.date = session_.date_text,
          .activity = counted_activity_,
          .minutes = form_.ReadText(kMinutes, kRecordFigureLimit),
          .kcal = form_.ReadText(kCalories, kRecordFigureLimit),
          .fat = form_.ReadText(kFat, kRecordFigureLimit)};
}

}  // namespace velnor

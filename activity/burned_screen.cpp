#include "activity/burned_screen.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <vector>

#include "activity/activity_table.h"

namespace velnor {
namespace {

constexpr int kActivities = 159;
constexpr int kMinutes = 160;
constexpr int kCalories = 163;
constexpr int kFat = 164;
constexpr int kTotal = 180;

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

BurnedScreen::BurnedScreen(BurnedTotal& total, Form& form, MainWindow& window,
                           MessageBoxes& message_boxes)
    : total_(total), form_(form), window_(window), message_boxes_(message_boxes) {}

void BurnedScreen::Paint(Canvas& canvas) {
  canvas.SetFont(kTitleFont);
  canvas.WriteText({10, 30}, "burned calories counting");
  canvas.DrawLine({5, 55}, {695, 55});
  canvas.SetFont(kBodyFont);
  WriteTexts(canvas, kBodyTexts);
  canvas.SetFont(kStrongFont);
  WriteTexts(canvas, kStrongTexts);

  std::vector<std::string_view> names;
  std::ranges::transform(Activities(), std::back_inserter(names), &ActivityRecord::name);
  form_.FillItems(kActivities, names);
  const std::string total = total_.RefreshForToday();
  form_.SetText(kTotal, total.empty() ? kZero : total);
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

BurnedRecord BurnedScreen::RecordOf(const std::string& date) const {
  return {.date = date,
          .activity = counted_activity_,
          .minutes = form_.ReadText(kMinutes, kRecordFigureLimit),
          .kcal = form_.ReadText(kCalories, kRecordFigureLimit),
          .fat = form_.ReadText(kFat, kRecordFigureLimit)};
}

}  // namespace velnor

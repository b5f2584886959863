#include "activity/requirement_screen.h"

#include <array>
#include <optional>
#include <string>

#include "base/number_text.h"
#include "base/transaction.h"
#include "users/user_files.h"

namespace velnor {
namespace {

constexpr int kFirstEdit = 166;  // of eight, in the order of Limit

constexpr std::string_view kUnavailable = " unavailable";

constexpr Font kHeadingFont{22, 700, false};
constexpr Font kSetupsFont{19, 700, true};
constexpr Colour kOrange{229, 171, 31};
constexpr Colour kDarkBlue{0, 0, 165};

constexpr int kYoungestGrouped = 4;  // years; for children below no requirement is given

constexpr PlacedText kIntroduction[] = {
    {{10, 75}, "Below is information about daily demand for:"},
    {{10, 90}, "- calories,"},
    {{10, 105}, "- proteins,"},
    {{10, 120}, "- fat,"},
    {{10, 135}, "- carbohydrates."},
    {{10, 155}, "These are average values calculated"},
    {{10, 170}, "for persons from individual groups."},
    {{10, 190}, "Membership of proper group has been defined "},
    {{10, 205}, "rely to information served in profile of user."},
    {{10, 225}, "For exact daytime determination "},
    {{10, 240}, "You should contact specialist - eg. dietician."},
};

constexpr PlacedText kAthleteNote[] = {
    {{10, 260}, "Only specialist should establish daytime request for athletes"},
    {{10, 275}, "taking into consideration kind of sport activity."},
    {{10, 290}, "Listed beneath valuations can be then untruly."},
};

constexpr PlacedText kChildNote[] = {
    {{10, 260}, "Setting of daytime request for children"},
    {{10, 275}, "is very difficult and in fact it is passed with the purpose."},
    {{10, 290}, "If You want to know more - consult pediatrician."},
};

constexpr PlacedText kLabels[] = {
    {{10, 320}, "Your daily requirement: "},
    {{10, 355}, "calorie[kcal]: "},
    {{10, 390}, "protein[g]: "},
    {{10, 425}, "fat[g]: "},
    {{10, 460}, "carbohydrates[g]: "},
    {{500, 100}, "Program enables definition of personal"},
    {{500, 115}, "partition of daytime request."},
    {{500, 140}, "If You want to activate them"},
    {{500, 155}, "You have to inscribe to proper fields"},
    {{500, 170}, "upper and lower limits of partitions"},
    {{500, 185}, "At the end You should confirm choice"},
    {{500, 200}, "by pressing the undermentioned button."},
    {{515, 340}, "lower limit"},
    {{645, 340}, "upper limit"},
    {{410, 360}, "calorie[kcal]"},
    {{410, 400}, "proteins[g]"},
    {{410, 435}, "fat[g]"},
    {{410, 470}, "carbohydrates[g]"},
};

constexpr PlacedText kInactive = {{580, 515}, "Unactive setups"};
constexpr PlacedText kActive = {{590, 515}, "Active setups"};

std::string RangeText(const Range& range) {
  const std::string lower = std::to_string(range.lower);
  return range.lower == range.upper ? lower : lower + '-' + std::to_string(range.upper);
}

}  // namespace

RequirementScreen::RequirementScreen(const SessionState& session, const UserProfile& profile,
                                     Form& form, MainWindow& window, MessageBoxes& message_boxes)
    : session_(session),
      profile_(profile),
      form_(form),
      window_(window),
      message_boxes_(message_boxes) {}

PersonalLimits RequirementScreen::ReadLimits() const {
  const std::optional<std::string> path = session_.UserFile(kLimitsFile);
  return path ? ReadPersonalLimits(*path) : PersonalLimits();
}

void RequirementScreen::OnLogin() {
  limits_ = ReadLimits();
  limits_active_ = limits_.ShowAsActive();
}

void RequirementScreen::Update() { UpdateRequirement(profile_, ReadLimits(), requirement_); }

RequirementBounds RequirementScreen::DayBounds() const {
  return limits_active_ ? BoundsOf(limits_) : BoundsOf(requirement_);
}

void RequirementScreen::Paint(Canvas& canvas) {
  canvas.SetFont(kHeadingFont);
  canvas.WriteText({10, 30}, "Daily request");
  canvas.SetTextColour(kOrange);
  canvas.WriteText({540, 65}, "User settings");
  canvas.DrawLine({5, 55}, {695, 55});
  canvas.SetFont(kBodyFont);
  canvas.SetTextColour(kBlack);
  WriteTexts(canvas, kIntroduction);
  canvas.SetTextColour(kRed);
  const int age = ParseInteger(profile_.age);
  if (age < kYoungestGrouped) {
    WriteTexts(canvas, kChildNote);
  } else if (profile_.IsAthlete()) {
    WriteTexts(canvas, kAthleteNote);
  }
  canvas.SetTextColour(kBlack);
  WriteTexts(canvas, kLabels);
  canvas.SetFont(kSetupsFont);
  canvas.SetTextColour(kDarkBlue);
  const PlacedText& setups = limits_active_ ? kActive : kInactive;
  canvas.WriteText(setups.at, setups.text);
  ShowRequirement();
  ShowLimits();
}

void RequirementScreen::ShowRequirement() {
  struct Field {
    int id;
    const Range& range;
  };
  for (const Field& field : {Field{120, requirement_.calories}, Field{121, requirement_.protein},
                             Field{122, requirement_.fat}, Field{123, requirement_.carbohydrate}}) {
    const bool available = requirement_.IsKnown() && !limits_active_;
    form_.SetText(field.id, available ? RangeText(field.range) : std::string(kUnavailable));
  }
}

void RequirementScreen::ShowLimits() {
  for (std::size_t limit = 0; limit < kLimitCount; ++limit) {
    form_.SetText(kFirstEdit + static_cast<int>(limit), limits_active_ ? limits_.texts[limit] : "");
  }
}

void RequirementScreen::Activate() {
  PersonalLimits typed;
  for (std::size_t limit = 0; limit < kLimitCount; ++limit) {
    typed.texts[limit] = form_.ReadText(kFirstEdit + static_cast<int>(limit), kLimitTextLimit);
  }
  if (const std::optional<std::string_view> fault = FindFault(typed)) {
    message_boxes_.Show({.text = *fault});
    return;
  }
  if (const auto path = session_.UserFile(kLimitsFile)) {
    Transaction deed(session_.base_folder);
    WritePersonalLimits(deed, *path, typed);
    deed.CommitUnreported();
  }
  limits_ = ReadLimits();
  window_.Invalidate();
}

void RequirementScreen::Clear() {
  if (const auto path = session_.UserFile(kLimitsFile)) {
    Transaction deed(session_.base_folder);
    WriteNoLimits(deed, *path);
    deed.CommitUnreported();
  }
  limits_active_ = false;
  window_.Invalidate();
}

}  // namespace velnor

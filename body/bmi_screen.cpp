#include "body/bmi_screen.h"

#include <cmath>
#include <cstddef>

#include "base/number_text.h"
#include "body/bmi_scale.h"
#include "body/bmi_verdicts.h"

namespace velnor {
namespace {

constexpr Font kValueFont{17, 0, true};
constexpr int kDigits = 6;
constexpr std::size_t kShownCharacters = 5;

constexpr PlacedText kTitle[] = {
    {{10, 30}, "BMI"},
    {{10, 45}, "(Body Mass Index)"},
};

}  // namespace

BmiScreen::BmiScreen(const UserProfile& profile, WeightText& weight, const Form& form,
                     MainWindow& window)
    : profile_(profile), weight_(weight), form_(form), window_(window) {}

void BmiScreen::Count() {
  weight_.TakeFrom(form_);
  const float bmi = ComputeBmi(weight_.text, profile_.height);
  // With neither weight nor height there is nothing to show: the last result stays.
  if (!std::isnan(bmi)) result_.value = bmi;
  result_.bmi_class = ClassifyBmi(bmi, profile_).value_or(result_.bmi_class);
  window_.InvalidateWithoutErasing();
}

void BmiScreen::Paint(Canvas& canvas) const {
  canvas.SetFont(kTitleFont);
  WriteTexts(canvas, kTitle);
  PaintInputs(canvas);
  canvas.SetFont(kValueFont);
  canvas.WriteText({10, 280}, "BMI =  ");
  canvas.SetFont(kBodyFont);
  canvas.SetTextColour(kRed);
  WriteTexts(canvas, BmiAgeNote(profile_));
  WriteTexts(canvas, BmiBodyNote(profile_));
  canvas.SetTextColour(kBlack);
  if (result_.value > 0) {
    canvas.SetFont(kValueFont);
    canvas.WriteText({65, 280}, FormatNumber(result_.value, kDigits).substr(0, kShownCharacters));
  }
  DrawBmiScale(canvas, result_.value, profile_);
  DrawVerdict(canvas, BmiVerdict(result_.bmi_class));
}

void BmiScreen::PaintInputs(Canvas& canvas) const {
  canvas.SetFont(kBodyFont);
  canvas.DrawLine({5, 70}, {300, 70});
  canvas.WriteText({10, 95}, "Put Your weight [kg]: ");
  canvas.WriteText({10, 115}, "Height [cm]: ");
  canvas.WriteText({95, 115}, profile_.height);
  canvas.WriteText({10, 135}, "Sex: ");
  if (profile_.IsWoman()) canvas.WriteText({55, 135}, "women");
  if (profile_.IsMan()) canvas.WriteText({55, 135}, "men");
  canvas.DrawLine({5, 175}, {300, 175});
  canvas.DrawLine({5, 260}, {300, 260});
}

}  // namespace velnor

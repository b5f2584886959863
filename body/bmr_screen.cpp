#include "body/bmr_screen.h"

#include <cstddef>

#include "base/number_text.h"
#include "body/verdict.h"

namespace velnor {
namespace {

constexpr Font kLabelFont{17, 0, true};
constexpr Font kValueFont{18, 700, false};
constexpr Font kParagraphFont{16, 0, false};

constexpr float kLeastShown = 10.0F;  // only rates above this are shown
constexpr int kDigits = 11;
constexpr std::size_t kShownCharacters = 5;

constexpr PlacedText kParagraph[] = {
    {{kVerdictX, 75}, "BMR COEFFICIENT"},
    {{kVerdictX, 90}, "Energy balance economy is an equilibrium"},
    {{kVerdictX, 105}, "between amount steam provided ex feeds"},
    {{kVerdictX, 120}, "and spending energetistic regimes."},
    {{kVerdictX, 150}, "A basal metabolism are processes"},
    {{kVerdictX, 165}, "which are stealing the man fasting through 12 hours "},
    {{kVerdictX, 180}, "in the total psychological and physical rest."},
    {{kVerdictX, 195}, "BMR supplies energy to upkeep basic vital functions "},
    {{kVerdictX, 210}, "eg.: brain activity , muscles , heart-beating or body temperature."},
    {{10, 500}, "Value is calculated according to the user data (in profile)"},
};

}  // namespace

BmrScreen::BmrScreen(const UserProfile& profile, WeightText& weight, const Form& form,
                     MainWindow& window)
    : profile_(profile), weight_(weight), form_(form), window_(window) {}

void BmrScreen::Count() {
  weight_.TakeFrom(form_);
  result_.value = ComputeBmr(weight_.text, profile_);
  window_.PaintNow();
}

void BmrScreen::Paint(Canvas& canvas) const {
  canvas.SetFont(kTitleFont);
  canvas.WriteText({10, 30}, "BMR index");
  PaintInputs(canvas);
  canvas.SetFont(kLabelFont);
  canvas.WriteText({10, 280}, "BMR =  ");
  if (result_.value > kLeastShown) {
    canvas.SetFont(kValueFont);
    canvas.WriteText({65, 280}, FormatNumber(result_.value, kDigits).substr(0, kShownCharacters));
  }
  canvas.SetFont(kParagraphFont);
  WriteTexts(canvas, kParagraph);
}

void BmrScreen::PaintInputs(Canvas& canvas) const {
  canvas.SetFont(kBodyFont);
  canvas.WriteText({130, 33}, "(Basal metabolism)");
  canvas.DrawLine({5, 55}, {695, 55});
  canvas.WriteText({10, 95}, "Put Your body weight[kg]: ");
  canvas.WriteText({10, 115}, "Height[cm]: ");
  canvas.WriteText({95, 115}, profile_.height);
  canvas.WriteText({10, 135}, "Sex: ");
  if (profile_.IsWoman()) canvas.WriteText({55, 135}, "woman");
  if (profile_.IsMan()) canvas.WriteText({55, 135}, "men");
  canvas.WriteText({10, 155}, "Age: ");
  canvas.WriteText({95, 155}, profile_.age);
  canvas.DrawLine({5, 175}, {300, 175});
  canvas.DrawLine({5, 260}, {300, 260});
}

}  // namespace velnor

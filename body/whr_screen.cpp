#include "body/whr_screen.h"

#include <array>
#include <cstddef>
#include <span>

#include "base/number_text.h"
#include "body/verdict.h"

namespace velnor {
namespace {

constexpr int kWaist = 104;
constexpr int kHip = 105;

constexpr Font kValueFont{22, 0, true};
constexpr int kDigits = 5;

constexpr PlacedText kTitle[] = {
    {{10, 30}, "WHR coefficient"},
    {{10, 45}, "( waist-hip ratio )"},
};

constexpr PlacedText kLabels[] = {
    {{10, 90}, "Waist circumference [cm]"},
    {{10, 120}, "Hip circumference [cm]"},
    {{10, 150}, "Sex: "},
};

constexpr PlacedText kPregnantNote = {{10, 515}, "For pregnant woman WHR coefficient is useless!"};

constexpr VerdictLine kPear[] = {
    {50, "RESULT: PEAR TYPE CORPULENCE"},
    {75, "Otherwise known as a thigh-buttock obesity."},
    {90, "It means that major part of fat reserve"},
    {105, "was accumulated around thighs and waist."},
};

constexpr VerdictLine kApple[] = {
    {50, "RESULT: APPLE TYPE CORPULENCE"},
    {75, "Otherwise known as an abdominal obesity."},
    {90, "It means that major part of fat reserve"},
    {105, "was accumulated around stomach."},
};

constexpr VerdictLine kNormal[] = {
    {50, "RESULT: NORM"},
    {75, "Everything is fine!"},
};

// By class.
constexpr std::array<std::span<const VerdictLine>, 4> kVerdicts = {{{}, kPear, kApple, kNormal}};

// The second letter tells, where the BMI looks at the first two.
bool IsNoted(const UserProfile& profile) {
  return profile.other.size() > 1 && profile.other[1] == 'r';
}

}  // namespace

WhrScreen::WhrScreen(const UserProfile& profile, const Form& form, MainWindow& window)
    : profile_(profile), form_(form), window_(window) {}

void WhrScreen::Count() {
  result_.waist = form_.ReadText(kWaist, WhrResult::kLimit);
  result_.hip = form_.ReadText(kHip, WhrResult::kLimit);
  result_.value = ComputeWhr(result_.waist, result_.hip);
  result_.whr_class = ClassifyWhr(result_.value, profile_).value_or(result_.whr_class);
  window_.InvalidateWithoutErasing();
}

void WhrScreen::Paint(Canvas& canvas) const {
  canvas.SetFont(kTitleFont);
  WriteTexts(canvas, kTitle);
  PaintInputs(canvas);
  if (IsNoted(profile_)) {
    canvas.SetTextColour(kRed);
    canvas.WriteText(kPregnantNote.at, kPregnantNote.text);
    canvas.SetTextColour(kBlack);
  }
  canvas.SetFont(kValueFont);
  canvas.WriteText({10, 350}, "WHR = ");
  if (result_.value > 0) canvas.WriteText({75, 350}, FormatNumber(result_.value, kDigits));
  DrawVerdict(canvas, kVerdicts[static_cast<std::size_t>(result_.whr_class)]);
}

void WhrScreen::PaintInputs(Canvas& canvas) const {
  canvas.SetFont(kBodyFont);
  canvas.DrawLine({5, 70}, {300, 70});
  WriteTexts(canvas, kLabels);
  if (profile_.IsMan()) canvas.WriteText({55, 150}, "men");
  if (profile_.IsWoman()) canvas.WriteText({55, 150}, "women");
  canvas.DrawLine({5, 200}, {300, 200});
  canvas.DrawLine({5, 315}, {300, 315});
}

}  // namespace velnor

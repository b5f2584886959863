#include "body/bmi_verdicts.h"

#include <array>
#include <cstddef>

#include "base/number_text.h"
#include "body/bmi.h"

namespace velnor {
namespace {

constexpr Colour kGreen{0, 255, 0};
constexpr Colour kBrown{183, 101, 20};

// The system's own texts, as they stand. The gaps between some lines belong to the layout.
constexpr VerdictLine kAnorexia[] = {
    {50, "ATTENTION!", kRed},
    {75, "That is very LOW value!!!", kRed},
    {90, "Result may presage anorexia.", kRed},
    {115, "You should examine your fatty tissue and health", kRed},
    {130, "in a specialistic surgery, or consult e.g. dietician.", kRed},
    {145, "It can be a very serious problem!", kRed},
    {160, "They`ll help You define proper relation between fat and body weight.", kRed},
};

constexpr VerdictLine kUnderweight[] = {
    {50, "RESULT: UNDERWEIGHT"},
    {75, "Result may presage underweight."},
    {90, "You should check your body weight regularly."},
    {105, "If your body weight will still decrease"},
    {120, "You should consult dietician."},
    {135, "Weight decrease can provide to serious"},
    {150, "health problems, e.g. anorexia."},
    {165, "Remember, that only specialist like dietician"},
    {180, "can precisely define relation"},
    {195, "between fat and body weight."},
};

constexpr VerdictLine kStandard[] = {
    {50, "RESULT: STANDARD", kGreen},
    {75, "Seems your body weight is ok!"},
    {90, "Keep working!!"},
    {115, "However only specialist like dietician"},
    {130, "can precisely define relation"},
    {145, "between fat and body weight."},
};

constexpr VerdictLine kLittleOverweight[] = {
    {50, "RESULT: LITTLE OVERWEIGHT"},
    {75, "Little overweight is not a big problem,"},
    {90, "but You should START thinking about your health."},
    {105, "Remember, that only specialist like dietician"},
    {120, "can precisely define relation"},
    {135, "between fat and body weight."},
};

constexpr VerdictLine kOverweight[] = {
    {50, "RESULT: OVERWEIGHT"},
    {75, "Result presage overweight!"},
    {90, "You should immediately change your diet,"},
    {105, "and consult specialist - e.g. dietician."},
};

constexpr VerdictLine kHeavyOverweight[] = {
    {50, "RESULT: HAVY OVERWEIGHT", kBrown},
    {75, "Warrning, it`s not good..."},
    {90, "Result presage havy overweight (obesity)!!"},
    {105, "One of the reasons of obesity can be diet, however"},
    {135, "there maight be many reasons of that..."},
    {150, "That`s why You should immediately consult doctor."},
};

constexpr VerdictLine kHeavyObesity[] = {
    {50, "RESULT: HAVY OBESITY", kBrown},
    {75, "It`s last warning for You!", kBrown},
    {90, "More fat may be very dangerous!", kBrown},
    {105, "Remember that probability of civilization diseases", kBrown},
    {135, "is now 3 times bigger!", kBrown},
    {150, "You should immediately consult doctor!", kBrown},
};

constexpr VerdictLine kThirdLevelObesity[] = {
    {50, "SCORE: 3rd LEVEL OBESITY", kRed},
    {75, "WARNING!!! It`s high time to start thinking about Your life!"},
    {90, "You`ve got a havy obesity!"},
    {105, "It provides to many civilization diseases."},
    {120, "The most dangerous of them are:"},
    {135, "- heart attack,"},
    {150, "- coronary arterial disease,"},
    {165, "- cancer(!)"},
    {190, "Ask yourself: do You want live longer?"},
    {205, "If the answer is positive - stop eating so much from NOW!"},
};

constexpr VerdictLine kOutOfScale[] = {
    {50, "SCORE: OUT OF SCALE!!! - IT`S NOT ENOUGHT TO SAY YOU`RE FAT...!!!", kRed},
    {75, "The score means that Your life is in real dangerous!", kRed},
    {90, "It`s not a joke and nobody want`s to scare You...", kRed},
    {105, "If You want to stay alive start thinking about diet!!!", kRed},
    {120, "Of course there might be many reasons of your obesity...", kRed},
    {135, "That`s why You SHOULD IMMEDIATELY consult doctor!", kRed},
};

// By class.
constexpr std::array<std::span<const VerdictLine>, kBmiClasses + 1> kVerdicts = {{
    {},
    kAnorexia,
    kUnderweight,
    kStandard,
    kLittleOverweight,
    kOverweight,
    kHeavyOverweight,
    kHeavyObesity,
    kThirdLevelObesity,
    kOutOfScale,
}};

constexpr PlacedText kAgeNote[] = {
    {{10, 300}, "BMI coefficient is authoritative for people above 20 years old."},
    {{10, 315}, "However at Your age it might be quite reliable."},
};

constexpr PlacedText kPregnantNote[] = {
    {{10, 495}, "Pregnant woman should count BMI on the basis of datas before pregnancy -"},
    {{10, 510}, "- this way You can check if your weight was corect."},
    {{10, 525}, "During pregnancy BMI coefficient is useless!"},
};

constexpr PlacedText kAthleteNote[] = {
    {{10, 495}, "Athletes should be careful counting BMI."},
    {{10, 510}, "Sometimes expanded muscular tissue may provide to mislead!"},
};

// How many lines of the age note people of up to that age are shown.
struct AgeNoteRow {
  int up_to;
  std::size_t lines;
};
constexpr AgeNoteRow kAgeNoteRows[] = {{17, 1}, {19, 2}};

}  // namespace

std::span<const VerdictLine> BmiVerdict(int bmi_class) {
  if (bmi_class < 0 || bmi_class > kBmiClasses) return {};
  return kVerdicts[static_cast<std::size_t>(bmi_class)];
}

std::span<const PlacedText> BmiAgeNote(const UserProfile& profile) {
  const int age = ParseInteger(profile.age);
  for (const AgeNoteRow& row : kAgeNoteRows) {
    if (age <= row.up_to) return std::span(kAgeNote).first(row.lines);
  }
  return {};
}

std::span<const PlacedText> BmiBodyNote(const UserProfile& profile) {
  // Two letters are looked at here, where other readers of the profile are content with one.
  if (profile.other.starts_with("pr")) return kPregnantNote;
  if (profile.IsAthlete()) return kAthleteNote;
  return {};
}

}  // namespace velnor

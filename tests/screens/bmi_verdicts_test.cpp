// The verdict of every class of BMI, as both sexes get to read it.

#include <string>
#include <vector>

#include "tests/screens/body_fixture.h"

namespace velnor {
namespace {

constexpr Font kBody{14, 0, false};
constexpr Colour kGreen{0, 255, 0};
constexpr Colour kBrown{183, 101, 20};

struct Line {
  int y;
  const char* text;
  Colour colour = kBlack;
};

struct Verdict {
  const char* weight;  // kg at a height of one metre, of this class for both sexes
  std::vector<Line> lines;
};

const std::vector<Verdict>& Verdicts() {
  static const std::vector<Verdict> verdicts = {
      {"17",
       {{50, "ATTENTION!", kRed},
        {75, "That is very LOW value!!!", kRed},
        {90, "Result may presage anorexia.", kRed},
        {115, "You should examine your fatty tissue and health", kRed},
        {130, "in a specialistic surgery, or consult e.g. dietician.", kRed},
        {145, "It can be a very serious problem!", kRed},
        {160, "They`ll help You define proper relation between fat and body weight.", kRed}}},
      {"18",
       {{50, "RESULT: UNDERWEIGHT"},
        {75, "Result may presage underweight."},
        {90, "You should check your body weight regularly."},
        {105, "If your body weight will still decrease"},
        {120, "You should consult dietician."},
        {135, "Weight decrease can provide to serious"},
        {150, "health problems, e.g. anorexia."},
        {165, "Remember, that only specialist like dietician"},
        {180, "can precisely define relation"},
        {195, "between fat and body weight."}}},
      {"23",
       {{50, "RESULT: STANDARD", kGreen},
        {75, "Seems your body weight is ok!"},
        {90, "Keep working!!"},
        {115, "However only specialist like dietician"},
        {130, "can precisely define relation"},
        {145, "between fat and body weight."}}},
      {"27",
       {{50, "RESULT: LITTLE OVERWEIGHT"},
        {75, "Little overweight is not a big problem,"},
        {90, "but You should START thinking about your health."},
        {105, "Remember, that only specialist like dietician"},
        {120, "can precisely define relation"},
        {135, "between fat and body weight."}}},
      {"30",
       {{50, "RESULT: OVERWEIGHT"},
        {75, "Result presage overweight!"},
        {90, "You should immediately change your diet,"},
        {105, "and consult specialist - e.g. dietician."}}},
      {"34",
       {{50, "RESULT: HAVY OVERWEIGHT", kBrown},
        {75, "Warrning, it`s not good..."},
        {90, "Result presage havy overweight (obesity)!!"},
        {105, "One of the reasons of obesity can be diet, however"},
        {135, "there maight be many reasons of that..."},
        {150, "That`s why You should immediately consult doctor."}}},
      {"38",
       {{50, "RESULT: HAVY OBESITY", kBrown},
        {75, "It`s last warning for You!", kBrown},
        {90, "More fat may be very dangerous!", kBrown},
        {105, "Remember that probability of civilization diseases", kBrown},
        {135, "is now 3 times bigger!", kBrown},
        {150, "You should immediately consult doctor!", kBrown}}},
      {"45",
       {{50, "SCORE: 3rd LEVEL OBESITY", kRed},
        {75, "WARNING!!! It`s high time to start thinking about Your life!"},
        {90, "You`ve got a havy obesity!"},
        {105, "It provides to many civilization diseases."},
        {120, "The most dangerous of them are:"},
        {135, "- heart attack,"},
        {150, "- coronary arterial disease,"},
        {165, "- cancer(!)"},
        {190, "Ask yourself: do You want live longer?"},
        {205, "If the answer is positive - stop eating so much from NOW!"}}},
      {"55",
       {{50, "SCORE: OUT OF SCALE!!! - IT`S NOT ENOUGHT TO SAY YOU`RE FAT...!!!", kRed},
        {75, "The score means that Your life is in real dangerous!", kRed},
        {90, "It`s not a joke and nobody want`s to scare You...", kRed},
        {105, "If You want to stay alive start thinking about diet!!!", kRed},
        {120, "Of course there might be many reasons of your obesity...", kRed},
        {135, "That`s why You SHOULD IMMEDIATELY consult doctor!", kRed}}},
  };
  return verdicts;
}

class BmiVerdictTest : public BodyTest {
 protected:
  void ExpectEveryVerdict(const std::string& sex) {
    LogIn("35\r\n100\r\n" + sex + "\r\nlow\r\nnone");
    Open(kOpenBmi);
    for (const Verdict& verdict : Verdicts()) {
      std::vector<DrawnText> expected;
      for (const Line& line : verdict.lines) {
        expected.push_back({line.text, {350, line.y}, kBody, line.colour});
      }
      const std::vector<DrawnText> texts = OwnTexts(CountWith(verdict.weight, 102));
      // Everything behind inputs, value and the labels of the scale.
      ASSERT_GE(texts.size(), 18U);
      EXPECT_EQ(std::vector<DrawnText>(texts.begin() + 18, texts.end()), expected)
          << sex << ' ' << verdict.weight;
    }
  }
};

TEST_F(BmiVerdictTest, ForMen) { ExpectEveryVerdict("men"); }

TEST_F(BmiVerdictTest, ForWomen) { ExpectEveryVerdict("women"); }

}  // namespace
}  // namespace velnor

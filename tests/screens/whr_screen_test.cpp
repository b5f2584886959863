// The WHR screen: everything it paints, and counting.

#include <string>
#include <vector>

#include "tests/screens/body_fixture.h"

namespace velnor {
namespace {

constexpr int kWaist = 104;
constexpr int kHip = 105;
constexpr int kCount = 106;
constexpr Point kValueAt = {75, 350};

constexpr Font kTitle{18, 700, true};
constexpr Font kBody{14, 0, false};
constexpr Font kValue{22, 0, true};

const std::string kMan = "35\r\n175\r\nmen\r\nlow\r\nnone";
const std::string kWoman = "35\r\n175\r\nwomen\r\nlow\r\nnone";

const std::vector<DrawnText> kPear = {
    {"RESULT: PEAR TYPE CORPULENCE", {350, 50}, kBody, kBlack},
    {"Otherwise known as a thigh-buttock obesity.", {350, 75}, kBody, kBlack},
    {"It means that major part of fat reserve", {350, 90}, kBody, kBlack},
    {"was accumulated around thighs and waist.", {350, 105}, kBody, kBlack},
};
const std::vector<DrawnText> kApple = {
    {"RESULT: APPLE TYPE CORPULENCE", {350, 50}, kBody, kBlack},
    {"Otherwise known as an abdominal obesity.", {350, 75}, kBody, kBlack},
    {"It means that major part of fat reserve", {350, 90}, kBody, kBlack},
    {"was accumulated around stomach.", {350, 105}, kBody, kBlack},
};
const std::vector<DrawnText> kNormal = {
    {"RESULT: NORM", {350, 50}, kBody, kBlack},
    {"Everything is fine!", {350, 75}, kBody, kBlack},
};

class WhrScreenTest : public BodyTest {
 protected:
  RecordingCanvas CountOf(const std::string& waist, const std::string& hip) {
    form_.SetText(kWaist, waist);
    form_.SetText(kHip, hip);
    form_.Press(kCount);
    return Repaint();
  }
  std::vector<DrawnText> VerdictOf(const std::string& waist, const std::string& hip) {
    return Column(CountOf(waist, hip), 350, 0);
  }
};

std::vector<DrawnText> Inputs(const std::string& sex) {
  return {
      {"WHR coefficient", {10, 30}, kTitle, kBlack},
      {"( waist-hip ratio )", {10, 45}, kTitle, kBlack},
      {"Waist circumference [cm]", {10, 90}, kBody, kBlack},
      {"Hip circumference [cm]", {10, 120}, kBody, kBlack},
      {"Sex: ", {10, 150}, kBody, kBlack},
      {sex, {55, 150}, kBody, kBlack},
      {"WHR = ", {10, 350}, kValue, kBlack},
  };
}

TEST_F(WhrScreenTest, BeforeTheFirstCountThereAreOnlyInputs) {
  LogIn(kMan);
  const RecordingCanvas canvas = Open(kOpenWhr);
  EXPECT_EQ(OwnTexts(canvas), Inputs("men"));
  const std::vector<DrawnLine> rules = {
      {{{5, 70}, {300, 70}}, {kBlack, 1}},
      {{{5, 200}, {300, 200}}, {kBlack, 1}},
      {{{5, 315}, {300, 315}}, {kBlack, 1}},
  };
  EXPECT_EQ(OwnLines(canvas), rules);
  LogIn(kWoman);
  EXPECT_EQ(OwnTexts(Open(kOpenWhr)), Inputs("women"));
  LogIn("35\r\n175\r\n0\r\nlow\r\nnone");
  EXPECT_EQ(TextAt(Open(kOpenWhr), {55, 150}), "");
}

TEST_F(WhrScreenTest, ValueAndVerdictFollowTheInputs) {
  LogIn(kMan);
  Open(kOpenWhr);
  std::vector<DrawnText> expected = Inputs("men");
  expected.push_back({"0.85", kValueAt, kValue, kBlack});
  expected.insert(expected.end(), kNormal.begin(), kNormal.end());
  EXPECT_EQ(OwnTexts(CountOf("85", "100")), expected);
  EXPECT_EQ(program_->parts().whr_screen.result().waist, "85");
  EXPECT_EQ(program_->parts().whr_screen.result().hip, "100");
  EXPECT_EQ(program_->parts().whr_screen.result().value, 0.85F);
  EXPECT_EQ(program_->parts().whr_screen.result().whr_class, 3);
}

TEST_F(WhrScreenTest, TheVerdictsOfMen) {
  LogIn(kMan);
  Open(kOpenWhr);
  EXPECT_EQ(VerdictOf("69", "100"), kPear);
  EXPECT_EQ(VerdictOf("70", "100"), kPear);
  EXPECT_EQ(VerdictOf("71", "100"), kNormal);
  EXPECT_EQ(VerdictOf("85", "100"), kNormal);
  EXPECT_EQ(VerdictOf("99.9", "100"), kNormal);
  EXPECT_EQ(VerdictOf("100", "100"), kApple);
  EXPECT_EQ(VerdictOf("110", "100"), kApple);
}

TEST_F(WhrScreenTest, TheVerdictsOfWomen) {
  LogIn(kWoman);
  Open(kOpenWhr);
  EXPECT_EQ(VerdictOf("79", "100"), kPear);
  EXPECT_EQ(VerdictOf("80", "100"), kPear);
  EXPECT_EQ(VerdictOf("81", "100"), kApple);
  EXPECT_EQ(VerdictOf("110", "100"), kApple);
}

TEST_F(WhrScreenTest, TheValueHasFiveDigitsAndIsShownInFull) {
  LogIn(kMan);
  Open(kOpenWhr);
  const auto shown = [this](const char* waist, const char* hip) {
    return TextAt(CountOf(waist, hip), kValueAt);
  };
  EXPECT_EQ(shown("2", "3"), "0.66667");
  EXPECT_EQ(shown("85", "100"), "0.85");
  EXPECT_EQ(shown("100", "100"), "1.");
  EXPECT_EQ(shown("100", "0.0003"), "3.3333e+05");
  EXPECT_EQ(shown("-85", "100"), "");
}

TEST_F(WhrScreenTest, MissingFigures) {
  LogIn(kMan);
  Open(kOpenWhr);
  RecordingCanvas canvas = CountOf("", "100");
  EXPECT_EQ(TextAt(canvas, kValueAt), "");
  EXPECT_EQ(Column(canvas, 350, 0), kPear);
  canvas = CountOf("80", "");
  EXPECT_EQ(TextAt(canvas, kValueAt), "inf");
  EXPECT_EQ(Column(canvas, 350, 0), kApple);
  canvas = CountOf("", "");  // no number: the class stays
  EXPECT_EQ(TextAt(canvas, kValueAt), "");
  EXPECT_EQ(Column(canvas, 350, 0), kApple);
  LogIn(kWoman);
  Open(kOpenWhr);
  EXPECT_EQ(VerdictOf("", "100"), kPear);
}

TEST_F(WhrScreenTest, AnUnknownSexKeepsTheClass) {
  LogIn("35\r\n175\r\n0\r\nlow\r\nnone");
  Open(kOpenWhr);
  EXPECT_TRUE(VerdictOf("85", "100").empty());
  EXPECT_EQ(TextAt(Repaint(), kValueAt), "0.85");
}

TEST_F(WhrScreenTest, TheSecondLetterDecidesOnTheNote) {
  const DrawnText note = {"For pregnant woman WHR coefficient is useless!", {10, 515}, kBody, kRed};
  for (const char* const other : {"pregnant", "xr"}) {
    LogIn("35\r\n175\r\nwomen\r\nlow\r\n" + std::string(other));
    const std::vector<DrawnText> texts = OwnTexts(Open(kOpenWhr));
    ASSERT_EQ(texts.size(), 8U) << other;
    EXPECT_EQ(Column(Repaint(), 10, 500), (std::vector<DrawnText>{note}));
  }
  for (const char* const other : {"suckling mother", "athlete", "none", "p", "r", "0"}) {
    LogIn("35\r\n175\r\nwomen\r\nlow\r\n" + std::string(other));
    EXPECT_EQ(OwnTexts(Open(kOpenWhr)), Inputs("women")) << other;
  }
}

TEST_F(WhrScreenTest, TheNoteColoursNothingElse) {
  LogIn("35\r\n175\r\nwomen\r\nlow\r\npregnant");
  Open(kOpenWhr);
  const RecordingCanvas canvas = CountOf("81", "100");
  EXPECT_EQ(Column(canvas, 350, 0), kApple);
  for (const DrawnText& text : OwnTexts(canvas)) {
    EXPECT_EQ(text.colour, text.at.y == 515 ? kRed : kBlack) << text.text;
  }
}

TEST_F(WhrScreenTest, CountingRepaintsWithoutErasingOnEveryPath) {
  for (const char* const sex : {"men", "women", "0"}) {
    LogIn("35\r\n175\r\n" + std::string(sex) + "\r\nlow\r\nnone");
    Open(kOpenWhr);
    window_.log.clear();
    form_.Press(kCount);
    EXPECT_EQ(window_.log, (Texts{"invalidate without erasing"})) << sex;
  }
}

TEST_F(WhrScreenTest, TheResultOutlivesScreensAndUsers) {
  LogIn(kMan);
  Open(kOpenWhr);
  const RecordingCanvas counted = CountOf("85", "100");
  Open(231);
  EXPECT_EQ(Open(kOpenWhr).texts, counted.texts);
  LogOut();
  LogIn(kWoman, "Zoe");
  const RecordingCanvas canvas = Open(kOpenWhr);
  EXPECT_EQ(TextAt(canvas, kValueAt), "0.85");
  EXPECT_EQ(Column(canvas, 350, 0), kNormal);
}

TEST_F(WhrScreenTest, TwentyNineCharactersOfEachCount) {
  LogIn(kMan);
  Open(kOpenWhr);
  CountOf(std::string(27, '0') + "85", std::string(28, '0') + "25");
  EXPECT_EQ(program_->parts().whr_screen.result().waist, std::string(27, '0') + "85");
  EXPECT_EQ(program_->parts().whr_screen.result().hip, std::string(28, '0') + "2");
  EXPECT_EQ(program_->parts().whr_screen.result().value, 42.5F);
}

}  // namespace
}  // namespace velnor

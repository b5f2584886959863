// The BMR screen: everything it paints, counting, and the weight it shares with the BMI.

#include <string>
#include <vector>

#include "tests/screens/body_fixture.h"

namespace velnor {
namespace {

constexpr int kCountBmi = 102;
constexpr int kCount = 176;
constexpr Point kValueAt = {65, 280};

constexpr Font kBody{14, 0, false};
constexpr Font kParagraph{16, 0, false};
constexpr Font kLabel{17, 0, true};

const std::string kMan = "30\r\n175\r\nmen\r\nlow\r\nnone";
const std::string kWoman = "30\r\n165\r\nwomen\r\nlow\r\nnone";

using BmrScreenTest = BodyTest;

std::vector<DrawnText> Inputs(const std::string& height, const std::string& sex) {
  return {
      {"BMR index", {10, 30}, {18, 700, true}, kBlack},
      {"(Basal metabolism)", {130, 33}, kBody, kBlack},
      {"Put Your body weight[kg]: ", {10, 95}, kBody, kBlack},
      {"Height[cm]: ", {10, 115}, kBody, kBlack},
      {height, {95, 115}, kBody, kBlack},
      {"Sex: ", {10, 135}, kBody, kBlack},
      {sex, {55, 135}, kBody, kBlack},
      {"Age: ", {10, 155}, kBody, kBlack},
      {"30", {95, 155}, kBody, kBlack},
      {"BMR =  ", {10, 280}, kLabel, kBlack},
  };
}

const std::vector<DrawnText> kExplanation = {
    {"BMR COEFFICIENT", {350, 75}, kParagraph, kBlack},
    {"Energy balance economy is an equilibrium", {350, 90}, kParagraph, kBlack},
    {"between amount steam provided ex feeds", {350, 105}, kParagraph, kBlack},
    {"and spending energetistic regimes.", {350, 120}, kParagraph, kBlack},
    {"A basal metabolism are processes", {350, 150}, kParagraph, kBlack},
    {"which are stealing the man fasting through 12 hours ", {350, 165}, kParagraph, kBlack},
    {"in the total psychological and physical rest.", {350, 180}, kParagraph, kBlack},
    {"BMR supplies energy to upkeep basic vital functions ", {350, 195}, kParagraph, kBlack},
    {"eg.: brain activity , muscles , heart-beating or body temperature.",
     {350, 210},
     kParagraph,
     kBlack},
    {"Value is calculated according to the user data (in profile)", {10, 500}, kParagraph, kBlack},
};

std::vector<DrawnText> Joined(std::vector<DrawnText> first, const std::vector<DrawnText>& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

TEST_F(BmrScreenTest, BeforeTheFirstCountThereIsNoValue) {
  LogIn(kMan);
  const RecordingCanvas canvas = Open(kOpenBmr);
  EXPECT_EQ(OwnTexts(canvas), Joined(Inputs("175", "men"), kExplanation));
  const std::vector<DrawnLine> rules = {
      {{{5, 55}, {695, 55}}, {kBlack, 1}},
      {{{5, 175}, {300, 175}}, {kBlack, 1}},
      {{{5, 260}, {300, 260}}, {kBlack, 1}},
  };
  EXPECT_EQ(OwnLines(canvas), rules);
}

TEST_F(BmrScreenTest, AMansRate) {
  LogIn(kMan);
  Open(kOpenBmr);
  std::vector<DrawnText> expected = Inputs("175", "men");
  expected.push_back({"1701.", kValueAt, {18, 700, false}, kBlack});
  EXPECT_EQ(OwnTexts(CountWith("70", kCount)), Joined(expected, kExplanation));
  EXPECT_EQ(program_->parts().bmr_screen.result().value, 1701.47F);
}

TEST_F(BmrScreenTest, AWomansRate) {
  LogIn(kWoman);
  Open(kOpenBmr);
  std::vector<DrawnText> expected = Inputs("165", "woman");
  expected.push_back({"1405.", kValueAt, {18, 700, false}, kBlack});
  EXPECT_EQ(OwnTexts(CountWith("60", kCount)), Joined(expected, kExplanation));
  EXPECT_EQ(program_->parts().bmr_screen.result().value, 1405.49F);
}

TEST_F(BmrScreenTest, TheValueIsCutToFiveCharacters) {
  LogIn("0\r\n0\r\nmen\r\nlow\r\nnone");
  Open(kOpenBmr);
  const auto shown = [this](const char* weight) {
    return TextAt(CountWith(weight, kCount), kValueAt);
  };
  EXPECT_EQ(shown("66.9949"), "987.6");  // 987.649
  EXPECT_EQ(shown("67"), "987.7");       // 987.72
  EXPECT_EQ(shown("1"), "80.22");        // 80.220001
  EXPECT_EQ(shown("999999"), "13750");   // 13750053: eleven digits, no exponent
  EXPECT_EQ(shown("1e39"), "inf");
}

TEST_F(BmrScreenTest, OnlyMoreThanTenIsShown) {
  LogIn("0\r\n0\r\nmen\r\nlow\r\nnone");
  Open(kOpenBmr);
  const auto shown = [this](const char* weight) {
    return TextAt(CountWith(weight, kCount), kValueAt);
  };
  EXPECT_EQ(shown("-4.106909"), "10.00");  // 10.0000013
  EXPECT_EQ(shown("-4.1069091"), "");      // 10 when it is a float
  EXPECT_EQ(program_->parts().bmr_screen.result().value, 10.0F);
  EXPECT_EQ(shown("-5"), "");
  LogIn("90\r\n0\r\nmen\r\nlow\r\nnone");
  Open(kOpenBmr);
  EXPECT_EQ(shown(""), "");
  EXPECT_LT(program_->parts().bmr_screen.result().value, 0);
}

TEST_F(BmrScreenTest, AnUnknownSexHidesTheValue) {
  LogIn(kMan);
  Open(kOpenBmr);
  CountWith("70", kCount);
  LogIn("30\r\n175\r\n0\r\nlow\r\nnone");
  RecordingCanvas canvas = Open(kOpenBmr);
  EXPECT_EQ(TextAt(canvas, {55, 135}), "");
  EXPECT_EQ(TextAt(canvas, kValueAt), "1701.");
  canvas = CountWith("70", kCount);
  EXPECT_EQ(TextAt(canvas, kValueAt), "");
  EXPECT_EQ(program_->parts().bmr_screen.result().value, 0.0F);
}

TEST_F(BmrScreenTest, CountingRepaintsAtOnce) {
  LogIn(kMan);
  Open(kOpenBmr);
  window_.log.clear();
  form_.Press(kCount);
  EXPECT_EQ(window_.log, (Texts{"paint now"}));
}

TEST_F(BmrScreenTest, TheResultOutlivesScreensAndUsers) {
  LogIn(kMan);
  Open(kOpenBmr);
  const RecordingCanvas counted = CountWith("70", kCount);
  Open(231);
  EXPECT_EQ(Open(kOpenBmr).texts, counted.texts);
  LogOut();
  LogIn(kWoman, "Zoe");
  EXPECT_EQ(TextAt(Open(kOpenBmr), kValueAt), "1701.");
}

TEST_F(BmrScreenTest, TheWeightTypedForTheBmiStandsInTheEditHere) {
  LogIn(kMan);
  Open(kOpenBmi);
  form_.Type(kWeightEdit, "70");
  Open(kOpenBmr);
  EXPECT_EQ(form_.Text(kWeightEdit), "70");
  form_.Press(kCount);
  EXPECT_EQ(program_->parts().bmr_screen.result().value, 1701.47F);
  EXPECT_EQ(program_->parts().bmi_screen.result().value, 0.0F);
}

TEST_F(BmrScreenTest, TwentyNineCharactersOfTheWeightCount) {
  LogIn("0\r\n0\r\nmen\r\nlow\r\nnone");
  Open(kOpenBmr);
  CountWith(std::string(28, '0') + "25", kCount);
  EXPECT_EQ(program_->parts().bmr_screen.result().value, 93.97F);
}

// The report takes the weight that was counted with last, on whichever screen.
TEST_F(BmrScreenTest, ItsWeightIsOfferedForTheReportToo) {
  LogIn(kMan);
  Open(kOpenBmi);
  CountWith("70", kCountBmi);
  Open(kOpenBmr);
  CountWith("71.5", kCount);
  Open(kOpenBmi);
  FakeForm dialog;
  OpenDialog(103, dialog);
  EXPECT_EQ(dialog.Text(710), "71.5");
  EXPECT_EQ(dialog.Text(711), "22.8571");
}

}  // namespace
}  // namespace velnor

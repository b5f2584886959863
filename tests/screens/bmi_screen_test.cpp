// The BMI screen: everything it paints, from the first visit to beyond its scale, and counting.

#include <string>
#include <vector>

#include "body/bmi_scale.h"
#include "tests/screens/body_fixture.h"

namespace velnor {
namespace {

constexpr int kCount = 102;
constexpr Point kValueAt = {65, 280};

constexpr Font kTitle{18, 700, true};
constexpr Font kBody{14, 0, false};
constexpr Font kValue{17, 0, true};
constexpr Font kSmall{12, 0, false};
constexpr Font kSmallItalic{12, 0, true};
constexpr Colour kGreen{0, 255, 0};
constexpr Colour kGrey{79, 79, 79};

const std::string kMan = "35\r\n175\r\nmen\r\nlow\r\nnone";
const std::string kWoman = "35\r\n175\r\nwomen\r\nlow\r\nnone";
// With a metre of height the weight is the BMI.
const std::string kManOfAMetre = "35\r\n100\r\nmen\r\nlow\r\nnone";
const std::string kWomanOfAMetre = "35\r\n100\r\nwomen\r\nlow\r\nnone";

using BmiScreenTest = BodyTest;

std::vector<DrawnText> Inputs(const std::string& sex) {
  return {
      {"BMI", {10, 30}, kTitle, kBlack},
      {"(Body Mass Index)", {10, 45}, kTitle, kBlack},
      {"Put Your weight [kg]: ", {10, 95}, kBody, kBlack},
      {"Height [cm]: ", {10, 115}, kBody, kBlack},
      {"175", {95, 115}, kBody, kBlack},
      {"Sex: ", {10, 135}, kBody, kBlack},
      {sex, {55, 135}, kBody, kBlack},
      {"BMI =  ", {10, 280}, kValue, kBlack},
  };
}

const std::vector<DrawnLine> kRules = {
    {{{5, 70}, {300, 70}}, {kBlack, 1}},
    {{{5, 175}, {300, 175}}, {kBlack, 1}},
    {{{5, 260}, {300, 260}}, {kBlack, 1}},
};

struct TickAt {
  int x;
  bool major;
};

// The rules, the axis with its ends and the ticks.
std::vector<DrawnLine> Graduation(const std::vector<TickAt>& ticks) {
  std::vector<DrawnLine> lines = kRules;
  lines.push_back({{{50, 450}, {750, 450}}, {kGrey, 3}});
  lines.push_back({{{50, 456}, {50, 444}}, {kGrey, 3}});
  lines.push_back({{{750, 456}, {750, 444}}, {kGrey, 3}});
  for (const TickAt& tick : ticks) {
    const int reach = tick.major ? 5 : 3;
    lines.push_back({{{tick.x, 450 + reach}, {tick.x, 450 - reach}}, {kGrey, tick.major ? 2 : 1}});
  }
  return lines;
}

DrawnLine Marker(int x) {
  return {{{x, 450}, {x - 20, 420}, {x + 20, 420}, {x, 450}}, {{205, 205, 205}, 2}};
}

const std::vector<TickAt> kMensTicks = {{260, true}, {299, true},  {368, true},  {383, false},
                                        {422, true}, {470, false}, {530, false}, {650, true}};
const std::vector<TickAt> kWomensTicks = {{260, true}, {279, true},  {360, true},  {378, false},
                                          {438, true}, {470, false}, {530, false}, {650, true}};

std::vector<DrawnText> Labels(int underweight, int standard, int overweight) {
  return {
      {"DANGER", {135, 460}, kSmall, kRed},
      {"underweight", {underweight, 460}, kSmall, kBlack},
      {"standard", {standard, 460}, kSmall, kGreen},
      {"overweight", {overweight, 460}, kSmall, kBlack},
      {"OBESITY", {515, 470}, {13, 0, true}, kBlack},
      {"I", {440, 460}, kSmallItalic, kBlack},
      {"II", {500, 460}, kSmallItalic, kBlack},
      {"III", {573, 460}, kSmallItalic, kBlack},
      {"DANGER", {680, 460}, kSmall, kRed},
  };
}

const std::vector<DrawnText> kStandardVerdict = {
    {"RESULT: STANDARD", {350, 50}, kBody, kGreen},
    {"Seems your body weight is ok!", {350, 75}, kBody, kBlack},
    {"Keep working!!", {350, 90}, kBody, kBlack},
    {"However only specialist like dietician", {350, 115}, kBody, kBlack},
    {"can precisely define relation", {350, 130}, kBody, kBlack},
    {"between fat and body weight.", {350, 145}, kBody, kBlack},
};

std::vector<DrawnText> Joined(const std::vector<std::vector<DrawnText>>& parts) {
  std::vector<DrawnText> all;
  for (const auto& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

TEST_F(BmiScreenTest, BeforeTheFirstCountThereAreOnlyInputs) {
  LogIn(kMan);
  const RecordingCanvas canvas = Open(kOpenBmi);
  EXPECT_EQ(OwnTexts(canvas), Inputs("men"));
  EXPECT_EQ(OwnLines(canvas), kRules);
  LogIn(kWoman);
  EXPECT_EQ(OwnTexts(Open(kOpenBmi)), Inputs("women"));
}

TEST_F(BmiScreenTest, AnUnknownSexIsLeftOutAndGetsNoResult) {
  LogIn("35\r\n175\r\n0\r\nlow\r\nnone");
  Open(kOpenBmi);
  const RecordingCanvas canvas = CountWith("70", kCount);
  EXPECT_EQ(TextAt(canvas, {55, 135}), "");
  EXPECT_EQ(TextAt(canvas, kValueAt), "22.85");
  EXPECT_EQ(OwnLines(canvas), kRules);
  EXPECT_TRUE(Column(canvas, 350, 50).empty());
}

TEST_F(BmiScreenTest, AMansResultFromInputsToVerdict) {
  LogIn(kMan);
  Open(kOpenBmi);
  const RecordingCanvas canvas = CountWith("70", kCount);
  EXPECT_EQ(OwnTexts(canvas), Joined({Inputs("men"),
                                      {{"22.85", kValueAt, kValue, kBlack}},
                                      Labels(258, 320, 380),
                                      kStandardVerdict}));
  std::vector<DrawnLine> lines = Graduation(kMensTicks);
  lines.push_back(Marker(325));
  EXPECT_EQ(OwnLines(canvas), lines);
  EXPECT_EQ(program_->bmi().result().value, 22.857143F);
  EXPECT_EQ(program_->bmi().result().bmi_class, 3);
}

TEST_F(BmiScreenTest, AWomansResultFromInputsToVerdict) {
  LogIn(kWoman);
  Open(kOpenBmi);
  const RecordingCanvas canvas = CountWith("70", kCount);
  EXPECT_EQ(OwnTexts(canvas), Joined({Inputs("women"),
                                      {{"22.85", kValueAt, kValue, kBlack}},
                                      Labels(248, 305, 382),
                                      kStandardVerdict}));
  std::vector<DrawnLine> lines = Graduation(kWomensTicks);
  lines.push_back(Marker(325));
  EXPECT_EQ(OwnLines(canvas), lines);
}

TEST(BmiScale, LeavesABlackPenAndBlackText) {
  for (const float bmi : {22.0F, 60.0F}) {
    RecordingCanvas canvas;
    DrawBmiScale(canvas, bmi, {.sex = "men"});
    canvas.DrawLine({0, 0}, {1, 1});
    canvas.WriteText({0, 0}, "x");
    EXPECT_EQ(canvas.lines.back().pen, (Pen{kBlack, 1})) << bmi;
    EXPECT_EQ(canvas.texts.back().colour, kBlack) << bmi;
  }
}

TEST_F(BmiScreenTest, TheValueIsCutToFiveCharacters) {
  LogIn(kManOfAMetre);
  Open(kOpenBmi);
  const auto shown = [this](const char* weight) {
    return TextAt(CountWith(weight, kCount), kValueAt);
  };
  EXPECT_EQ(shown("22.1456"), "22.14");
  EXPECT_EQ(shown("22.99996"), "23.");  // rounded to six digits before it is cut
  EXPECT_EQ(shown("9.87654"), "9.876");
  EXPECT_EQ(shown("123.456"), "123.4");
  EXPECT_EQ(shown("20"), "20.");
  EXPECT_EQ(shown("1e7"), "1.e+0");
}

TEST_F(BmiScreenTest, ClassesEndWithTheirBounds) {
  for (const std::string& profile : {kManOfAMetre, kWomanOfAMetre}) {
    LogIn(profile);
    Open(kOpenBmi);
    const auto class_of = [this](const char* weight) {
      CountWith(weight, kCount);
      return program_->bmi().result().bmi_class;
    };
    EXPECT_EQ(class_of("17.5"), 1);
    EXPECT_EQ(class_of("17.51"), 2);
    EXPECT_EQ(class_of("50"), 8);
    EXPECT_EQ(class_of("50.01"), 9);
  }
}

TEST_F(BmiScreenTest, AtTheEndOfTheScaleThereIsNone) {
  for (const std::string& profile : {kManOfAMetre, kWomanOfAMetre}) {
    LogIn(profile);
    Open(kOpenBmi);
    const RecordingCanvas canvas = CountWith("57", kCount);
    EXPECT_EQ(OwnLines(canvas), kRules);
    EXPECT_EQ(TextAt(canvas, kValueAt), "57.");
    EXPECT_EQ(TextAt(canvas, {135, 460}), "");
    EXPECT_EQ(Column(canvas, 350, 50).size(), 6U);
    EXPECT_EQ(OwnLines(CountWith("56.99", kCount)).back(), Marker(734));
  }
}

TEST_F(BmiScreenTest, BeyondTheScaleMenSeeItWithoutAMarker) {
  LogIn(kManOfAMetre);
  Open(kOpenBmi);
  const RecordingCanvas canvas = CountWith("57.1", kCount);
  EXPECT_EQ(OwnLines(canvas), Graduation(kMensTicks));
  const std::vector<DrawnText> texts = OwnTexts(canvas);
  const std::vector<DrawnText> labels = Labels(258, 320, 380);
  const auto scale = texts.begin() + 9;  // behind inputs and value
  EXPECT_EQ(std::vector<DrawnText>(scale, scale + 9), labels);
  EXPECT_EQ(texts[18], (DrawnText{"OUT OF SCALE", {630, 415}, {22, 700, true}, {200, 0, 0}}));
  EXPECT_EQ(texts[19].at, (Point{350, 50}));
}

TEST_F(BmiScreenTest, BeyondTheScaleWomenSeeNone) {
  LogIn(kWomanOfAMetre);
  Open(kOpenBmi);
  const RecordingCanvas canvas = CountWith("60", kCount);
  EXPECT_EQ(OwnLines(canvas), kRules);
  EXPECT_EQ(TextAt(canvas, kValueAt), "60.");
  EXPECT_EQ(TextAt(canvas, {350, 50}).substr(0, 19), "SCORE: OUT OF SCALE");
  EXPECT_EQ(OwnTexts(canvas).size(), 8U + 1U + 6U);
}

TEST_F(BmiScreenTest, ANegativeOrMissingWeightShowsTheLowestClassWithoutAValue) {
  LogIn(kMan);
  for (const char* const weight : {"", "abc", "-70"}) {
    Open(kOpenBmi);
    const RecordingCanvas canvas = CountWith(weight, kCount);
    EXPECT_EQ(TextAt(canvas, kValueAt), "") << weight;
    EXPECT_EQ(OwnLines(canvas), kRules) << weight;
    EXPECT_EQ(TextAt(canvas, {350, 50}), "ATTENTION!") << weight;
    EXPECT_EQ(OwnTexts(canvas).size(), 8U + 7U) << weight;
  }
}

TEST_F(BmiScreenTest, AMissingHeightIsBeyondAllScales) {
  LogIn("35\r\n0\r\nmen\r\nlow\r\nnone");
  Open(kOpenBmi);
  RecordingCanvas canvas = CountWith("70", kCount);
  EXPECT_EQ(TextAt(canvas, kValueAt), "inf");
  EXPECT_EQ(TextAt(canvas, {95, 115}), "");
  EXPECT_EQ(OwnLines(canvas), Graduation(kMensTicks));
  EXPECT_EQ(TextAt(canvas, {630, 415}), "OUT OF SCALE");
  EXPECT_EQ(program_->bmi().result().bmi_class, 9);

  LogIn("35\r\n0\r\nwomen\r\nlow\r\nnone");
  Open(kOpenBmi);
  canvas = CountWith("70", kCount);
  EXPECT_EQ(TextAt(canvas, kValueAt), "inf");
  EXPECT_EQ(OwnLines(canvas), kRules);
}

TEST_F(BmiScreenTest, WithNeitherWeightNorHeightTheLastResultStays) {
  LogIn(kMan);
  Open(kOpenBmi);
  const RecordingCanvas before = CountWith("70", kCount);
  LogIn("35\r\n0\r\nmen\r\nlow\r\nnone");
  Open(kOpenBmi);
  const RecordingCanvas after = CountWith("", kCount);
  EXPECT_EQ(TextAt(after, kValueAt), "22.85");
  EXPECT_EQ(after.lines, before.lines);
  EXPECT_EQ(Column(after, 350, 50), kStandardVerdict);
}

TEST_F(BmiScreenTest, WithNothingBeforeItNoNumberShowsNothing) {
  LogIn("35\r\n0\r\nmen\r\nlow\r\nnone");
  Open(kOpenBmi);
  const RecordingCanvas canvas = CountWith("", kCount);
  EXPECT_EQ(OwnTexts(canvas).size(), 8U);
  EXPECT_EQ(OwnLines(canvas), kRules);
}

TEST_F(BmiScreenTest, NotesStandBetweenLabelAndValue) {
  LogIn("18\r\n175\r\nwomen\r\nlow\r\npregnant");
  Open(kOpenBmi);
  const RecordingCanvas canvas = CountWith("70", kCount);
  const std::vector<DrawnText> notes = {
      {"BMI coefficient is authoritative for people above 20 years old.", {10, 300}, kBody, kRed},
      {"However at Your age it might be quite reliable.", {10, 315}, kBody, kRed},
      {"Pregnant woman should count BMI on the basis of datas before pregnancy -",
       {10, 495},
       kBody,
       kRed},
      {"- this way You can check if your weight was corect.", {10, 510}, kBody, kRed},
      {"During pregnancy BMI coefficient is useless!", {10, 525}, kBody, kRed},
  };
  EXPECT_EQ(OwnTexts(canvas), Joined({Inputs("women"),
                                      notes,
                                      {{"22.85", kValueAt, kValue, kBlack}},
                                      Labels(248, 305, 382),
                                      kStandardVerdict}));
}

TEST_F(BmiScreenTest, NotesAreThereWithoutAResultToo) {
  LogIn("17\r\n175\r\nmen\r\nlow\r\nathlete");
  const std::vector<DrawnText> notes = {
      {"BMI coefficient is authoritative for people above 20 years old.", {10, 300}, kBody, kRed},
      {"Athletes should be careful counting BMI.", {10, 495}, kBody, kRed},
      {"Sometimes expanded muscular tissue may provide to mislead!", {10, 510}, kBody, kRed},
  };
  EXPECT_EQ(OwnTexts(Open(kOpenBmi)), Joined({Inputs("men"), notes}));
  for (const char* const other : {"suckling mother", "none", "patient", "0"}) {
    LogIn("35\r\n175\r\nwomen\r\nlow\r\n" + std::string(other));
    EXPECT_EQ(OwnTexts(Open(kOpenBmi)), Inputs("women")) << other;
  }
}

TEST_F(BmiScreenTest, CountingRepaintsWithoutErasing) {
  LogIn(kMan);
  Open(kOpenBmi);
  window_.log.clear();
  form_.Press(kCount);
  EXPECT_EQ(window_.log, (Texts{"invalidate without erasing"}));
}

TEST_F(BmiScreenTest, TypingAloneChangesNothing) {
  LogIn(kMan);
  Open(kOpenBmi);
  form_.Type(kWeightEdit, "70");
  EXPECT_EQ(OwnTexts(Repaint()), Inputs("men"));
}

TEST_F(BmiScreenTest, TheResultOutlivesScreensAndUsers) {
  LogIn(kManOfAMetre);
  Open(kOpenBmi);
  const RecordingCanvas counted = CountWith("32", kCount);
  Open(231);
  EXPECT_EQ(Open(kOpenBmi).texts, counted.texts);
  LogOut();
  LogIn(kWoman, "Zoe");
  const RecordingCanvas canvas = Open(kOpenBmi);
  EXPECT_EQ(TextAt(canvas, kValueAt), "32.");
  // The scale is hers, the class is his: hers would be class 5.
  std::vector<DrawnLine> lines = Graduation(kWomensTicks);
  lines.push_back(Marker(434));
  EXPECT_EQ(OwnLines(canvas), lines);
  EXPECT_EQ(TextAt(canvas, {350, 50}), "RESULT: HAVY OVERWEIGHT");
  EXPECT_EQ(program_->bmi().result().bmi_class, 6);
}

TEST_F(BmiScreenTest, TwentyNineCharactersOfTheWeightCount) {
  LogIn(kManOfAMetre);
  Open(kOpenBmi);
  EXPECT_EQ(TextAt(CountWith(std::string(28, '0') + "25", kCount), kValueAt), "2.");
  EXPECT_EQ(TextAt(CountWith(std::string(27, '0') + "25", kCount), kValueAt), "25.");
}

}  // namespace
}  // namespace velnor

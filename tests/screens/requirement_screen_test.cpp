// The daily requirement: what it paints, what its fields show, and setting limits of one's own.

#include <array>
#include <string>
#include <vector>

#include "tests/support/program_fixture.h"

namespace velnor {
namespace {

using namespace std::string_literals;
using Texts = std::vector<std::string>;

constexpr int kOpenRequirement = 232;

class RequirementScreenTest : public ProgramTest {
 protected:
  // Ann is registered with this profile; a login shows nothing when it is complete.
  void LogIn(const std::string& profile) { ProgramTest::LogIn("Ann", profile); }
  Texts Shown() const {
    return {form_.Text(120), form_.Text(121), form_.Text(122), form_.Text(123)};
  }
  Texts Limits() const {
    Texts texts;
    for (int id = 166; id <= 173; ++id) texts.push_back(form_.Text(id));
    return texts;
  }
  void TypeLimits(const std::array<const char*, 8>& limits) {
    for (std::size_t i = 0; i < limits.size(); ++i) {
      form_.SetText(166 + static_cast<int>(i), limits[i]);
    }
  }
  std::string LimitsFile() const { return folder_.Read("Ann/zapot.ASC"); }
};

constexpr std::array<const char*, 8> kLimits = {"2000", "2500", "60",  "80",
                                                "50",   "70",   "200", "300"};
const std::string kLimitsFile = "1\r\n2000\r\n2500\r\n60\r\n80\r\n50\r\n70\r\n200\r\n300\r\n";

TEST_F(RequirementScreenTest, PaintsItsTexts) {
  LogIn("35\r\n180\r\nmen\r\nlow\r\nnone");
  const RecordingCanvas canvas = Open(kOpenRequirement);
  constexpr Font kHeading{22, 700, false};
  constexpr Font kBody{14, 0, false};
  constexpr Colour kOrange{229, 171, 31};
  const std::vector<DrawnText> expected = {
      {"Daily request", {10, 30}, kHeading, kBlack},
      {"User settings", {540, 65}, kHeading, kOrange},
      {"Below is information about daily demand for:", {10, 75}, kBody, kBlack},
      {"- calories,", {10, 90}, kBody, kBlack},
      {"- proteins,", {10, 105}, kBody, kBlack},
      {"- fat,", {10, 120}, kBody, kBlack},
      {"- carbohydrates.", {10, 135}, kBody, kBlack},
      {"These are average values calculated", {10, 155}, kBody, kBlack},
      {"for persons from individual groups.", {10, 170}, kBody, kBlack},
      {"Membership of proper group has been defined ", {10, 190}, kBody, kBlack},
      {"rely to information served in profile of user.", {10, 205}, kBody, kBlack},
      {"For exact daytime determination ", {10, 225}, kBody, kBlack},
      {"You should contact specialist - eg. dietician.", {10, 240}, kBody, kBlack},
      {"Your daily requirement: ", {10, 320}, kBody, kBlack},
      {"calorie[kcal]: ", {10, 355}, kBody, kBlack},
      {"protein[g]: ", {10, 390}, kBody, kBlack},
      {"fat[g]: ", {10, 425}, kBody, kBlack},
      {"carbohydrates[g]: ", {10, 460}, kBody, kBlack},
      {"Program enables definition of personal", {500, 100}, kBody, kBlack},
      {"partition of daytime request.", {500, 115}, kBody, kBlack},
      {"If You want to activate them", {500, 140}, kBody, kBlack},
      {"You have to inscribe to proper fields", {500, 155}, kBody, kBlack},
      {"upper and lower limits of partitions", {500, 170}, kBody, kBlack},
      {"At the end You should confirm choice", {500, 185}, kBody, kBlack},
      {"by pressing the undermentioned button.", {500, 200}, kBody, kBlack},
      {"lower limit", {515, 340}, kBody, kBlack},
      {"upper limit", {645, 340}, kBody, kBlack},
      {"calorie[kcal]", {410, 360}, kBody, kBlack},
      {"proteins[g]", {410, 400}, kBody, kBlack},
      {"fat[g]", {410, 435}, kBody, kBlack},
      {"carbohydrates[g]", {410, 470}, kBody, kBlack},
      {"Unactive setups", {580, 515}, {19, 700, true}, {0, 0, 165}},
  };
  EXPECT_EQ(std::vector<DrawnText>(canvas.texts.begin() + 3, canvas.texts.end()), expected);
  EXPECT_EQ(canvas.lines.back(), (DrawnLine{{{5, 55}, {695, 55}}, {kBlack, 1}}));
}

// The red texts of the screen.
Texts RedTexts(const RecordingCanvas& canvas) {
  Texts texts;
  for (const DrawnText& text : canvas.texts) {
    if (text.colour != kRed) continue;
    texts.push_back(text.text);
    EXPECT_EQ(text.at, (Point{10, 245 + 15 * static_cast<int>(texts.size())}));
  }
  return texts;
}

TEST_F(RequirementScreenTest, AthletesAndChildrenGetTheirNotes) {
  const Texts athletes = {"Only specialist should establish daytime request for athletes",
                          "taking into consideration kind of sport activity.",
                          "Listed beneath valuations can be then untruly."};
  const Texts children = {"Setting of daytime request for children",
                          "is very difficult and in fact it is passed with the purpose.",
                          "If You want to know more - consult pediatrician."};
  LogIn("35\r\n180\r\nmen\r\nlow\r\nathlete");
  EXPECT_EQ(RedTexts(Open(kOpenRequirement)), athletes);
  LogIn("4\r\n100\r\nmen\r\nlow\r\nathlete");
  EXPECT_EQ(RedTexts(Open(kOpenRequirement)), athletes);
  LogIn("3\r\n100\r\nmen\r\nlow\r\nathlete");
  EXPECT_EQ(RedTexts(Open(kOpenRequirement)), children);
  EXPECT_EQ(Shown(), (Texts{" unavailable", " unavailable", " unavailable", " unavailable"}));
  LogIn("35\r\n180\r\nmen\r\nlow\r\nnone");
  EXPECT_EQ(RedTexts(Open(kOpenRequirement)), Texts{});
}

TEST_F(RequirementScreenTest, ShowsTheGroupsRequirement) {
  LogIn("35\r\n180\r\nmen\r\nmedium\r\nathlete");
  Open(kOpenRequirement);
  EXPECT_EQ(Shown(), (Texts{"4500", "100", "125-165", "655-745"}));
  LogIn("72\r\n160\r\nwomen\r\nlow\r\nsuckling mother");
  Open(kOpenRequirement);
  EXPECT_EQ(Shown(), (Texts{"2100-2300", "65", "65-80", "330-365"}));
}

TEST_F(RequirementScreenTest, BothItsCommandsBringItUpToDate) {
  LogIn("35\r\n180\r\nmen\r\nlow\r\nnone");
  Open(kOpenRequirement);
  EXPECT_EQ(Shown()[0], "2400-2600");
  folder_.Write("Ann/zapot.ASC", kLimitsFile);
  EXPECT_EQ(program_->parts().requirement.requirement().calories, (Range{2400, 2600}));
  Open(231);
  EXPECT_EQ(program_->parts().requirement.requirement().calories, (Range{2000, 2500}));
  EXPECT_EQ(program_->parts().requirement.requirement().carbohydrate, (Range{200, 300}));
}

TEST_F(RequirementScreenTest, ActivatedLimitsAreInForceAtOnceAndShownAsActiveAfterALogin) {
  LogIn("35\r\n180\r\nmen\r\nlow\r\nnone");
  Open(kOpenRequirement);
  TypeLimits(kLimits);
  window_.log.clear();
  form_.Press(174);
  EXPECT_EQ(boxes_.TakeTexts(), Texts{});
  EXPECT_EQ(LimitsFile(), kLimitsFile);
  EXPECT_EQ(window_.log, (Texts{"invalidate"}));
  EXPECT_EQ(Repaint().texts.back().text, "Unactive setups");
  EXPECT_EQ(Limits(), Texts(8, ""));
  Open(kOpenRequirement);
  EXPECT_EQ(Shown(), (Texts{"2000-2500", "60-80", "50-70", "200-300"}));

  LogIn("35\r\n180\r\nmen\r\nlow\r\nnone");
  const RecordingCanvas canvas = Open(kOpenRequirement);
  EXPECT_EQ(canvas.texts.back(),
            (DrawnText{"Active setups", {590, 515}, {19, 700, true}, {0, 0, 165}}));
  EXPECT_EQ(Shown(), (Texts{" unavailable", " unavailable", " unavailable", " unavailable"}));
  EXPECT_EQ(Limits(), Texts(kLimits.begin(), kLimits.end()));
}

TEST_F(RequirementScreenTest, ClearPutsTheGroupInForceAgain) {
  LogIn("35\r\n180\r\nmen\r\nlow\r\nnone");
  folder_.Write("Ann/zapot.ASC", kLimitsFile);
  LogIn("35\r\n180\r\nmen\r\nlow\r\nnone");
  Open(kOpenRequirement);
  window_.log.clear();
  form_.Press(175);
  EXPECT_EQ(LimitsFile(), "0\r\n");
  EXPECT_EQ(window_.log, (Texts{"invalidate"}));
  EXPECT_EQ(Repaint().texts.back().text, "Unactive setups");
  EXPECT_EQ(Limits(), Texts(8, ""));
  Open(kOpenRequirement);
  EXPECT_EQ(Shown()[0], "2400-2600");
}

TEST_F(RequirementScreenTest, FaultyLimitsAreRefusedAndNothingIsWritten) {
  LogIn("35\r\n180\r\nmen\r\nlow\r\nnone");
  Open(kOpenRequirement);
  const auto press_with = [this](std::size_t limit, const char* text) {
    std::array<const char*, 8> limits = kLimits;
    limits[limit] = text;
    TypeLimits(limits);
    form_.Press(174);
    return boxes_.TakeTexts();
  };
  const Texts too_small = {"CAUTION!!\nAt least one of the lower limit is too SMALL!\nChange it"};
  const Texts too_big = {"CAUTION!!\nAt least one of the upper limit is too BIG!\nChange it"};
  const Texts crossed = {"CAUTION!!\nLower limit is bigger then upper limit!\nChange it"};
  EXPECT_EQ(press_with(0, "109"), too_small);
  EXPECT_EQ(press_with(0, ""), too_small);
  EXPECT_EQ(press_with(2, "abc"), too_small);
  EXPECT_EQ(press_with(1, "7000"), too_big);
  EXPECT_EQ(press_with(1, "1900"), crossed);
  EXPECT_EQ(press_with(7, "199.9"), crossed);
  EXPECT_EQ(LimitsFile(), "(missing)");
  EXPECT_EQ(press_with(1, "6999"), Texts{});
  EXPECT_EQ(press_with(0, "110"), Texts{});
}

TEST_F(RequirementScreenTest, FiveCharactersOfALimitCount) {
  LogIn("35\r\n180\r\nmen\r\nlow\r\nnone");
  Open(kOpenRequirement);
  TypeLimits(kLimits);
  form_.SetText(166, "2000.999");
  form_.Press(174);
  EXPECT_TRUE(LimitsFile().starts_with("1\r\n2000.\r\n"));
}

TEST_F(RequirementScreenTest, AJunkLimitsFileChangesNothing) {
  LogIn("35\r\n180\r\nmen\r\nlow\r\nnone");
  const std::string junk = std::string(5000, '\xFF') + "\r\n\0\n;;;"s + std::string(2000, '9');
  folder_.Write("Ann/zapot.ASC", junk);
  LogIn("35\r\n180\r\nmen\r\nlow\r\nnone");
  Open(kOpenRequirement);
  EXPECT_EQ(Shown()[0], "2400-2600");
  EXPECT_EQ(LimitsFile(), junk);
}

}  // namespace
}  // namespace velnor

#include "tests/support/painted_states.h"

#include <algorithm>
#include <utility>

#include "shell/screens.h"

namespace velnor {
namespace {

constexpr int kOpenBmi = 221;
constexpr int kOpenWhr = 224;
constexpr int kOpenBmr = 225;
constexpr int kOpenCounter = 231;
constexpr int kOpenRequirement = 232;
constexpr int kOpenBalance = 233;
constexpr int kOpenOverview = 236;
constexpr int kOpenEnergy = 239;

const std::string kWoman = "35,170,women,low,none";
const std::string kToday = std::string(kTestDate) + "\r\n";

}  // namespace

void PaintedStatesTest::WalkAll() {
  Start();
  WalkEmptyScreens("nobody");
  LogInAs(kWoman);
  WalkEmptyScreens("Ann");
  WalkFood();
  WalkBmi();
  WalkWhr();
  WalkBmr();
  WalkRequirement();
  WalkBalance();
  WalkEnergy();
  WalkCharts();
  WalkReports();
}

void PaintedStatesTest::WalkAllCharts() {
  LogInAs(kWoman);
  WalkCharts();
}

void PaintedStatesTest::LogInAs(std::string profile) {
  for (std::size_t at; (at = profile.find(',')) != std::string::npos;) {
    profile.replace(at, 1, "\r\n");
  }
  LogIn("Ann", profile);
}

void PaintedStatesTest::Write(const std::string& file, const std::string& bytes) const {
  folder_.Write("Ann/" + file, bytes);
}

void PaintedStatesTest::Keep(const std::string& name, const RecordingCanvas& canvas,
                             const std::string& shows) {
  EXPECT_TRUE(std::ranges::any_of(
      canvas.texts,
      [&](const DrawnText& drawn) { return drawn.text.find(shows) != std::string::npos; }))
      << name << " does not show " << shows;
  ASSERT_EQ(canvas.backgrounds.size(), 1U) << name;
  states_.push_back({name, canvas});
}

void PaintedStatesTest::WalkEmptyScreens(const std::string& who) {
  for (const ScreenRow& screen : Screens()) {
    ShowScreen(program_->parts(), screen.id);
    const std::string name = "screen " + std::to_string(screen.id) + " of " + who;
    Keep(name, Repaint(), who == "nobody" ? "user: NONE" : who);
  }
  boxes_.TakeTexts();  // of the charts that had nothing to draw
}

void PaintedStatesTest::WalkFood() {
  Open(kOpenCounter);
  form_.Choose(124, "fruits");
  form_.Choose(125, "frozen");
  form_.Choose(126, "frozen strawberries");
  form_.Type(128, "250");
  form_.Press(127);
  Keep("counter with a list", Repaint(), "Your list:");
  Keep("overview", Open(kOpenOverview), "Choose main category: ");
}

// With a height of a metre the BMI is the weight.
void PaintedStatesTest::WalkBmi() {
  WalkBmiOf("women");
  WalkBmiOf("men");
  WalkBmiNotes();
}

void PaintedStatesTest::WalkBmiOf(const std::string& sex) {
  struct Class {
    const char* bmi;
    const char* shows;
  };
  // Every class, and the ends of the scale.
  constexpr Class kClasses[] = {
      {"0", "ATTENTION!"},
      {"0.1", "ATTENTION!"},
      {"17", "ATTENTION!"},
      {"19", "RESULT: UNDERWEIGHT"},
      {"23", "RESULT: STANDARD"},
      {"27", "RESULT: LITTLE OVERWEIGHT"},
      {"29", "RESULT: OVERWEIGHT"},
      {"33", "RESULT: HAVY OVERWEIGHT"},
      {"38", "RESULT: HAVY OBESITY"},
      {"45", "SCORE: 3rd LEVEL OBESITY"},
      {"48", "SCORE: 3rd LEVEL OBESITY"},
      {"51", "SCORE: OUT OF SCALE!!!"},
      {"56.9", "SCORE: OUT OF SCALE!!!"},
      {"60", "SCORE: OUT OF SCALE!!!"},
  };
  LogInAs("35,100," + sex + ",low,none");
  Open(kOpenBmi);
  for (const auto& [bmi, shows] : kClasses) {
    form_.SetText(101, bmi);
    form_.Press(102);
    Keep("BMI " + std::string(bmi) + ", " + sex, Repaint(), shows);
  }
  if (sex != "men") return;
  const std::vector<DrawnText>& texts = states_.back().canvas.texts;
  EXPECT_NE(std::ranges::find(texts, "OUT OF SCALE", &DrawnText::text), texts.end());
}

void PaintedStatesTest::WalkBmiNotes() {
  for (const auto& [profile, shows] : {
           std::pair{"17,170,women,low,pregnant", "During pregnancy"},
           {"18,170,women,low,athlete", "However at Your age"},
       }) {
    LogInAs(profile);
    Keep("BMI of " + std::string(profile), Open(kOpenBmi), shows);
  }
}

void PaintedStatesTest::WalkWhr() {
  struct Shape {
    const char* profile;
    const char* waist;
    const char* shows;
  };
  for (const auto& [profile, waist, shows] : {
           Shape{"35,170,women,low,pregnant", "70", "RESULT: PEAR TYPE CORPULENCE"},
           {"35,170,women,low,none", "90", "RESULT: APPLE TYPE CORPULENCE"},
           {"35,180,men,low,none", "85", "RESULT: NORM"},
       }) {
    LogInAs(profile);
    Open(kOpenWhr);
    form_.SetText(104, waist);
    form_.SetText(105, "100");
    form_.Press(106);
    Keep("WHR of " + std::string(profile), Repaint(), shows);
  }
}

void PaintedStatesTest::WalkBmr() {
  LogInAs(kWoman);
  Open(kOpenBmr);
  form_.SetText(101, "65");
  form_.Press(176);
  Keep("BMR", Repaint(), "1439.");
}

void PaintedStatesTest::WalkRequirement() {
  for (const auto& [profile, shows] : {
           std::pair{"3,95,women,low,none", "Setting of daytime request for children"},
           {"25,180,men,high,athlete", "Only specialist"},
           {"35,170,women,low,none", "Unactive setups"},
       }) {
    LogInAs(profile);
    Keep("requirement of " + std::string(profile), Open(kOpenRequirement), shows);
  }
  Write("zapot.ASC", "1\r\n2000\r\n2500\r\n60\r\n80\r\n50\r\n70\r\n200\r\n300\r\n");
  LogInAs(kWoman);
  Keep("requirement with active limits", Open(kOpenRequirement), "Active setups");
  form_.Press(175);
}

void PaintedStatesTest::WalkBalance() {
  struct Day {
    const char* name;
    const char* profile;
    const char* eaten;
    const char* shows;
  };
  for (const auto& [name, profile, eaten, shows] : {
           Day{"below", "35,170,women,low,none", "100\r\n5\r\n5\r\n20", "-2000."},
           {"inside", "35,170,women,low,none", "2200\r\n70\r\n75\r\n330", "NORM"},
           {"above", "35,170,women,low,none", "2800\r\n130\r\n150\r\n500", "+500."},
           {"out of scale", "35,170,women,low,none", "9000\r\n900\r\n900\r\n9000", "OUT OF SCALE"},
           // Marks of so little stand below the dark tags.
           {"of little, unavailable", "3,95,women,low,none", "200\r\n10\r\n10\r\n60",
            "unavailable"},
           {"unavailable", "3,95,women,low,none", "1000\r\n50\r\n50\r\n200", "unavailable"},
       }) {
    LogInAs(profile);
    Write("bilans.ASC", kToday + eaten);
    Write("z1.ASC", kToday + "123.456");
    Write("z2.ASC", kToday + "123.456");
    Keep("daily balance " + std::string(name), Open(kOpenBalance), shows);
  }
}

void PaintedStatesTest::WalkEnergy() {
  struct Day {
    const char* bmr;
    const char* eaten;
    const char* shows;
  };
  LogInAs(kWoman);
  for (const auto& [bmr, eaten, shows] : {
           Day{"1500", "2000", "eaten energy [kcal]"},
           {"6300", "6990", "eaten energy [kcal]"},
           {"9000", "9000", "OUT OF SCALE"},
       }) {
    Write("bilans.ASC", kToday + eaten);
    Open(kOpenEnergy);
    form_.Type(181, bmr);
    form_.Press(182);
    Keep("energy balance, " + std::string(bmr) + " out", Repaint(), shows);
  }
}

void PaintedStatesTest::WalkCharts() {
  std::string weights;
  std::string nutrients;
  // Up and down between 0 and beyond the top.
  for (int day = 1; day <= 21; ++day) {
    const int part = day % 4;
    const auto value = [part](int top) { return std::to_string(top * part / 2) + ';'; };
    const std::string date = std::to_string(day) + ".11.2026;";
    weights += date + value(180) + "24.5;\r\n";
    nutrients += date + value(4800) + value(240) + value(240) + value(2400) + "\r\n";
  }
  Write("wykwag.txt", weights);
  Write("wykoda.txt", nutrients);
  for (const auto& [command, shows] : {
           std::pair{270, "WEIGHT CHART"},
           {271, "CALORIE CHART"},
           {272, "PROTEINS CHART"},
           {273, "FAT CHART"},
           {274, "CARBOHYDRATES CHART"},
       }) {
    Keep(shows, Open(command), shows);
    Keep(shows, Repaint(), "20.11");  // it has not refused
  }
}

void PaintedStatesTest::WalkReports() {
  struct Report {
    int command;
    const char* file;
  };
  for (const auto& [command, file] : {Report{210, "waga.ASC"},
                                      {214, "whr.ASC"},
                                      {212, "mirvo.ASC"},
                                      {213, "zestaw.ASC"},
                                      {215, "cwiczenia.ASC"}}) {
    Write(file, "16.11.2026  a record\r\n");
    Write(std::string(file) + ".rest.txt", "the rest");
    Keep("report " + std::string(file), Open(command), file);
  }
}

}  // namespace velnor

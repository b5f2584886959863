// A month of three people who share the machine: every day the program is started anew, each logs
// in, eats, moves, is measured, saves records and logs out again. In the end every screen and
// dialog is looked at: each shows what its user did, all of it, and nothing of the others.

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "charts/chart.h"
#include "shell/screens.h"
#include "tests/screens/month_day.h"
#include "tests/support/day_fixture.h"

namespace velnor {
namespace {

using Texts = std::vector<std::string>;

struct ChartOfMonth {
  int command;
  ChartId id;
  double per_unit;
  double above;  // nothing
};
constexpr ChartOfMonth kCharts[] = {
    {270, ChartId::kWeight, 1, 50},         {271, ChartId::kCalories, 28, 0},
    {272, ChartId::kProteins, 0.7, 0},      {273, ChartId::kFat, 0.4, 0},
    {274, ChartId::kCarbohydrates, 5.4, 0},
};

class MonthTest : public DayTest {
 protected:
  // A new run of the program, with new controls.
  void StartOn(const std::string& date) {
    program_.reset();
    form_ = {};
    form_.AddMainWindowControls();
    Program& program = program_.emplace(folder_.path(), date, form_, window_, boxes_);
    form_.SetListener(
        [&program](int id, int notification) { program.OnCommand(id, notification); });
    program.Start();
  }

  void OpenProfile() { OpenDialog(204, dialog_); }
  void Press(int button) { dialog_.Press(button); }

  Texts LogInAs(const Person& person) {
    OpenDialog(200, dialog_);
    dialog_.Choose(700, person.name);
    Press(kOkButton);
    return boxes_.TakeTexts();
  }
  void LogOut() {
    program_->OnCommand(201, kButtonClicked);
    EXPECT_EQ(boxes_.TakeTexts(), Texts{"BYE, SEE YOU SOON!"});
  }

  // Before the first day: the people, their profiles and the limits of who has some.
  void MakePeople();
  // One day of one person.
  void Live(const Day& day);
  void Wake(const Day& day);
  void Eat(const Day& day);
  void SaveMeal(const Day& day);
  void Move(const Day& day);
  void Weigh(const std::string& weight, const std::string& other);
  void Measure(const Day& day);
  void Balance(const Day& day);
  void CheckSeries(const Day& day) const;

  // What is seen after the last day.
  void CheckScreensShowNobodyElse(const Person& person);
  void CheckReports(const Person& person);
  void CheckCharts(const Person& person);
  void CheckRequirement(const Person& person);
  void CheckLastDay(const Day& day);
  void CheckDialogs(const Day& day);
  Texts SeenOn(const RecordingCanvas& canvas) const;

  std::string ReadOf(const Person& person, const std::string& file) const {
    return folder_.Read(person.name + '/' + file);
  }
  static std::string At(const RecordingCanvas& canvas, Point at) {
    const auto found = std::ranges::find(canvas.texts, at, &DrawnText::at);
    return found == canvas.texts.end() ? "(nothing)" : found->text;
  }

  FakeForm dialog_;
};

void MonthTest::MakePeople() {
  StartOn(Day::DateOf(1));
  OpenDialog(202, dialog_);
  for (const Person& person : kPeople) {
    dialog_.SetText(701, person.name);
    Press(702);
  }
  Press(kOkButton);
  EXPECT_EQ(boxes_.TakeTexts(), Texts{});
  for (const Person& person : kPeople) {
    EXPECT_EQ(LogInAs(person), Texts{"CAUTION!!\nFill up Your profile!"});
    OpenProfile();
    dialog_.SetText(704, person.profile[0]);
    dialog_.SetText(705, person.profile[1]);
    for (int i = 2; i < 5; ++i) {
      dialog_.Choose(704 + i, person.profile.at(static_cast<std::size_t>(i)));
    }
    Press(kOkButton);
    if (!person.limits[0].empty()) {
      Open(232);
      for (int i = 0; i < 8; ++i) {
        form_.Type(166 + i, person.limits.at(static_cast<std::size_t>(i)));
      }
      form_.Press(174);
    }
    EXPECT_EQ(boxes_.TakeTexts(), Texts{});
    LogOut();
  }
}

void MonthTest::Live(const Day& day) {
  SCOPED_TRACE(day.Mark());
  EXPECT_EQ(LogInAs(day.person), Texts{});
  Wake(day);
  Eat(day);
  SaveMeal(day);
  Move(day);
  Weigh("1", "mistyped");
  Weigh(day.BodyWeight(), day.Mark());
  Measure(day);
  Balance(day);
  CheckSeries(day);
  EXPECT_EQ(boxes_.TakeTexts(), Texts{});
  LogOut();
}

// Nothing has been eaten yet; what was burned yesterday is shown once more, to whom burned it.
void MonthTest::Wake(const Day& day) {
  const RecordingCanvas balance = Open(233);
  for (const int y : {145, 270, 402, 530}) EXPECT_EQ(At(balance, {110, y}), "0.");
  Open(238);
  EXPECT_EQ(form_.Text(180), day.number == 1 ? "0" : Day(day.person, day.number - 1).Burned());
  Repaint();
  EXPECT_EQ(form_.Text(180), "0");
}

void MonthTest::Eat(const Day& day) {
  Open(231);
  EXPECT_EQ(form_.ItemCount(kList), 0);
  AddStrawberries(day.FoodWeight());
  AddButter("100");
  Remove("butter  100.0g");
  const TotalTexts eaten = day.Eaten();
  EXPECT_EQ(form_.Items(kList), Texts{day.FoodLine()});
  EXPECT_EQ(Totals(),
            (Texts{eaten.weight, eaten.kcal, eaten.protein, eaten.fat, eaten.carbohydrate}));
}

void MonthTest::SaveMeal(const Day& day) {
  OpenDialog(145, dialog_);
  dialog_.SetText(723, day.Mark());
  Press(kOkButton);
  OpenDialog(147, dialog_);
  dialog_.SetText(724, day.Mark());
  dialog_.SetText(725, "Thaw.\r\nEat, " + day.Mark());
  Press(kOkButton);
}

void MonthTest::Move(const Day& day) {
  Open(238);
  form_.Choose(159, "swimming");
  form_.Type(160, day.Minutes());
  form_.Press(161);
  form_.Press(177);
  EXPECT_EQ(form_.Text(180), day.Burned());
  OpenDialog(162, dialog_);
  dialog_.SetText(745, day.Mark());
  Press(kOkButton);
}

void MonthTest::Weigh(const std::string& weight, const std::string& other) {
  Open(221);
  form_.Type(101, weight);
  form_.Press(102);
  Repaint();
  OpenDialog(103, dialog_);
  dialog_.SetText(716, other);
  Press(kOkButton);
}

void MonthTest::Measure(const Day& day) {
  Open(224);
  form_.Type(104, std::to_string(day.unit));
  form_.Type(105, std::to_string(day.unit));
  form_.Press(106);
  Repaint();
  OpenDialog(107, dialog_);
  dialog_.SetText(716, day.Mark());
  Press(kOkButton);
  Open(225);
  form_.Press(176);
}

void MonthTest::Balance(const Day& day) {
  const TotalTexts eaten = day.Eaten();
  RecordingCanvas canvas = Open(233);
  EXPECT_EQ(At(canvas, {460, 23}), Day::Number(day.CarbohydrateExchange()));
  EXPECT_EQ(At(canvas, {600, 23}), Day::Number(day.ProteinFatExchange()));
  EXPECT_EQ(At(canvas, {110, 145}), eaten.kcal);
  EXPECT_EQ(At(canvas, {110, 530}), eaten.carbohydrate);
  Open(239);
  form_.Type(181, "1000");
  form_.Press(182);
  canvas = Repaint();
  EXPECT_EQ(At(canvas, {220, 250}), Day::Number(1100 + 10 * day.unit));
  EXPECT_EQ(At(canvas, {220, 350}), eaten.kcal);
  EXPECT_EQ(At(canvas, {470, 470}), Day::Number(1100 + 10 * day.unit - 28 * day.unit));
}

void MonthTest::CheckSeries(const Day& day) const {
  const int count = (day.number - 1) % kDaysOfAFullSeries + 1;
  for (const auto& [file, line] :
       {std::pair{"wykwag.txt", day.WeightLine()}, std::pair{"wykoda.txt", day.NutrientLine()}}) {
    const std::string series = ReadOf(day.person, file);
    EXPECT_EQ(std::ranges::count(series, '\n'), count) << file;
    EXPECT_TRUE(series.ends_with(line)) << file << ":\n" << series;
  }
}

// Everything that can be read on the screen, lists included.
Texts MonthTest::SeenOn(const RecordingCanvas& canvas) const {
  Texts seen;
  for (const DrawnText& text : canvas.texts) seen.push_back(text.text);
  for (const int key : form_.ShownKeys()) {
    seen.push_back(form_.Text(key));
    const Texts& items = form_.Items(key);
    seen.insert(seen.end(), items.begin(), items.end());
  }
  return seen;
}

void MonthTest::CheckScreensShowNobodyElse(const Person& person) {
  for (const ScreenRow& screen : Screens()) {
    SCOPED_TRACE("screen " + std::to_string(screen.id));
    const RecordingCanvas canvas = screen.command == 0 ? Repaint() : Open(screen.command);
    EXPECT_EQ(program_->session().screen, screen.id);
    EXPECT_EQ(canvas.texts.at(1).text, person.name);
    for (const std::string& text : SeenOn(canvas)) {
      for (const Person& other : kPeople) {
        if (&other == &person) continue;
        EXPECT_EQ(text.find(other.name), std::string::npos) << text;
      }
    }
  }
  EXPECT_EQ(boxes_.TakeTexts(), Texts{});
}

void MonthTest::CheckReports(const Person& person) {
  for (const ReportOfMonth& report : kReports) {
    Open(report.command);
    EXPECT_EQ(form_.Text(119), EveryDay(person, 1, report.of_day)) << report.command;
  }
}

void MonthTest::CheckCharts(const Person& person) {
  constexpr int kFirst = kDaysOfAFullSeries + 1;
  EXPECT_EQ(ReadOf(person, "wykwag.txt"),
            EveryDay(person, kFirst, [](const Day& day) { return day.WeightLine(); }));
  EXPECT_EQ(ReadOf(person, "wykoda.txt"),
            EveryDay(person, kFirst, [](const Day& day) { return day.NutrientLine(); }));
  for (const ChartOfMonth& chart : kCharts) {
    std::vector<Point> expected;
    for (int i = 0; i <= 20; ++i) {
      const int day = kDays - i;
      const double value =
          ParseNumber(Day::Number(chart.above + chart.per_unit * Day(person, day).unit));
      const int y = day < kFirst ? kChartBottom : ChartY(FindChart(chart.id), value);
      expected.push_back({kChartRight - kChartColumn * i, y});
    }
    const RecordingCanvas canvas = Open(chart.command);
    const auto drawn = std::ranges::find(canvas.lines, 21U,
                                         [](const DrawnLine& line) { return line.points.size(); });
    ASSERT_NE(drawn, canvas.lines.end()) << chart.command;
    EXPECT_EQ(drawn->points, expected) << chart.command;
  }
}

void MonthTest::CheckRequirement(const Person& person) {
  const RecordingCanvas canvas = Open(232);
  const bool has_limits = !person.limits[0].empty();
  EXPECT_EQ(form_.Text(120), person.calories);
  EXPECT_EQ(canvas.texts.back().text, has_limits ? "Active setups" : "Unactive setups");
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(form_.Text(166 + i), person.limits.at(static_cast<std::size_t>(i)));
  }
}

// Balances are of the last day alone, and what was counted in an earlier run is gone.
void MonthTest::CheckLastDay(const Day& day) {
  const TotalTexts eaten = day.Eaten();
  EXPECT_EQ(ReadOf(day.person, "bilans.ASC"), day.Date() + "\r\n" + eaten.kcal + "\r\n" +
                                                  eaten.protein + "\r\n" + eaten.fat + "\r\n" +
                                                  eaten.carbohydrate);
  EXPECT_EQ(ReadOf(day.person, "z1.ASC"), Day::Number(day.CarbohydrateExchange()));
  EXPECT_EQ(ReadOf(day.person, "z2.ASC"), Day::Number(day.ProteinFatExchange()));
  EXPECT_EQ(ReadOf(day.person, "erg.txt"), day.Date() + ';' + day.Burned() + ';');
  RecordingCanvas canvas = Open(233);
  const std::pair<int, std::string> rows[] = {
      {145, eaten.kcal}, {270, eaten.protein}, {402, eaten.fat}, {530, eaten.carbohydrate}};
  for (const auto& [y, text] : rows) EXPECT_EQ(At(canvas, {110, y}), text);
  Open(238);
  EXPECT_EQ(form_.Text(180), day.Burned());
  EXPECT_EQ(form_.Text(163), "");
  canvas = Open(239);
  EXPECT_EQ(At(canvas, {220, 250}), day.Burned());
  EXPECT_EQ(At(canvas, {220, 350}), eaten.kcal);
  Open(231);
  EXPECT_EQ(form_.ItemCount(kList), 0);
  EXPECT_EQ(Totals(), Texts(5, ""));
}

void MonthTest::CheckDialogs(const Day& day) {
  const auto shown = [this](const std::vector<int>& ids) {
    Texts texts;
    for (const int id : ids) texts.push_back(dialog_.Text(id));
    return texts;
  };
  OpenProfile();
  const auto& profile = day.person.profile;
  EXPECT_EQ(shown({704, 705, 706, 707, 708}), Texts(profile.begin(), profile.end()));
  // Whose day was counted in another run has nothing to save yet.
  struct {
    int screen, command;
    std::vector<int> edits;
  } const records[] = {{231, 145, {709, 723}},
                       {231, 147, {709, 724, 725}},
                       {221, 103, {709, 710, 711, 716}},
                       {224, 107, {709, 713, 714, 715, 716}},
                       {238, 162, {709, 741, 742, 743, 744, 745}}};
  for (const auto& [screen, command, edits] : records) {
    Open(screen);
    OpenDialog(command, dialog_);
    Texts expected(edits.size(), "");
    expected.front() = day.Date();
    EXPECT_EQ(shown(edits), expected) << command;
    Press(kCancelButton);
  }
  OpenDialog(240, dialog_);
  EXPECT_EQ(dialog_.ItemCount(732), 22);
  OpenDialog(241, dialog_);
  EXPECT_EQ(dialog_.ItemCount(739), 0);
  Open(231);
  OpenDialog(149, dialog_);
  EXPECT_EQ(dialog_.ItemCount(729), 0);
  OpenDialog(202, dialog_);
  EXPECT_EQ(dialog_.Items(700), (Texts{"Ann", "Bob", "Zoe"}));
  EXPECT_EQ(boxes_.TakeTexts(), Texts{});
}

TEST_F(MonthTest, ThreePeopleShareTheProgramAndNothingElse) {
  MakePeople();
  for (int number = 1; number <= kDays; ++number) {
    StartOn(Day::DateOf(number));
    for (const Person& person : kPeople) Live(Day(person, number));
  }
  StartOn(Day::DateOf(kDays));
  for (const Person& person : kPeople) {
    SCOPED_TRACE(person.name);
    EXPECT_EQ(LogInAs(person), Texts{});
    CheckScreensShowNobodyElse(person);
    CheckReports(person);
    CheckCharts(person);
    CheckRequirement(person);
    CheckLastDay(Day(person, kDays));
    CheckDialogs(Day(person, kDays));
    LogOut();
  }
  EXPECT_EQ(folder_.Names(), (Texts{"Ann", "Bob", "Zoe", "kopie zapasowe", "users.ASC"}));

  // The first morning of the next month leaves the month and ends the day.
  StartOn("1.4.2027");
  for (const Person& person : kPeople) {
    SCOPED_TRACE(person.name);
    LogInAs(person);
    EXPECT_EQ(ReadOf(person, "bilans.ASC"), "1.4.2027");
    EXPECT_EQ(At(Open(233), {110, 145}), "0.");
    CheckReports(person);
    CheckCharts(person);
    LogOut();
  }
}

}  // namespace
}  // namespace velnor

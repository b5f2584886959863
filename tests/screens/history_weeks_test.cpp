// Weeks of two people who eat, take off, clear, move and are weighed at random: whatever they do,
// the history of each adds up to what their day's files hold, and no byte of it ever changes.

#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "food/food_table.h"
#include "shell/own_menu.h"
#include "tests/support/day_fixture.h"
#include "tests/support/history_sums.h"
#include "users/user_files.h"

namespace velnor {
namespace {

constexpr const char* kPeople[] = {"Ann", "Bob"};

// Food of less than nothing, and food that fills all eight digits.
constexpr const char* kOwnProducts =
    "fruits;fresh;minus soup;100;-120.5;-3;-2.25;-9;\r\n"
    "fruits;fresh;lead cake;1234567;1234567.8;87654.321;0.012345678;99999999;\r\n";

class TickingClock final : public Clock {
 public:
  Moment Now() const override {
    return {"2026-11-16", TimeText(12, tick_ / 60 % 60, tick_++ % 60)};
  }

 private:
  mutable int tick_ = 0;
};

class HistoryWeeksTest : public DayTest {
 protected:
  HistoryWeeksTest() {
    folder_.Write("users.ASC", "Ann\r\nBob");
    folder_.Write("data.txt", kOwnProducts);
    for (const std::string name : kPeople) {
      std::filesystem::create_directory(folder_.path() + name);
      folder_.Write(name + "/info.ASC", "35\r\n170\r\nwomen\r\nlow\r\nnone");
    }
  }

  unsigned Below(std::size_t bound) { return static_cast<unsigned>(random_() % bound); }

  // A new run of the program on that day, in which `person` logs in.
  void StartOn(const std::string& date, const std::string& person) {
    window_.opened.reset();
    form_ = FakeForm();
    form_.AddMainWindowControls();
    Program& program = program_.emplace(folder_.path(), date, form_, window_, boxes_, clock_);
    form_.SetListener(
        [&program](int id, int notification) { program.OnCommand(id, notification); });
    program.Start();
    LogInAs(person);
    burned_before_ = Told().burned;
  }
  void LogInAs(const std::string& person) {
    person_ = person;
    FakeForm login;
    login.AddControl(700, ControlClass::kListBox, control_style::kSortedList);
    OpenDialog(200, login);
    login.Choose(700, person);
    login.Press(kOkButton);
    boxes_.TakeTexts();
  }
  std::string Read(const std::string& file) const { return folder_.Read(person_ + '/' + file); }
  // What the history tells of today.
  ToldDay Told() const {
    return DaysOfHistory(Read("dziennik.csv"))[IsoDate(program_->session().date_text)];
  }

  std::string AnyProduct() {
    const FoodTable& food = program_->parts().food;
    const auto& own = food.user_products.products();
    if (Below(5) == 0) return std::string(own[Below(own.size())].name);
    return std::string(food.products[Below(food.products.size())].name);
  }
  std::string AnyWeight() {
    constexpr const char* kWeights[] = {"1", "37.5", "0.07", "100", "250", "99999", "999999", "-5"};
    return kWeights[Below(std::size(kWeights))];
  }

  void AddFood() {
    Open(kOpenCounter);
    const std::string product = AnyProduct();
    form_.ClearItems(126);
    form_.AddItem(126, product);
    form_.Choose(126, product);
    if (Below(3) != 0) form_.Type(128, AnyWeight());
    form_.Press(kAdd);
  }
  void QuickAdd() {
    Open(kOpenCounter);
    ASSERT_TRUE(RunOwnMenuItem(program_->parts(), kQuickAddItem));
    FakeForm form;
    form.AddControl(810, ControlClass::kEdit, control_style::kPlain);
    form.AddControl(811, ControlClass::kListBox, control_style::kListNotify);
    form.AddControl(812, ControlClass::kEdit, control_style::kPlain);
    form.AddControl(813, ControlClass::kStatic, control_style::kPlain);
    for (const int id : {1, 2}) form.AddControl(id, ControlClass::kButton, control_style::kPlain);
    window_.UseForm(form);
    window_.opened->OnOpen(form);
    form.Type(810, AnyProduct().substr(0, 4));
    form.Type(812, AnyWeight());
    form.Press(kOkButton);
    form.Press(kCancelButton);
  }
  void TakeFoodOff() {
    Open(kOpenCounter);
    const int count = form_.ItemCount(kList);
    if (count > 0)
      Remove(form_.ItemText(kList, static_cast<int>(Below(static_cast<std::size_t>(count)))));
  }
  void ClearList() {
    Open(kOpenCounter);
    form_.Press(kClearList);
  }
  void ClearDay() {
    Open(233);
    form_.Press(165);
  }
  void Burn() {
    Open(238);
    form_.Choose(159, form_.ItemText(159, static_cast<int>(Below(101))));
    form_.Type(160, AnyWeight());
    form_.Press(161);
    form_.Press(Below(6) == 0 ? 179 : 177);
  }
  void Weigh() {
    const std::string weight = std::to_string(50 + Below(60)) + ".5";
    Open(221);
    form_.Type(101, weight);
    form_.Press(102);
    FakeForm record;
    for (const int id : {709, 710, 711, 716}) {
      record.AddControl(id, ControlClass::kEdit, control_style::kPlain);
    }
    OpenDialog(103, record);
    record.Press(kOkButton);
    EXPECT_EQ(Told().weights.back(), ParseNumber(weight));
    EXPECT_TRUE(Read("wykwag.txt").ends_with("\r\n"));
  }
  void DoSomething() {
    const unsigned choice = Below(24);
    if (choice < 9) return AddFood();
    if (choice < 12) return QuickAdd();
    if (choice < 17) return TakeFoodOff();
    if (choice < 19) return Burn();
    if (choice < 21) return Weigh();
    if (choice < 23) return ClearList();
    return ClearDay();
  }

  void ExpectHistoryTellsTheDay() {
    std::string& before = histories_[person_];
    const std::string history = Read("dziennik.csv");
    EXPECT_TRUE(history.starts_with(before)) << "what stood there has changed";
    before = history;
    ExpectWellFormedHistory(history);
    ExpectToldTotals(history, Read("bilans.ASC"));
    const ToldDay told = Told();
    const std::string burned = Read("erg.txt");
    const std::string total = burned.empty() ? "" : burned.substr(burned.find(';') + 1);
    EXPECT_NEAR(told.burned.sum - burned_before_.sum, ParseNumber(total),
                told.burned.Tolerance() + burned_before_.Tolerance());
  }

  std::mt19937 random_{21'112'026};  // the same weeks in every run
  TickingClock clock_;
  std::string person_;
  ToldFigure burned_before_;  // of today, in earlier runs
  std::map<std::string, std::string> histories_;
};

TEST_F(HistoryWeeksTest, TheSumsOfADateAreItsTotals) {
  for (int day = 1; day <= 14; ++day) {
    for (const char* const person : kPeople) {
      StartOn(DateText(day, 2, 2027), person);
      Open(238);
      for (int deeds = 0; deeds < 20 && !HasFailure(); ++deeds) {
        DoSomething();
        ExpectHistoryTellsTheDay();
      }
      if (HasFailure()) FAIL() << person << " on day " << day;
    }
  }
  for (const char* const person : kPeople) {
    EXPECT_EQ(DaysOfHistory(histories_[person]).size(), 14U) << person;
  }
}

// The day begins anew, as it is prescribed for every change of the date, and its history says so.
TEST_F(HistoryWeeksTest, AClockSetBackBeginsTheDayAgain) {
  int day = 10;
  for (int run = 0; run < 30; ++run) {
    const int step = static_cast<int>(Below(3)) - 1;
    day = std::clamp(day + step, 8, 12);
    StartOn(DateText(day, 2, 2027), kPeople[Below(2)]);
    Open(238);
    burned_before_ = {};
    const std::string burned = Read("erg.txt");
    burned_before_.sum = Told().burned.sum - ParseNumber(burned.substr(burned.find(';') + 1));
    ExpectHistoryTellsTheDay();
    for (int deeds = 0; deeds < 10 && !HasFailure(); ++deeds) {
      DoSomething();
      ExpectHistoryTellsTheDay();
    }
    if (HasFailure()) FAIL() << person_ << " in run " << run << " on day " << day;
  }
}

}  // namespace
}  // namespace velnor

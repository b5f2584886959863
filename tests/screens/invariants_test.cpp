// What holds whatever a person types and presses, for weeks: no file grows past its limit, and no
// total is ever shown that is not a number.

#include <algorithm>
#include <filesystem>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "base/control.h"
#include "base/number_text.h"
#include "food/food_table.h"
#include "shell/screens.h"
#include "tests/support/day_fixture.h"

namespace velnor {
namespace {

using Random = std::mt19937;

// "nan5" begins like no number, and is told from one that the program has made itself.
const std::vector<std::string> kTyped = {
    "",     "0",    "1",    "0.5", "70",     "250.75", "-5",   "99999", "9999999", "1e38",
    "1e99", "-1e9", "nan5", "inf", "-inf",   "abc",    "1,5",  "0x1A",  ";",       "1;2",
    " 5",   ".",    "1e",   "--",  "3.4e38", "1e-40",  "0.04", "1..2",  "\xB9\xE6"};

// The limits of the files that have one, as their readers count: lines, and bytes in all.
struct FileLimit {
  const char* name;
  std::ptrdiff_t lines;
  std::ptrdiff_t bytes;
};

constexpr std::ptrdiff_t kLine = 99 + 2;  // as long as a line is read, and its end

constexpr FileLimit kLimits[] = {
    {"users.ASC", 1000, 1000},
    {"Ann/info.ASC", 5, 5 * kLine},
    {"Ann/bilans.ASC", 5, 10 + 4 * 17},
    {"Ann/z1.ASC", 1, 15},
    {"Ann/z2.ASC", 1, 15},
    {"Ann/erg.txt", 1, 49},
    {"Ann/zapot.ASC", 9, 3 + 8 * 7},
    {"Ann/wykwag.txt", 21, 21 * kLine},
    {"Ann/wykoda.txt", 21, 21 * kLine},
};

// The fields of the counter and the overview that show figures of one product. A product of the
// person's own without a mass divides by zero there.
constexpr int kProductFields[] = {111, 112, 113, 114, 115, 116, 117, 118, 128, 129, 130, 131, 132};

bool IsNoNumber(std::string_view text) {
  return text == "nan" || text == "-nan" || text.starts_with("nan.") || text.starts_with("-nan.");
}

class InvariantsTest : public DayTest {
 protected:
  InvariantsTest() {
    folder_.Write("users.ASC", "Ann");
    std::filesystem::create_directory(folder_.path() + "Ann");
  }

  const std::string& Any(const std::vector<std::string>& texts) {
    return texts[random_() % texts.size()];
  }
  int AnyOf(std::initializer_list<int> ids) { return *(ids.begin() + random_() % ids.size()); }

  // The program starts on that day of November, and Ann logs in.
  void StartOn(int day) {
    window_.opened.reset();
    form_ = FakeForm();
    form_.AddMainWindowControls();
    Start(DateText(day % 28 + 1, 1 + day / 28 % 12, 2026));
    OpenForm(200);
    dialog_.Choose(700, "Ann");
    dialog_.Press(1);
  }

  void OpenForm(int command) { OpenDialog(command, dialog_); }
  // Opens a dialog, types into some of its fields and presses OK.
  void FillIn(int command, const std::vector<int>& edits) {
    OpenForm(command);
    for (const int id : edits) {
      if (random_() % 3 == 0) dialog_.SetText(id, Any(kTyped));
    }
    dialog_.Press(1);
  }

  void AddFood() {
    Open(231);
    form_.ClearItems(126);
    std::string name =
        random_() % 4 == 0 ? own_product_ : std::string(BuiltInProducts()[random_() % 1044].name);
    form_.AddItem(126, name);
    form_.Choose(126, name);
    if (random_() % 4 != 0) form_.Type(128, Any(kTyped));
    form_.Press(127);
  }
  void TakeFoodOff() {
    Open(231);
    const int count = form_.ItemCount(kList);
    if (count == 0) return;
    Remove(form_.ItemText(kList, static_cast<int>(random_() % static_cast<unsigned>(count))));
  }
  void AddProduct() {
    OpenForm(240);
    dialog_.Choose(732, "fruits");
    dialog_.Choose(733, "fresh");
    dialog_.SetText(734, own_product_);
    for (const int id : {735, 736, 737, 738, 740}) dialog_.SetText(id, Any(kTyped));
    dialog_.Press(1);
  }
  void Measure() {
    Open(221);
    form_.Type(101, Any(kTyped));
    form_.Press(102);
    FillIn(103, {709, 710, 711, 716});
    Open(224);
    form_.Type(104, Any(kTyped));
    form_.Type(105, Any(kTyped));
    form_.Press(106);
    FillIn(107, {709, 713, 714, 715, 716});
    Open(225);
    form_.Press(176);
  }
  void Burn() {
    Open(238);
    form_.Choose(159, form_.ItemText(159, static_cast<int>(random_() % 101)));
    form_.Type(160, Any(kTyped));
    form_.Press(161);
    form_.Press(AnyOf({177, 177, 177, 179}));
    FillIn(162, {709, 741, 742, 743, 744, 745});
    Open(239);
    form_.Type(181, Any(kTyped));
    form_.Press(182);
  }
  void ChangeLimitsOrProfile() {
    Open(232);
    for (int id = 166; id <= 173; ++id) form_.Type(id, std::to_string(100 + random_() % 8000));
    form_.Press(AnyOf({174, 174, 175}));
    FillIn(204, {704, 705});
  }
  void AddUser() {
    OpenForm(202);
    const std::string name(1 + random_() % 130, static_cast<char>('a' + random_() % 26));
    dialog_.SetText(701, random_() % 2 == 0 ? name : Any(kTyped));
    dialog_.Press(702);
    dialog_.Press(1);
  }
  void SaveRecords() {
    Open(231);
    FillIn(145, {709, 721, 722, 717, 718, 719, 746, 747, 723});
    FillIn(147, {709, 724, 725});
    form_.Press(kClearList);
  }

  void DoSomething() {
    const auto choice = random_() % 20;
    if (choice < 8) {
      AddFood();
    } else if (choice < 11) {
      TakeFoodOff();
    } else if (choice == 11) {
      AddProduct();
    } else if (choice == 12) {
      Measure();
    } else if (choice == 13) {
      Burn();
    } else if (choice == 14) {
      ChangeLimitsOrProfile();
    } else if (choice == 15) {
      AddUser();
    } else if (choice == 16) {
      SaveRecords();
    } else if (choice == 17) {
      ClearDay();
    } else {
      StartOn(++day_);
    }
    boxes_.TakeTexts();
  }

  void ExpectFilesWithinTheirLimits() const {
    for (const auto& [name, lines, bytes] : kLimits) {
      const std::string text = folder_.Read(name);
      EXPECT_LE(std::ssize(text), bytes) << name << '\n' << text;
      EXPECT_LE(std::ranges::count(text, '\n') + (text.ends_with('\n') ? 0 : 1), lines)
          << name << '\n'
          << text;
    }
  }

  void ExpectNumbersOn(const ScreenRow& screen) {
    const RecordingCanvas canvas = Open(screen.command);
    for (const DrawnText& text : canvas.texts) {
      EXPECT_FALSE(IsNoNumber(text.text)) << "drawn on screen " << screen.id << " at " << text.at.x;
    }
    for (const ControlRow& control : MainWindowControls()) {
      const bool is_of_product =
          std::ranges::find(kProductFields, control.id()) != std::end(kProductFields);
      if (is_of_product || control.control_class == ControlClass::kEdit) continue;  // as typed
      EXPECT_FALSE(IsNoNumber(form_.Text(control.id()))) << "control " << control.id();
    }
  }

  Random random_{2026};  // the same weeks in every run
  int day_ = 0;
  FakeForm dialog_;
  const std::string own_product_ = "stone soup";
};

TEST_F(InvariantsTest, WhateverIsTypedAndPressed) {
  StartOn(day_);
  for (int step = 0; step < 1500; ++step) {
    DoSomething();
    ExpectFilesWithinTheirLimits();
    const ScreenRow& screen = Screens()[random_() % Screens().size()];
    if (screen.command != 0) ExpectNumbersOn(screen);
    if (HasFailure()) {
      FAIL() << "in step " << step << ", day " << day_;
    }
  }
  EXPECT_GT(day_, 42) << "a chart series must have been filled twice";
  for (const ScreenRow& screen : Screens()) {
    if (screen.command != 0) ExpectNumbersOn(screen);
  }
}

}  // namespace
}  // namespace velnor

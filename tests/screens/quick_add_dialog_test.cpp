// Adding a food by a few letters of its name: what the dialog offers, and that what it adds is what
// the counter would have added.

#include "food/quick_add_dialog.h"

#include <filesystem>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "tests/support/program_fixture.h"

namespace velnor {
namespace {

using Texts = std::vector<std::string>;

constexpr int kList = 134;  // of the main window

class FixedClock final : public Clock {
 public:
  Moment Now() const override { return now; }

  Moment now = {"2026-11-16", "08:05:00"};
};

// A program with a person logged in, and the dialog over its list.
class Day : public ProgramTest {
 public:
  explicit Day(const std::string& own_products = "") {
    if (!own_products.empty()) folder_.Write("data.txt", own_products);
    LogIn("Ann", "35\r\n170\r\nwomen\r\nlow\r\nnone");
    food_.user_products.Load(folder_.path() + "data.txt");
  }
  void TestBody() override {}

  void WriteHistory(const std::string& lines) {
    folder_.Write("Ann/dziennik.csv", std::string(kHistoryHeader) + "\r\n" + lines);
  }

  QuickAddDialog& OpenQuickAdd() {
    form = FakeForm();
    form.AddDialogControls(kQuickAddResource);
    QuickAddDialog& opened = dialog.emplace(food_, program_->parts().food_list, clock,
                                            folder_.path() + "Ann/dziennik.csv");
    form.SetListener(
        [this](int id, int notification) { dialog->OnCommand(form, id, notification); });
    opened.OnOpen(form);
    return opened;
  }
  bool Press(int id, Key key) { return dialog->OnKey(form, id, key); }
  // Types a food and a weight, with the keys that a person needs for it.
  void QuickAdd(const std::string& query, const std::string& weight) {
    form.Type(810, query);
    EXPECT_TRUE(Press(810, Key::kEnter));
    form.Type(812, weight);
    EXPECT_TRUE(Press(812, Key::kEnter));
  }
  // The same on the counter.
  void AddOnCounter(const Texts& product, const std::string& weight) {
    Open(231);
    form_.Choose(124, product[0]);
    form_.Choose(125, product[1]);
    form_.Choose(126, product[2]);
    form_.Type(128, weight);
    form_.Press(127);
  }
  void Remove(int line) {
    Open(231);
    form_.Choose(kList, form_.ItemText(kList, line));
    form_.Press(136);
  }

  // Everything that adding a food can change.
  std::map<std::string, Texts> State() {
    std::map<std::string, Texts> state;
    state["list"] = form_.Items(kList);
    state["boxes"] = boxes_.TakeTexts();
    for (const int id : {137, 138, 139, 140, 141, 142, 143, 144, 183, 184}) {
      state["totals"].push_back(form_.Text(id));
    }
    for (const std::string& name : folder_.Names()) {
      if (name != "Ann" && name != "kopie zapasowe")
        state["files"].push_back(name + folder_.Read(name));
    }
    for (const char* const name :
         {"bilans.ASC", "z1.ASC", "z2.ASC", "wykoda.txt", "dziennik.csv"}) {
      state["files"].push_back(name + folder_.Read(std::string("Ann/") + name));
    }
    return state;
  }
  const Texts& Listed() const { return form_.Items(kList); }
  std::string Balance() const { return folder_.Read("Ann/bilans.ASC"); }

  using ProgramTest::boxes_;
  using ProgramTest::folder_;
  using ProgramTest::form_;
  FoodTable food_;
  FixedClock clock;
  FakeForm form;
  std::optional<QuickAddDialog> dialog;
};

const std::string kPie = "fruits;fresh;apple pie;120;237;1.9;11;34.0;\r\n";

TEST(QuickAddTest, OpensInTheFoodWithNothingForWhoHasNoHistory) {
  Day day;
  day.OpenQuickAdd();
  EXPECT_EQ(day.form.Log(), (Texts{"focus 810"}));
  EXPECT_EQ(day.form.ItemCount(811), 0);
  EXPECT_EQ(day.form.Text(812), "");
  EXPECT_EQ(day.form.Text(813), "");
  EXPECT_TRUE(day.Press(810, Key::kDown));
  EXPECT_TRUE(day.Press(810, Key::kEnter));
  day.form.Press(kOkButton);
  EXPECT_EQ(day.form.Log(), (Texts{"focus 810", "focus 810"}));  // there is nothing to weigh or add
  EXPECT_EQ(day.form_.ItemCount(kList), 0);
}

TEST(QuickAddTest, EveryKeyShowsTheMatchesTheBestChosen) {
  Day day(kPie);
  day.OpenQuickAdd();
  day.form.Type(810, "PIE app");
  EXPECT_EQ(day.form.Items(811), (Texts{"[B] apple pie"}));
  EXPECT_EQ(day.form.SelectedText(811), "[B] apple pie");
  EXPECT_EQ(day.form.Text(812), "120");  // the product's own
  EXPECT_EQ(day.form.Text(813), "237 kcal   protein 1.9 g   fat 11 g   carbohydrates 34 g");
  day.form.Type(810, "no such food");
  EXPECT_EQ(day.form.ItemCount(811), 0);
  EXPECT_EQ(day.form.Text(812), "");
  EXPECT_EQ(day.form.Text(813), "");
}

TEST(QuickAddTest, NoMoreThanAHundredMatchesAreListed) {
  Day day;
  day.OpenQuickAdd();
  day.form.Type(810, "a");
  EXPECT_EQ(day.form.ItemCount(811), 100);
}

TEST(QuickAddTest, ArrowsMoveInTheListWhileTheTypingGoesOn) {
  Day day;
  day.OpenQuickAdd();
  day.form.Type(810, "straw");
  ASSERT_GT(day.form.ItemCount(811), 1);
  const Texts items = day.form.Items(811);
  EXPECT_TRUE(day.Press(810, Key::kDown));
  EXPECT_EQ(day.form.SelectedItem(811), 1);
  EXPECT_TRUE(day.Press(810, Key::kUp));
  EXPECT_TRUE(day.Press(810, Key::kUp));
  EXPECT_EQ(day.form.SelectedItem(811), 0);  // it stops at the ends
  EXPECT_TRUE(day.Press(810, Key::kPageDown));
  EXPECT_TRUE(day.Press(810, Key::kPageDown));
  EXPECT_TRUE(day.Press(810, Key::kDown));
  EXPECT_EQ(day.form.SelectedItem(811), static_cast<int>(items.size()) - 1);
  EXPECT_TRUE(day.Press(810, Key::kPageUp));
  EXPECT_TRUE(day.Press(810, Key::kPageUp));
  EXPECT_EQ(day.form.SelectedItem(811), 0);
  EXPECT_EQ(day.form.Log(), (Texts{"focus 810"}));  // the focus stays
  EXPECT_FALSE(day.Press(811, Key::kDown));         // a list moves by itself
  EXPECT_FALSE(day.Press(812, Key::kUp));
  EXPECT_FALSE(day.Press(kCancelButton, Key::kEnter));
}

TEST(QuickAddTest, ChoosingInTheListOffersItsWeight) {
  Day day("fruits;fresh;apple pie;120;237;1;1;1;\r\nfruits;fresh;apple pies;80;90;1;1;1;\r\n");
  day.OpenQuickAdd();
  day.form.Type(810, "apple pie");
  day.form.Choose(811, "[B] apple pies");
  EXPECT_EQ(day.form.Text(812), "80");
  EXPECT_TRUE(day.form.Text(813).starts_with("90 kcal"));
  EXPECT_TRUE(day.Press(811, Key::kEnter));
  EXPECT_EQ(day.form.Log().back(), "select all of 812");
}

TEST(QuickAddTest, EnterGoesToTheWeightAndSelectsItAndEnterThereAdds) {
  Day day(kPie);
  day.OpenQuickAdd();
  day.form.Type(810, "apple pie");
  EXPECT_TRUE(day.Press(810, Key::kEnter));
  EXPECT_EQ(day.form.Log(), (Texts{"focus 810", "focus 812", "select all of 812"}));
  EXPECT_EQ(day.form_.ItemCount(kList), 0);
  day.form.Type(812, "60");
  EXPECT_TRUE(day.form.Text(813).starts_with("118.5 kcal"));
  EXPECT_TRUE(day.Press(812, Key::kEnter));
  EXPECT_EQ(day.Listed(), (Texts{"apple pie  60.0g"}));
  EXPECT_EQ(day.form.Text(810), "");
  EXPECT_EQ(day.form.Log().back(), "focus 810");
  // What was just eaten is what is offered next.
  EXPECT_EQ(day.form.Items(811), (Texts{"[B] apple pie"}));
  EXPECT_EQ(day.form.Text(812), "60");
}

TEST(QuickAddTest, TheWeightIsTheOneOfLastTime) {
  Day day(kPie);
  day.WriteHistory(
      "2026-11-14;08:00:00;food;apple pie;150;g;1;1;1;1\r\n"
      "2026-11-15;19:00:00;food;frozen plums;70.5;g;1;1;1;1\r\n"
      "2026-11-15;19:00:00;food;apple pie;90;g;1;1;1;1\r\n");
  day.OpenQuickAdd();
  day.form.Type(810, "apple pie");
  EXPECT_EQ(day.form.Text(812), "90");
  day.form.Type(810, "frozen plums");
  EXPECT_EQ(day.form.Text(812), "70.5");
}

TEST(QuickAddTest, AnEmptyFoodShowsWhatIsEatenAtThisTime) {
  Day day;
  day.WriteHistory(
      "2026-11-14;08:00:00;food;frozen plums;150;g;1;1;1;1\r\n"
      "2026-11-14;13:00:00;food;apples;90;g;1;1;1;1\r\n"
      "2026-11-15;13:00:00;food;apples;90;g;1;1;1;1\r\n");
  day.OpenQuickAdd();
  EXPECT_EQ(day.form.Items(811), (Texts{"frozen plums", "apples"}));
  day.clock.now.time = "12:30:00";
  day.form.Type(810, " ");
  EXPECT_EQ(day.form.Items(811), (Texts{"apples", "frozen plums"}));
}

// Products with traces, with figures of many digits, with own masses; weights that are refused,
// that are none, that are longer than what is weighed with.
TEST(QuickAddTest, AddsExactlyWhatTheCounterWould) {
  const std::string own =
      kPie + "fruits;fresh;zesty trace;100;52.37;0.04;0.012;13.81;\r\n" +
      "fruits;fresh;apple without mass;0;52;1;2;3;\r\nfruits;fresh;plain words;a;b;c;d;e;\r\n";
  const std::vector<Texts> products = {{"fruits", "fresh", "apple pie"},
                                       {"fruits", "fresh", "zesty trace"},
                                       {"fruits", "fresh", "apple without mass"},
                                       {"fruits", "fresh", "plain words"},
                                       {"fruits", "frozen", "frozen sour cherries"}};
  const Texts weights = {"70.5", "0.5",       "33.333", "",   "abc",
                         "1",    "123456789", "1e3",    "-5", ".9999"};
  for (const Texts& product : products) {
    const std::size_t tried = product == products.front() ? weights.size() : 2;
    for (const std::string& weight : std::span(weights).first(tried)) {
      Day on_counter(own);
      Day quick(own);
      quick.OpenQuickAdd();
      for (int times = 0; times < 2; ++times) {
        on_counter.AddOnCounter(product, weight);
        quick.QuickAdd(product[2], weight);
      }
      EXPECT_EQ(quick.State(), on_counter.State()) << product[2] << ' ' << weight;
      on_counter.Remove(0);
      quick.Remove(0);
      EXPECT_EQ(quick.State(), on_counter.State()) << product[2] << ' ' << weight;
    }
  }
}

TEST(QuickAddTest, ACommaIsADecimalPoint) {
  Day day(kPie);
  day.OpenQuickAdd();
  day.QuickAdd("apple pie", "60,5");
  EXPECT_EQ(day.Listed(), (Texts{"apple pie  60.5g"}));
  EXPECT_EQ(day.form_.Text(137), "60.5");
}

// Of two products with one name the counter knows one only. The chosen one is added, and what was
// added is taken off again, in whatever order.
TEST(QuickAddTest, TheChosenRowIsAddedAndTakenOffWhateverItsNameStandsFor) {
  Day day("fruits;fresh;apple pie;100;100;1;1;1;\r\nfruits;fresh;apple pie;100;300;3;3;3;\r\n");
  day.OpenQuickAdd();
  day.form.Type(810, "apple pie");
  ASSERT_EQ(day.form.ItemCount(811), 2);
  EXPECT_TRUE(day.form.Text(813).starts_with("100 kcal"));
  day.form.Press(kOkButton);
  EXPECT_EQ(day.form_.Text(138), "100.");
  day.form.Type(810, "apple pie");
  EXPECT_TRUE(day.Press(810, Key::kDown));
  EXPECT_TRUE(day.Press(810, Key::kEnter));
  EXPECT_TRUE(day.Press(812, Key::kEnter));
  EXPECT_EQ(day.form_.Text(138), "400.");
  day.Remove(0);
  EXPECT_EQ(day.form_.Text(138), "300.");
  day.Remove(0);
  EXPECT_EQ(day.form_.Text(138), "0.");
  EXPECT_TRUE(day.Balance().starts_with("16.11.2026\r\n0.")) << day.Balance();
}

TEST(QuickAddTest, FoodsThatNoListOfTheCounterHoldsAreAddedToo) {
  Day day("nowhere;at all;unlisted thing;100;200;2;2;2;\r\n");
  day.OpenQuickAdd();
  day.QuickAdd("unlisted thing", "50");
  EXPECT_EQ(day.Listed(), (Texts{"unlisted thing  50.0g"}));
  EXPECT_EQ(day.form_.Text(138), "100.");
}

TEST(QuickAddTest, WhatCouldNotBeWrittenStaysForAnotherTry) {
  Day day(kPie);
  day.OpenQuickAdd();
  day.form.Type(810, "apple pie");
  std::filesystem::remove_all(day.folder_.path() + "Ann");
  day.form.Press(kOkButton);
  EXPECT_EQ(day.form.Text(810), "apple pie");
  EXPECT_EQ(day.form_.ItemCount(kList), 0);
  EXPECT_EQ(day.boxes_.TakeTexts().size(), 1U);
}

TEST(QuickAddTest, ProductsReloadedWhileItIsOpenDoNoHarm) {
  Day day(kPie);
  day.OpenQuickAdd();
  day.form.Type(810, "apple pie");
  day.folder_.Write("data.txt", "");
  day.food_.user_products.Load(day.folder_.path() + "data.txt");
  day.form.Press(kOkButton);
  EXPECT_EQ(day.Listed(), (Texts{"apple pie  120.0g"}));
  day.form.Type(810, "apple pie");
  EXPECT_EQ(day.form.ItemCount(811), 0);
}

TEST(QuickAddTest, CloseCloses) {
  Day day;
  day.OpenQuickAdd();
  day.form.Press(kCancelButton);
  EXPECT_EQ(day.form.Log().back(), "close");
}

}  // namespace
}  // namespace velnor

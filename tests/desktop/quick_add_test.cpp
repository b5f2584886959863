// Food at hand: what is added with a few keys, and products from a table, without a mouse.

#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tests/desktop/keyboard_fixture.h"
#include "tests/desktop/outside.h"

namespace velnor::desktop {
namespace {

constexpr int kQuery = 810;
constexpr int kMatches = 811;
constexpr int kWeight = 812;
constexpr int kFigures = 813;
constexpr int kList = 134;  // of the counter

class QuickAddByKeys : public KeyboardOfAnn {
 protected:
  Window OpenQuickAdd() const {
    PressKey('K', KeyModifier::kControl);
    return Popup();
  }
  // From the first letter until the dialog is ready for the next food, with as many arrows down as
  // it takes.
  void QuickAdd(const Window& dialog, const std::string& letters, const std::string& food,
                const std::string& weight) const {
    ASSERT_EQ(dialog.FocusedId(), kQuery);
    TypeKeys(letters);
    ASSERT_TRUE(WaitUntil([&] { return dialog.Text(kQuery) == letters; }));
    for (int i = 0; i < 10 && dialog.Selected(kMatches) != food; ++i) {
      const std::optional<std::string> above = dialog.Selected(kMatches);
      PressKey(VK_DOWN);
      ASSERT_TRUE(WaitUntil([&] { return dialog.Selected(kMatches) != above; }));
    }
    ASSERT_EQ(dialog.Selected(kMatches), food);
    const std::size_t before = main().Items(kList).size();
    PressKey(VK_RETURN);
    ASSERT_TRUE(WaitUntil([&] { return dialog.FocusedId() == kWeight; }));
    TypeKeys(weight);
    PressKey(VK_RETURN);
    ASSERT_TRUE(WaitUntil([&] { return main().Items(kList).size() == before + 1; }));
    ASSERT_TRUE(WaitUntil([&] { return dialog.FocusedId() == kQuery; }));
    EXPECT_EQ(dialog.Text(kQuery), "");
  }
};

// The files of a person, and the list.
std::map<std::string, std::string> WhatWasAdded(const Folder& folder, const Window& main) {
  std::map<std::string, std::string> added;
  for (const std::string& name : folder.Names("ann")) {
    const std::string bytes = folder.Read("ann\\" + name).value_or("(none)");
    added[name] = name == "dziennik.csv" ? WithoutTimes(bytes) : bytes;
  }
  for (const std::string& line : main.Items(kList)) added["(list)"] += line + '\n';
  return added;
}

struct CounterFood {
  const char *main_category, *subcategory, *product, *weight;
};

void AddOnCounter(const App& app, const CounterFood& food) {
  app.main().Command(231);
  app.Settle();
  ASSERT_TRUE(app.main().Choose(124, food.main_category));
  ASSERT_TRUE(app.main().Choose(125, food.subcategory));
  ASSERT_TRUE(app.main().Choose(126, food.product));
  app.main().SetText(128, food.weight);
  app.main().Command(127);
}

TEST_F(QuickAddByKeys, TheFiguresOfAFoodTakeThePlaceOfThoseBefore) {
  const Window dialog = OpenQuickAdd();
  const Window figures(dialog.Control(kFigures));
  RECT all = {};
  GetClientRect(figures.handle(), &all);
  for (const std::string letters : {"butter", "straw"}) {
    dialog.SetText(kQuery, letters);
    ASSERT_TRUE(WaitUntil([&] { return !dialog.Text(kFigures).empty(); }));
    Settle();
  }
  const std::vector<char> changed = Look(figures, all);
  RedrawWindow(dialog.handle(), nullptr, nullptr,
               RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
  Settle();
  EXPECT_TRUE(Look(figures, all) == changed);
}

TEST_F(QuickAddByKeys, AddsWhatTheCounterWould) {
  const Window dialog = OpenQuickAdd();
  QuickAdd(dialog, "straw froz", "frozen strawberries", "62,5");
  QuickAdd(dialog, "cot chee", "cottage cheese 2%", "300");
  QuickAdd(dialog, "butter", "buttermilk", "7");
  ASSERT_TRUE(Closes(dialog, VK_ESCAPE));

  const WorkFolder other;
  CreateDirectoryA((other.path() + "ann").c_str(), nullptr);
  other.Write("users.ASC", "ann\r\n");
  other.Write("ann\\info.ASC", "35\r\n170\r\nwomen\r\nlow\r\nnone");
  const App counter(other);
  counter.main().Command(200);
  const Window login = counter.WaitForPopup();
  ASSERT_TRUE(login.Choose(700, "ann"));
  login.Command(IDOK);
  ASSERT_TRUE(WaitUntilGone(login.handle()));
  AddOnCounter(counter, {"fruits", "frozen", "frozen strawberries", "62.5"});
  AddOnCounter(counter, {"dairy products", "cottage cheese", "cottage cheese 2%", "300"});
  AddOnCounter(counter, {"milk preserves", "drinks", "buttermilk", "7"});
  EXPECT_EQ(WhatWasAdded(folder_, main()), WhatWasAdded(other, counter.main()));
}

TEST_F(QuickAddByKeys, TheWeightOfLastTimeIsThereAndTypingReplacesIt) {
  const Window dialog = OpenQuickAdd();
  QuickAdd(dialog, "straw froz", "frozen strawberries", "62,5");
  ASSERT_TRUE(Closes(dialog, VK_ESCAPE));
  const Window again = OpenQuickAdd();
  EXPECT_EQ(again.Selected(kMatches), "frozen strawberries") << "what is eaten at this hour";
  EXPECT_EQ(again.Text(kWeight), "62.5");
  PressKey(VK_RETURN);
  ASSERT_TRUE(WaitUntil([&] { return again.FocusedId() == kWeight; }));
  TypeKeys("2");
  EXPECT_TRUE(WaitUntil([&] { return again.Text(kWeight) == "2"; }));
  TypeKeys("00");
  EXPECT_TRUE(WaitUntil([&] { return again.Text(kFigures).starts_with("56 kcal"); }))
      << again.Text(kFigures);
  EXPECT_TRUE(TabTo(again, IDOK));
  PressKey(VK_SPACE);
  EXPECT_TRUE(WaitUntil([&] { return main().Items(kList).size() == 2; }));
  EXPECT_TRUE(TabTo(again, IDCANCEL));
  ASSERT_TRUE(Closes(again, VK_SPACE));
}

TEST_F(Keyboard, ATableBecomesProducts) {
  folder_.Write("table.csv",
                "name;kcal;protein;fat;carbohydrate\r\n"
                "Crab apples;76;0,4;0,3;20\r\n");
  ChooseFromContextMenu(kImport);
  const Window import = Popup();
  EXPECT_TRUE(TypeInto(import, 801, "table.csv"));
  EXPECT_TRUE(ArrowTo(import, 803, "tinned food"));
  EXPECT_TRUE(ArrowTo(import, 804, "other"));
  PressKey(VK_RETURN);
  EXPECT_EQ(AnswerBox(import), "1 product was added.");
  EXPECT_EQ(folder_.Read("data.txt"), "tinned food;other;crab apples;100;76;0.4;0.3;20;\r\n");
  ASSERT_TRUE(Closes(import, VK_ESCAPE));
}

TEST_F(Keyboard, NobodyAddsFoodAndHasADiary) {
  PressKey('K', KeyModifier::kControl);
  PressKey('D', KeyModifier::kControl);
  PressKey('F', KeyModifier::kControl);
  const Window search = Popup();
  EXPECT_NE(search.Control(728), nullptr) << "the first that opens";
  ASSERT_TRUE(Closes(search, VK_ESCAPE));
  Settle();
  EXPECT_TRUE(IsInFront(main())) << "and the only one";
  EXPECT_TRUE(folder_.Names().empty());
}

}  // namespace
}  // namespace velnor::desktop

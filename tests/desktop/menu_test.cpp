// The menu of the running program: its texts, what can be chosen at start, and choosing by
// keyboard.

#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

#include "tests/desktop/driver.h"

namespace velnor::desktop {
namespace {

class Menu : public testing::Test {
 protected:
  WorkFolder folder_;
  App app_{folder_};
};

TEST_F(Menu, HasItsPopupsAndItems) {
  const std::vector<std::string> expected = {"-1 &User",
                                             "200 &Login...",
                                             "201 &Logout...",
                                             "204 &Profile...",
                                             "202 &Add/Remove...",
                                             "0 ",
                                             "203 Exit",
                                             "-1 &Raports",
                                             "210 &Weight/BMI",
                                             "214 &WHR",
                                             "212 &Eaten calories",
                                             "215 &Burned calories",
                                             "213 &Recipes",
                                             "-1 &Charts",
                                             "270 &Weight",
                                             "0 ",
                                             "271 &Calories",
                                             "272 &Proteins",
                                             "273 &Fat",
                                             "274 &Carbohydrates",
                                             "-1 &Factors",
                                             "221 &BMI",
                                             "224 &WHR",
                                             "225 &BMR",
                                             "-1 &Calories",
                                             "231 &Nutritions...",
                                             "0 ",
                                             "232 &Daily requirement",
                                             "233 &Daily balance",
                                             "0 ",
                                             "238 &Burn fat and calories...",
                                             "239 &Energy balance",
                                             "-1 &Database",
                                             "240 &add product...",
                                             "241 &remove product...",
                                             "-1 &Other...",
                                             "250 &About programme...",
                                             "0 ",
                                             "252 &Weight exchanges..."};
  std::vector<std::string> actual;
  for (const App::MenuItem& item : app_.ReadMenu()) {
    actual.push_back(std::to_string(item.id) + ' ' + item.text);
  }
  EXPECT_EQ(actual, expected);
}

// The commands that can be chosen.
std::set<int> Enabled(const App& app) {
  std::set<int> enabled;
  for (const auto& [command, can_be_chosen] : app.MenuStates()) {
    if (can_be_chosen) enabled.insert(command);
  }
  return enabled;
}

const std::set<int> kNeedNobody = {200, 202, 203, 240, 241, 250, 252};

TEST_F(Menu, AtStartOnlyWhatNeedsNobodyCanBeChosen) { EXPECT_EQ(Enabled(app_), kNeedNobody); }

TEST_F(Menu, LogoutSaysByeAndLeavesItsMenu) {
  app_.main().Command(231);
  app_.main().PostCommand(201);
  const MessageBoxSeen box = app_.WaitForMessageBox();
  EXPECT_EQ(box.text, "BYE, SEE YOU SOON!");
  EXPECT_EQ(box.caption, "Velnor calorie counter");
  Answer(box, IDOK);
  app_.Settle();
  EXPECT_FALSE(app_.main().IsShown(124));
  EXPECT_EQ(Enabled(app_), kNeedNobody);
}

TEST_F(Menu, UnfinishedFunctionsSaySo) {
  app_.main().PostCommand(211);
  const MessageBoxSeen box = app_.WaitForMessageBox();
  EXPECT_EQ(box.text, "Function not yet available");
  EXPECT_EQ(box.caption, "Velnor calorie counter");
  Answer(box, IDOK);
  EXPECT_TRUE(app_.IsRunning());
}

TEST_F(Menu, TheKeyboardChoosesWhatCanBeChosen) {
  ClickOn(app_.main().handle());
  app_.Settle();
  PressKey('O', KeyModifier::kAlt);
  PressKey('A');
  const Window about = app_.WaitForPopup();
  ASSERT_NE(about.handle(), nullptr);
  PressKey(VK_RETURN);
  EXPECT_TRUE(WaitUntilGone(about.handle()));
}

}  // namespace
}  // namespace velnor::desktop

// The menu of the running program: its texts, what can be chosen at start, and choosing by
// keyboard.

#include <gtest/gtest.h>
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
  const std::vector<std::string> expected = {"> &User",
                                             "200 &Login...",
                                             "201 &Logout...",
                                             "204 &Profile...",
                                             "202 &Add/Remove...",
                                             "-",
                                             "203 Exit",
                                             "> &Raports",
                                             "210 &Weight/BMI",
                                             "214 &WHR",
                                             "212 &Eaten calories",
                                             "215 &Burned calories",
                                             "213 &Recipes",
                                             "> &Charts",
                                             "270 &Weight",
                                             "-",
                                             "271 &Calories",
                                             "272 &Proteins",
                                             "273 &Fat",
                                             "274 &Carbohydrates",
                                             "> &Factors",
                                             "221 &BMI",
                                             "224 &WHR",
                                             "225 &BMR",
                                             "> &Calories",
                                             "231 &Nutritions...",
                                             "-",
                                             "232 &Daily requirement",
                                             "233 &Daily balance",
                                             "-",
                                             "238 &Burn fat and calories...",
                                             "239 &Energy balance",
                                             "> &Database",
                                             "240 &add product...",
                                             "241 &remove product...",
                                             "> &Other...",
                                             "250 &About programme...",
                                             "-",
                                             "252 &Weight exchanges..."};
  EXPECT_EQ(app_.MenuTexts(), expected);
}

TEST_F(Menu, AtStartOnlyWhatNeedsNobodyCanBeChosen) {
  for (const int command : {200, 202, 203, 240, 241, 250, 252}) {
    EXPECT_EQ(app_.IsMenuItemEnabled(command), true) << command;
  }
  for (const int command : {201, 204, 210, 214, 212, 215, 213, 270, 271, 272,
                            273, 274, 221, 224, 225, 231, 232, 233, 238, 239}) {
    EXPECT_EQ(app_.IsMenuItemEnabled(command), false) << command;
  }
  for (const int command : {211, 220, 222, 223, 230, 234, 235, 236, 237, 251}) {
    EXPECT_EQ(app_.IsMenuItemEnabled(command), std::nullopt) << command;
  }
}

TEST_F(Menu, LogoutSaysByeAndLeavesItsMenu) {
  app_.main().Command(231);
  app_.main().PostCommand(201);
  const MessageBoxSeen box = app_.WaitForMessageBox();
  EXPECT_EQ(box.text, "BYE, SEE YOU SOON!");
  EXPECT_EQ(box.caption, "Velnor calorie counter");
  Answer(box, IDOK);
  app_.Settle();
  EXPECT_FALSE(app_.main().IsShown(124));
  for (const int command : {200, 202, 203, 240, 241, 250, 252}) {
    EXPECT_EQ(app_.IsMenuItemEnabled(command), true) << command;
  }
  for (const int command : {201, 204, 210, 231, 238, 239, 270}) {
    EXPECT_EQ(app_.IsMenuItemEnabled(command), false) << command;
  }
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
  PressKey('O', true);
  PressKey('A');
  const Window about = app_.WaitForPopup();
  ASSERT_NE(about.handle(), nullptr);
  PressKey(VK_RETURN);
  EXPECT_TRUE(WaitUntilGone(about.handle()));
}

}  // namespace
}  // namespace velnor::desktop

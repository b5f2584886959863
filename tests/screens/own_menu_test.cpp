// The menu of our own: its table, when an item can be chosen, and that it does what its row says.

#include "shell/own_menu.h"

#include <array>
#include <iterator>
#include <string>
#include <string_view>

#include "food/search_dialog.h"
#include "shell/commands.h"
#include "tests/support/program_fixture.h"

namespace velnor {
namespace {

using OwnMenuTest = ProgramTest;

constexpr std::array<OwnMenuItem, 2> kTwoItems = {{
    {kDiaryItem, "Find", true, [](Parts& parts) { OpenSearch(parts.window, parts.food); }},
    {kBackUpItem, "Add", false, [](Parts& parts) { RunCommand(parts, 240); }},
}};
const std::string kProfileLines = "35\n170\nwomen\nlow\nnone\n";

TEST_F(OwnMenuTest, HoldsItsItemsInTheirOrder) {
  struct Row {
    int id;
    std::string_view text;
    bool needs_user;
  };
  constexpr Row kExpected[] = {{0x150, "Quick add...\tCtrl+K", true},
                               {0x110, "Diary...\tCtrl+D", true},
                               {0x120, "Back up...", false},
                               {0x130, "Restore...", false},
                               {0x140, "Import products...", false}};
  ASSERT_EQ(OwnMenuItems().size(), std::size(kExpected));
  for (std::size_t i = 0; i < std::size(kExpected); ++i) {
    const OwnMenuItem& item = OwnMenuItems()[i];
    EXPECT_EQ(item.id, kExpected[i].id);
    EXPECT_EQ(item.text, kExpected[i].text);
    EXPECT_EQ(item.needs_user, kExpected[i].needs_user) << item.text;
  }
}

TEST_F(OwnMenuTest, AnItemDoesWhatItsRowSays) {
  Program& program = Start();
  EXPECT_TRUE(RunOwnMenuItem(program.parts(), kBackUpItem, kTwoItems));
  EXPECT_EQ(window_.log, (std::vector<std::string>{"open 10010"}));
}

TEST_F(OwnMenuTest, WhatNeedsAUserIsGreyAndDoesNothingWithoutOne) {
  Program& program = Start();
  EXPECT_FALSE(CanBeChosen(kTwoItems[0], program.session()));
  EXPECT_TRUE(CanBeChosen(kTwoItems[1], program.session()));
  EXPECT_TRUE(RunOwnMenuItem(program.parts(), kDiaryItem, kTwoItems));
  EXPECT_TRUE(window_.log.empty());

  LogIn("Zoe", kProfileLines);
  window_.log.clear();
  EXPECT_TRUE(CanBeChosen(kTwoItems[0], program.session()));
  EXPECT_TRUE(RunOwnMenuItem(program.parts(), kDiaryItem, kTwoItems));
  EXPECT_EQ(window_.log, (std::vector<std::string>{"open 10009"}));

  program.OnCommand(201, 0);
  EXPECT_FALSE(CanBeChosen(kTwoItems[0], program.session()));
}

TEST_F(OwnMenuTest, WhatIsNoItemIsLeftToThePlatform) {
  Program& program = Start();
  for (const int id : {0, 0x100, 0x130, 0xF060, 0xF100}) {
    EXPECT_FALSE(RunOwnMenuItem(program.parts(), id, kTwoItems)) << id;
  }
  EXPECT_TRUE(window_.log.empty());
}

}  // namespace
}  // namespace velnor

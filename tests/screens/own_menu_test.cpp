// The menu of our own: its table, when an item can be chosen, and that it does what its row says.

#include "shell/own_menu.h"

#include <array>
#include <map>
#include <set>
#include <string>

#include "tests/support/program_fixture.h"

namespace velnor {
namespace {

using OwnMenuTest = ProgramTest;

constexpr std::array<OwnMenuItem, 2> kTwoItems = {{
    {kDiaryItem, "Find", true, [](Program& program) { program.OpenSearch(); }},
    {kBackUpItem, "Add", false, [](Program& program) { program.OpenAddProduct(); }},
}};
const std::string kProfileLines = "35\n170\nwomen\nlow\nnone\n";

TEST_F(OwnMenuTest, HoldsItsItemsInTheirOrder) {
  const std::map<int, std::string> texts = {{0x150, "Quick add...\tCtrl+K"},
                                            {0x110, "Diary...\tCtrl+D"},
                                            {0x120, "Back up..."},
                                            {0x130, "Restore..."},
                                            {0x140, "Import products..."}};
  int before = -1;
  for (const OwnMenuItem& item : OwnMenuItems()) {
    ASSERT_TRUE(texts.contains(item.id)) << item.id;
    EXPECT_EQ(item.text, texts.at(item.id));
    EXPECT_EQ(item.needs_user, item.id == kQuickAddItem || item.id == kDiaryItem) << item.text;
    EXPECT_NE(item.run, nullptr) << item.text;
    const int place = item.id == kQuickAddItem ? 0 : item.id;  // quick add comes first
    EXPECT_GT(place, before) << item.text;
    before = place;
  }
}

TEST_F(OwnMenuTest, AnItemDoesWhatItsRowSays) {
  Program& program = Start();
  EXPECT_TRUE(RunOwnMenuItem(program, kBackUpItem, kTwoItems));
  EXPECT_EQ(window_.log, (std::vector<std::string>{"open 10010"}));
}

TEST_F(OwnMenuTest, WhatNeedsAUserIsGreyAndDoesNothingWithoutOne) {
  Program& program = Start();
  EXPECT_FALSE(CanBeChosen(kTwoItems[0], program.session()));
  EXPECT_TRUE(CanBeChosen(kTwoItems[1], program.session()));
  EXPECT_TRUE(RunOwnMenuItem(program, kDiaryItem, kTwoItems));
  EXPECT_TRUE(window_.log.empty());

  LogIn("Zoe", kProfileLines);
  window_.log.clear();
  EXPECT_TRUE(CanBeChosen(kTwoItems[0], program.session()));
  EXPECT_TRUE(RunOwnMenuItem(program, kDiaryItem, kTwoItems));
  EXPECT_EQ(window_.log, (std::vector<std::string>{"open 10009"}));

  program.OnCommand(201, 0);
  EXPECT_FALSE(CanBeChosen(kTwoItems[0], program.session()));
}

TEST_F(OwnMenuTest, WhatIsNoItemIsLeftToThePlatform) {
  Program& program = Start();
  for (const int id : {0, 0x100, 0x130, 0xF060, 0xF100}) {
    EXPECT_FALSE(RunOwnMenuItem(program, id, kTwoItems)) << id;
  }
  EXPECT_TRUE(window_.log.empty());
}

}  // namespace
}  // namespace velnor

// The menu: what each command does, and which items can be chosen when.

#include "shell/commands.h"

#include <map>
#include <string>
#include <vector>

#include "shell/about_box.h"
#include "shell/menu_states.h"
#include "tests/support/expected_screens.h"
#include "tests/support/program_fixture.h"

namespace velnor {
namespace {

using CommandsTest = ProgramTest;
using Log = std::vector<std::string>;

TEST_F(CommandsTest, EveryScreenHasItsCommand) {
  Program& program = Start();
  EXPECT_EQ(program.session().screen, 0);
  for (const ExpectedScreen& expected : ExpectedScreens()) {
    if (expected.command == 0) continue;
    window_.log.clear();
    program.OnCommand(expected.command, 0);
    EXPECT_EQ(program.session().screen, expected.screen) << expected.command;
    EXPECT_EQ(window_.log, (Log{"invalidate"})) << expected.command;
  }
}

TEST_F(CommandsTest, ChoosingAScreenTwiceOnlyRepaintsIt) {
  Program& program = Start();
  program.OnCommand(221, 0);
  program.OnCommand(221, 0);
  EXPECT_EQ(program.session().screen, 1);
  EXPECT_EQ(window_.log, (Log{"invalidate", "invalidate"}));
}

TEST_F(CommandsTest, UnfinishedFunctionsSaySoAndChangeNothing) {
  Program& program = Start();
  program.OnCommand(221, 0);
  for (const int command : {211, 220, 222, 223, 230, 234, 235, 237}) {
    boxes_.shown.clear();
    window_.log.clear();
    program.OnCommand(command, 0);
    ASSERT_EQ(boxes_.shown.size(), 1U) << command;
    EXPECT_EQ(boxes_.shown[0].text, "Function not yet available");
    EXPECT_EQ(boxes_.shown[0].caption, "Velnor calorie counter");
    EXPECT_EQ(boxes_.shown[0].icon, MessageIcon::kInformation);
    EXPECT_EQ(boxes_.shown[0].buttons, MessageButtons::kOk);
    EXPECT_EQ(boxes_.shown[0].owner, MessageOwner::kMainWindow);
    EXPECT_EQ(program.session().screen, 1);
    EXPECT_EQ(window_.log, Log{});
  }
}

TEST_F(CommandsTest, IdsWithoutAnActionBelongToControls) {
  Program& program = Start();
  for (const int id : {205, 209, 216, 226, 240 + 5, 253, 269, 199, 275, 0, -1, 128}) {
    EXPECT_FALSE(RunCommand(program.parts(), id)) << id;
  }
  for (const int id : {200, 201, 202, 204, 210, 240, 241, 250, 251, 252, 274}) {
    EXPECT_TRUE(RunCommand(program.parts(), id)) << id;
  }
}

TEST_F(CommandsTest, ExitClosesTheWindowWithoutAQuestion) {
  Start().OnCommand(203, 0);
  EXPECT_EQ(window_.log, (Log{"close"}));
  EXPECT_TRUE(boxes_.shown.empty());
}

TEST_F(CommandsTest, HelpOpensTheHelpFile) {
  Start().OnCommand(251, 0);
  EXPECT_EQ(window_.log, (Log{"help Velnor CALORIES COUNTER V 2.6 PORADNIK.HLP"}));
}

TEST_F(CommandsTest, AboutOpensItsBoxWhichOkCloses) {
  Start().OnCommand(250, 0);
  EXPECT_EQ(window_.log, (Log{"dialog 10000 closed"}));
}

TEST_F(CommandsTest, DatabaseItemsAndFindOpenTheirDialogs) {
  Program& program = Start();
  for (const int id : {240, 241, 149}) program.OnCommand(id, 0);
  EXPECT_EQ(window_.log, (Log{"open 10010", "open 10011", "open 10009"}));
}

TEST(AboutBoxTest, EitherButtonClosesItAndNothingElseDoes) {
  for (const int id : {1, 2, 3, 702}) {
    FakeForm form;
    AboutBox about_box;
    about_box.OnOpen(form);
    about_box.OnCommand(form, id, kButtonClicked);
    EXPECT_EQ(form.Log(), (id <= 2 ? Log{"close"} : Log{})) << id;
  }
}

TEST_F(CommandsTest, LogoutSaysByeAndShowsTheHomeScreenAtOnce) {
  Program& program = Start();
  program.OnCommand(221, 0);
  window_.log.clear();
  window_.menu.clear();
  program.OnCommand(201, 0);
  ASSERT_EQ(boxes_.shown.size(), 1U);
  EXPECT_EQ(boxes_.shown[0].text, "BYE, SEE YOU SOON!");
  EXPECT_EQ(boxes_.shown[0].caption, "Velnor calorie counter");
  EXPECT_EQ(boxes_.shown[0].icon, MessageIcon::kInformation);
  EXPECT_EQ(program.session().user, std::nullopt);
  EXPECT_EQ(program.session().screen, 0);
  EXPECT_EQ(window_.log, (Log{"paint now"}));
  EXPECT_TRUE(window_.menu.at(237));
  EXPECT_FALSE(window_.menu.at(238));
  EXPECT_FALSE(window_.menu.contains(240));
}

TEST_F(CommandsTest, TheProgramStartsWithTheLoggedOutMenu) {
  FakeMainWindow expected;
  ApplyMenuState(MenuState::kLoggedOut, expected);
  Start();
  EXPECT_EQ(window_.menu, expected.menu);
}

// What the menu state with that place in the tables does to every item; what it leaves alone, and
// what is no item, is missing.
std::map<int, bool> ExpectedMenu(std::size_t state) {
  std::map<int, bool> menu;
  const auto add = [&menu, state](int id, MenuItemStates states) {
    if (states[state] != '.') menu[id] = states[state] == 'E';
  };
  for (const ExpectedScreen& screen : ExpectedScreens()) add(screen.command, screen.states);
  for (const ExpectedCommand& command : ExpectedCommands()) add(command.id, command.states);
  return menu;
}

TEST(MenuStatesTest, EveryStateEnablesAndGreysWhatTheTablesSay) {
  const MenuState states[] = {MenuState::kLoggedOut, MenuState::kLoggedIn, MenuState::kAfterLogout,
                              MenuState::kUserRemoved};
  for (std::size_t i = 0; i < std::size(states); ++i) {
    FakeMainWindow window;
    ApplyMenuState(states[i], window);
    EXPECT_EQ(window.menu, ExpectedMenu(i)) << "state " << i;
  }
}

TEST(MenuStatesTest, LoginThenLogoutLeavesTheDatabaseItemsEnabled) {
  FakeMainWindow window;
  for (const MenuState state :
       {MenuState::kLoggedOut, MenuState::kLoggedIn, MenuState::kAfterLogout}) {
    ApplyMenuState(state, window);
  }
  EXPECT_TRUE(window.menu.at(240));
  EXPECT_TRUE(window.menu.at(241));
}

TEST(MenuStatesTest, RemovingTheLoggedInUserLeavesTheActivitiesEnabled) {
  FakeMainWindow window;
  for (const MenuState state :
       {MenuState::kLoggedOut, MenuState::kLoggedIn, MenuState::kUserRemoved}) {
    ApplyMenuState(state, window);
  }
  EXPECT_TRUE(window.menu.at(238));
  EXPECT_FALSE(window.menu.at(239));
}

}  // namespace
}  // namespace velnor

// The menu: what each command does, and which items can be chosen when.

#include "shell/commands.h"

#include <map>
#include <string>
#include <vector>

#include "shell/about_box.h"
#include "shell/menu_states.h"
#include "tests/support/program_fixture.h"

namespace velnor {
namespace {

using CommandsTest = ProgramTest;
using Log = std::vector<std::string>;

TEST_F(CommandsTest, EveryScreenHasItsCommand) {
  const std::map<int, ScreenId> expected = {{221, 1},  {224, 2},  {236, 3},  {210, 4},  {214, 5},
                                            {232, 6},  {231, 7},  {212, 8},  {213, 9},  {238, 10},
                                            {215, 11}, {233, 12}, {270, 13}, {271, 14}, {272, 15},
                                            {273, 16}, {274, 17}, {225, 18}, {239, 19}, {252, 20}};
  Program& program = Start();
  EXPECT_EQ(program.session().screen, 0);
  for (const auto& [command, screen] : expected) {
    window_.log.clear();
    program.OnCommand(command, 0);
    EXPECT_EQ(program.session().screen, screen) << command;
    EXPECT_EQ(window_.log, (Log{"invalidate"})) << command;
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
    EXPECT_FALSE(RunCommand(program, id)) << id;
  }
  for (const int id : {200, 201, 202, 204, 210, 240, 241, 250, 251, 252, 274}) {
    EXPECT_TRUE(RunCommand(program, id)) << id;
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

// The state of every id that has a place in the menu or once had one; '.' where it was left alone.
std::map<int, char> StatesAfter(MenuState state) {
  FakeMainWindow window;
  ApplyMenuState(state, window);
  std::map<int, char> states;
  for (const int id : {200, 201, 202, 203, 204, 210, 211, 212, 213, 214, 215, 220, 221,
                       222, 223, 224, 225, 230, 231, 232, 233, 234, 235, 236, 237, 238,
                       239, 240, 241, 250, 251, 252, 270, 271, 272, 273, 274}) {
    const auto found = window.menu.find(id);
    states[id] = found == window.menu.end() ? '.' : found->second ? 'E' : 'g';
  }
  for (const auto& [id, enabled] : window.menu) EXPECT_TRUE(states.contains(id)) << id;
  return states;
}

std::map<int, char> States(const std::map<std::string, std::vector<int>>& by_state) {
  std::map<int, char> states;
  for (const auto& [letter, ids] : by_state) {
    for (const int id : ids) states[id] = letter[0];
  }
  return states;
}

TEST(MenuStatesTest, AtStartOnlyWhatNeedsNobodyCanBeChosen) {
  EXPECT_EQ(StatesAfter(MenuState::kLoggedOut),
            States({{"E", {200, 202, 203, 236, 240, 241, 250, 251}},
                    {"g", {201, 204, 210, 211, 212, 213, 214, 215, 220, 221, 222, 223, 224, 225,
                           230, 231, 232, 233, 234, 235, 237, 238, 239, 270, 271, 272, 273, 274}},
                    {".", {252}}}));
}

TEST(MenuStatesTest, LoggedInEverythingButLoginCanBeChosen) {
  EXPECT_EQ(StatesAfter(MenuState::kLoggedIn),
            States({{"E", {201, 202, 203, 204, 210, 211, 212, 213, 214, 215, 220, 221,
                           222, 223, 224, 225, 230, 231, 232, 233, 234, 235, 236, 237,
                           238, 239, 240, 241, 250, 251, 270, 271, 272, 273, 274}},
                    {"g", {200}},
                    {".", {252}}}));
}

TEST(MenuStatesTest, LogoutLeavesTheDatabaseItemsAloneAndKeeps237) {
  EXPECT_EQ(StatesAfter(MenuState::kAfterLogout),
            States({{"E", {200, 202, 203, 236, 237, 250, 251}},
                    {"g", {201, 204, 210, 211, 212, 213, 214, 215, 220, 221, 222, 223, 224, 225,
                           230, 231, 232, 233, 234, 235, 238, 239, 270, 271, 272, 273, 274}},
                    {".", {240, 241, 252}}}));
}

TEST(MenuStatesTest, RemovingTheUserLeavesTheActivitiesAlone) {
  EXPECT_EQ(StatesAfter(MenuState::kUserRemoved),
            States({{"E", {200, 202, 203, 236, 240, 241, 250, 251}},
                    {"g", {201, 204, 210, 211, 212, 213, 214, 215, 220, 221, 222, 223, 224, 225,
                           230, 231, 232, 233, 234, 235, 237, 239, 270, 271, 272, 273, 274}},
                    {".", {238, 252}}}));
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

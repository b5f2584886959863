// The painting frame: background, header and controls of every screen.

#include "shell/screens.h"

#include <set>
#include <string>
#include <vector>

#include "tests/support/expected_screens.h"
#include "tests/support/program_fixture.h"

namespace velnor {
namespace {

using ScreensTest = ProgramTest;

TEST_F(ScreensTest, EveryScreenHasItsBackgroundHeaderAndControls) {
  Start();
  const std::vector<DrawnText> header = {{"user: NONE", {10, 2}, {14, 0, false}, {0, 0, 0}},
                                         {kTestDate, {720, 2}, {14, 0, false}, {0, 0, 0}}};
  const DrawnLine rule = {{{4, 20}, {790, 20}}, {{0, 0, 0}, 1}};
  ASSERT_EQ(Screens().size(), ExpectedScreens().size());
  for (const ExpectedScreen& expected : ExpectedScreens()) {
    const ScreenId screen = expected.screen;
    if (expected.command != 0) program_->OnCommand(expected.command, kButtonClicked);
    EXPECT_EQ(program_->session().screen, screen);
    const RecordingCanvas canvas = Repaint();
    EXPECT_EQ(canvas.backgrounds, std::vector<std::string>{expected.background}) << screen;
    ASSERT_GE(canvas.texts.size(), 2U) << screen;
    EXPECT_EQ(std::vector<DrawnText>(canvas.texts.begin(), canvas.texts.begin() + 2), header);
    ASSERT_GE(canvas.lines.size(), 1U) << screen;
    EXPECT_EQ(canvas.lines[0], rule) << screen;
    EXPECT_EQ(form_.ShownKeys(), expected.controls) << screen;
  }
}

TEST_F(ScreensTest, TheHomeScreenCarriesTheHeaderOnly) {
  Start();
  const RecordingCanvas canvas = Repaint();
  EXPECT_EQ(canvas.texts.size(), 2U);
  EXPECT_EQ(canvas.lines.size(), 1U);
}

TEST_F(ScreensTest, ScreensDoNotInheritControls) {
  Start();
  Open(231);
  Open(221);
  EXPECT_EQ(form_.ShownKeys(), (std::set<int>{101, 102, 103}));
}

TEST_F(ScreensTest, AnUnknownScreenPaintsNothing) {
  Program& program = Start();
  Open(231);
  ShowScreen(program.parts(), 21);
  const RecordingCanvas canvas = Repaint();
  EXPECT_TRUE(canvas.backgrounds.empty());
  EXPECT_TRUE(canvas.texts.empty());
  EXPECT_TRUE(canvas.lines.empty());
  EXPECT_TRUE(form_.ShownKeys().empty());
}

TEST_F(ScreensTest, TheWheelScrollsReportsOneLineWhateverTheDistance) {
  Program& program = Start();
  std::string lines;
  for (int i = 0; i < 100; ++i) lines += "line\r\n";
  for (const ExpectedScreen& expected : ExpectedScreens()) {
    const ScreenId screen = expected.screen;
    ShowScreen(program.parts(), screen);
    form_.SetText(119, lines);
    const bool is_report = screen == 4 || screen == 5 || screen == 8 || screen == 9 || screen == 11;
    std::vector<int> first_lines;
    for (const int movement : {-120 * 65536, -360 * 65536, -1, 120 * 65536, 0}) {
      EXPECT_EQ(program.OnMouseWheel(movement), is_report) << screen;
      first_lines.push_back(form_.FirstVisibleLine(119));
    }
    EXPECT_EQ(first_lines, is_report ? (std::vector<int>{1, 2, 3, 2, 1}) : std::vector<int>(5, 0))
        << screen;
  }
}

TEST_F(ScreensTest, BackgroundsAreThoseThatTheScreensName) {
  std::set<std::string> named;
  for (const ScreenRow& screen : Screens()) named.insert(std::string(screen.background));
  EXPECT_EQ(named, std::set<std::string>(BackgroundNames().begin(), BackgroundNames().end()));
}

}  // namespace
}  // namespace velnor

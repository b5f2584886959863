// The charts as a person sees them: from the first weights to a drawn line, and what a chart with
// too little to draw does.

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/desktop/driver.h"

namespace velnor::desktop {
namespace {

constexpr int kOpenLogin = 200;
constexpr int kWeightChart = 270;
constexpr int kCalorieChart = 271;
constexpr int kProteinsChart = 272;
constexpr int kFatChart = 273;
constexpr int kCarbohydratesChart = 274;

constexpr COLORREF kWeightColour = RGB(0, 0, 188);
constexpr COLORREF kGrid = RGB(160, 160, 160);
constexpr COLORREF kBand = RGB(0, 255, 0);

constexpr const char* kTooFew =
    "Not enought data to draw graph.\nNeed at least 3 savings (from 3 different days).";

// Dialogs and message boxes of the program that can be seen.
int CountPopups(const App& app) {
  DWORD process = 0;
  GetWindowThreadProcessId(app.main().handle(), &process);
  int count = 0;
  HWND window = nullptr;
  while ((window = FindWindowExA(nullptr, window, "#32770", nullptr)) != nullptr) {
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    if (owner == process && IsWindowVisible(window) != 0) ++count;
  }
  return count;
}

class Charts : public testing::Test {
 protected:
  Charts() {
    CreateDirectoryA((folder_.path() + "Zoe").c_str(), nullptr);
    folder_.Write("users.ASC", "Zoe");
    folder_.Write("Zoe\\info.ASC", "35\r\n170\r\nwomen\r\nlow\r\nnone");
  }

  static void LogIn(const App& app) {
    app.main().Command(kOpenLogin);
    const Window dialog = app.WaitForPopup();
    ASSERT_TRUE(dialog.Choose(700, "Zoe"));
    dialog.PostCommand(IDOK);
    ASSERT_TRUE(WaitUntilGone(dialog.handle()));
  }
  // The one box that opening the chart brings, still open.
  static MessageBoxSeen OpenRefusingChart(const App& app, int command) {
    app.main().PostCommand(command);
    return app.WaitForMessageBox();
  }
  static void Open(const App& app, int command) {
    app.main().Command(command);
    app.Settle();
  }
  static bool WaitForPixel(const App& app, int x, int y, COLORREF colour) {
    return WaitUntil([&] { return PixelAt(app.main(), x, y) == colour; });
  }
  static bool IsChart(const App& app) { return PixelAt(app.main(), 300, 200) == kGrid; }

  WorkFolder folder_;
};

// A day's weight each, and the program started anew on the next day.
TEST_F(Charts, ThreeWeightsOnThreeDaysAreAChart) {
  {
    const App app(folder_);
    LogIn(app);
    const MessageBoxSeen box = OpenRefusingChart(app, kWeightChart);
    EXPECT_EQ(box.text, "No datas to draw this chart");
    EXPECT_EQ(box.caption, "Caution");
    Answer(box, IDOK);
    EXPECT_EQ(folder_.Read("Zoe\\wykwag.txt"), "");
  }
  std::string series;
  for (const char* const day : {"16.11.2026;70;24.22;\r\n", "17.11.2026;71.5;24.74;\r\n"}) {
    folder_.Write("Zoe\\wykwag.txt", series += day);
    const App app(folder_);
    LogIn(app);
    const MessageBoxSeen box = OpenRefusingChart(app, kWeightChart);
    EXPECT_EQ(box.text, kTooFew);
    EXPECT_EQ(box.caption, "ATTENTION");
    Answer(box, IDOK);
  }
  folder_.Write("Zoe\\wykwag.txt", series += "18.11.2026;69;23.88;\r\n");
  const App app(folder_);
  LogIn(app);
  Open(app, kWeightChart);
  EXPECT_TRUE(WaitForPixel(app, 740, 333, kWeightColour)) << "from the newest entry leftwards";
  EXPECT_EQ(PixelAt(app.main(), 715, 330), kWeightColour);
  EXPECT_EQ(PixelAt(app.main(), 680, 333), kWeightColour);
  EXPECT_EQ(PixelAt(app.main(), 663, 390), kWeightColour) << "down to the bottom axis";
  EXPECT_EQ(PixelAt(app.main(), 300, 450), kWeightColour) << "and along it";
  EXPECT_EQ(PixelAt(app.main(), 300, 200), kGrid);
  EXPECT_EQ(CountPopups(app), 0);
  for (const HWND control : app.main().Controls()) EXPECT_FALSE(IsWindowVisible(control));
  EXPECT_EQ(folder_.Read("Zoe\\wykwag.txt"), series);
}

TEST_F(Charts, EveryNutrientHasItsPenAndTheRequirementBehindIt) {
  folder_.Write("Zoe\\wykoda.txt",
                "16.11.2026;2400.;120.;120.;1200.;\r\n"
                "17.11.2026;2400.;120.;120.;1200.;\r\n"
                "18.11.2026;2400.;120.;120.;1200.;\r\n");
  const App app(folder_);
  LogIn(app);
  Open(app, 232);  // works the requirement out
  struct Expected {
    int command;
    COLORREF colour;
    int lower;  // heights of the requirement
    int upper;
  };
  for (const Expected& chart : {Expected{kCalorieChart, RGB(255, 139, 137), 318, 306},
                                Expected{kProteinsChart, RGB(255, 255, 255), 362, 362},
                                Expected{kFatChart, RGB(255, 255, 71), 368, 337},
                                Expected{kCarbohydratesChart, RGB(0, 0, 0), 412, 405}}) {
    Open(app, chart.command);
    EXPECT_TRUE(WaitForPixel(app, 730, 300, chart.colour)) << chart.command;
    EXPECT_EQ(PixelAt(app.main(), 300, chart.lower), kBand) << chart.command;
    EXPECT_EQ(PixelAt(app.main(), 300, chart.upper), kBand) << chart.command;
    EXPECT_EQ(CountPopups(app), 0);
    for (const HWND control : app.main().Controls()) EXPECT_FALSE(IsWindowVisible(control));
  }
}

// What is behind the box is painted again when the box is moved or the window comes to light.
TEST_F(Charts, ARefusingChartShowsOneBoxWhateverIsRepainted) {
  const App app(folder_);
  LogIn(app);
  for (const int command :
       {kWeightChart, kCalorieChart, kProteinsChart, kFatChart, kCarbohydratesChart}) {
    const MessageBoxSeen box = OpenRefusingChart(app, command);
    EXPECT_EQ(box.text, command == kWeightChart ? "No datas to draw this chart"
                                                : "No data to draw this chart");
    for (int repaint = 0; repaint < 3; ++repaint) {
      SetWindowPos(box.handle, nullptr, 60 + 90 * repaint, 80, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
      InvalidateRect(app.main().handle(), nullptr, TRUE);
      EXPECT_TRUE(
          WaitUntil([&] { return GetUpdateRect(app.main().handle(), nullptr, FALSE) == 0; }));
      Sleep(100);  // a second box would have come by now
      EXPECT_EQ(CountPopups(app), 1) << command;
    }
    EXPECT_TRUE(WaitUntil([&] { return IsChart(app); })) << "the chart's frame behind the box";
    Answer(box, IDOK);
    EXPECT_TRUE(WaitUntil([&] { return !IsChart(app); })) << "home after command " << command;
    Sleep(100);
    EXPECT_EQ(CountPopups(app), 0);
  }
  EXPECT_TRUE(app.IsRunning());
}

TEST_F(Charts, ClosingTheProgramBehindTheBoxEndsIt) {
  const App app(folder_);
  LogIn(app);
  OpenRefusingChart(app, kWeightChart);
  PostMessageA(app.main().handle(), WM_CLOSE, 0, 0);
  EXPECT_EQ(app.WaitForExit(), 0U);
}

TEST_F(Charts, TheWeightExchangesNeedNoUser) {
  const App app(folder_);
  Open(app, 252);
  EXPECT_EQ(CountPopups(app), 0);
  for (const HWND control : app.main().Controls()) EXPECT_FALSE(IsWindowVisible(control));
  // The head of the page is painted in red.
  const auto has_red = [&] {
    for (int x = 330; x < 430; ++x) {
      if (PixelAt(app.main(), x, 59) == RGB(255, 0, 0)) return true;
    }
    return false;
  };
  EXPECT_TRUE(WaitUntil(has_red));
}

}  // namespace
}  // namespace velnor::desktop

// The window itself: how it comes up, what it is, how it goes.

#include <array>
#include <gtest/gtest.h>
#include <string>

#include "tests/desktop/driver.h"

namespace velnor::desktop {
namespace {

class Start : public testing::Test {
 protected:
  WorkFolder folder_;
  App app_{folder_};
};

TEST_F(Start, TheWindowHasItsTitleClassSizeAndStyle) {
  const HWND window = app_.main().handle();
  ASSERT_NE(window, nullptr);
  EXPECT_EQ(app_.main().Caption(), "Velnor calorie counter");
  std::array<char, 64> name = {};
  GetClassNameA(window, name.data(), static_cast<int>(name.size()));
  EXPECT_STREQ(name.data(), "Velnor calorie counter");
  RECT place = {};
  GetWindowRect(window, &place);
  EXPECT_EQ(place.right - place.left, 800);
  EXPECT_EQ(place.bottom - place.top, 600);
  const LONG_PTR style = GetWindowLongPtrA(window, GWL_STYLE);
  constexpr LONG_PTR kWanted = WS_BORDER | WS_SYSMENU | WS_MINIMIZEBOX;
  EXPECT_EQ(style & kWanted, kWanted);
  EXPECT_EQ(style & (WS_THICKFRAME | WS_MAXIMIZEBOX), 0);
  EXPECT_EQ(GetClassLongPtrA(window, GCL_STYLE), CS_DBLCLKS);
  EXPECT_EQ(GetWindow(window, GW_OWNER), nullptr);
}

TEST_F(Start, NothingIsWrittenIntoTheFolder) {
  app_.Settle();
  EXPECT_TRUE(folder_.Names().empty());
}

TEST_F(Start, ClosingTheWindowEndsTheProgramWithZero) {
  PostMessageA(app_.main().handle(), WM_CLOSE, 0, 0);
  EXPECT_EQ(app_.WaitForExit(), 0U);
}

TEST_F(Start, ExitEndsTheProgramWithZero) {
  app_.main().PostCommand(203);
  EXPECT_EQ(app_.WaitForExit(), 0U);
}

TEST_F(Start, TheAboutBoxShowsTheVersionAndGoesOnOkAndOnEscape) {
  for (const int button : {IDOK, IDCANCEL}) {
    app_.main().PostCommand(250);
    const Window box = app_.WaitForPopup();
    ASSERT_NE(box.handle(), nullptr);
    EXPECT_EQ(box.Caption(), "Velnor calorie counter");
    EXPECT_EQ(GetWindow(box.handle(), GW_OWNER), app_.main().handle());
    std::string texts;
    for (const HWND control : box.Controls()) texts += Window(control).Caption() + '|';
    EXPECT_NE(texts.find("About Velnor cc|"), std::string::npos) << texts;
    EXPECT_NE(texts.find("Core version 2.6.4 XE\n\n"), std::string::npos) << texts;
    EXPECT_EQ(box.Text(IDOK), "OK");
    box.PostCommand(button);
    EXPECT_TRUE(WaitUntilGone(box.handle()));
  }
}

TEST_F(Start, TheHeaderIsDrawnOverTheBackground) {
  // The display is black until the window is drawn.
  EXPECT_TRUE(WaitUntil([this] { return PixelAt(app_.main(), 400, 300) != RGB(0, 0, 0); }));
  EXPECT_TRUE(WaitUntil([this] { return PixelAt(app_.main(), 4, 20) == RGB(0, 0, 0); }));
  EXPECT_EQ(PixelAt(app_.main(), 789, 20), RGB(0, 0, 0));  // its last point is not drawn
  EXPECT_NE(PixelAt(app_.main(), 790, 20), RGB(0, 0, 0));
  EXPECT_NE(PixelAt(app_.main(), 400, 300), RGB(0, 0, 0));
}

TEST_F(Start, NothingOfTheClientAreaIsLeftUnpainted) {
  app_.Settle();
  RECT client = {};
  GetClientRect(app_.main().handle(), &client);
  // Below the picture the window has its own colour.
  const COLORREF surface = RGB(179, 179, 179);
  EXPECT_TRUE(WaitUntil([&] {
    return PixelAt(app_.main(), client.right - 1, client.bottom - 1) == surface &&
           PixelAt(app_.main(), 0, client.bottom - 1) == surface;
  }));
}

TEST_F(Start, ARepaintKeepsTheScreen) {
  app_.main().Command(231);
  app_.Settle();
  InvalidateRect(app_.main().handle(), nullptr, TRUE);
  app_.Settle();
  EXPECT_TRUE(app_.main().IsShown(124));
  EXPECT_FALSE(app_.main().IsShown(101));
}

}  // namespace
}  // namespace velnor::desktop

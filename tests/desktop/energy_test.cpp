// The energy balance of a day, from a typed basal metabolic rate to its two arrows.

#include <gtest/gtest.h>
#include <string>

#include "tests/desktop/driver.h"

namespace velnor::desktop {
namespace {

constexpr int kOpenEnergy = 239;
constexpr int kBmr = 181;
constexpr int kCount = 182;
constexpr COLORREF kWhite = RGB(255, 255, 255);

class Energy : public testing::Test {
 protected:
  Energy() {
    CreateDirectoryA((folder_.path() + "Zoe").c_str(), nullptr);
    folder_.Write("users.ASC", "Zoe");
    folder_.Write("Zoe\\info.ASC", "35\r\n170\r\nwomen\r\nlow\r\nnone");
    app_.main().Command(200);
    const Window login = app_.WaitForPopup();
    EXPECT_TRUE(login.Choose(700, "Zoe"));
    login.PostCommand(IDOK);
    EXPECT_TRUE(WaitUntilGone(login.handle()));
    folder_.Write("Zoe\\erg.txt", Today() + ";300;");
    folder_.Write("Zoe\\bilans.ASC", Today() + "\r\n2000.\r\n60.\r\n70.\r\n250.");
    app_.main().Command(kOpenEnergy);
    app_.Settle();
  }
  bool WaitForWhite(int x, int y) const {
    return WaitUntil([&] { return PixelAt(app_.main(), x, y) == kWhite; });
  }

  WorkFolder folder_;
  App app_{folder_};
};

// 1500 kcal and a tenth of it for digestion, 300 burned, 2000 eaten: given out are 1950.
TEST_F(Energy, ATypedRateMovesTheArrows) {
  app_.main().SetText(kBmr, "1500");
  app_.main().Command(kCount);
  app_.Settle();
  EXPECT_EQ(app_.main().Text(kBmr), "1500.");
  EXPECT_TRUE(WaitForWhite(245, 280)) << "the shaft of what is given out";
  EXPECT_TRUE(WaitForWhite(250, 380)) << "the shaft of what was eaten";
  EXPECT_NE(PixelAt(app_.main(), 80, 280), kWhite) << "the place before the count";
  app_.main().SetText(kBmr, "6500");
  app_.main().Command(kCount);
  app_.Settle();
  EXPECT_TRUE(WaitUntil([&] { return PixelAt(app_.main(), 250, 380) != kWhite; }))
      << "out of scale, and both arrows gone";
  EXPECT_EQ(folder_.Read("Zoe\\erg.txt"), Today() + ";300;") << "looking changes nothing";
}

TEST_F(Energy, WithoutARateThereIsABox) {
  app_.main().SetText(kBmr, "much");
  app_.main().PostCommand(kCount);
  const MessageBoxSeen box = app_.WaitForMessageBox();
  EXPECT_EQ(box.caption, "Velnor calorie counter");
  EXPECT_EQ(box.text,
            "Put the value of Your BMR factor!\nIf You don`t know it use our built-in calculator.");
  Answer(box, IDOK);
  EXPECT_TRUE(WaitForWhite(80, 280)) << "300 kcal burned, and no rate";
}

}  // namespace
}  // namespace velnor::desktop

// SCRATCH
#include <gtest/gtest.h>
#include <string>
#include "tests/desktop/driver.h"
#include "tests/desktop/open_menu.h"
namespace velnor::desktop {
namespace {
TEST(Scratch, Pictures) {
  WorkFolder folder;
  App app{folder};
  const std::string out = "Z:\\work\\wt\\k24\\build\\pics\\";
  ClickAt({700, 300});
  app.Settle();
  RightClickAt({400, 300});
  Sleep(1500);
  app.main().SavePicture(out + "context.bmp");
  PressKey(VK_ESCAPE);
  Sleep(300);
  int n = 0;
  for (int screen : {231, 236, 238, 210, 232}) {
    app.main().Command(screen);
    app.Settle();
    for (int i = 0; i < 6; ++i) {
      PressKey(VK_TAB);
      Sleep(300);
      std::printf("%d: %d\n", screen, app.main().FocusedId());
      app.main().SavePicture(out + std::to_string(n++) + ".bmp");
    }
  }
}
}
}

// The program started over a products file that nobody should have.

#include <gtest/gtest.h>
#include <string>

#include "tests/desktop/driver.h"

namespace velnor::desktop {
namespace {

using namespace std::string_literals;

std::string Junk() {
  std::string junk = "fruits;fresh;aa first;100;11;1;1;1;\r\n"s + std::string(10'000, 'j') + "\n" +
                     std::string(500, '\0') + "\r\n" + "fruits;fresh;ab\0cd;100;1;1;1;1;\n"s +
                     "fruits;fresh;ac massless;0;100;0;4;x;\n";
  for (int line = 0; line < 5000; ++line) {
    junk += "fruits;dried;many " + std::to_string(line) + ";100;1;1;1;1;" +
            (line % 2 == 0 ? "\n" : "\r\n");
  }
  return junk + "fruits;fresh;last;100;1;1;1;1;";
}

TEST(HostileProducts, JunkCostsNothing) {
  const WorkFolder folder;
  folder.Write("data.txt", Junk());
  const App app(folder);
  ASSERT_NE(app.main().handle(), nullptr);
  const Window& window = app.main();
  window.Command(231);
  app.Settle();
  ASSERT_TRUE(window.Choose(124, "fruits"));
  ASSERT_TRUE(window.Choose(125, "fresh"));
  ASSERT_TRUE(window.Choose(126, "aa first"));
  EXPECT_EQ(window.Text(129), "11");
  ASSERT_TRUE(window.Choose(126, "ac massless"));
  window.SetText(128, "10");
  EXPECT_EQ(window.Text(129), "inf");
  EXPECT_EQ(window.Text(130), "nan");
  window.SetText(128, "abc");
  EXPECT_EQ(window.Text(129), "nan");
  window.Command(126, LBN_SELCHANGE);
  SendMessageA(window.Control(126), LB_SETCURSEL, static_cast<WPARAM>(-1), 0);
  window.Command(126, LBN_SELCHANGE);  // nothing selected: the previous values stay
  EXPECT_EQ(window.Text(129), "100");
  EXPECT_TRUE(app.IsRunning());
  EXPECT_EQ(folder.Read("data.txt"), Junk());
}

TEST(HostileProducts, AFolderInThePlaceOfTheFileIsNoFile) {
  const WorkFolder folder;
  CreateDirectoryA((folder.path() + "data.txt").c_str(), nullptr);
  {
    const App app(folder);
    EXPECT_NE(app.main().handle(), nullptr);
    EXPECT_TRUE(app.IsRunning());
  }
  RemoveDirectoryA((folder.path() + "data.txt").c_str());
}

}  // namespace
}  // namespace velnor::desktop

// A table of another program becomes products of one's own, from the menu to the lists.

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/desktop/driver.h"

namespace velnor::desktop {
namespace {

using Texts = std::vector<std::string>;

constexpr WPARAM kImportItem = 0x140;

TEST(ImportProducts, ATableIsInTheListsAtOnce) {
  const WorkFolder folder;
  folder.Write("table.csv",
               "Food;Energy [kcal];Protein;Fat;Carbohydrates;Main;Sub\n"
               "\xC5\xBBurawina;46;0,4;0,1;12,2;fruits;fresh\n"
               "Crab apples;76;0,4;0,3;20;;\n"
               "pea;1;1;1;1;;\n");
  const App app(folder);
  SendMessageA(app.main().handle(), WM_SYSCOMMAND, kImportItem, 0);
  const Window dialog = app.WaitForPopup();
  ASSERT_NE(dialog.handle(), nullptr);
  EXPECT_EQ(dialog.Caption(), "Velnor calorie counter");
  EXPECT_EQ(dialog.Selected(803), "other");
  EXPECT_EQ(dialog.Selected(804), "no category");
  ASSERT_TRUE(dialog.Choose(803, "fruits"));
  EXPECT_EQ(dialog.Selected(804), "frozen");
  ASSERT_TRUE(dialog.Choose(804, "fresh"));
  dialog.SetText(801, "table.csv");
  dialog.PostCommand(IDOK);
  const MessageBoxSeen box = app.WaitForMessageBox(dialog);
  EXPECT_EQ(box.text, "2 products were added, 1 left out: line 4: no name of four letters.");
  Answer(box, IDOK);
  EXPECT_EQ(folder.Read("data.txt"),
            "fruits;fresh;\xBFurawina;100;46;0.4;0.1;12.2;\r\n"
            "fruits;fresh;crab apples;100;76;0.4;0.3;20;\r\n");
  dialog.Command(IDCANCEL);
  EXPECT_TRUE(WaitUntilGone(dialog.handle()));
  app.main().Command(231);
  app.Settle();
  ASSERT_TRUE(app.main().Choose(124, "fruits"));
  ASSERT_TRUE(app.main().Choose(125, "fresh"));
  const Texts listed = app.main().Items(126);
  EXPECT_EQ(std::ranges::count(listed, "crab apples"), 1);
  // Its first letter is as this machine's own code page has it.
  const auto is_cranberry = [](const std::string& item) { return item.ends_with("urawina"); };
  EXPECT_EQ(std::ranges::count_if(listed, is_cranberry), 1);
}

TEST(ImportProducts, TheDialogThatChoosesAFileOpensAndChangesNothing) {
  const WorkFolder folder;
  const App app(folder);
  SendMessageA(app.main().handle(), WM_SYSCOMMAND, kImportItem, 0);
  const Window dialog = app.WaitForPopup();
  ASSERT_NE(dialog.handle(), nullptr);
  dialog.SetText(801, "as typed");
  dialog.PostCommand(802);
  const Window picker = app.WaitForPopup(dialog);
  ASSERT_NE(picker.handle(), nullptr);
  EXPECT_FALSE(IsWindowEnabled(app.main().handle()));  // it cannot be left behind its back
  PostMessageA(picker.handle(), WM_COMMAND, IDCANCEL, 0);
  EXPECT_TRUE(WaitUntilGone(picker.handle()));
  app.Settle();
  EXPECT_TRUE(IsWindowEnabled(app.main().handle()));
  EXPECT_EQ(dialog.Text(801), "as typed");
  EXPECT_TRUE(folder.Names().empty());
}

}  // namespace
}  // namespace velnor::desktop

// Copies in the real program: made, found again and brought back.

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/desktop/driver.h"
#include "tests/desktop/keyboard_fixture.h"

namespace velnor::desktop {
namespace {

using Texts = std::vector<std::string>;

constexpr WPARAM kBackUpItem = 0x120;
constexpr WPARAM kRestoreItem = 0x130;
constexpr int kOpenCounter = 231;
constexpr int kOpenBalance = 233;
constexpr int kClearDay = 165;
constexpr const char* kProfile = "35\r\n170\r\nwomen\r\nlow\r\nnone";

Window OpenOwn(const App& app, WPARAM item) {
  SendMessageA(app.main().handle(), WM_SYSCOMMAND, item, 0);
  return app.WaitForPopup();
}

void LogIn(const App& app) {
  app.main().PostCommand(200);
  const Window login = app.WaitForPopup();
  ASSERT_TRUE(login.Choose(700, "Ann"));
  login.Command(IDOK);
  EXPECT_TRUE(WaitUntilGone(login.handle()));
}

void AddFood(const App& app) {
  app.main().Command(kOpenCounter);
  app.Settle();
  ASSERT_TRUE(app.main().Choose(124, "fruits"));
  ASSERT_TRUE(app.main().Choose(125, "frozen"));
  ASSERT_TRUE(app.main().Choose(126, "frozen strawberries"));
  app.main().SetText(128, "150");
  app.main().Command(127);
  app.Settle();
}

class Copies : public testing::Test {
 protected:
  Copies() {
    folder_.Write("users.ASC", "Ann");
    CreateDirectoryA((folder_.path() + "Ann").c_str(), nullptr);
    folder_.Write("Ann/info.ASC", kProfile);
  }

  // The only copy in the folder whose name is longer than that of a day.
  std::string PressCopy() const {
    for (const std::string& name : folder_.Names("kopie zapasowe")) {
      if (name.size() > std::string("2026-11-21").size()) return name;
    }
    return "";
  }

  const WorkFolder folder_;
};

TEST_F(Copies, ADayClearedByMistakeIsBroughtBack) {
  const App app(folder_);
  LogIn(app);
  AddFood(app);
  const auto balance = folder_.Read("Ann/bilans.ASC");
  const auto history = folder_.Read("Ann/dziennik.csv");
  const auto series = folder_.Read("Ann/wykoda.txt");
  app.main().Command(kOpenBalance);
  app.Settle();
  app.main().Command(kClearDay);
  app.Settle();
  ASSERT_NE(folder_.Read("Ann/bilans.ASC"), balance);

  const Window dialog = OpenOwn(app, kRestoreItem);
  ASSERT_NE(dialog.handle(), nullptr);
  const Texts listed = dialog.Items(811);
  ASSERT_EQ(listed.size(), 2U);
  EXPECT_TRUE(listed[0].ends_with("before: Clear (daily balance)")) << listed[0];
  ASSERT_TRUE(dialog.Choose(811, listed[0]));
  EXPECT_TRUE(dialog.Text(801).ends_with("kopie zapasowe\\" + PressCopy())) << dialog.Text(801);
  dialog.PostCommand(IDOK);
  const MessageBoxSeen question = app.WaitForMessageBox(dialog);
  EXPECT_TRUE(question.text.starts_with("The files of Ann\nare replaced")) << question.text;
  Answer(question, IDYES);
  const MessageBoxSeen done = app.WaitForMessageBox(dialog);
  EXPECT_EQ(done.text, "The copy is restored. Please log in.");
  Answer(done, IDOK);
  EXPECT_TRUE(WaitUntilGone(dialog.handle()));

  EXPECT_EQ(folder_.Read("Ann/bilans.ASC"), balance);
  EXPECT_EQ(folder_.Read("Ann/dziennik.csv"), history);
  EXPECT_EQ(folder_.Read("Ann/wykoda.txt"), series);
  EXPECT_FALSE(app.MenuStates().at(kOpenBalance));  // nobody is logged in any more
  LogIn(app);
  EXPECT_EQ(folder_.Read("Ann/bilans.ASC"), balance);
}

TEST_F(Copies, BackUpMakesAFolderThatIsACopy) {
  const App app(folder_);
  LogIn(app);
  const WorkFolder disk;
  const Window dialog = OpenOwn(app, kBackUpItem);
  ASSERT_NE(dialog.handle(), nullptr);
  EXPECT_EQ(dialog.Caption(), "Velnor calorie counter");
  dialog.SetText(801, disk.path());
  dialog.PostCommand(IDOK);
  const MessageBoxSeen box = app.WaitForMessageBox(dialog);
  EXPECT_NE(box.text.find(" files were copied and read back. The copy is in\n"), std::string::npos)
      << box.text;
  Answer(box, IDOK);
  EXPECT_TRUE(WaitUntilGone(dialog.handle()));
  const Texts made = disk.Names();
  ASSERT_EQ(made.size(), 1U);
  EXPECT_TRUE(made[0].starts_with("Velnor 20")) << made[0];
  EXPECT_EQ(disk.Read(made[0] + "/users.ASC"), "Ann");
  for (const std::string& name : folder_.Names("Ann")) {
    const auto copied = disk.Read(made[0] + "/Ann/" + name);
    EXPECT_EQ(copied, folder_.Read("Ann/" + name)) << name;
  }
}

TEST_F(Copies, TheFolderPickerOpensAndChangesNothing) {
  const App app(folder_);
  const Window dialog = OpenOwn(app, kBackUpItem);
  ASSERT_NE(dialog.handle(), nullptr);
  dialog.SetText(801, "as typed");
  dialog.PostCommand(802);
  const Window picker = app.WaitForPopup(dialog);
  ASSERT_NE(picker.handle(), nullptr);
  EXPECT_FALSE(IsWindowEnabled(app.main().handle()));
  PostMessageA(picker.handle(), WM_COMMAND, IDCANCEL, 0);
  EXPECT_TRUE(WaitUntilGone(picker.handle()));
  app.Settle();
  EXPECT_TRUE(IsWindowEnabled(app.main().handle()));
  EXPECT_EQ(dialog.Text(801), "as typed");
}

TEST_F(KeyboardOfAnn, EverythingIsCopiedAndBroughtBackWithoutTheMouse) {
  ChooseFromContextMenu(kBackUpItem);
  const Window back_up = Popup();
  EXPECT_EQ(back_up.FocusedId(), 801);
  EXPECT_TRUE(TypeInto(back_up, 801, "."));  // the start-up folder
  PressKey(VK_RETURN);
  EXPECT_NE(AnswerBox(back_up).find(" files were copied and read back."), std::string::npos);
  ASSERT_TRUE(IsClosed(back_up));

  ChooseFromContextMenu(kRestoreItem);
  const Window restore = Popup();
  EXPECT_EQ(restore.FocusedId(), 811);
  PressKey(VK_DOWN);
  EXPECT_TRUE(
      WaitUntil([&] { return restore.Text(801).find("kopie zapasowe") != std::string::npos; }));
  EXPECT_TRUE(TabTo(restore, 801));
  EXPECT_TRUE(TabTo(restore, 802));
  EXPECT_TRUE(TabTo(restore, IDOK));
  PressKey(VK_SPACE);
  const MessageBoxSeen question = app_.WaitForMessageBox(restore);
  EXPECT_NE(question.text.find("are replaced by those of the copy"), std::string::npos);
  EXPECT_TRUE(ComesToTheFront(Window(question.handle)));
  PressKey(VK_RETURN);
  EXPECT_TRUE(WaitUntilGone(question.handle));
  EXPECT_EQ(AnswerBox(restore), "The copy is restored. Please log in.");
  ASSERT_TRUE(IsClosed(restore));

  ChooseFromContextMenu(kRestoreItem);
  const Window again = Popup();
  ASSERT_TRUE(Closes(again, VK_ESCAPE));
}

}  // namespace
}  // namespace velnor::desktop

// What all dialogs and edits have in common: the icon in the caption, how much can be pasted, the
// key Enter, and that a dialog ends with the session of its user.

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/desktop/driver.h"

namespace velnor::desktop {
namespace {

using Texts = std::vector<std::string>;

constexpr int kOpenLogin = 200;
constexpr int kLogOut = 201;
constexpr int kOpenUsers = 202;
constexpr int kOpenProfile = 204;
constexpr int kMessageText = 0xFFFF;  // of a message box

const std::string kProfile = "35\r\n170\r\nwomen\r\nlow\r\nnone";

class Dialogs : public testing::Test {
 protected:
  Dialogs() {
    folder_.Write("users.ASC", "Ann");
    CreateDirectoryA((folder_.path() + "Ann").c_str(), nullptr);
    folder_.Write("Ann\\info.ASC", kProfile);
  }

  static Window Open(const App& app, int command, const Window& known = Window(nullptr)) {
    app.main().Command(command);
    return app.WaitForPopup(known);
  }
  static void Close(const Window& dialog, int button) {
    dialog.PostCommand(button);
    EXPECT_TRUE(WaitUntilGone(dialog.handle()));
  }
  static void LogIn(const App& app) {
    const Window login = Open(app, kOpenLogin);
    ASSERT_TRUE(login.Choose(700, "Ann"));
    Close(login, IDOK);
  }

  WorkFolder folder_;
};

void ExpectProgramIcon(const App& app, HWND window, const std::string& what) {
  const App::Icons icons = app.IconsOf(window);
  EXPECT_NE(icons.of_program, 0U);
  EXPECT_EQ(icons.small_one, icons.of_program) << what;
  EXPECT_EQ(icons.big_one, icons.of_program) << what;
}

TEST_F(Dialogs, AllCarryTheIconOfTheProgram) {
  const App app(folder_);
  LogIn(app);
  for (const int command : {kOpenUsers, kOpenProfile, 240, 241, 149, 103, 107, 145, 147, 162}) {
    const Window dialog = Open(app, command);
    ExpectProgramIcon(app, dialog.handle(), std::to_string(command));
    Close(dialog, IDCANCEL);
  }
  app.main().PostCommand(250);
  const Window about = app.WaitForPopup();
  ExpectProgramIcon(app, about.handle(), "about");
  Close(about, IDOK);
  app.main().PostCommand(220);  // with an owner
  MessageBoxSeen box = app.WaitForMessageBox();
  ExpectProgramIcon(app, box.handle, box.text);
  Answer(box, IDOK);
  const Window users = Open(app, kOpenUsers);
  users.PostCommand(702);  // without one
  box = app.WaitForMessageBox(users);
  ExpectProgramIcon(app, box.handle, box.text);
  Answer(box, IDOK);
}

// What the field holds when the text has come in place of the one it held, as typing and pasting
// make it come; "(hangs)" when the program does not come to an end with it. The clipboard is left
// alone: all programs of the display share it.
std::string Paste(const Window& window, int id, const std::string& text) {
  constexpr UINT kPatience = 20'000;  // milliseconds
  const HWND edit = window.Control(id);
  SendMessageA(edit, EM_SETSEL, 0, -1);
  DWORD_PTR result = 0;
  const bool ends =
      SendMessageTimeoutA(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()),
                          SMTO_NORMAL, kPatience, &result) != 0;
  return ends ? window.Text(id) : "(hangs)";
}

// A field of the main window takes no more than fits its width, either.
TEST_F(Dialogs, AMegabyteIsPastedAtOnceAndLeavesWhatCountsOfIt) {
  const App app(folder_);
  LogIn(app);
  const std::string much(1'000'000, '1');
  for (const int id : {101, 104, 105, 111, 128, 160, 166, 173, 181}) {
    const std::string pasted = Paste(app.main(), id, much);
    EXPECT_TRUE(!pasted.empty() && pasted.find_first_not_of('1') == std::string::npos)
        << id << ' ' << pasted;
    EXPECT_LE(pasted.size(), static_cast<std::size_t>(
                                 SendMessageA(app.main().Control(id), EM_GETLIMITTEXT, 0, 0)));
  }
  EXPECT_EQ(Paste(app.main(), 111, much), "1111");
  EXPECT_EQ(SendMessageA(app.main().Control(128), EM_GETLIMITTEXT, 0, 0), 30);

  struct {
    int command, id;
    std::size_t limit;
  } const fields[] = {{kOpenUsers, 701, 127},  {240, 734, 59}, {240, 738, 29},  {149, 728, 148},
                      {kOpenProfile, 704, 98}, {103, 710, 49}, {103, 716, 127}, {107, 716, 99},
                      {145, 723, 99},          {147, 724, 99}, {147, 725, 499}, {162, 745, 26}};
  for (const auto& [command, id, limit] : fields) {
    const Window dialog = Open(app, command);
    EXPECT_EQ(Paste(dialog, id, much).size(), limit) << command << ' ' << id;
    Close(dialog, IDCANCEL);
  }
}

TEST_F(Dialogs, WhatIsSetFromOutsideIsNotCut) {
  const App app(folder_);
  app.main().SetText(111, "12345");
  EXPECT_EQ(app.main().Text(111), "12345");
}

TEST_F(Dialogs, EnterInTheNameAddsTheUser) {
  const App app(folder_);
  const Window dialog = Open(app, kOpenUsers);
  // The window manager hands the keyboard on in its own time; what is typed meanwhile is lost.
  int looks = 0;
  EXPECT_TRUE(WaitUntil([&] {
    looks = GetForegroundWindow() == dialog.handle() && dialog.FocusedId() == 701 ? looks + 1 : 0;
    return looks >= 20;
  }));
  TypeKeys("zoe");
  EXPECT_TRUE(WaitUntil([&] { return dialog.Text(701) == "zoe"; }));
  PressKey(VK_RETURN);
  EXPECT_TRUE(WaitUntil([&] { return dialog.Items(700) == Texts({"Ann", "zoe"}); }));
  EXPECT_EQ(dialog.Text(701), "");
  EXPECT_EQ(folder_.Read("users.ASC"), "Ann");
  ClickOn(dialog.Control(700));  // fills the name with that of the first entry or leaves it empty
  EXPECT_TRUE(WaitUntil([&] { return dialog.FocusedId() == 700; }));
  ASSERT_TRUE(dialog.Choose(700, "Ann"));
  EXPECT_EQ(dialog.Text(701), "Ann");
  PressKey(VK_RETURN);
  EXPECT_TRUE(WaitUntilGone(dialog.handle()));
  EXPECT_EQ(folder_.Read("users.ASC"), "Ann\r\nzoe");
  EXPECT_EQ(folder_.Read("Ann\\info.ASC"), kProfile);
}

TEST_F(Dialogs, ANameThatDiffersInCaseAloneIsRefused) {
  const App app(folder_);
  const Window dialog = Open(app, kOpenUsers);
  dialog.SetText(701, "ANN");
  dialog.PostCommand(702);
  MessageBoxSeen box = app.WaitForMessageBox(dialog);
  EXPECT_EQ(box.caption, "ERROR!");
  EXPECT_EQ(box.text, "The name differs only in small and capital\nletters from Ann");
  Answer(box, IDOK);
  CreateDirectoryA((folder_.path() + "Zoe").c_str(), nullptr);
  dialog.SetText(701, "zoe");
  dialog.PostCommand(702);
  box = app.WaitForMessageBox(dialog);
  EXPECT_EQ(box.text, "The name differs only in small and capital\nletters from Zoe");
  Answer(box, IDOK);
  EXPECT_EQ(dialog.Items(700), (Texts{"Ann"}));
  EXPECT_EQ(folder_.Read("Ann\\info.ASC"), kProfile);
}

// The box that says goodbye, whatever else is open.
HWND WaitForGoodbye() {
  HWND box = nullptr;
  WaitUntil([&box] {
    for (HWND window = nullptr;
         (window = FindWindowExA(nullptr, window, "#32770", nullptr)) != nullptr;) {
      if (Window(window).Text(kMessageText) == "BYE, SEE YOU SOON!") box = window;
    }
    return box != nullptr;
  });
  return box;
}

TEST_F(Dialogs, ALogoutClosesThoseOfTheUser) {
  const App app(folder_);
  LogIn(app);
  const Window users = Open(app, kOpenUsers);
  const Window profile = Open(app, kOpenProfile, users);
  app.main().PostCommand(kLogOut);
  Answer({WaitForGoodbye(), {}, {}}, IDOK);
  EXPECT_TRUE(WaitUntilGone(profile.handle()));
  EXPECT_TRUE(IsWindow(users.handle()));
  EXPECT_EQ(folder_.Read("Ann\\info.ASC"), kProfile);
}

// The box of the contradiction has the profile as its owner: the menu can be used behind it, and
// the box goes with the dialog.
TEST_F(Dialogs, ALogoutClosesAProfileThatAsksSomething) {
  const App app(folder_);
  LogIn(app);
  const Window profile = Open(app, kOpenProfile);
  profile.SetText(704, "99");
  ASSERT_TRUE(profile.Choose(706, "men"));
  ASSERT_TRUE(profile.Choose(708, "pregnant"));
  profile.PostCommand(IDOK);
  const MessageBoxSeen asked = app.WaitForMessageBox(profile);
  app.main().PostCommand(kLogOut);
  Answer({WaitForGoodbye(), {}, {}}, IDOK);
  EXPECT_TRUE(WaitUntilGone(profile.handle()));
  EXPECT_TRUE(WaitUntilGone(asked.handle));
  app.Settle();
  EXPECT_TRUE(app.IsRunning());
  EXPECT_EQ(folder_.Read("Ann\\info.ASC"), kProfile);
  EXPECT_EQ(folder_.Names(), (Texts{"Ann", "kopie zapasowe", "users.ASC"}));
  LogIn(app);
  app.main().Command(232);
  app.Settle();
  EXPECT_EQ(app.main().Text(120), "2100-2300");
}

}  // namespace
}  // namespace velnor::desktop

// Two people and their settings, from registering to the next start of the program.

#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "tests/desktop/driver.h"

namespace velnor::desktop {
namespace {

using Texts = std::vector<std::string>;

constexpr int kOpenUsers = 202;
constexpr int kOpenLogin = 200;
constexpr int kOpenProfile = 204;
constexpr int kLogout = 201;

class People : public testing::Test {
 protected:
  static Window OpenDialog(const App& app, int command) {
    app.main().Command(command);
    return app.WaitForPopup();
  }
  static void Close(const Window& dialog, int button) {
    dialog.PostCommand(button);
    EXPECT_TRUE(WaitUntilGone(dialog.handle()));
  }
  // Presses a button and answers the one box that it shows; its text.
  static std::string PressAndAnswer(const App& app, const Window& dialog, int button, int answer) {
    dialog.PostCommand(button);
    const MessageBoxSeen box = app.WaitForMessageBox(dialog);
    Answer(box, answer);
    return box.text;
  }
  static void LogIn(const App& app, const std::string& name) {
    const Window dialog = OpenDialog(app, kOpenLogin);
    ASSERT_TRUE(dialog.Choose(700, name));
    Close(dialog, IDOK);
  }
  static void LogOut(const App& app) {
    app.main().PostCommand(kLogout);
    const MessageBoxSeen box = app.WaitForMessageBox();
    EXPECT_EQ(box.text, "BYE, SEE YOU SOON!");
    Answer(box, IDOK);
  }
  static std::set<int> Greyed(const App& app) {
    std::set<int> greyed;
    for (const auto& [command, enabled] : app.MenuStates()) {
      if (!enabled) greyed.insert(command);
    }
    return greyed;
  }

  WorkFolder folder_;
};

const std::set<int> kNeedAUser = {201, 204, 210, 212, 213, 214, 215, 221, 224, 225,
                                  231, 232, 233, 238, 239, 270, 271, 272, 273, 274};

TEST_F(People, EverythingIsFoundAgainAfterARestart) {
  {
    const App app(folder_);
    Window dialog = OpenDialog(app, kOpenUsers);
    for (const char* const name : {"Zoe", "adam"}) {
      dialog.SetText(701, name);
      dialog.Command(702);
    }
    EXPECT_EQ(dialog.Items(700), (Texts{"adam", "Zoe"}));
    Close(dialog, IDOK);
    EXPECT_EQ(folder_.Read("users.ASC"), "adam\r\nZoe");
    EXPECT_EQ(folder_.Names("Zoe"), (Texts{"cwiczenia.ASC", "info.ASC", "mirvo.ASC", "waga.ASC",
                                           "whr.ASC", "wykoda.txt", "wykwag.txt", "zestaw.ASC"}));
    EXPECT_EQ(folder_.Names("adam").size(), 8U);

    dialog = OpenDialog(app, kOpenLogin);
    EXPECT_EQ(
        PressAndAnswer(app, dialog, IDOK, IDOK),
        "CAUTION!!\nThere`s no users\nIf You want to log in\nfirst have add at least 1 user.");
    ASSERT_TRUE(dialog.Choose(700, "Zoe"));
    EXPECT_EQ(PressAndAnswer(app, dialog, IDOK, IDOK), "CAUTION!!\nFill up Your profile!");
    EXPECT_TRUE(WaitUntilGone(dialog.handle()));
    EXPECT_EQ(Greyed(app), (std::set<int>{200}));
    EXPECT_EQ(folder_.Read("Zoe\\bilans.ASC"), Today());

    dialog = OpenDialog(app, kOpenProfile);
    dialog.SetText(704, "35");
    dialog.SetText(705, "170");
    ASSERT_TRUE(dialog.Choose(706, "women"));
    ASSERT_TRUE(dialog.Choose(707, "low"));
    ASSERT_TRUE(dialog.Choose(708, "none"));
    Close(dialog, IDOK);
    EXPECT_EQ(folder_.Read("Zoe\\info.ASC"), "35\r\n170\r\nwomen\r\nlow\r\nnone");

    app.main().Command(232);
    app.Settle();
    EXPECT_EQ(app.main().Text(120), "2100-2300");
    const Texts limits = {"2000", "2500", "60", "80", "50", "70", "200", "300"};
    for (std::size_t i = 0; i < limits.size(); ++i) {
      app.main().SetText(166 + static_cast<int>(i), limits[i]);
    }
    app.main().Command(174);
    EXPECT_EQ(folder_.Read("Zoe\\zapot.ASC"),
              "1\r\n2000\r\n2500\r\n60\r\n80\r\n50\r\n70\r\n200\r\n300\r\n");
    LogOut(app);
    EXPECT_EQ(Greyed(app), kNeedAUser);
  }
  const App app(folder_);
  LogIn(app, "Zoe");
  const Window profile = OpenDialog(app, kOpenProfile);
  EXPECT_EQ((Texts{profile.Text(704), profile.Text(705), *profile.Selected(706),
                   *profile.Selected(707), *profile.Selected(708)}),
            (Texts{"35", "170", "women", "low", "none"}));
  Close(profile, IDCANCEL);
  app.main().Command(232);
  app.Settle();
  EXPECT_EQ(app.main().Text(120), " unavailable");
  EXPECT_EQ(app.main().Text(166), "2000");
  EXPECT_EQ(app.main().Text(173), "300");
  EXPECT_EQ(folder_.Names(), (Texts{"Zoe", "adam", "kopie zapasowe", "users.ASC"}));
}

TEST_F(People, RemovingTheUserLeavesTheActivitiesEnabled) {
  const App app(folder_);
  Window dialog = OpenDialog(app, kOpenUsers);
  dialog.SetText(701, "Zoe");
  dialog.Command(702);
  Close(dialog, IDOK);
  folder_.Write("Zoe\\info.ASC", "35\r\n170\r\nwomen\r\nlow\r\nnone");
  LogIn(app, "Zoe");
  app.main().Command(231);
  app.Settle();
  dialog = OpenDialog(app, kOpenUsers);
  ASSERT_TRUE(dialog.Choose(700, "Zoe"));
  EXPECT_EQ(PressAndAnswer(app, dialog, 703, IDYES), "Delete user??");
  EXPECT_TRUE(WaitUntil([this] {
    return folder_.Names() == Texts{"kopie zapasowe", "users.ASC"};
  }));
  Close(dialog, IDOK);
  EXPECT_EQ(folder_.Read("users.ASC"), "");
  EXPECT_FALSE(app.main().IsShown(124));
  std::set<int> greyed = kNeedAUser;
  greyed.erase(238);
  EXPECT_EQ(Greyed(app), greyed);
}

TEST_F(People, ForbiddenSignsAreToldOneByOne) {
  const App app(folder_);
  const Window dialog = OpenDialog(app, kOpenUsers);
  dialog.SetText(701, "a.b-c");
  dialog.PostCommand(702);
  for (int i = 0; i < 2; ++i) {
    const MessageBoxSeen box = app.WaitForMessageBox(dialog);
    EXPECT_EQ(box.caption, "ERROR!");
    EXPECT_TRUE(box.text.starts_with("The name contain forbidden signs\n         space + -"));
    Answer(box, IDOK);
  }
  Close(dialog, IDCANCEL);
  EXPECT_TRUE(folder_.Names().empty());
}

TEST_F(People, AListOfJunkIsShownAsFarAsItIsSound) {
  std::string junk = "\r\n\nAnn\n..\\x\r\nC:\\y\r\n" + std::string(200, 'n') + "\r\nBob\r\n";
  while (junk.size() < 2000) junk += "user" + std::to_string(junk.size()) + "\r\n";
  folder_.Write("users.ASC", junk);
  const App app(folder_);
  const Window dialog = OpenDialog(app, kOpenLogin);
  const Texts names = dialog.Items(700);
  EXPECT_EQ(names.front(), "Ann");
  EXPECT_EQ(names[1], "Bob");
  EXPECT_GT(names.size(), 50U);
  for (const std::string& name : names) EXPECT_LT(name.size(), 100U);
  Close(dialog, IDCANCEL);
  EXPECT_EQ(folder_.Read("users.ASC"), junk);
  EXPECT_EQ(folder_.Names(), (Texts{"users.ASC"}));
}

TEST_F(People, JunkInProfileAndLimitsChangesNothing) {
  CreateDirectoryA((folder_.path() + "Ann").c_str(), nullptr);
  const std::string junk = std::string(3000, '\xFE') + "\n\r;\n" + std::string(500, '9');
  folder_.Write("users.ASC", "Ann");
  folder_.Write("Ann\\info.ASC", junk);
  folder_.Write("Ann\\zapot.ASC", junk);
  const App app(folder_);
  const Window dialog = OpenDialog(app, kOpenLogin);
  ASSERT_TRUE(dialog.Choose(700, "Ann"));
  EXPECT_EQ(PressAndAnswer(app, dialog, IDOK, IDOK), "CAUTION!!\nFill up Your profile!");
  EXPECT_TRUE(WaitUntilGone(dialog.handle()));
  app.main().Command(232);
  app.Settle();
  EXPECT_EQ(app.main().Text(120), " unavailable");
  Close(OpenDialog(app, kOpenProfile), IDCANCEL);
  EXPECT_EQ(folder_.Read("Ann\\info.ASC"), junk);
  EXPECT_EQ(folder_.Read("Ann\\zapot.ASC"), junk);
}

}  // namespace
}  // namespace velnor::desktop

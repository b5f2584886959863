// The items of our own in the title-bar menu and in the context menu of the screen.

#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "tests/desktop/open_menu.h"

namespace velnor::desktop {
namespace {

constexpr int kDiaryItem = 0x110;
constexpr int kBackUpItem = 0x120;
constexpr int kRestoreItem = 0x130;
constexpr int kImportItem = 0x140;
constexpr int kQuickAddItem = 0x150;

// What only the dialogs of these items have.
constexpr int kBrowse = 802;
constexpr int kMatches = 811;

struct ExpectedItem {
  int id;
  const char* text;
  bool needs_user;
};
// What both menus hold.
const std::vector<ExpectedItem> kExpected = {
    {kQuickAddItem, "Quick add...\tCtrl+K", true},
    {kDiaryItem, "Diary...\tCtrl+D", true},
    {kBackUpItem, "Back up...", false},
    {kRestoreItem, "Restore...", false},
    {kImportItem, "Import products...", false},
};

class OwnMenus : public testing::Test {
 protected:
  OwnMenus() {
    folder_.Write("users.ASC", "Ann\r\n");
    CreateDirectoryA((folder_.path() + "Ann").c_str(), nullptr);
    folder_.Write("Ann\\info.ASC", "35\r\n170\r\nwomen\r\nlow\r\nnone\r\n");
  }
  static std::vector<std::string> Expected(bool logged_in) {
    std::vector<std::string> lines;
    lines.reserve(kExpected.size());
    for (const ExpectedItem& item : kExpected) {
      lines.push_back(Line(item.id, item.text, logged_in || !item.needs_user));
    }
    return lines;
  }
  static std::string Line(int id, const std::string& text, bool enabled) {
    return std::to_string(id) + ' ' + text + (enabled ? "" : " (grey)");
  }
  // From the item `first` on.
  static std::vector<std::string> Lines(const std::vector<App::MenuItem>& items,
                                        std::size_t first = 0) {
    std::vector<std::string> lines;
    for (std::size_t i = first; i < items.size(); ++i) {
      lines.push_back(Line(items[i].id, items[i].text, items[i].enabled));
    }
    return lines;
  }
  static void LogIn(const App& app) {
    app.main().Command(200);
    const Window login = app.WaitForPopup();
    login.Choose(700, "Ann");
    login.Command(IDOK);
    WaitUntilGone(login.handle());
    app.Settle();
  }
  // What stands in the title-bar menu behind the last separator.
  static std::vector<std::string> TitleBarLines(const App& app) {
    const OpenMenu menu = OpenMenu::OfTitleBar(app);
    if (!menu.is_open()) return {"no menu"};
    const std::vector<App::MenuItem> items = menu.Items();
    menu.Close();
    std::size_t first = items.size();
    while (first > 0 && items[first - 1].id != 0) --first;
    return Lines(items, first);
  }
  static std::vector<std::string> ContextLines(const OpenMenu& menu) {
    if (!menu.is_open()) return {"no menu"};
    std::vector<std::string> lines = Lines(menu.Items());
    menu.Close();
    return lines;
  }

  WorkFolder folder_;
  App app_{folder_};
};

TEST_F(OwnMenus, HoldTheSameItemsGreyWithoutAUser) {
  EXPECT_EQ(TitleBarLines(app_), Expected(false));
  EXPECT_EQ(ContextLines(OpenMenu::AtPoint(app_, 300, 70)), Expected(false));
  LogIn(app_);
  EXPECT_EQ(TitleBarLines(app_), Expected(true));
  EXPECT_EQ(ContextLines(OpenMenu::AtPoint(app_, 300, 70)), Expected(true));
  EXPECT_EQ(ContextLines(OpenMenu::ByKeyboard(app_)), Expected(true));
}

TEST_F(OwnMenus, EachOpensWhatWasChosen) {
  LogIn(app_);
  for (const auto choose : {ChooseFromTitleBarMenu, ChooseFromContextMenu}) {
    for (const auto& [item, control] :
         {std::pair{kQuickAddItem, kMatches}, std::pair{kImportItem, kBrowse}}) {
      ASSERT_TRUE(choose(app_, item));
      const Window dialog = app_.WaitForPopup();
      EXPECT_NE(dialog.Control(control), nullptr);
      dialog.Command(IDCANCEL);
      ASSERT_TRUE(WaitUntilGone(dialog.handle()));
    }
  }
}

TEST_F(OwnMenus, GreyItemsCannotBeChosen) {
  EXPECT_FALSE(ChooseFromTitleBarMenu(app_, kQuickAddItem));
  EXPECT_FALSE(ChooseFromContextMenu(app_, kDiaryItem));
}

// An edit opens the platform's menu, a list none.
TEST_F(OwnMenus, EditsAndListsKeepWhatThePlatformDoes) {
  app_.main().Command(231);
  app_.Settle();
  const auto right_click_on = [this](int id) {
    RECT place = {};
    GetWindowRect(app_.main().Control(id), &place);
    RightClickAt({(place.left + place.right) / 2, (place.top + place.bottom) / 2});
  };
  right_click_on(128);
  ASSERT_TRUE(WaitUntil([this] { return MenuIsOpen(app_); }));
  PressKey(VK_ESCAPE);
  ASSERT_TRUE(WaitUntil([this] { return !MenuIsOpen(app_); }));
  right_click_on(126);
  right_click_on(124);
  app_.Settle();
  EXPECT_FALSE(MenuIsOpen(app_));
  // Beside them there is ours.
  const OpenMenu menu = OpenMenu::AtPoint(app_, 200, 70);
  EXPECT_EQ(ContextLines(menu), Expected(false));
}

}  // namespace
}  // namespace velnor::desktop

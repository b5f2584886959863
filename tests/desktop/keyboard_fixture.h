// The program without a mouse: choosing from the menu bar, going to a control and typing into it
// with real keys.

#ifndef VELNOR_TESTS_DESKTOP_KEYBOARD_FIXTURE_H_
#define VELNOR_TESTS_DESKTOP_KEYBOARD_FIXTURE_H_

#include <windows.h>

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "tests/desktop/driver.h"

namespace velnor::desktop {

// A place in the menu bar, counted from 0 without separators.
struct MenuPlace {
  int popup, item;
};
inline constexpr MenuPlace kLogin = {0, 0};
inline constexpr MenuPlace kLogout = {0, 1};
inline constexpr MenuPlace kProfile = {0, 2};
inline constexpr MenuPlace kUsers = {0, 3};
inline constexpr MenuPlace kExit = {0, 4};
inline constexpr MenuPlace kReports[] = {{1, 0}, {1, 1}, {1, 2}, {1, 3}, {1, 4}};
inline constexpr MenuPlace kCharts[] = {{2, 0}, {2, 1}, {2, 2}, {2, 3}, {2, 4}};
inline constexpr MenuPlace kBmi = {3, 0};
inline constexpr MenuPlace kWhr = {3, 1};
inline constexpr MenuPlace kBmr = {3, 2};
inline constexpr MenuPlace kCounter = {4, 0};
inline constexpr MenuPlace kRequirement = {4, 1};
inline constexpr MenuPlace kBalance = {4, 2};
inline constexpr MenuPlace kActivities = {4, 3};
inline constexpr MenuPlace kEnergy = {4, 4};
inline constexpr MenuPlace kAddProduct = {5, 0};
inline constexpr MenuPlace kRemoveProduct = {5, 1};
inline constexpr MenuPlace kAbout = {6, 0};
inline constexpr MenuPlace kExchanges = {6, 1};
inline constexpr int kOverviewCommand = 236;  // has no menu item

// The bytes of what the display shows of a part of the window.
std::vector<char> Look(const Window& window, RECT part);

class Keyboard : public testing::Test {
 protected:
  Keyboard() {
    EXPECT_TRUE(WaitUntil([this] { return GetForegroundWindow() == main().handle(); }));
  }

  const Window& main() const { return app_.main(); }
  void Settle() const { app_.Settle(); }

  void ChooseFromMenuBar(MenuPlace place) const {
    Settle();
    PressKey(VK_F10);
    for (int i = 0; i < place.popup; ++i) PressKey(VK_RIGHT);
    for (int i = 0; i <= place.item; ++i) PressKey(VK_DOWN);
    PressKey(VK_RETURN);
    Settle();
  }
  Window OpenDialog(MenuPlace place) const {
    ChooseFromMenuBar(place);
    return app_.WaitForPopup();
  }
  // Answers the box that is there or comes with Enter; its text.
  std::string AnswerBox(const Window& known = Window(nullptr)) const {
    const MessageBoxSeen box = app_.WaitForMessageBox(known);
    PressKey(VK_RETURN);
    WaitUntilGone(box.handle);
    return box.text;
  }
  static bool Closes(const Window& dialog, WORD key) {
    PressKey(key);
    return WaitUntilGone(dialog.handle());
  }

  static HWND Focused(const Window& window) {
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(window.handle(), nullptr), &info);
    return info.hwndFocus;
  }
  // Presses Tab until the control has the focus. Returns false when it never gets it.
  static bool TabTo(const Window& window, int id, KeyModifier modifier = KeyModifier::kNone) {
    const HWND wanted = window.Control(id);
    for (int presses = 0; presses < 30; ++presses) {
      const HWND before = Focused(window);
      if (before == wanted) return true;
      PressKey(VK_TAB, modifier);
      if (!WaitUntil([&] { return Focused(window) != before; })) return false;
    }
    return false;
  }
  // The same, and types; what the control holds then.
  std::string TypeInto(const Window& window, int id, std::string_view keys) const {
    if (!TabTo(window, id)) return "no focus";
    TypeKeys(keys);
    Settle();
    return window.Text(id);
  }
  void PressButton(const Window& window, int id, WORD key) const {
    ASSERT_TRUE(TabTo(window, id)) << id;
    PressKey(key);
  }
  // In a list or a combo box: down to the item.
  bool ArrowTo(const Window& window, int id, const std::string& item) const {
    if (!TabTo(window, id)) return false;
    for (std::size_t presses = 0; presses <= window.Items(id).size(); ++presses) {
      if (window.Selected(id) == item) return true;
      PressKey(VK_DOWN);
      Settle();
    }
    return window.Selected(id) == item;
  }

  WorkFolder folder_;
  const App app_{folder_};
};

// With somebody registered, who logs in.
class KeyboardOfAnn : public Keyboard {
 protected:
  KeyboardOfAnn() {
    CreateDirectoryA((folder_.path() + "ann").c_str(), nullptr);
    folder_.Write("users.ASC", "ann\r\n");
    folder_.Write("ann\\info.ASC", "35\r\n170\r\nwomen\r\nlow\r\nnone");
    const Window login = OpenDialog(kLogin);
    EXPECT_TRUE(ArrowTo(login, 700, "ann"));
    EXPECT_TRUE(Closes(login, VK_RETURN));
  }
  // As soon as the file has the text.
  bool FileHolds(const std::string& name, const std::string& text) const {
    return WaitUntil(
        [&] { return folder_.Read("ann\\" + name).value_or("").find(text) != std::string::npos; });
  }
};

}  // namespace velnor::desktop

#endif  // VELNOR_TESTS_DESKTOP_KEYBOARD_FIXTURE_H_

// The program without a mouse: choosing from the menu bar, going to a control and typing into it
// with real keys.

#ifndef VELNOR_TESTS_DESKTOP_KEYBOARD_FIXTURE_H_
#define VELNOR_TESTS_DESKTOP_KEYBOARD_FIXTURE_H_

#include <windows.h>

#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tests/desktop/driver.h"
#include "tests/desktop/open_menu.h"

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
inline constexpr MenuPlace kReportsMenu[] = {{1, 0}, {1, 1}, {1, 2}, {1, 3}, {1, 4}};
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
inline constexpr int kImport = 0x140;         // in the context menu

// The bytes of what the display shows of a part of the window.
std::vector<char> Look(const Window& window, RECT part);

class Keyboard : public testing::Test {
 protected:
  Keyboard() { EXPECT_TRUE(ComesToTheFront(main())); }

  const Window& main() const { return app_.main(); }
  void Settle() const { app_.Settle(); }

  void ChooseFromMenuBar(MenuPlace place) const {
    ChooseWhatShowsABox(place);
    Settle();
  }
  // Some screens show a box when they are painted. Settling paints: it would wait for the answer.
  void ChooseWhatShowsABox(MenuPlace place) const {
    Settle();
    PressKey(VK_F10);
    EXPECT_TRUE(WaitUntil([this] { return IsInMenuMode(app_); }));
    for (int i = 0; i < place.popup; ++i) PressKey(VK_RIGHT);
    for (int i = 0; i <= place.item; ++i) PressKey(VK_DOWN);
    PressKey(VK_RETURN);
    WaitUntil([this] { return !IsInMenuMode(app_); });
  }
  Window OpenDialog(MenuPlace place) const {
    ChooseFromMenuBar(place);
    return Popup();
  }
  // From the menu that the keyboard opens over the screen, by the place of the item in it.
  void ChooseFromContextMenu(int id) const {
    const OpenMenu menu = OpenMenu::ByKeyboard(app_);
    ASSERT_TRUE(menu.is_open());
    for (const App::MenuItem& item : menu.Items()) {
      if (item.id == 0) continue;  // the arrows pass over a separator
      PressKey(VK_DOWN);
      if (item.id == id) break;
    }
    PressKey(VK_RETURN);
    WaitUntil([this] { return !IsInMenuMode(app_); });
  }
  // The dialog that opens, once keys go to it.
  Window Popup() const {
    const Window popup = app_.WaitForPopup();
    ComesToTheFront(popup);
    return popup;
  }
  // Answers the box that is there or comes with Enter; its text.
  std::string AnswerBox(const Window& known = Window(nullptr)) const {
    const MessageBoxSeen box = app_.WaitForMessageBox(known);
    ComesToTheFront(Window(box.handle));
    PressKey(VK_RETURN);
    WaitUntilGone(box.handle);
    ComesToTheFront(known.handle() == nullptr ? main() : known);
    return box.text;
  }
  bool Closes(const Window& dialog, WORD key) const {
    PressKey(key);
    return IsClosed(dialog);
  }
  // Once keys go to the main window again.
  bool IsClosed(const Window& dialog) const {
    return WaitUntilGone(dialog.handle()) && ComesToTheFront(main());
  }
  static bool IsInFront(const Window& window) { return GetForegroundWindow() == window.handle(); }
  // Comes and stays: the window manager hands the keyboard on in its own time, and what is typed
  // while nobody has it is lost. A dialog that goes with its box is waited for no longer.
  static bool ComesToTheFront(const Window& window) {
    constexpr int kLooks = 20;
    int looks = 0;
    return WaitUntil([&] {
      looks = IsInFront(window) ? looks + 1 : 0;
      return looks >= kLooks || IsWindow(window.handle()) == 0;
    });
  }

  static HWND Focused(const Window& window) {
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(window.handle(), nullptr), &info);
    return info.hwndFocus;
  }
  // Whether it keeps the focus for a moment: a screen that is just being painted takes it from the
  // control of the one before, which looks like what a key has done.
  static bool KeepsFocus(const Window& window, HWND control) {
    constexpr int kLooks = 10;
    for (int i = 0; i < kLooks; ++i) {
      if (Focused(window) != control) return false;
      Sleep(10);
    }
    return true;
  }
  // Presses Tab until the control has the focus and keeps it. Returns false when it never does.
  static bool TabTo(const Window& window, int id, KeyModifier modifier = KeyModifier::kNone) {
    const HWND wanted = window.Control(id);
    for (int presses = 0; presses < 30; ++presses) {
      const HWND before = Focused(window);
      if (before == wanted) {
        if (KeepsFocus(window, wanted)) return true;
        continue;
      }
      PressKey(VK_TAB, modifier);
      if (!WaitUntil([&] { return Focused(window) != before; })) return false;
    }
    return false;
  }
  // The same, and types; whether the control holds `expected` soon. Keys take their time, so each
  // step waits for what the one before has done.
  static bool TypeInto(const Window& window, int id, std::string_view keys,
                       const std::string& expected) {
    if (!TabTo(window, id)) return false;
    TypeKeys(keys);
    return WaitUntil([&] { return window.Text(id) == expected; });
  }
  static bool TypeInto(const Window& window, int id, const std::string& keys) {
    return TypeInto(window, id, keys, keys);
  }
  static void PressButton(const Window& window, int id, WORD key) {
    ASSERT_TRUE(TabTo(window, id)) << id;
    PressKey(key);
  }
  // In a list or a combo box: down to the item.
  static bool ArrowTo(const Window& window, int id, const std::string& item) {
    if (!TabTo(window, id)) return false;
    for (std::size_t presses = 0; presses <= window.Items(id).size(); ++presses) {
      const std::optional<std::string> before = window.Selected(id);
      if (before == item) return true;
      PressKey(VK_DOWN);
      if (!WaitUntil([&] { return window.Selected(id) != before; })) return false;
    }
    return false;
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

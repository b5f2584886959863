// Thousands of random actions over all screens and dialogs: the program goes on, and it does not
// grow. VELNOR_SOAK sets their number.

#include <windows.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <psapi.h>
#include <random>
#include <string>
#include <vector>

#include "tests/desktop/driver.h"
#include "tests/support/history_sums.h"

namespace velnor::desktop {
namespace {

constexpr std::size_t kMostGrowth = 4 << 20;  // bytes
constexpr int kDefaultActions = 2000;
constexpr int kActionsADay = 40;
constexpr UINT kHangMilliseconds = 20'000;

// Every menu item but Exit and the help, which would start another program.
constexpr std::array kCommands = {200, 201, 202, 204, 210, 211, 212, 213, 214, 215,
                                  221, 224, 225, 231, 231, 231, 232, 233, 236, 238,
                                  239, 240, 241, 250, 252, 270, 271, 272, 273, 274};

const std::array<std::string, 14> kTexts = {"",
                                            "0",
                                            "1",
                                            "100",
                                            "72.5",
                                            "1,5",
                                            "-5",
                                            "1e30",
                                            "35",
                                            "Ann",
                                            "apple",
                                            "16.11.2026",
                                            std::string(300, '9'),
                                            "za\xBF\xF3\xB3\xE6 ;\\ %s"};

class Monkey {
 public:
  Monkey(const App& app, unsigned start) : app_(app), random_(start) {}

  // One action of a person on whatever is in front. False when the program no longer answers.
  bool Act() {
    const HWND popup = Popup();
    if (popup != nullptr) {
      ActOnDialog(popup);
    } else if (Chance(3)) {
      Post(app_.main().handle(), WM_COMMAND, Pick(kCommands), 0);
    } else {
      ActOnControl(app_.main().handle());
    }
    return Answers();
  }

  bool Answers() const {
    DWORD_PTR ignored = 0;
    return SendMessageTimeoutA(app_.main().handle(), WM_NULL, 0, 0, SMTO_NORMAL, kHangMilliseconds,
                               &ignored) != 0;
  }

  // Closes what is open, so that the program is as at rest.
  void CloseAll() {
    for (int tries = 0; tries < 50; ++tries) {
      const HWND popup = Popup();
      if (popup == nullptr) return;
      Post(popup, WM_COMMAND, GetDlgItem(popup, IDOK) != nullptr ? IDOK : IDNO, 0);
      Post(popup, WM_COMMAND, IDCANCEL, 0);
      Sleep(20);
    }
  }

 private:
  bool Chance(unsigned of) { return random_() % of == 0; }
  template <typename Range>
  typename Range::value_type Pick(const Range& range) {
    return range[random_() % range.size()];
  }
  static void Post(HWND window, UINT message, int low, LPARAM lparam, int high = 0) {
    PostMessageA(window, message,
                 static_cast<WPARAM>(MAKELONG(static_cast<WORD>(low), static_cast<WORD>(high))),
                 lparam);
  }

  // The newest dialog or message box of the program.
  HWND Popup() const {
    const HWND popup = GetLastActivePopup(app_.main().handle());
    if (popup != app_.main().handle() && IsWindowVisible(popup) != FALSE) return popup;
    DWORD process = 0;
    GetWindowThreadProcessId(app_.main().handle(), &process);
    HWND window = nullptr;
    while ((window = FindWindowExA(nullptr, window, "#32770", nullptr)) != nullptr) {
      DWORD owner = 0;
      GetWindowThreadProcessId(window, &owner);
      if (owner == process && IsWindowVisible(window) != FALSE) return window;
    }
    return nullptr;
  }

  void ActOnDialog(HWND dialog) {
    if (!Chance(4) && ActOnControl(dialog)) return;
    const std::array<int, 4> buttons = {IDOK, IDCANCEL, IDYES, IDNO};
    const int button = Pick(buttons);
    // A box has no button of that kind: a person takes another one.
    if (GetDlgItem(dialog, button) != nullptr) Post(dialog, WM_COMMAND, button, 0);
  }

  // Does something with a control that is shown; false when there is none.
  bool ActOnControl(HWND window) {
    std::vector<HWND> shown;
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
      if (IsWindowVisible(child) != FALSE && GetDlgCtrlID(child) > 2) shown.push_back(child);
    }
    if (shown.empty()) return false;
    const HWND control = Pick(shown);
    const int id = GetDlgCtrlID(control);
    std::array<char, 32> name = {};
    GetClassNameA(control, name.data(), static_cast<int>(name.size()));
    const std::string kind = name.data();
    const auto answer = [&](UINT message, WPARAM wparam = 0, LPARAM lparam = 0) {
      DWORD_PTR result = 0;
      SendMessageTimeoutA(control, message, wparam, lparam, SMTO_NORMAL, kHangMilliseconds,
                          &result);
      return static_cast<int>(result);
    };
    if (kind == "Edit") {
      const std::string& text = kTexts[random_() % kTexts.size()];
      answer(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
    } else if (kind == "ListBox" || kind == "ComboBox") {
      const bool list = kind == "ListBox";
      const int count = answer(list ? static_cast<UINT>(LB_GETCOUNT) : CB_GETCOUNT);
      if (count > 0) {
        answer(list ? static_cast<UINT>(LB_SETCURSEL) : CB_SETCURSEL,
               random_() % static_cast<unsigned>(count));
        Post(window, WM_COMMAND, id, reinterpret_cast<LPARAM>(control), LBN_SELCHANGE);
      }
    } else if (kind == "Button") {
      Post(window, WM_COMMAND, id, reinterpret_cast<LPARAM>(control));
    }
    return true;
  }

  const App& app_;
  std::mt19937 random_;
};

// Windows counts all of it, Wine the memory only: what is not counted is 0 before and after.
struct Size {
  DWORD handles = 0;
  DWORD gdi_objects = 0;
  DWORD user_objects = 0;
  SIZE_T memory = 0;
};

Size SizeOf(HANDLE process) {
  Size size;
  GetProcessHandleCount(process, &size.handles);
  size.gdi_objects = GetGuiResources(process, GR_GDIOBJECTS);
  size.user_objects = GetGuiResources(process, GR_USEROBJECTS);
  PROCESS_MEMORY_COUNTERS memory = {};
  K32GetProcessMemoryInfo(process, &memory, sizeof memory);
  size.memory = memory.PagefileUsage;
  return size;
}

void Print(int actions, const Size& size) {
  std::printf("after %5d actions: %lu handles, %lu GDI objects, %lu user objects, %zu KB\n",
              actions, size.handles, size.gdi_objects, size.user_objects, size.memory / 1024);
  std::fflush(stdout);
}

// Of everybody who has logged in. Gives the number of lines.
int ExpectHistoriesTellTheDays(const WorkFolder& folder) {
  int lines = 0;
  for (const std::string& name : folder.Names()) {
    const std::optional<std::string> history = folder.Read(name + "\\dziennik.csv");
    if (!history) continue;
    SCOPED_TRACE(name);
    ExpectWellFormedHistory(*history);
    ExpectToldTotals(*history, folder.Read(name + "\\bilans.ASC").value_or("(missing)"));
    for (const auto& [date, day] : DaysOfHistory(*history)) lines += day.entries;
  }
  return lines;
}

// Somebody logs in, when there is still anybody, and has a food to add.
void BeginADay(const App& app, const char* name) {
  app.main().Command(200);
  const Window login = app.WaitForPopup();
  login.Choose(700, name);
  login.PostCommand(IDOK);
  login.PostCommand(IDCANCEL);
  ASSERT_TRUE(WaitUntilGone(login.handle()));
  // Who has been removed meanwhile cannot log in, and what follows may end in boxes.
  app.main().PostCommand(231);
  app.main().Choose(124, "fruits");
  app.main().Choose(125, "frozen");
  app.main().Choose(126, "frozen strawberries");
  app.main().PostCommand(127);
}

TEST(Soak, RandomActionsNeitherStopItNorMakeItGrow) {
  const char* const wanted = std::getenv("VELNOR_SOAK");
  const int actions = wanted == nullptr ? kDefaultActions : std::atoi(wanted);
  const WorkFolder folder;
  folder.Write("users.ASC", "Ann\r\nBob");
  for (const char* const name : {"Ann", "Bob"}) {
    CreateDirectoryA((folder.path() + name).c_str(), nullptr);
    folder.Write(std::string(name) + "\\info.ASC", "35\r\n170\r\nwomen\r\nlow\r\nnone");
  }
  const App app(folder);
  Monkey monkey(app, 20'261'116);
  const int warm_up = actions / 4;
  Size before;
  for (int i = 0; i < actions; ++i) {
    if (i % kActionsADay == 0) {
      monkey.CloseAll();
      BeginADay(app, i / kActionsADay % 2 == 0 ? "Ann" : "Bob");
    }
    ASSERT_TRUE(monkey.Act()) << "no answer after action " << i;
    ASSERT_TRUE(app.IsRunning()) << "it ended after action " << i;
    if (i == warm_up) {
      monkey.CloseAll();
      before = SizeOf(app.process());
      Print(i, before);
    }
  }
  monkey.CloseAll();
  ASSERT_TRUE(monkey.Answers());
  const Size after = SizeOf(app.process());
  Print(actions, after);
  const int lines = ExpectHistoriesTellTheDays(folder);
  EXPECT_GT(lines, 0);
  std::printf("%d lines of history\n", lines);
  EXPECT_LE(after.handles, before.handles + 10);
  EXPECT_LE(after.gdi_objects, before.gdi_objects + 10);
  EXPECT_LE(after.user_objects, before.user_objects + 10);
  EXPECT_LE(after.memory, before.memory + kMostGrowth);
}

}  // namespace
}  // namespace velnor::desktop

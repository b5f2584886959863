// The diary by its key: three files, and the page in whatever opens pages on this machine.

#include <windows.h>

#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <utility>

#include "tests/desktop/keyboard_fixture.h"
#include "tests/desktop/outside.h"

namespace velnor::desktop {
namespace {

// What opens pages on this machine, for as long as the object lives: the command, in which "%1" is
// the page, or nothing at all when it is empty.
class BrowserOfMachine {
 public:
  explicit BrowserOfMachine(const std::string& command) : before_(Get(kExtension)) {
    Set(kExtension, kKind);
    if (!command.empty()) Set(std::string(kKind) + R"(\shell\open\command)", command);
  }
  BrowserOfMachine(const BrowserOfMachine&) = delete;
  BrowserOfMachine& operator=(const BrowserOfMachine&) = delete;
  ~BrowserOfMachine() {
    Set(kExtension, before_);
    RegDeleteTreeA(HKEY_CLASSES_ROOT, kKind);
  }

  // Whether it is what opens pages now.
  static bool IsSet() { return Get(kExtension) == kKind; }

 private:
  static constexpr char kExtension[] = ".html";
  static constexpr char kKind[] = "velnor.test.page";

  static std::string Get(const std::string& key) {
    std::string value(MAX_PATH, '\0');
    DWORD size = MAX_PATH;
    if (RegGetValueA(HKEY_CLASSES_ROOT, key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, value.data(),
                     &size) != ERROR_SUCCESS) {
      return "";
    }
    value.resize(size - 1);  // with the NUL
    return value;
  }
  static void Set(const std::string& key, const std::string& value) {
    RegSetKeyValueA(HKEY_CLASSES_ROOT, key.c_str(), nullptr, REG_SZ, value.c_str(),
                    static_cast<DWORD>(value.size() + 1));
  }

  std::string before_;
};

// A browser that tells what it is given to open: a script of the shell below Wine. A program of the
// platform would bring a window, which takes the keyboard from whoever comes next.
class TellingBrowser {
 public:
  TellingBrowser() : browser_(R"("Z:\bin\sh" )" + Below() + "/script \"%1\"") {
    told_.Write("script", "printf %s \"$1\" >" + Below() + "/new && mv " + Below() + "/new " +
                              Below() + "/page\n");
  }
  // Nothing as long as it has not been opened.
  std::optional<std::string> page() const { return told_.Read("page"); }

 private:
  std::string Below() const { return QuotedUnixPath(told_.path()); }

  const WorkFolder told_;
  const BrowserOfMachine browser_;
};

class DiaryByKey : public KeyboardOfAnn {
 protected:
  DiaryByKey() {
    main().Command(231);
    Settle();
    EXPECT_TRUE(main().Choose(124, "fruits"));
    EXPECT_TRUE(main().Choose(125, "frozen"));
    EXPECT_TRUE(main().Choose(126, "frozen strawberries"));
    main().PostCommand(127);
    EXPECT_TRUE(WaitUntil([this] { return main().Items(134).size() == 1; }));
  }
  std::string File(const std::string& name) const {
    return folder_.Read("ann\\" + name).value_or("(none)");
  }
  void ExpectTheFiles() const {
    EXPECT_NE(File("dziennik.html").find("frozen strawberries"), std::string::npos);
    EXPECT_TRUE(File("dziennik-dni.csv")
                    .starts_with("\xEF\xBB\xBF"
                                 "date,kcal,"));
    EXPECT_NE(File("dziennik-potrawy.csv").find(",food,frozen strawberries,100,g,28,"),
              std::string::npos);
  }
};

TEST_F(DiaryByKey, ThePageIsOpened) {
  if (RunBelowWine("true") != 0) GTEST_SKIP() << "there is no shell below";
  const TellingBrowser browser;
  if (!BrowserOfMachine::IsSet()) GTEST_SKIP() << "who runs this may not say what opens pages";
  PressKey('D', KeyModifier::kControl);
  EXPECT_TRUE(WaitUntil([&] { return browser.page().has_value(); }));
  EXPECT_EQ(browser.page(), folder_.path() + "ann\\dziennik.html");
  EXPECT_TRUE(File("dziennik.html").ends_with("</html>\n"));
  ExpectTheFiles();
}

// The code page of the machine has no such letter, or a browser of another one gets no such page.
TEST(Diary, IsOpenedInAFolderOfAnyName) {
  if (RunBelowWine("true") != 0) GTEST_SKIP() << "there is no shell below";
  const TellingBrowser browser;
  if (!BrowserOfMachine::IsSet()) GTEST_SKIP() << "who runs this may not say what opens pages";
  const WorkFolder outer;
  const std::wstring folder =
      std::wstring(outer.path().begin(), outer.path().end()) + L"\u0434\u043E\u043C";
  ASSERT_NE(CreateDirectoryW(folder.c_str(), nullptr), 0);
  ASSERT_NE(CreateDirectoryW((folder + L"\\Ann").c_str(), nullptr), 0);
  outer.Write("users.ASC", "Ann");
  ASSERT_NE(
      MoveFileW((std::wstring(outer.path().begin(), outer.path().end()) + L"users.ASC").c_str(),
                (folder + L"\\users.ASC").c_str()),
      0);
  const App app(ProgramPath(), folder);
  app.main().Command(200);
  const Window login = app.WaitForPopup();
  ASSERT_TRUE(login.Choose(700, "Ann"));
  app.CommandAndAnswer(login, IDOK);
  ASSERT_TRUE(WaitUntilGone(login.handle()));
  PostMessageA(app.main().handle(), WM_SYSCOMMAND, 0x110, 0);
  EXPECT_TRUE(WaitUntil([&] { return browser.page().has_value(); }));
  const std::string page = browser.page().value_or("");
  EXPECT_TRUE(page.ends_with("\\Ann\\dziennik.html")) << page;
  EXPECT_EQ(page.find('<'), std::string::npos) << page;
}

TEST_F(DiaryByKey, WithoutABrowserABoxSaysWhereTheFilesAre) {
  const BrowserOfMachine none("");
  if (!BrowserOfMachine::IsSet()) GTEST_SKIP() << "who runs this may not say what opens pages";
  PressKey('D', KeyModifier::kControl);
  const std::string box = AnswerBox();
  for (const char* const name : {"dziennik.html", "dziennik-dni.csv", "dziennik-potrawy.csv"}) {
    EXPECT_NE(box.find(folder_.path() + "ann\\" + name), std::string::npos) << box;
  }
  ExpectTheFiles();
}

}  // namespace
}  // namespace velnor::desktop

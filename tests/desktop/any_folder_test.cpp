// The program in start-up folders of any name: letters that the machine's code page lacks, blanks,
// percent signs, and more characters than the classic form of a path has room for.

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/desktop/driver.h"
#include "tests/desktop/outside.h"
#include "tests/desktop/working_day.h"

namespace velnor::desktop {
namespace {

using Texts = std::vector<std::string>;

constexpr wchar_t kUnlimited[] = L"\\\\?\\";  // lifts the limit of a path's length

class AnyFolder : public testing::Test {
 protected:
  // All of the day but its end, at which nothing would be left to look at.
  static void SpendDay(const App& app) {
    const auto day = WorkingDay();
    for (const Deed& deed : day.first(day.size() - 1)) {
      const Texts said = deed.act(app);
      const auto was_said = [&](const char* text) {
        return text != nullptr && std::ranges::find(said, text) != said.end();
      };
      EXPECT_FALSE(was_said(deed.refused)) << deed.name;
      EXPECT_TRUE(deed.done == nullptr || was_said(deed.done)) << deed.name;
    }
  }
  static Snapshot OrdinaryDay() {
    const WorkFolder folder;
    {
      const App app(folder);
      SpendDay(app);
    }
    return StateOf(folder);
  }
  // Makes the folder, spends the day in it, and gives it a name under which it can be read.
  Snapshot DayIn(const std::wstring& name, void (*more)(const App& app) = nullptr) const {
    const std::wstring outer = kUnlimited + Outer();
    std::wstring made;
    for (std::size_t end = 0; end != std::wstring::npos;) {
      end = name.find(L'\\', end + 1);
      made = outer + name.substr(0, end);
      EXPECT_NE(CreateDirectoryW(made.c_str(), nullptr), 0);
    }
    {
      const App app(ProgramPath(), Outer() + name);
      SpendDay(app);
      if (more != nullptr) more(app);
      EXPECT_TRUE(app.IsRunning());
    }
    EXPECT_NE(MoveFileW(made.c_str(), (outer + L"plain").c_str()), 0);
    const Folder plain(outer_.path() + "plain\\");
    const Folder copies(plain.path() + std::string(kFolderOfCopies) + '\\');
    const Texts copied = copies.Names();
    EXPECT_FALSE(copied.empty());
    EXPECT_EQ(copied.empty() ? "" : copies.Read(copied[0] + "\\users.ASC"), "Ann");
    return StateOf(plain);
  }

  std::wstring Outer() const { return {outer_.path().begin(), outer_.path().end()}; }

  WorkFolder outer_;
};

TEST_F(AnyFolder, WithLettersOfAnotherCodePage) { EXPECT_EQ(DayIn(L"\u0141ukasz"), OrdinaryDay()); }

TEST_F(AnyFolder, WithLettersOfNoCodePageAndABlank) {
  EXPECT_EQ(DayIn(L"\u0434\u043E\u043C \u4E2D\u6587 \U0001F353"), OrdinaryDay());
}

TEST_F(AnyFolder, WithPercentSignsAndBlanks) {
  EXPECT_EQ(DayIn(L"%TEMP%\\ a %41 b;c'd^e&f"), OrdinaryDay());
}

// Registers somebody with a name as long as one may be, and lets them eat.
void AddALongUser(const App& app) {
  app.main().Command(202);
  const Window users = app.WaitForPopup();
  users.SetText(701, std::string(99, 'n'));
  EXPECT_EQ(app.CommandAndAnswer(users, 702), Texts());
  EXPECT_EQ(app.CommandAndAnswer(users, IDOK), Texts());
  EXPECT_TRUE(WaitUntilGone(users.handle()));
  app.main().Command(200);
  const Window login = app.WaitForPopup();
  ASSERT_TRUE(login.Choose(700, std::string(99, 'n')));
  app.CommandAndAnswer(login, IDOK);
  ASSERT_TRUE(WaitUntilGone(login.handle()));
  app.main().Command(231);
  app.Settle();
  EXPECT_EQ(app.CommandAndAnswer(app.main(), 127), Texts());
}

TEST_F(AnyFolder, TwoHundredCharactersDeepWithALongUser) {
  std::wstring name;
  while (Outer().size() + name.size() < 195) name += L"deep \u0141\\";
  name += L"d";
  Snapshot seen = DayIn(name, AddALongUser);
  const std::string user(99, 'n');
  EXPECT_TRUE(seen[user + "\\bilans.ASC"].starts_with(Today() + "\r\n")) << seen[user];
  EXPECT_TRUE(seen[user + "\\wykoda.txt"].starts_with(Today() + ";"));
  EXPECT_EQ(seen["users.ASC"], "Ann\r\n" + user);
  std::erase_if(seen, [&](const auto& entry) { return entry.first.starts_with(user); });
  seen["users.ASC"] = "Ann";
  EXPECT_EQ(seen, OrdinaryDay());
}

}  // namespace
}  // namespace velnor::desktop

// Installs, upgrades and removes the program as a person would, on a machine that has never seen it
// (a new Wine prefix; see tests/desktop/package/run), and looks at every byte of the data in
// between.

#include <windows.h>

#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

#include "tests/desktop/driver.h"
#include "tests/desktop/package/machine.h"
#include "tests/desktop/version_before.h"
#include "users/history_file.h"

namespace velnor::desktop {
namespace {

// Takes the files below a folder of the tree out of it.
Tree TakeOut(Tree& tree, const std::string& folder) {
  Tree taken;
  for (auto file = tree.lower_bound(folder); file != tree.end() && file->first.starts_with(folder);
       file = tree.erase(file)) {
    taken[file->first.substr(folder.size())] = file->second;
  }
  return taken;
}

// Since Ann has logged in in the folder, where `before` lay, nothing but her history has come, and
// the copy of the day, which holds `data`.
void ExpectUpgraded(const std::string& folder, Tree before, const Files& data) {
  Tree after = ReadTree(folder);
  EXPECT_EQ(TakeOut(after, "kopie zapasowe\\" + IsoDate(Today()) + '\\'), data);
  before["Ann\\dziennik.csv"] = HistoryOfVersionBefore(Today());
  EXPECT_TRUE(after == before) << "other files, or other bytes";
  EXPECT_EQ(after["Ann\\dziennik.csv"], before["Ann\\dziennik.csv"]);
}

using Texts = std::vector<std::string>;

const Texts kInstalled = {"README.md", "README.txt", "uninstall.exe", "velnor.exe"};

class Install : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(DisplayedVersion(), std::nullopt) << "the test before has left something installed";
    ASSERT_EQ(ReadTree(kDocuments + "Velnor\\"), Tree());
  }
  // Leaves the machine as new for the next test.
  void TearDown() override {
    if (DisplayedVersion()) Uninstall();
    RemoveTree(kDocuments + "Velnor\\");
    RemoveTree(kPrograms + "Velnor\\");
  }

  static std::optional<std::string> DisplayedVersion() {
    return RegistryText(kUninstallKey, "DisplayVersion");
  }
  // Byte by byte. What differs is not shown: it would be megabytes.
  bool BuiltProgramIsInstalled() const {
    return Folder(kPrograms + "Velnor\\").Read("velnor.exe") ==
           Folder(Environment("VELNOR_BUILD") + '\\').Read("velnor.exe");
  }
  // Through the entry that the list of installed programs uses.
  static void Uninstall() {
    const std::string command = RegistryText(kUninstallKey, "QuietUninstallString").value_or("");
    ASSERT_NE(command, "");
    ASSERT_EQ(RunCommand(command), 0U);
    // It goes on as a copy of itself, or it could not remove its own file.
    ASSERT_TRUE(WaitUntil([] { return !DisplayedVersion(); }));
  }
  static App StartFromMenu() {
    const Shortcut shortcut = ReadShortcut(kStartMenu + "Velnor calorie counter.lnk");
    return {shortcut.target, Folder(shortcut.start_in + '\\')};
  }
  static Window OpenDialog(const App& app, int command) {
    app.main().Command(command);
    return app.WaitForPopup();
  }
  static void Close(const Window& dialog, int button) {
    dialog.PostCommand(button);
    ASSERT_TRUE(WaitUntilGone(dialog.handle()));
  }
  static void Exit(const App& app) {
    app.main().PostCommand(203);
    ASSERT_EQ(app.WaitForExit(), 0U);
  }
  static void LogIn(const App& app) {
    const Window login = OpenDialog(app, 200);
    ASSERT_TRUE(login.Choose(700, "Ann"));
    login.PostCommand(IDOK);
    const MessageBoxSeen fill_up = app.WaitForMessageBox(login);  // Ann has no profile
    Answer(fill_up, IDOK);
    ASSERT_TRUE(WaitUntilGone(login.handle()));
  }
  static void AddStrawberries(const App& app) {
    app.main().Command(231);
    app.Settle();
    // The repaint fills the list, and on a busy machine it comes late.
    ASSERT_TRUE(WaitUntil([&app] { return app.main().Choose(124, "fruits"); }));
    ASSERT_TRUE(app.main().Choose(125, "frozen"));
    ASSERT_TRUE(app.main().Choose(126, "frozen strawberries"));
    app.main().SetText(128, "250");
    app.main().Command(127);
  }
  // The first day with the program: registers, logs in, eats.
  static void SpendADay() { SpendADay(StartFromMenu()); }
  static void SpendADay(const App& app) {
    const Window users = OpenDialog(app, 202);
    users.SetText(701, "Ann");
    users.Command(702);
    Close(users, IDOK);
    LogIn(app);
    AddStrawberries(app);
    Exit(app);
  }

  const std::string kDocuments = KnownFolder(CSIDL_PERSONAL);
  const std::string kPrograms = KnownFolder(CSIDL_LOCAL_APPDATA) + "Programs\\";
  static inline const std::string kStartMenu = KnownFolder(CSIDL_PROGRAMS);
  static constexpr char kUninstallKey[] =
      R"(Software\Microsoft\Windows\CurrentVersion\Uninstall\Velnor)";
  static constexpr char kOwnKey[] = "Software\\Velnor";
  const std::string kSetup = '"' + Environment("VELNOR_SETUP") + "\" /S";
  const std::string kOldSetup = '"' + Environment("VELNOR_OLD_SETUP") + "\" /S";
};

TEST_F(Install, PutsTheProgramItsShortcutAndItsEntryInPlace) {
  ASSERT_EQ(RunCommand(kSetup), 0U);
  EXPECT_EQ(Folder(kPrograms + "Velnor\\").Names(), kInstalled);
  EXPECT_TRUE(BuiltProgramIsInstalled());
  const Shortcut shortcut = ReadShortcut(kStartMenu + "Velnor calorie counter.lnk");
  EXPECT_EQ(shortcut.target, kPrograms + "Velnor\\velnor.exe");
  EXPECT_EQ(shortcut.start_in, kDocuments + "Velnor");
  EXPECT_NE(GetFileAttributesA(shortcut.start_in.c_str()), INVALID_FILE_ATTRIBUTES);
  EXPECT_EQ(DisplayedVersion(), Environment("VELNOR_VERSION"));
  EXPECT_EQ(RegistryText(kUninstallKey, "DisplayName"), "Velnor calorie counter");
}

TEST_F(Install, TheProgramSaysTheVersionOfItsPackage) {
  ASSERT_EQ(RunCommand(kSetup), 0U);
  const App app = StartFromMenu();
  app.main().PostCommand(250);
  const Window about = app.WaitForPopup();
  std::string texts;
  for (const HWND control : about.Controls()) texts += Window(control).Caption() + '|';
  EXPECT_NE(texts.find("Core version " + Environment("VELNOR_VERSION") + " "), std::string::npos)
      << texts;
  const std::string guide = Folder(kPrograms + "Velnor\\").Read("README.txt").value_or("");
  EXPECT_EQ(guide.find("Velnor calorie counter " + Environment("VELNOR_VERSION") + "\r\n"), 0U);
}

TEST_F(Install, DataOutlivesTheUpgradeAndTheRemoval) {
  ASSERT_EQ(RunCommand(kOldSetup), 0U);
  ASSERT_EQ(DisplayedVersion(), Environment("VELNOR_OLD_VERSION"));
  EXPECT_FALSE(BuiltProgramIsInstalled());
  SpendADay();
  const Tree data = ReadTree(kDocuments + "Velnor\\");
  EXPECT_EQ(data.at("users.ASC"), "Ann");
  EXPECT_EQ(data.at("Ann\\bilans.ASC"), Today() + "\r\n70.\r\n1.75\r\n1.\r\n13.5");

  ASSERT_EQ(RunCommand(kSetup), 0U);
  EXPECT_EQ(DisplayedVersion(), Environment("VELNOR_VERSION"));
  EXPECT_EQ(Folder(kPrograms + "Velnor\\").Names(), kInstalled);
  EXPECT_TRUE(BuiltProgramIsInstalled());
  EXPECT_EQ(ReadTree(kDocuments + "Velnor\\"), data);

  {
    const App app = StartFromMenu();
    LogIn(app);
    AddStrawberries(app);
    Exit(app);
  }
  const Tree more = ReadTree(kDocuments + "Velnor\\");
  EXPECT_EQ(more.at("Ann\\bilans.ASC"), Today() + "\r\n140.\r\n3.5\r\n2.\r\n27.");

  Uninstall();
  EXPECT_TRUE(WaitUntil([&] { return ReadTree(kPrograms + "Velnor\\").empty(); }));
  EXPECT_EQ(GetFileAttributesA((kPrograms + "Velnor").c_str()), INVALID_FILE_ATTRIBUTES);
  EXPECT_EQ(ReadTree(kStartMenu).count("Velnor calorie counter.lnk"), 0U);
  EXPECT_EQ(RegistryText(kOwnKey, "DataFolder"), std::nullopt);
  EXPECT_EQ(ReadTree(kDocuments + "Velnor\\"), more);
}

TEST_F(Install, OverTheVersionBeforeKeepsEveryByteAndBeginsAHistory) {
  const Folder documents(kDocuments + "Velnor\\");
  ASSERT_EQ(RunCommand(kOldSetup), 0U);
  const Files data = LayVersionBefore(documents, Today());
  ASSERT_EQ(RunCommand(kSetup), 0U);
  EXPECT_EQ(ReadTree(documents.path()), data);
  {
    const App app = StartFromMenu();
    LogInAnn(app);
    Exit(app);
  }
  ExpectUpgraded(documents.path(), data, data);
  const Tree after = ReadTree(documents.path());
  Uninstall();
  EXPECT_TRUE(ReadTree(documents.path()) == after);
}

TEST_F(Install, AnUpgradeGoesWhereTheProgramIsAndKeepsItsDataFolder) {
  const WorkFolder elsewhere;
  const std::string program = elsewhere.path() + "the program";
  const std::string data = elsewhere.path() + "the data";
  ASSERT_EQ(RunCommand(kOldSetup + " /D=" + program), 0U);
  SetRegistryText(kOwnKey, "DataFolder", data);  // as chosen on the installer's second page
  ASSERT_EQ(RunCommand(kSetup), 0U);
  EXPECT_EQ(Folder(program + '\\').Names(), kInstalled);
  EXPECT_TRUE(ReadTree(kPrograms + "Velnor\\").empty());
  const Shortcut shortcut = ReadShortcut(kStartMenu + "Velnor calorie counter.lnk");
  EXPECT_EQ(shortcut.target, program + "\\velnor.exe");
  EXPECT_EQ(shortcut.start_in, data);
  SpendADay();
  EXPECT_EQ(Folder(data + '\\').Read("users.ASC"), "Ann");
  Uninstall();
  EXPECT_EQ(Folder(elsewhere.path()).Names(), Texts({"the data"}));
  EXPECT_EQ(Folder(data + '\\').Read("users.ASC"), "Ann");
}

TEST_F(Install, UnderAnAccountWithLettersThatTheCodePageLacks) {
  const std::wstring account = L"C:\\users\\\u0141ukasz \u4E2D\\";
  const std::wstring documents = account + L"Documents";
  const std::wstring local = account + L"Local";
  for (const std::wstring& folder : {account, documents, local}) {
    ASSERT_NE(CreateDirectoryW(folder.c_str(), nullptr), 0);
  }
  const OtherKnownFolder other_documents(L"Personal", documents);
  const OtherKnownFolder other_local(L"Local AppData", local);
  ASSERT_EQ(RunCommand(kSetup), 0U);
  const Shortcut shortcut = ReadShortcut(kStartMenu + "Velnor calorie counter.lnk");
  EXPECT_EQ(shortcut.wide_start_in, documents + L"\\Velnor");
  const std::string program = ShortPath(local + L"\\Programs\\Velnor") + '\\';
  ASSERT_EQ(Folder(program).Names(), kInstalled);
  SpendADay({program + "velnor.exe", shortcut.wide_start_in});
  const Tree data = ReadTree(ShortPath(shortcut.wide_start_in) + '\\');
  EXPECT_EQ(data.at("users.ASC"), "Ann");
  EXPECT_EQ(data.at("Ann\\bilans.ASC"), Today() + "\r\n70.\r\n1.75\r\n1.\r\n13.5");

  ASSERT_EQ(RunCommand('"' + program + "uninstall.exe\" /S"), 0U);
  ASSERT_TRUE(WaitUntil([] { return !DisplayedVersion(); }));
  EXPECT_TRUE(WaitUntil([&] { return ReadTree(program).empty(); }));
  EXPECT_EQ(ReadTree(ShortPath(shortcut.wide_start_in) + '\\'), data);
  RemoveTree(ShortPath(account));
}

TEST_F(Install, RemovalLeavesWhatAPersonHasPutBesideTheProgram) {
  const std::string program = kPrograms + "Velnor\\";
  ASSERT_EQ(RunCommand(kSetup), 0U);
  Folder(program).Write("data.txt", "mine");
  ASSERT_NE(CreateDirectoryA((program + "Ann").c_str(), nullptr), 0);
  Folder(program).Write("Ann\\waga.ASC", "mine too");
  Uninstall();
  EXPECT_EQ(ReadTree(program), (Tree{{"Ann\\waga.ASC", "mine too"}, {"data.txt", "mine"}}));
}

TEST_F(Install, ARunningProgramIsNeitherReplacedNorRemoved) {
  ASSERT_EQ(RunCommand(kOldSetup), 0U);
  const std::string program = kPrograms + "Velnor\\";
  const Tree before = ReadTree(program);
  const App app = StartFromMenu();
  EXPECT_EQ(RunCommand(kSetup), 2U);
  EXPECT_TRUE(ReadTree(program) == before);
  EXPECT_EQ(DisplayedVersion(), Environment("VELNOR_OLD_VERSION"));
  // In its own place it ends with its own code, not with that of the copy's start.
  EXPECT_EQ(RunCommand('"' + program + "uninstall.exe\" /S _?=" + kPrograms + "Velnor"), 2U);
  EXPECT_TRUE(ReadTree(program) == before);
  EXPECT_EQ(ReadTree(kStartMenu).count("Velnor calorie counter.lnk"), 1U);
  EXPECT_TRUE(app.IsRunning());
  Exit(app);
  EXPECT_EQ(RunCommand(kSetup), 0U);
  EXPECT_EQ(DisplayedVersion(), Environment("VELNOR_VERSION"));
}

// The folder in which a program that is not installed, or not by us, keeps its data.
Folder DataFolder() { return Folder(Environment("VELNOR_DATA") + '\\'); }

// Done before the packages are put over it that have no test here.
TEST(VersionBefore, IsLaid) {
  const Folder folder = DataFolder();
  const Tree beside = ReadTree(folder.path());
  const Files data = LayVersionBefore(folder, Today());
  Tree both = ReadTree(folder.path());
  for (const auto& [path, bytes] : beside) both.erase(path);
  EXPECT_EQ(both, data);
}

// In the folder of the zip the program and its guides lie among the data.
TEST(VersionBefore, KeepsEveryByteUnderTheUnpackedProgram) {
  const Folder folder = DataFolder();
  const Tree before = ReadTree(folder.path());
  Tree data = before;
  for (const char* const packed : {"README.md", "README.txt", "velnor.exe"}) data.erase(packed);
  {
    const App app(folder.path() + "velnor.exe", folder);
    LogInAnn(app);
    app.main().PostCommand(203);
    ASSERT_EQ(app.WaitForExit(), 0U);
  }
  ExpectUpgraded(folder.path(), before, data);
}

// What package/velnor has started: its window stands on this display.
class Launcher : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(WaitUntil([this] {
      handle_ = FindWindowA("Velnor calorie counter", nullptr);
      return handle_ != nullptr && IsWindowVisible(handle_) != 0;
    }));
  }
  void TearDown() override {
    PostMessageA(handle_, WM_CLOSE, 0, 0);
    EXPECT_TRUE(WaitUntilGone(handle_));
  }
  Window OpenDialog(int command) const {
    Window(handle_).Command(command);
    HWND dialog = nullptr;
    EXPECT_TRUE(WaitUntil([&] {
      dialog = GetLastActivePopup(handle_);
      return dialog != handle_ && IsWindowVisible(dialog) != 0;
    }));
    return Window(dialog);
  }
  static void Confirm(const Window& dialog) {
    dialog.PostCommand(IDOK);
    ASSERT_TRUE(WaitUntilGone(dialog.handle()));
  }

  HWND handle_ = nullptr;
};

TEST_F(Launcher, TheProgramRunsAndKeepsItsUsers) {
  const Window users = OpenDialog(202);
  users.SetText(701, "Ann");
  users.Command(702);
  Confirm(users);
}

TEST_F(Launcher, OverTheVersionBeforeKeepsEveryByteAndBeginsAHistory) {
  const Folder folder = DataFolder();
  const Files data = ReadTree(folder.path());
  const Window login = OpenDialog(200);
  ASSERT_TRUE(login.Choose(700, "Ann"));
  Confirm(login);
  Window(handle_).Command(231);  // carried out after the login
  ExpectUpgraded(folder.path(), data, data);
}

}  // namespace
}  // namespace velnor::desktop

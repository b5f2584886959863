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

namespace velnor::desktop {
namespace {

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

// What package/velnor has started: its window stands on this display.
TEST(Launcher, TheProgramRunsAndKeepsItsUsers) {
  HWND handle = nullptr;
  ASSERT_TRUE(WaitUntil([&] {
    handle = FindWindowA("Velnor calorie counter", nullptr);
    return handle != nullptr && IsWindowVisible(handle) != 0;
  }));
  const Window main(handle);
  main.Command(202);
  HWND dialog = nullptr;
  ASSERT_TRUE(WaitUntil([&] {
    dialog = GetLastActivePopup(handle);
    return dialog != handle && IsWindowVisible(dialog) != 0;
  }));
  const Window users(dialog);
  users.SetText(701, "Ann");
  users.Command(702);
  users.PostCommand(IDOK);
  ASSERT_TRUE(WaitUntilGone(dialog));
  PostMessageA(handle, WM_CLOSE, 0, 0);
  EXPECT_TRUE(WaitUntilGone(handle));
}

}  // namespace
}  // namespace velnor::desktop

// The program on a disk that refuses: full, write-protected, gone for a while, or with its files
// open elsewhere. Each deed of a day is done twice: first while the disk refuses, then when it does
// so no longer. In between every file holds its old bytes or its new ones, the program says what it
// has to say, and in the end all files are as after a day without trouble.

#include <windows.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "tests/desktop/driver.h"
#include "tests/desktop/outside.h"
#include "tests/desktop/working_day.h"

namespace velnor::desktop {
namespace {

using Texts = std::vector<std::string>;

constexpr std::string_view kAboutACopy = "opis.txt";

// What the files are after every deed when nothing goes wrong.
std::vector<Snapshot> SpendDay() {
  const WorkFolder folder;
  const App app(folder);
  std::vector<Snapshot> states = {StateOf(folder)};
  for (const Deed& deed : WorkingDay()) {
    const Texts said = deed.act(app);
    states.push_back(StateOf(folder));
    EXPECT_NE(states.back(), states[states.size() - 2]) << deed.name << " changes nothing";
    EXPECT_TRUE(deed.done == nullptr || std::ranges::count(said, deed.done) == 1) << deed.name;
    EXPECT_TRUE(deed.refused == nullptr || std::ranges::count(said, deed.refused) == 0)
        << deed.name;
  }
  return states;
}

std::string At(const Snapshot& snapshot, const std::string& path) {
  const auto found = snapshot.find(path);
  return found == snapshot.end() ? "(missing)" : found->second;
}

void ExpectOldOrNew(const Deed& deed, const Snapshot& old_state, const Snapshot& new_state,
                    const Snapshot& now) {
  std::set<std::string> paths;
  for (const Snapshot* const snapshot : {&old_state, &new_state, &now}) {
    for (const auto& [path, bytes] : *snapshot) paths.insert(path);
  }
  for (const std::string& path : paths) {
    const std::string bytes = At(now, path);
    if (bytes.empty() && std::ranges::count(deed.emptied_first, path) > 0) continue;
    EXPECT_TRUE(bytes == At(old_state, path) || bytes == At(new_state, path))
        << path << " holds\n"
        << bytes << "\nit held\n"
        << At(old_state, path) << "\nit should hold\n"
        << At(new_state, path);
  }
}

void ExpectTheRightWords(const Deed& deed, const Snapshot& new_state, const Snapshot& now,
                         const Texts& said) {
  const bool done = std::ranges::all_of(deed.about, [&](std::string_view file) {
    return At(now, std::string(file)) == At(new_state, std::string(file));
  });
  const auto was_said = [&said](const char* text) { return std::ranges::count(said, text) > 0; };
  EXPECT_TRUE(deed.refused == nullptr || was_said(deed.refused) != done) << deed.refused;
  EXPECT_TRUE(deed.done == nullptr || was_said(deed.done) == done) << deed.done;
}

// Every copy that has its name is whole: it holds the list of users, the products and the people,
// or one of these, as they were between two deeds.
void ExpectWholeCopies(const Folder& folder, const std::vector<Snapshot>& states) {
  const Folder copies(folder.path() + std::string(kFolderOfCopies) + '\\');
  for (const std::string& name : copies.Names()) {
    if (name.ends_with(".part")) continue;
    Snapshot copy = StateOf(Folder(copies.path() + name + '\\'));
    copy.erase(std::string(kAboutACopy));
    const bool is_whole = std::ranges::any_of(states, [&copy](const Snapshot& state) {
      Snapshot copied = state;
      std::erase_if(copied, [&copy](const auto& file) {
        return copy.count(file.first.substr(0, file.first.find('\\'))) == 0;
      });
      return copied == copy;
    });
    EXPECT_TRUE(is_whole) << name << ": " << testing::PrintToString(copy);
  }
}

struct Trouble {
  // Make the disk of a folder refuse, and refuse no longer. What there is can be read in between
  // only if `End` has been called.
  std::function<void()> begin;
  std::function<void()> end;
  // What must hold while it refuses, behind a deed.
  std::function<void()> check = [] {};
};

// Spends the day with trouble in every deed. Gives the number of deeds that came to nothing at
// first.
int SpendSpoiltDay(const Folder& folder, const Trouble& trouble) {
  static const std::vector<Snapshot> states = SpendDay();
  const App app(ProgramPath(), folder);
  int refused = 0;
  for (std::size_t i = 0; i < WorkingDay().size(); ++i) {
    const Deed& deed = WorkingDay()[i];
    SCOPED_TRACE(deed.name);
    trouble.begin();
    const Texts said = deed.act(app);
    trouble.check();
    trouble.end();
    const Snapshot now = StateOf(folder);
    ExpectOldOrNew(deed, states[i], states[i + 1], now);
    const bool done = now == states[i + 1];
    refused += done ? 0 : 1;
    ExpectTheRightWords(deed, states[i + 1], now, said);

    if (!done) deed.act(app);
    EXPECT_EQ(StateOf(folder), states[i + 1]) << "when it was done again";
    ExpectWholeCopies(folder, states);
    EXPECT_TRUE(app.IsRunning());
    if (testing::Test::HasFailure()) break;
  }
  return refused;
}

// The program is started among the files of a whole day while the disk refuses. It starts, loses
// nothing, and goes on without a new start when the disk refuses no longer.
void StartInTrouble(const Folder& folder, const Trouble& trouble) {
  constexpr int kOpenLogin = 200;
  constexpr int kUsers = 700;
  const std::span<const Deed> all_but_the_removal = WorkingDay().first(WorkingDay().size() - 1);
  {
    const App app(ProgramPath(), folder);
    for (const Deed& deed : all_but_the_removal) deed.act(app);
  }
  const Snapshot before = Look(folder);
  ASSERT_EQ(before.count("Ann\\bilans.ASC"), 1U);
  trouble.begin();
  const App app(ProgramPath(), folder);
  app.main().Command(kOpenLogin);
  app.WaitForPopup().Command(IDCANCEL);
  app.main().Command(236);
  app.Settle();
  EXPECT_TRUE(app.main().IsShown(109)) << "the overview of the products";
  trouble.end();
  EXPECT_EQ(Look(folder), before);

  app.main().Command(kOpenLogin);
  const Window login = app.WaitForPopup();
  EXPECT_TRUE(login.Choose(kUsers, "Ann"));
  EXPECT_EQ(app.CommandAndAnswer(login, IDOK), Texts{});
  EXPECT_EQ(Look(folder), before);
}

constexpr const char* kNoShell = "only the shell below Wine can do this to a folder";

TEST(FullDisk, CostsNoByte) {
  const char* const disk_path = std::getenv("VELNOR_SMALL_DISK");
  if (disk_path == nullptr) {
    GTEST_SKIP() << "needs a small disk: run-under-wine --bad-disk, where users may mount one";
  }
  const Folder disk(PathOfUnix(disk_path) + '\\');
  CreateDirectoryA((disk.path() + "start").c_str(), nullptr);
  const std::string filler = disk.path() + "filler";
  const auto fill = [&filler] {
    const HANDLE file =
        CreateFileA(filler.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    const std::string page(4096, 'f');
    DWORD written = 0;
    int pages = 0;
    while (WriteFile(file, page.data(), static_cast<DWORD>(page.size()), &written, nullptr) != 0) {
      ASSERT_LT(++pages, 600) << "the disk is not small";
    }
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_DISK_FULL));
    CloseHandle(file);
  };
  const int refused = SpendSpoiltDay(
      Folder(disk.path() + "start\\"),
      {.begin = fill, .end = [&filler] { EXPECT_NE(DeleteFileA(filler.c_str()), 0); }});
  EXPECT_GE(refused, 14) << "an empty file needs no space, everything else does";
}

class WriteProtectedFolder : public testing::Test {
 protected:
  void SetUp() override {
    if (!Protect()) GTEST_SKIP() << kNoShell;
    const bool bound = !CanWrite();
    Allow();
    if (!bound) GTEST_SKIP() << "permissions do not bind who runs this: run-under-wine --bad-disk";
  }
  bool Protect() const {
    return RunBelowWine("find " + QuotedUnixPath(folder_.path()) +
                        " -type d -exec chmod a-w {} +") == 0;
  }
  void Allow() const {
    EXPECT_EQ(
        RunBelowWine("find " + QuotedUnixPath(folder_.path()) + " -type d -exec chmod u+w {} +"),
        0);
  }
  const Trouble trouble_ = {.begin = [this] { EXPECT_TRUE(Protect()); },
                            .end = [this] { Allow(); }};
  const WorkFolder folder_;

 private:
  bool CanWrite() const {
    const std::string name = folder_.path() + "probe";
    const HANDLE file =
        CreateFileA(name.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    CloseHandle(file);
    DeleteFileA(name.c_str());
    return true;
  }
};

TEST_F(WriteProtectedFolder, CostsNoByte) {
  EXPECT_EQ(SpendSpoiltDay(folder_, trouble_), static_cast<int>(WorkingDay().size()));
}

TEST_F(WriteProtectedFolder, LetsTheProgramStart) { StartInTrouble(folder_, trouble_); }

// Moves a folder away and back. Nothing must come into being in its place, or beside it, but for
// the profile: saving it makes the folder of its user again.
class VanishingFolder : public testing::Test {
 protected:
  VanishingFolder() { CreateDirectoryA((outer_.path() + "start").c_str(), nullptr); }

  WorkFolder outer_;
  Folder start_{outer_.path() + "start\\"};
};

TEST_F(VanishingFolder, OfAUserCostsNoByte) {
  const std::string ann = start_.path() + "Ann";
  const std::string away = outer_.path() + "away";
  bool moved = false;
  const auto move_away = [&] {
    moved = GetFileAttributesA(ann.c_str()) != INVALID_FILE_ATTRIBUTES;
    EXPECT_TRUE(!moved || MoveFileA(ann.c_str(), away.c_str()) != 0);
  };
  const auto is_made_again = [&] {
    return moved && GetFileAttributesA(ann.c_str()) != INVALID_FILE_ATTRIBUTES;
  };
  const auto move_back = [&] {
    if (is_made_again()) {
      EXPECT_TRUE(DeleteFileA((ann + "\\info.ASC").c_str()) != 0);
      EXPECT_TRUE(RemoveDirectoryA(ann.c_str()) != 0);
    }
    EXPECT_TRUE(!moved || MoveFileA(away.c_str(), ann.c_str()) != 0);
  };
  const auto expect_nothing_new = [&] {
    if (is_made_again()) {
      EXPECT_EQ(start_.Names("Ann"), Texts{"info.ASC"});
    }
    EXPECT_EQ(outer_.Names(), moved ? (Texts{"away", "start"}) : (Texts{"start"}));
  };
  const int refused =
      SpendSpoiltDay(start_, {.begin = move_away, .end = move_back, .check = expect_nothing_new});
  EXPECT_GE(refused, 15) << "all but the list of users and the products";
}

class VanishingDisk : public VanishingFolder {};

TEST_F(VanishingDisk, WithEverythingInItCostsNoByte) {
  const std::string start = QuotedUnixPath(outer_.path() + "start");
  const std::string away = QuotedUnixPath(outer_.path()) + "/away";
  if (RunBelowWine("true") != 0) GTEST_SKIP() << kNoShell;
  const auto move = [](const std::string& from, const std::string& to) {
    EXPECT_EQ(RunBelowWine("mv -T " + from + ' ' + to), 0);
  };
  const int refused =
      SpendSpoiltDay(start_, {.begin = [&] { move(start, away); },
                              .end = [&] { move(away, start); },
                              .check = [this] { EXPECT_EQ(outer_.Names(), (Texts{"away"})); }});
  EXPECT_EQ(refused, static_cast<int>(WorkingDay().size()));
}

TEST_F(VanishingDisk, BackBehindAnOpenDialogIsNotOverwritten) {
  const std::string start = QuotedUnixPath(outer_.path() + "start");
  const std::string away = QuotedUnixPath(outer_.path()) + "/away";
  if (RunBelowWine("true") != 0) GTEST_SKIP() << kNoShell;
  start_.Write("users.ASC", "Ann\r\nBob");
  const App app(ProgramPath(), start_);
  EXPECT_EQ(RunBelowWine("mv -T " + start + ' ' + away), 0);
  app.main().Command(202);
  const Window users = app.WaitForPopup();
  EXPECT_EQ(RunBelowWine("mv -T " + away + ' ' + start), 0);
  users.SetText(701, "Eve");
  users.Command(702);
  EXPECT_EQ(app.CommandAndAnswer(users, IDOK), (Texts{"The list of users could not be written"}));
  EXPECT_EQ(start_.Read("users.ASC"), "Ann\r\nBob");
}

// Somebody else has all files open while the deed is done, and lets go of them after it.
class HeldFiles {
 public:
  explicit HeldFiles(DWORD sharing) : sharing_(sharing) {}

  const Folder& folder() const { return folder_; }
  Trouble AsTrouble() {
    return {.begin = [this] { Hold(); }, .end = [this] { held_.clear(); }};
  }

 private:
  void Hold() {
    for (const auto& [path, bytes] : Look(folder_)) {
      if (bytes == "(folder)") continue;
      held_.push_back(std::make_unique<HeldFile>(folder_.path() + path, sharing_));
    }
  }

  DWORD sharing_;
  WorkFolder folder_;
  std::vector<std::unique_ptr<HeldFile>> held_;
};

void SpendDayBeside(DWORD sharing) {
  HeldFiles files(sharing);
  EXPECT_GE(SpendSpoiltDay(files.folder(), files.AsTrouble()), 15)
      << "what is not there yet nobody holds";
}

TEST(FilesNobodyMayRead, CostNoByte) { SpendDayBeside(0); }

TEST(FilesOthersMayRead, CostNoByte) { SpendDayBeside(FILE_SHARE_READ); }

TEST(FilesOthersMayReadAndWrite, CostNoByte) { SpendDayBeside(FILE_SHARE_READ | FILE_SHARE_WRITE); }

TEST(FilesNobodyMayRead, LetTheProgramStart) {
  HeldFiles files(0);
  StartInTrouble(files.folder(), files.AsTrouble());
}

TEST(FilesNobodyMayRead, AreWaitedForAMoment) {
  const WorkFolder folder;
  folder.Write("users.ASC", "Ann");
  const App app(folder);
  app.main().Command(202);
  const Window users = app.WaitForPopup();
  auto held = std::make_unique<HeldFile>(folder.path() + "users.ASC", 0);
  std::thread other([&held] {
    Sleep(200);
    held.reset();
  });
  users.SetText(701, "Bob");
  users.Command(702);
  EXPECT_EQ(app.CommandAndAnswer(users, IDOK), Texts{});
  other.join();
  EXPECT_EQ(folder.Read("users.ASC"), "Ann\r\nBob");
}

}  // namespace
}  // namespace velnor::desktop

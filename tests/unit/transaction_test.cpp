#include "base/transaction.h"

#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <span>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "base/file_calls.h"
#include "base/note.h"
#include "base/text_file.h"
#include "tests/support/file_size_limit.h"
#include "tests/support/temporary_folder.h"

namespace velnor {
namespace {

using Texts = std::vector<std::string>;

class TransactionTest : public testing::Test {
 protected:
  TransactionTest() {
    std::filesystem::create_directory(Path("Ann"));
    folder_.Write("Ann/one", "old one");
    folder_.Write("Ann/two", "old two\r\n");
    folder_.Write("users.ASC", "Ann");
  }

  std::string Path(const std::string& name) const { return folder_.path() + name; }
  std::string Read(const std::string& name) const { return folder_.Read(name); }
  Texts NamesInAnn() const {
    Texts names;
    for (const auto& entry : std::filesystem::directory_iterator(Path("Ann"))) {
      names.push_back(entry.path().filename().string());
    }
    std::ranges::sort(names);
    return names;
  }
  void ExpectNothingChanged() const {
    EXPECT_EQ(Read("Ann/one"), "old one");
    EXPECT_EQ(Read("Ann/two"), "old two\r\n");
    EXPECT_EQ(Read("users.ASC"), "Ann");
    EXPECT_EQ(folder_.Names(), (Texts{"Ann", "users.ASC"}));
    EXPECT_EQ(NamesInAnn(), (Texts{"one", "two"}));
  }
  void WriteNote(std::span<const Change> changes) const {
    folder_.Write(std::string(kNoteFile), NoteBytes(changes));
  }
  Change NotedReplace(const std::string& path, const std::string& bytes) const {
    folder_.Write(path + ".velnor-1.new", bytes);
    return {.kind = ChangeKind::kReplace,
            .path = path,
            .beside = path + ".velnor-1.new",
            .size = bytes.size(),
            .checksum = Checksum(bytes)};
  }

  TemporaryFolder folder_;
};

TEST_F(TransactionTest, MakesAllItsChanges) {
  Transaction deed(folder_.path());
  ASSERT_TRUE(deed.has_begun());
  deed.Replace(Path("Ann/one"), "new one");
  deed.Append(Path("Ann/two"), "more\n");
  deed.Append(Path("Ann/three"), "first\n");
  deed.Remove(Path("users.ASC"));
  ASSERT_TRUE(deed.Commit());
  EXPECT_EQ(Read("Ann/one"), "new one");
  EXPECT_EQ(Read("Ann/two"), "old two\r\nmore\r\n");
  EXPECT_EQ(Read("Ann/three"), "first\r\n");
  EXPECT_EQ(folder_.Names(), (Texts{"Ann"}));
  EXPECT_EQ(NamesInAnn(), (Texts{"one", "three", "two"}));
}

TEST_F(TransactionTest, ChangesNothingWithoutCommit) {
  {
    Transaction deed(folder_.path());
    deed.Replace(Path("Ann/one"), "new one");
    deed.Append(Path("Ann/two"), "more\n");
    deed.Remove(Path("users.ASC"));
  }
  ExpectNothingChanged();
}

TEST_F(TransactionTest, MakesAFolderAndTheFilesInIt) {
  Transaction deed(folder_.path());
  deed.MakeFolder(Path("Eve"));
  deed.Replace(Path("Eve/one"), "1");
  deed.Replace(Path("Eve/two"), "");
  deed.Append(Path("Eve/three"), "3");
  deed.Append(Path("Eve/four"), "");
  ASSERT_TRUE(deed.Commit());
  EXPECT_EQ(Read("Eve/one"), "1");
  EXPECT_EQ(Read("Eve/two"), "");
  EXPECT_EQ(Read("Eve/three"), "3");
  EXPECT_EQ(Read("Eve/four"), "");
  EXPECT_EQ(folder_.Names(), (Texts{"Ann", "Eve", "users.ASC"}));
}

TEST_F(TransactionTest, RemovesAFolderWithWhatProcessesHaveLeftInIt) {
  folder_.Write("Ann/one.velnor-1.new", "left");
  Transaction deed(folder_.path());
  for (const char* const name : {"Ann/one", "Ann/two", "Ann/missing"}) deed.Remove(Path(name));
  deed.RemoveFolder(Path("Ann"));
  deed.RemoveFolder(Path("Bob"));
  ASSERT_TRUE(deed.Commit());
  EXPECT_EQ(folder_.Names(), (Texts{"users.ASC"}));
}

TEST_F(TransactionTest, LeavesAFolderWithSomethingElseInIt) {
  Transaction deed(folder_.path());
  deed.Remove(Path("Ann/one"));
  deed.RemoveFolder(Path("Ann"));
  ASSERT_TRUE(deed.Commit());
  EXPECT_EQ(NamesInAnn(), (Texts{"two"}));
}

TEST_F(TransactionTest, AddsUpWhatIsAppendedAndKeepsTheLastReplacement) {
  Transaction deed(folder_.path());
  deed.Append(Path("Ann/two"), "a\n");
  deed.Append(Path("Ann/two"), "b\n");
  deed.Replace(Path("Ann/one"), "1");
  deed.Replace(Path("Ann/one"), "2");
  ASSERT_TRUE(deed.Commit());
  EXPECT_EQ(Read("Ann/two"), "old two\r\na\r\nb\r\n");
  EXPECT_EQ(Read("Ann/one"), "2");
}

TEST_F(TransactionTest, ChangesAFileInOneWayOnly) {
  Transaction deed(folder_.path());
  deed.Replace(Path("Ann/one"), "1");
  deed.Append(Path("Ann/one"), "2");
  EXPECT_FALSE(deed.Commit());
  ExpectNothingChanged();
}

TEST_F(TransactionTest, ChangesNothingOutsideItsFolder) {
  for (const char* const name : {"../x", "Ann/../../x", ""}) {
    Transaction deed(folder_.path());
    deed.Replace(Path(name), "1");
    EXPECT_FALSE(deed.Commit()) << name;
  }
  Transaction deed(Path("Ann/"));
  deed.Replace(Path("users.ASC"), "Eve");
  EXPECT_FALSE(deed.Commit());
  ExpectNothingChanged();
}

TEST_F(TransactionTest, AnEmptyAppendMakesTheFileAndChangesNone) {
  Transaction deed(folder_.path());
  deed.Append(Path("Ann/one"), "");
  deed.Append(Path("Ann/new"), "");
  ASSERT_TRUE(deed.Commit());
  EXPECT_EQ(Read("Ann/one"), "old one");
  EXPECT_EQ(Read("Ann/new"), "");
}

TEST_F(TransactionTest, WithoutChangesIsMade) {
  EXPECT_TRUE(Transaction(folder_.path()).Commit());
  ExpectNothingChanged();
}

// --- what is refused

TEST_F(TransactionTest, OneRefusedFileKeepsAllTheOthers) {
  std::filesystem::permissions(Path("users.ASC"), std::filesystem::perms{0444});
  const std::vector<void (*)(Transaction&, const std::string&)> refused = {
      [](Transaction& deed, const std::string& folder) { deed.Replace(folder + "users.ASC", ""); },
      [](Transaction& deed, const std::string& folder) { deed.Append(folder + "users.ASC", "x"); },
      [](Transaction& deed, const std::string& folder) { deed.Remove(folder + "users.ASC"); },
      [](Transaction& deed, const std::string& folder) { deed.Replace(folder + "Ann", "x"); },
      [](Transaction& deed, const std::string& folder) { deed.Append(folder + "Ann", "x"); },
      [](Transaction& deed, const std::string& folder) { deed.Replace(folder + "Bob/one", "x"); },
      [](Transaction& deed, const std::string& folder) { deed.Append(folder + "Bob/one", "x"); },
  };
  for (const auto& refuse : refused) {
    Transaction deed(folder_.path());
    deed.Replace(Path("Ann/one"), "new");
    deed.Append(Path("Ann/two"), "more");
    refuse(deed, folder_.path());
    EXPECT_FALSE(deed.Commit());
    ExpectNothingChanged();
  }
}

// A link to itself can be replaced but not read.
TEST_F(TransactionTest, WhatCannotBeReadIsNotAppendedTo) {
  std::filesystem::create_symlink(Path("link"), Path("link"));
  Transaction deed(folder_.path());
  deed.Append(Path("link"), "one\n");
  EXPECT_FALSE(deed.Commit());
  EXPECT_TRUE(std::filesystem::is_symlink(Path("link")));
}

// The disk is full in the middle of the text, when the note stands already.
TEST_F(TransactionTest, AFullDiskTakesBackWhatWasAppended) {
  const std::string old(1000, 'o');
  folder_.Write("Ann/two", old);
  const FileSizeLimit limit(1900);
  Transaction deed(folder_.path());
  deed.Replace(Path("Ann/one"), "new one");
  deed.MakeFolder(Path("Eve"));
  deed.Append(Path("Ann/two"), std::string(1000, 'n'));
  EXPECT_FALSE(deed.Commit());
  EXPECT_EQ(Read("Ann/two"), old);
  EXPECT_EQ(Read("Ann/one"), "old one");
  EXPECT_EQ(folder_.Names(), (Texts{"Ann", "users.ASC"}));
  EXPECT_EQ(NamesInAnn(), (Texts{"one", "two"}));
}

// --- the note

TEST_F(TransactionTest, TheNextOneFinishesWhatWasCutOff) {
  WriteNote(std::vector<Change>{
      {.kind = ChangeKind::kMakeFolder, .path = "Eve"},
      {.kind = ChangeKind::kAppend, .path = "Ann/two", .size = 9, .text = "more\r\n"},
      NotedReplace("Ann/one", "new one"),
      {.kind = ChangeKind::kRemove, .path = "users.ASC"}});
  EXPECT_TRUE(Transaction(folder_.path()).has_begun());
  EXPECT_EQ(Read("Ann/one"), "new one");
  EXPECT_EQ(Read("Ann/two"), "old two\r\nmore\r\n");
  EXPECT_EQ(folder_.Names(), (Texts{"Ann", "Eve"}));
  EXPECT_EQ(NamesInAnn(), (Texts{"one", "two"}));
}

TEST_F(TransactionTest, WhatWasCutOffIsMadeOnceHoweverFarItHadCome) {
  const std::vector<Change> changes = {
      {.kind = ChangeKind::kMakeFolder, .path = "Ann"},
      {.kind = ChangeKind::kAppend, .path = "Ann/two", .size = 9, .text = "more\r\n"},
      {.kind = ChangeKind::kReplace, .path = "Ann/one", .beside = "Ann/one.velnor-1.new"},
      {.kind = ChangeKind::kRemove, .path = "gone"},
      {.kind = ChangeKind::kRemoveFolder, .path = "gone too"}};
  for (const char* const tail : {"", "mo", "\n\n\n\n\n\n", "more\r\n"}) {
    folder_.Write("Ann/two", "old two\r\n" + std::string(tail));
    WriteNote(changes);
    FinishWhatWasBegun(folder_.path());
    EXPECT_EQ(Read("Ann/one"), "old one");  // its new bytes have taken their place
    EXPECT_EQ(Read("Ann/two"), "old two\r\nmore\r\n") << tail;
    EXPECT_EQ(Read(std::string(kNoteFile)), "(missing)");
  }
}

TEST_F(TransactionTest, WhatSomebodyHasChangedSinceIsNotOverwritten) {
  WriteNote(std::vector<Change>{
      {.kind = ChangeKind::kAppend, .path = "Ann/one", .size = 100, .text = "more"},
      {.kind = ChangeKind::kAppend, .path = "Ann/two", .size = 3, .text = "more"},
      {.kind = ChangeKind::kAppend, .path = "Ann/gone", .size = 3, .text = "more"}});
  FinishWhatWasBegun(folder_.path());
  ExpectNothingChanged();
}

TEST_F(TransactionTest, ANoteThatIsNotWholeIsRemoved) {
  const std::string bytes =
      NoteBytes(std::vector<Change>{{.kind = ChangeKind::kRemove, .path = "users.ASC"}});
  for (const std::string& spoiled : {std::string(), bytes.substr(0, bytes.size() - 1),
                                     "V" + bytes.substr(1), std::string(5000, '\0')}) {
    folder_.Write(std::string(kNoteFile), spoiled);
    EXPECT_TRUE(Transaction(folder_.path()).has_begun());
    ExpectNothingChanged();
  }
}

TEST_F(TransactionTest, ANoteWhoseNewBytesAreNotWholeIsRemoved) {
  const Change replace = NotedReplace("Ann/one", "new one");
  folder_.Write("Ann/one.velnor-1.new", "new on");
  WriteNote(std::vector<Change>{replace, {.kind = ChangeKind::kRemove, .path = "users.ASC"}});
  OpenDataFolder(folder_.path());
  ExpectNothingChanged();
}

TEST_F(TransactionTest, ANoteOfAnotherVersionIsKeptAside) {
  folder_.Write("velnor.zapis", "velnor.zapis 2 of tomorrow");
  folder_.Write("Ann/one.velnor-1.new", "of tomorrow");
  OpenDataFolder(folder_.path());
  EXPECT_EQ(folder_.Names(), (Texts{"Ann", "users.ASC", "velnor.zapis.obcy"}));
  EXPECT_EQ(Read("velnor.zapis.obcy"), "velnor.zapis 2 of tomorrow");
  EXPECT_EQ(Read("Ann/one.velnor-1.new"), "of tomorrow");
  folder_.Write("velnor.zapis", "velnor.zapis 3 of the day after");
  EXPECT_TRUE(Transaction(folder_.path()).has_begun());
  EXPECT_EQ(Read("velnor.zapis.obcy"), "velnor.zapis 2 of tomorrow");
  EXPECT_EQ(Read("velnor.zapis.obcy.2"), "velnor.zapis 3 of the day after");
}

TEST_F(TransactionTest, NothingBeginsWhileWhatWasCutOffCannotBeFinished) {
  std::filesystem::create_directory(Path("in the way"));
  folder_.Write("in the way/file", "");
  WriteNote(std::vector<Change>{NotedReplace("in the way", "new")});
  Transaction deed(folder_.path());
  EXPECT_FALSE(deed.has_begun());
  deed.Replace(Path("Ann/one"), "new one");
  EXPECT_FALSE(deed.Commit());
  EXPECT_EQ(Read("Ann/one"), "old one");
  std::filesystem::remove_all(Path("in the way"));
  EXPECT_FALSE(deed.Commit());  // over is over
  EXPECT_TRUE(Transaction(folder_.path()).has_begun());
  EXPECT_EQ(Read("in the way"), "new");
}

TEST_F(TransactionTest, ProcessesThatEndedLeaveNothing) {
  for (const char* const name : {"users.ASC.velnor-12.new", "Ann/one.velnor-345.new"}) {
    folder_.Write(name, "left");
  }
  folder_.Write("Ann/mine.velnor-.new", "");
  folder_.Write("Ann/mine.velnor-1a.new", "");
  folder_.Write("Ann/mine.new", "");
  OpenDataFolder(folder_.path());
  EXPECT_EQ(folder_.Names(), (Texts{"Ann", "users.ASC"}));
  EXPECT_EQ(NamesInAnn(),
            (Texts{"mine.new", "mine.velnor-.new", "mine.velnor-1a.new", "one", "two"}));
}

// --- the lock

TEST_F(TransactionTest, WaitsForAnotherProgramAndNotForever) {
  const pid_t child = fork();
  if (child == 0) {
    const FolderLock lock(folder_.path());
    for (;;) pause();
  }
  // The child has it as soon as we have not.
  for (LockHandle handle = {}; LockFolder(folder_.path(), handle) == LockAnswer::kLocked;) {
    UnlockFolder(handle);
  }
  Transaction refused(folder_.path());
  EXPECT_FALSE(refused.has_begun());
  refused.Replace(Path("Ann/one"), "new");
  EXPECT_FALSE(refused.Commit());
  kill(child, SIGKILL);
  EXPECT_TRUE(Transaction(folder_.path()).has_begun());
  waitpid(child, nullptr, 0);
  ExpectNothingChanged();
}

TEST_F(TransactionTest, TheLockIsFreeAfterTheCommit) {
  Transaction first(folder_.path());
  first.Replace(Path("Ann/one"), "1");
  EXPECT_TRUE(first.Commit());
  EXPECT_TRUE(Transaction(folder_.path()).has_begun());
}

TEST_F(TransactionTest, WithoutAFolderNothingBegins) {
  EXPECT_FALSE(Transaction(Path("missing/")).has_begun());
}

// Several processes count in one file; what one has counted no other loses.
TEST_F(TransactionTest, ProcessesTakeTurns) {
  constexpr int kProcesses = 4;
  constexpr int kCounts = 50;
  folder_.Write("count", "0");
  folder_.Write("report", "");
  std::vector<pid_t> children;
  for (int i = 0; i < kProcesses; ++i) {
    children.push_back(fork());
    if (children.back() != 0) continue;
    // On a slow disk a turn may come too late; what is refused is done again.
    for (int count = 0; count < kCounts;) {
      Transaction deed(folder_.path());
      const std::string before = ReadFile(Path("count"), 100);
      deed.Replace(Path("count"), std::to_string(std::stoi("0" + before) + 1));
      deed.Append(Path("report"), "one\n");
      if (deed.Commit()) ++count;
    }
    _exit(0);
  }
  for (const pid_t child : children) {
    int status = -1;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
  }
  EXPECT_EQ(Read("count"), std::to_string(kProcesses * kCounts));
  EXPECT_EQ(Read("report").size(), 5U * kProcesses * kCounts);
  EXPECT_EQ(folder_.Names(), (Texts{"Ann", "count", "report", "users.ASC"}));
}

}  // namespace
}  // namespace velnor

#include "users/restore.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "tests/support/data_folder.h"
#include "tests/support/file_size_limit.h"
#include "tests/support/tree.h"
#include "users/backup.h"

namespace velnor {
namespace {

namespace fs = std::filesystem;

class RestoreTest : public DataFolderTest {
 protected:
  void SetUp() override {
    DataFolderTest::SetUp();
    Write("Ann/by hand.txt", "not ours");
    before_ = Data();
    copy_ = MakeCopyIn(Base(), Base(), "2026-11-21").value().path + kPathSeparator;
  }

  // Everything but the copies.
  Tree Data() const {
    Tree tree = TreeBelow(Base());
    std::erase_if(tree, [](const auto& file) {
      return file.first.starts_with(kCopiesFolder) || file.first.starts_with("Velnor ");
    });
    return tree;
  }

  RestoreAnswer BringBack(const std::string& folder) const {
    return Restore(session_, ReadCopyIn(folder).value());
  }

  SessionState session_{.base_folder = Base()};
  Tree before_;
  std::string copy_;
};

TEST_F(RestoreTest, EveryFileOfOursIsAsItWas) {
  Write("data.txt", "");
  Write("Ann/info.ASC", "31\r\n170");
  Write("Ann/bilans.ASC", "begun since");
  Write("Ann/waga.ASC.rest.txt", "kept since");
  fs::remove(Base() + "Ann/waga.ASC");
  fs::remove_all(Base() + "Bob");
  ASSERT_EQ(BringBack(copy_), RestoreAnswer::kRestored);
  EXPECT_EQ(Data(), before_);
}

TEST_F(RestoreTest, FilesOfOthersStay) {
  Write("Ann/photo.jpg", "put there since");
  Write("velnor.exe", "program");
  ASSERT_EQ(BringBack(copy_), RestoreAnswer::kRestored);
  before_["Ann/photo.jpg"] = "put there since";
  before_["velnor.exe"] = "program";
  EXPECT_EQ(Data(), before_);
}

TEST_F(RestoreTest, WhoCameSinceStays) {
  Write("users.ASC", "Zoe\r\nAnn");
  Write("Zoe/info.ASC", "20");
  ASSERT_EQ(BringBack(copy_), RestoreAnswer::kRestored);
  before_["users.ASC"] = "Ann\r\nBob\r\nZoe";
  before_["Zoe/info.ASC"] = "20";
  EXPECT_EQ(Data(), before_);
}

TEST_F(RestoreTest, TheListKeepsItsBytesWhereNobodyIsToBeAdded) {
  Write("users.ASC", "Bob\n\nAnn\n");
  const std::string copy = MakeCopyIn(Base(), Base(), "2026-11-22").value().path + kPathSeparator;
  Write("users.ASC", "Ann\r\nBob");
  ASSERT_EQ(BringBack(copy), RestoreAnswer::kRestored);
  EXPECT_EQ(Data()["users.ASC"], "Bob\n\nAnn\n");
}

// The exchange files of a removed person stay, and their folder with them.
TEST_F(RestoreTest, WhoHadBeenRemovedBeforeTheCopyIsNotListedAgain) {
  Write("users.ASC", "Ann");
  fs::remove(Base() + "Bob/info.ASC");
  Write("Bob/z1.ASC", "8.");
  const std::string copy = MakeCopyIn(Base(), Base(), "2026-11-22").value().path + kPathSeparator;
  Write("Bob/z1.ASC", "9.");
  ASSERT_EQ(BringBack(copy), RestoreAnswer::kRestored);
  EXPECT_EQ(Data()["users.ASC"], "Ann");
  EXPECT_EQ(Data()["Bob/z1.ASC"], "8.");
}

TEST_F(RestoreTest, NamesThatDifferInCaseAloneAreOne) {
  Write("users.ASC", "ANN\r\nBob");
  ASSERT_EQ(BringBack(copy_), RestoreAnswer::kRestored);
  EXPECT_EQ(Data()["users.ASC"], "Ann\r\nBob");
}

TEST_F(RestoreTest, TheCopyOfOnePersonLeavesTheOthersAndTheProductsAlone) {
  ASSERT_TRUE(MakeCopyBefore(Base(), {"2026-11-21", "13:05:09"}, "remove user", "Bob"));
  Write("users.ASC", "Ann");
  Write("data.txt", "changed");
  Write("Ann/info.ASC", "31");
  fs::remove_all(Base() + "Bob");
  const Tree present = Data();
  ASSERT_EQ(BringBack(Base() + "kopie zapasowe/2026-11-21 130509/"), RestoreAnswer::kRestored);
  Tree expected = present;
  expected["users.ASC"] = "Ann\r\nBob";
  expected["Bob/info.ASC"] = "";
  EXPECT_EQ(Data(), expected);
}

TEST_F(RestoreTest, CanBeUndone) {
  Write("Ann/info.ASC", "31\r\n170");
  const Tree present = Data();
  ASSERT_EQ(BringBack(copy_), RestoreAnswer::kRestored);
  const std::vector<ListedCopy> copies = ListCopies(Base());
  ASSERT_EQ(copies.size(), 1U);
  EXPECT_EQ(copies[0].about, "Restore");
  ASSERT_EQ(BringBack(copies[0].path + kPathSeparator), RestoreAnswer::kRestored);
  EXPECT_EQ(Data(), present);
  EXPECT_EQ(ListCopies(Base()).size(), 2U);
}

TEST_F(RestoreTest, NothingIsRestoredThatCannotBeUndone) {
  Write("kopie zapasowe", "a file of this name");
  Write("Ann/info.ASC", "31\r\n170");
  const Tree present = Data();
  EXPECT_EQ(BringBack(copy_), RestoreAnswer::kNotCopied);
  EXPECT_EQ(Data(), present);
}

TEST_F(RestoreTest, AListThatWouldBeTooLongIsRefused) {
  std::string list;
  for (int i = 0; i < 99; ++i) list += "Person" + std::to_string(1000 + i) + "\r\n";
  list += "The";
  Write("users.ASC", list);
  const Tree present = Data();
  EXPECT_EQ(BringBack(copy_), RestoreAnswer::kListTooLong);
  EXPECT_EQ(Data(), present);
}

TEST_F(RestoreTest, AFullDiskChangesNothing) {
  Write("Ann/mirvo.ASC", std::string(100'000, 'x'));
  const std::string copy = MakeCopyIn(Base(), Base(), "2026-11-22").value().path + kPathSeparator;
  Write("Ann/mirvo.ASC", "short now");
  const Tree present = Data();
  const FileSizeLimit limit(50'000);
  EXPECT_EQ(BringBack(copy), RestoreAnswer::kNotWritten);
  EXPECT_EQ(Data(), present);
}

TEST_F(RestoreTest, ReadsNoCopyWhereThereIsNone) {
  EXPECT_FALSE(ReadCopyIn(Base() + "nowhere/"));
  EXPECT_FALSE(ReadCopyIn(Base() + "Ann/"));
  fs::create_directory(Base() + "empty");
  EXPECT_FALSE(ReadCopyIn(Base() + "empty/"));
}

}  // namespace
}  // namespace velnor

#include "base/text_file.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <vector>

#include "tests/support/file_size_limit.h"
#include "tests/support/temporary_folder.h"

namespace velnor {
namespace {

using namespace std::string_literals;

std::vector<std::string> Lines(std::string_view text, std::size_t limit = 99) {
  std::vector<std::string> lines;
  LineReader reader(text, limit);
  while (const auto line = reader.Next()) lines.emplace_back(*line);
  return lines;
}

using Texts = std::vector<std::string>;

TEST(LineReaderTest, AcceptsEitherLineEndAndNoneAtTheEnd) {
  EXPECT_EQ(Lines("one\r\ntwo\nthree"), (Texts{"one", "two", "three"}));
  EXPECT_EQ(Lines("one\n"), (Texts{"one"}));
  EXPECT_EQ(Lines("\n\r\n\n"), (Texts{"", "", ""}));
  EXPECT_EQ(Lines(""), Texts{});
}

TEST(LineReaderTest, LeavesALoneCarriageReturnInTheLine) {
  EXPECT_EQ(Lines("a\rb\r"), (Texts{"a\rb\r"}));
  EXPECT_EQ(Lines("a\r\r\nb"), (Texts{"a\r", "b"}));
}

TEST(LineReaderTest, SplitsALongLineIntoPieces) {
  EXPECT_EQ(Lines("abcdefgh\nij", 3), (Texts{"abc", "def", "gh", "ij"}));
}

TEST(LineReaderTest, CountsTheLineEndAsACharacterOfThePiece) {
  // The end of a line of exactly the limit makes a piece of its own.
  EXPECT_EQ(Lines("abc\nd", 3), (Texts{"abc", "", "d"}));
  EXPECT_EQ(Lines("abc\r\nd", 3), (Texts{"abc", "", "d"}));
  EXPECT_EQ(Lines("ab\r\nd", 3), (Texts{"ab", "d"}));
  EXPECT_EQ(Lines("ab\nd", 3), (Texts{"ab", "d"}));
  EXPECT_EQ(Lines("ab\r\rd\n", 3), (Texts{"ab\r", "\rd"}));
  EXPECT_EQ(Lines("abcd\r\n", 3), (Texts{"abc", "d"}));
}

TEST(LineReaderTest, DropsWhatFollowsANul) {
  EXPECT_EQ(Lines("ab\0cd\nef\n\0\n"s), (Texts{"ab", "ef", ""}));
}

TEST(ReadFileTest, ReadsTheBytesUpToTheLimit) {
  const TemporaryFolder folder;
  const std::string path = folder.Write("file", "one\r\ntwo\0\x1A\n"s);
  EXPECT_EQ(ReadFile(path, 1000), "one\r\ntwo\0\x1A\n"s);
  EXPECT_EQ(ReadFile(path, 4), "one\r");
  EXPECT_EQ(ReadFile(path, 0), "");
}

TEST(ReadFileTest, ReadsFilesLargerThanABlock) {
  const TemporaryFolder folder;
  const std::string bytes(1'000'000, 'x');
  EXPECT_EQ(ReadFile(folder.Write("large", bytes), 10'000'000), bytes);
  EXPECT_EQ(ReadFile(folder.Write("large", bytes), 65'537).size(), 65'537U);
}

TEST(ReadFileTest, GivesNothingForWhatCannotBeRead) {
  const TemporaryFolder folder;
  EXPECT_EQ(ReadFile(folder.path() + "missing", 100), "");
  EXPECT_EQ(ReadFile(folder.path(), 100), "");  // a folder
  EXPECT_EQ(ReadFile(folder.Write("empty", ""), 100), "");
}

TEST(ReadFileTest, TellsWhatCannotBeReadFromWhatIsNotThere) {
  const TemporaryFolder folder;
  EXPECT_EQ(ReadFileToRewrite(folder.path() + "missing", 100), "");
  EXPECT_EQ(ReadFileToRewrite(folder.Write("empty", ""), 100), "");
  EXPECT_EQ(ReadFileToRewrite(folder.path(), 100), std::nullopt);  // a folder
}

TEST(ReadFileTest, AMissingFolderIsNoMissingFile) {
  const TemporaryFolder folder;
  EXPECT_EQ(ReadFileToRewrite(folder.path() + "Ann/info.ASC", 100), std::nullopt);
  EXPECT_EQ(ReadFileToRewrite("no such file in the current folder", 100), "");
}

TEST(FileExistsTest, TellsWhatCanBeOpened) {
  const TemporaryFolder folder;
  EXPECT_TRUE(FileExists(folder.Write("file", "")));
  EXPECT_FALSE(FileExists(folder.path() + "missing"));
  EXPECT_FALSE(FileExists(folder.path() + "missing/file"));
}

TEST(LineReaderTest, KeepsTheBytesBehindANulWhenAskedForTheWholePiece) {
  const std::string text = "ab\0cd\r\nef\nrest"s;
  LineReader reader(text, 149);
  EXPECT_EQ(reader.NextWhole(), "ab\0cd"s);
  EXPECT_EQ(reader.NextWhole(), "ef");
  EXPECT_EQ(reader.rest(), "rest");
}

TEST(WithCrLfTest, EndsEveryLineTheSameWay) {
  EXPECT_EQ(WithCrLf("a\nb\r\nc\n\n"), "a\r\nb\r\nc\r\n\r\n");
  EXPECT_EQ(WithCrLf("a\rb"), "a\rb");
  EXPECT_EQ(WithCrLf(""), "");
}

TEST(ReplaceFileTest, GivesTheFileItsNewBytes) {
  const TemporaryFolder folder;
  EXPECT_TRUE(ReplaceFile(folder.path() + "file", "one\n"));
  EXPECT_EQ(folder.Read("file"), "one\n");
  EXPECT_TRUE(ReplaceFile(folder.path() + "file", "two\0\r\n"s));
  EXPECT_EQ(folder.Read("file"), "two\0\r\n"s);
  EXPECT_TRUE(ReplaceFile(folder.path() + "file", ""));
  EXPECT_EQ(folder.Read("file"), "");
  EXPECT_EQ(folder.Names(), (Texts{"file"}));
}

TEST(ReplaceFileTest, AFullDiskLeavesTheFileAsItWas) {
  const TemporaryFolder folder;
  const std::string old(1000, 'o');
  const std::string path = folder.Write("file", old);
  const FileSizeLimit limit(1500);
  EXPECT_FALSE(ReplaceFile(path, std::string(2000, 'n')));
  EXPECT_EQ(folder.Read("file"), old);
  EXPECT_EQ(folder.Names(), (Texts{"file"}));
}

TEST(ReplaceFileTest, AWriteProtectedFileStays) {
  const TemporaryFolder folder;
  const std::string path = folder.Write("file", "old");
  std::filesystem::permissions(path, std::filesystem::perms{0444});
  EXPECT_FALSE(ReplaceFile(path, "new"));
  EXPECT_EQ(folder.Read("file"), "old");
  EXPECT_EQ(folder.Names(), Texts{"file"});
  std::filesystem::permissions(path, std::filesystem::perms{0464});  // somebody may write it
  EXPECT_TRUE(ReplaceFile(path, "new"));
}

TEST(ReplaceFileTest, WhatCannotBeReplacedStays) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.path() + "file");
  EXPECT_FALSE(ReplaceFile(folder.path() + "file", "new"));
  EXPECT_EQ(folder.Names(), (Texts{"file"}));
  EXPECT_FALSE(ReplaceFile(folder.path() + "missing/file", "new"));
}

}  // namespace
}  // namespace velnor

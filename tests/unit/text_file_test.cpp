#include "base/text_file.h"

#include <gtest/gtest.h>
#include <vector>

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

}  // namespace
}  // namespace velnor

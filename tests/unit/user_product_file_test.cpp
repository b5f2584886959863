#include "food/user_product_file.h"

#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "base/text_file.h"
#include "tests/support/committed.h"
#include "tests/support/temporary_folder.h"

namespace velnor {
namespace {

using namespace std::string_literals;
using Names = std::vector<std::string>;

constexpr ProductRecord kApplePie = {"fruits", "fresh", "apple pie", "100",
                                     "237",    "1.9",   "11",        "34.0"};

class UserProductFileTest : public testing::Test {
 protected:
  std::string Path() const { return folder_.path() + "data.txt"; }
  std::string Bytes() const { return folder_.Read("data.txt"); }
  void Write(std::string_view bytes) const { folder_.Write("data.txt", bytes); }

  TemporaryFolder folder_;
};

std::string Line(const std::string& name) { return "fruits;fresh;" + name + ";100;1;1;1;1;\r\n"; }

TEST_F(UserProductFileTest, AppendsALine) {
  EXPECT_TRUE(Committed(folder_.path(), AddUserProduct, Path(), kApplePie));
  EXPECT_EQ(Bytes(), "fruits;fresh;apple pie;100;237;1.9;11;34.0;\r\n");
  EXPECT_TRUE(Committed(folder_.path(), AddUserProduct, Path(),
                        ProductRecord{"a", "b;c", "d", "", "x", "1x", "?", "4"}));
  EXPECT_EQ(Bytes(), "fruits;fresh;apple pie;100;237;1.9;11;34.0;\r\na;b;c;d;;x;1x;?;4;\r\n");
}

TEST_F(UserProductFileTest, ALastLineWithoutAnEndKeepsItsProduct) {
  Write("fruits;fresh;fig;100;1;1;1;1;");
  EXPECT_TRUE(Committed(folder_.path(), AddUserProduct, Path(), kApplePie));
  EXPECT_EQ(Bytes(),
            "fruits;fresh;fig;100;1;1;1;1;\r\nfruits;fresh;apple pie;100;237;1.9;11;34.0;\r\n");
}

TEST_F(UserProductFileTest, AppendsManyLinesBehindAnOpenOne) {
  Write("fruits;fresh;fig;100;1;1;1;1;");
  const ProductRecord plum = {"fruits", "fresh", "plum", "100", "1", "1", "1", "1"};
  const std::vector<ProductRecord> products = {kApplePie, plum};
  EXPECT_TRUE(Committed(folder_.path(), AddUserProducts, Path(), products));
  EXPECT_EQ(Bytes(),
            Line("fig") + "fruits;fresh;apple pie;100;237;1.9;11;34.0;\r\n" + Line("plum"));
}

TEST_F(UserProductFileTest, WhatCannotBeReadOrWrittenIsReported) {
  std::filesystem::create_directory(Path());
  EXPECT_FALSE(Committed(folder_.path(), RemoveUserProduct, Path(), "apple pie"));
  EXPECT_FALSE(Committed(folder_.path(), AddUserProduct, Path(), kApplePie));
}

TEST_F(UserProductFileTest, ListsTheThirdFields) {
  Write("a;b;first;1;\r\n\na;b;;1;\nno field\na;b\na;b;open");
  EXPECT_EQ(ReadUserProductNames(Path()), (Names{"first", "", "open"}));
  EXPECT_EQ(ReadUserProductNames(folder_.path() + "missing"), Names{});
}

TEST_F(UserProductFileTest, ListsAThousandLines) {
  std::string lines = "\n";
  for (int i = 0; i < 1500; ++i) lines += Line("product " + std::to_string(i));
  Write(lines);
  const Names names = ReadUserProductNames(Path());
  ASSERT_EQ(names.size(), 999U);
  EXPECT_EQ(names.back(), "product 998");
}

TEST_F(UserProductFileTest, ListsLongLinesInPieces) {
  Write("a;b;" + std::string(400, 'x') + ";1;\na;b;next;\n");
  EXPECT_EQ(ReadUserProductNames(Path()), (Names{std::string(295, 'x'), "", "next"}));
}

TEST_F(UserProductFileTest, RemovesEveryLineOfTheName) {
  Write(Line("fig") + Line("apple pie") + Line("apple cake") + Line("apple pie"));
  EXPECT_TRUE(Committed(folder_.path(), RemoveUserProduct, Path(), "apple pie"));
  EXPECT_EQ(Bytes(), Line("fig") + Line("apple cake"));
  EXPECT_EQ(folder_.Names(), (Names{"data.txt"}));
}

TEST(IsRemovedWithTest, ComparesAtAFewPositionsOfTheName) {
  // "apple pie", 9 characters: 0 to 3, (n-1)/2 = 4, (n-1)/3 = 2, (n-1)/4 = 2, 8.
  EXPECT_TRUE(IsRemovedWith("fruits;fresh;apple pie;100;", "apple pie"));
  EXPECT_TRUE(IsRemovedWith("fruits;fresh;appleXXXe;100;", "apple pie"));
  EXPECT_FALSE(IsRemovedWith("fruits;fresh;applX pie;100;", "apple pie"));
  EXPECT_FALSE(IsRemovedWith("fruits;fresh;apple piX;100;", "apple pie"));
  EXPECT_FALSE(IsRemovedWith("fruits;fresh;appXe pie;100;", "apple pie"));
  EXPECT_FALSE(IsRemovedWith("fruits;fresh;Xpple pie;100;", "apple pie"));
  // "abcdefghijklm", 13: also (n-1)/2 = 6, (n-1)/3 = 4, (n-1)/4 = 3 and 12.
  EXPECT_TRUE(IsRemovedWith("m;s;abcdeXgXXXXXm;", "abcdefghijklm"));
  EXPECT_FALSE(IsRemovedWith("m;s;abcdXfghijklm;", "abcdefghijklm"));
  EXPECT_FALSE(IsRemovedWith("m;s;abcdefXhijklm;", "abcdefghijklm"));
}

TEST(IsRemovedWithTest, LooksThroughTheWholeLine) {
  EXPECT_TRUE(IsRemovedWith("apple pie;fresh;cherrypie;100;", "apple pie"));
  EXPECT_FALSE(IsRemovedWith("apple pie;fresh;cherry pie;100;", "apple pie"));  // 10 characters
}

TEST(IsRemovedWithTest, NeedsANameOfTheSameLength) {
  EXPECT_FALSE(IsRemovedWith("m;s;apple pies;100;", "apple pie"));
  EXPECT_FALSE(IsRemovedWith("m;s;apple pi;100;", "apple pie"));
  const std::string fits(59, 'a');
  EXPECT_TRUE(IsRemovedWith("m;s;" + fits + ";1;", fits));
  // Of a longer name only 59 characters count, so it never has the same length.
  EXPECT_FALSE(IsRemovedWith("m;s;" + fits + "a;1;", fits + "a"));
  EXPECT_TRUE(IsRemovedWith("m;s;" + fits + "a;1;", fits));
}

TEST(IsRemovedWithTest, ShortLinesAndShortNames) {
  EXPECT_FALSE(IsRemovedWith("", ""));
  EXPECT_FALSE(IsRemovedWith("a;b;c", "c"));
  EXPECT_FALSE(IsRemovedWith("a;b;fig;100;", "fig"));  // a fourth character would have to follow
  EXPECT_TRUE(IsRemovedWith("a;b;;100;", ""));
}

TEST_F(UserProductFileTest, KeepsEverythingElse) {
  const std::string nul = "m;s;nul\0 inside;100;"s;
  const std::string long_line(200, 'x');
  Write("\r\n" + nul + "\n" + long_line + "\n\n" + "abc\n" + Line("apple pie") + "last");
  EXPECT_TRUE(Committed(folder_.path(), RemoveUserProduct, Path(), "apple pie"));
  EXPECT_EQ(Bytes(), nul + "\r\n" + std::string(149, 'x') + "\r\n" + std::string(51, 'x') +
                         "\r\nabc\r\nlast\r\n");
}

TEST_F(UserProductFileTest, LinesBehindTheThreeThousandthStayAsTheyAre) {
  std::string lines;
  for (int i = 0; i < 2999; ++i) lines += Line("product " + std::to_string(i));
  const std::string rest = "m;s;apple pie;\n\n" + std::string(1000, 'r') + "\0end"s;
  Write(Line("apple pie") + lines + rest);
  EXPECT_TRUE(Committed(folder_.path(), RemoveUserProduct, Path(), "apple pie"));
  EXPECT_EQ(Bytes(), lines + rest);
}

TEST_F(UserProductFileTest, RemovingNothingChangesNothing) {
  const std::string bytes = "\n" + Line("fig") + "m;s;open";
  Write(bytes);
  EXPECT_TRUE(Committed(folder_.path(), RemoveUserProduct, Path(), "apple pie"));
  EXPECT_EQ(Bytes(), bytes);
  EXPECT_TRUE(
      Committed(folder_.path(), RemoveUserProduct, folder_.path() + "missing", "apple pie"));
  EXPECT_EQ(folder_.Names(), (Names{"data.txt"}));
}

// The step that writes is the only one that can be interrupted, and what it leaves behind is not
// the file itself.
TEST_F(UserProductFileTest, ALeftOverOfAnInterruptedRemovalIsNoProduct) {
  Write(Line("fig"));
  folder_.Write(TemporaryPath("data.txt"), Line("half"));
  UserProductTable table;
  table.Load(Path());
  ASSERT_EQ(table.products().size(), 1U);
  EXPECT_TRUE(Committed(folder_.path(), RemoveUserProduct, Path(), "figs") &&
              Committed(folder_.path(), RemoveUserProduct, Path(), "apple pie"));
  Write(Line("apple pie") + Line("fig"));
  EXPECT_TRUE(Committed(folder_.path(), RemoveUserProduct, Path(), "apple pie"));
  EXPECT_EQ(Bytes(), Line("fig"));
  EXPECT_EQ(folder_.Names(), (Names{"data.txt"}));
}

// A process that removes a product is killed a little later every time.
TEST_F(UserProductFileTest, AKilledRemovalLeavesTheOldFileOrTheNewOne) {
  std::string kept;
  for (int i = 0; i < 2000; ++i) kept += Line("product " + std::to_string(i));
  const std::string old = Line("apple pie") + kept;
  int whole_old = 0;
  int whole_new = 0;
  for (useconds_t delay = 0; delay < 100; ++delay) {
    Write(old);
    const pid_t child = fork();
    if (child == 0) {
      Committed(folder_.path(), RemoveUserProduct, Path(), "apple pie");
      _exit(0);
    }
    usleep(delay * 200);
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    const std::string bytes = Bytes();
    whole_old += bytes == old ? 1 : 0;
    whole_new += bytes == kept ? 1 : 0;
  }
  EXPECT_EQ(whole_old + whole_new, 100);
  EXPECT_GT(whole_old, 0);
  // And what was interrupted can be done again.
  Write(old);
  EXPECT_TRUE(Committed(folder_.path(), RemoveUserProduct, Path(), "apple pie"));
  EXPECT_EQ(Bytes(), kept);
}

}  // namespace
}  // namespace velnor

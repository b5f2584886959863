#include "users/user_registry.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "base/text_file.h"
#include "tests/support/temporary_folder.h"

namespace velnor {
namespace {

using namespace std::string_literals;
using Names = std::vector<std::string>;

// In the order of their names.
const Names kFirstFiles = {"cwiczenia.ASC", "info.ASC",   "mirvo.ASC",  "waga.ASC",
                           "whr.ASC",       "wykoda.txt", "wykwag.txt", "zestaw.ASC"};
const Names kAllFiles = {"bilans.ASC", "cwiczenia.ASC", "erg.txt",   "info.ASC",
                         "mirvo.ASC",  "waga.ASC",      "whr.ASC",   "wykoda.txt",
                         "wykwag.txt", "zapot.ASC",     "zestaw.ASC"};

class UserRegistryTest : public testing::Test {
 protected:
  UserRegistry Read(std::string_view bytes) const {
    return ReadUserRegistry(folder_.Write("users.ASC", bytes)).value();
  }
  Names NamesOf(std::string_view bytes) const {
    const UserRegistry registry = Read(bytes);
    EXPECT_EQ(registry.rest, "");
    return registry.names;
  }

  TemporaryFolder folder_;
};

TEST_F(UserRegistryTest, ReadsANameALineInTheirOrder) {
  EXPECT_EQ(NamesOf("Zoe\r\nann\r\nBob"), (Names{"Zoe", "ann", "Bob"}));
  EXPECT_EQ(NamesOf("Bob\r\nBob"), (Names{"Bob", "Bob"}));
  EXPECT_EQ(NamesOf("Ann"), Names{"Ann"});
}

TEST_F(UserRegistryTest, EveryLineEndWillDo) {
  const Names names = {"Ann", "Bob", "Zoe"};
  EXPECT_EQ(NamesOf("Ann\nBob\nZoe\n"), names);
  EXPECT_EQ(NamesOf("Ann\rBob\rZoe\r"), names);
  EXPECT_EQ(NamesOf("Ann\r\nBob\nZoe\r"), names);
  EXPECT_EQ(NamesOf("Ann\n\rBob\r\r\nZoe"), names);
}

TEST_F(UserRegistryTest, EmptyLinesAreNoNames) {
  EXPECT_EQ(NamesOf("\r\n\r\nAnn\r\n\n\rBob\r\n\r\n"), (Names{"Ann", "Bob"}));
  EXPECT_EQ(NamesOf("\r\n"), Names{});
  EXPECT_EQ(NamesOf(""), Names{});
}

TEST_F(UserRegistryTest, AMissingFileHasNoUsers) {
  const UserRegistry registry = ReadUserRegistry(folder_.path() + "users.ASC").value();
  EXPECT_EQ(registry.names, Names{});
  EXPECT_EQ(registry.rest, "");
  EXPECT_EQ(RegistryBytes(registry), "");
  EXPECT_EQ(folder_.Names(), Names{});
}

TEST_F(UserRegistryTest, ReadingEndsAtANul) {
  EXPECT_EQ(NamesOf("Ann\r\nBo\0b\r\nZoe"s), (Names{"Ann", "Bo"}));
  EXPECT_EQ(NamesOf("Ann\r\n\0Bob"s), Names{"Ann"});
  EXPECT_EQ(NamesOf("\0Ann\r\nBob"s), Names{});
}

TEST_F(UserRegistryTest, NamesHaveUpToNinetyNineCharacters) {
  const std::string longest(99, 'n');
  EXPECT_EQ(NamesOf("Ann\r\n" + longest + "\r\nBob"), (Names{"Ann", longest, "Bob"}));
  EXPECT_EQ(NamesOf("Ann\r\n" + longest + "n\r\nBob"), (Names{"Ann", "Bob"}));
}

TEST_F(UserRegistryTest, NamesThatAreNoFolderNamesAreLeftOut) {
  EXPECT_EQ(
      NamesOf("Ann\r\n..\r\n..\\x\r\nC:\\x\r\nC:\r\na/b\r\n. \r\n.. \r\na\tb\r\na\x1F\r\nBob"),
      (Names{"Ann", "Bob"}));
}

TEST_F(UserRegistryTest, NamesThatCouldNotBeAddedAreReadAllTheSame) {
  const Names names = {"Ann Lee", "a.b-c", "..a", "@1", "Zo\xEB", "\xA3\xF3\x9F"};
  EXPECT_EQ(NamesOf("Ann Lee\r\na.b-c\r\n..a\r\n@1\r\nZo\xEB\r\n\xA3\xF3\x9F"), names);
}

// Names of eight letters, each with a line end ten bytes.
std::string Lines(std::size_t count, const std::string& line_end = "\r\n") {
  std::string lines;
  for (std::size_t i = 0; i < count; ++i) {
    lines += std::string(10 - line_end.size(), static_cast<char>('a' + i % 26)) + line_end;
  }
  return lines;
}

TEST_F(UserRegistryTest, AThousandBytesAreReadWhole) {
  const std::string bytes = Lines(99) + "abcdefghij";
  ASSERT_EQ(bytes.size(), 1000U);
  const UserRegistry registry = Read(bytes);
  ASSERT_EQ(registry.names.size(), 100U);
  EXPECT_EQ(registry.names.back(), "abcdefghij");
  EXPECT_EQ(registry.rest, "");
  EXPECT_EQ(RegistryBytes(registry), bytes);
}

TEST_F(UserRegistryTest, ANameThatPassesAThousandBytesIsRest) {
  const std::string bytes = Lines(99) + "abcdefghijk";
  ASSERT_EQ(bytes.size(), 1001U);
  const UserRegistry registry = Read(bytes);
  ASSERT_EQ(registry.names.size(), 99U);
  EXPECT_EQ(registry.names.back(), "uuuuuuuu");
  EXPECT_EQ(registry.rest, "abcdefghijk");
  EXPECT_EQ(RegistryBytes(registry), bytes);
}

TEST_F(UserRegistryTest, TwoThousandBytesKeepTheirRest) {
  const std::string rest = "abcdefghijk\r\n" + Lines(98) + "1234567";
  const std::string bytes = Lines(99) + "ab\r\ncdef\r\n" + rest;
  ASSERT_EQ(bytes.size(), 2000U);
  const UserRegistry registry = Read(bytes);
  ASSERT_EQ(registry.names.size(), 101U);
  EXPECT_EQ(registry.names.back(), "cdef");
  EXPECT_EQ(registry.rest, rest);
  EXPECT_EQ(RegistryBytes(registry), bytes);
}

TEST_F(UserRegistryTest, ANameThatEndsWithTheThousandthByteIsWhole) {
  for (const char* const line_end : {"\r\n", "\n", "\r"}) {
    const UserRegistry registry = Read(Lines(99) + "abcdefghij" + line_end + "next");
    ASSERT_EQ(registry.names.size(), 100U);
    EXPECT_EQ(registry.names.back(), "abcdefghij");
    EXPECT_EQ(registry.rest, "next");
  }
}

TEST_F(UserRegistryTest, ALineEndMayLieAcrossTheThousandthByte) {
  const std::string bytes = Lines(99) + "abcdefghi\r\nnext";
  const UserRegistry registry = Read(bytes);
  ASSERT_EQ(registry.names.size(), 100U);
  EXPECT_EQ(registry.names.back(), "abcdefghi");
  EXPECT_EQ(registry.rest, "next");
  EXPECT_EQ(RegistryBytes(registry), bytes);
}

TEST_F(UserRegistryTest, LineEndsAloneAreNoRest) {
  const UserRegistry registry = Read(Lines(99) + "abcdefghij\r\n\r\n\n");
  EXPECT_EQ(registry.names.size(), 100U);
  EXPECT_EQ(registry.rest, "");
}

TEST_F(UserRegistryTest, WithoutALineEndAllOfALongFileIsRest) {
  const std::string bytes(1500, 'x');
  const UserRegistry registry = Read(bytes);
  EXPECT_EQ(registry.names, Names{});
  EXPECT_EQ(registry.rest, bytes);
  EXPECT_EQ(RegistryBytes(registry), bytes);
}

TEST_F(UserRegistryTest, TheRestStaysAsItIs) {
  const std::string rest =
      std::string(150, 'r') + "\n..\r\n\n" + std::string(100'000, 'q') + "\r\n";
  const UserRegistry registry = Read(Lines(95, "\n") + rest);
  EXPECT_EQ(registry.names.size(), 95U);
  EXPECT_EQ(registry.rest, rest);
}

TEST(RegistryBytesTest, JoinsNamesWithoutALineEndBehindTheLast) {
  EXPECT_EQ(RegistryBytes({}), "");
  EXPECT_EQ(RegistryBytes({{"Ann"}, ""}), "Ann");
  EXPECT_EQ(RegistryBytes({{"Zoe", "ann", "Bob"}, ""}), "Zoe\r\nann\r\nBob");
  EXPECT_EQ(RegistryBytes({{"Ann", "Bob"}, "Zoe\nand\n"}), "Ann\r\nBob\r\nZoe\nand\n");
  EXPECT_EQ(RegistryBytes({{}, "Zoe\n"}), "Zoe\n");
}

constexpr std::array<char, 25> kForbidden = {32, 43, 45, 92, 46, 47, 58, 124, 96, 59, 34, 126, 62,
                                             60, 33, 64, 35, 36, 37, 94, 38,  42, 40, 41, 9};

TEST(ForbiddenSignsTest, AreTwentyFive) {
  for (int code = 0; code < 256; ++code) {
    const char sign = static_cast<char>(code);
    const bool forbidden = std::ranges::find(kForbidden, sign) != kForbidden.end();
    EXPECT_EQ(CountForbiddenSigns(std::string(1, sign)), forbidden ? 1U : 0U) << code;
  }
  EXPECT_EQ(CountForbiddenSigns({kForbidden.data(), kForbidden.size()}), 25U);
}

TEST(ForbiddenSignsTest, CountEachTimeTheyOccur) {
  EXPECT_EQ(CountForbiddenSigns(""), 0U);
  EXPECT_EQ(CountForbiddenSigns("Ann"), 0U);
  EXPECT_EQ(CountForbiddenSigns("Ann Lee"), 1U);
  EXPECT_EQ(CountForbiddenSigns("a.b-c"), 2U);
  EXPECT_EQ(CountForbiddenSigns("..\\.."), 5U);
  EXPECT_EQ(CountForbiddenSigns(std::string(127, ' ')), 127U);
}

TEST(FolderNameTest, LiesInTheFolderItself) {
  const Names good = {"a",    "Ann", "Ann Lee",           "a.b", "..a", "a..", " a", "\xA3\xF3\x9F",
                      "\x7F", "a;b", std::string(99, 'n')};
  for (const std::string& name : good) EXPECT_TRUE(IsFolderName(name)) << name;
}

TEST(FolderNameTest, IsNoDevice) {
  for (const char* const name : {"NUL", "con", "aux", "PRN", "com1", "LPT9", "nul.txt", "CON .a",
                                 "lpt1 ", "conin$", "CONOUT$"}) {
    EXPECT_FALSE(IsFolderName(name)) << name;
  }
  for (const char* const name :
       {"Conny", "null", "com", "com0", "COM10", "lpt", "1", "xcon", "a.nul", " con", "com1a"}) {
    EXPECT_TRUE(IsFolderName(name)) << name;
  }
}

TEST(FolderNameTest, LeadsNowhereElse) {
  const Names bad = {"",      ".",    "..",
                     "...",   ". ",   ".. ",
                     " ",     "  ",   "..\\x",
                     "../x",  "C:",   "C:x",
                     "C:\\x", "a/b",  "a\\b",
                     "/",     "\\",   "/etc",
                     "\\\\s", "a*b",  "a?b",
                     "a\"b",  "a<b",  "a>b",
                     "a|b",   "a\nb", "a\tb",
                     "\x01",  "\x1F", "a\rb",
                     "a\0b"s, "\0"s,  std::string(100, 'n')};
  for (const std::string& name : bad) EXPECT_FALSE(IsFolderName(name)) << name;
}

class UserFilesTest : public testing::Test {
 protected:
  Names NamesIn(const std::string& user) const {
    Names names;
    for (const auto& entry : std::filesystem::directory_iterator(folder_.path() + user)) {
      names.push_back(entry.path().filename().string());
    }
    std::ranges::sort(names);
    return names;
  }
  bool Exists(const std::string& name) const {
    return std::filesystem::exists(folder_.path() + name);
  }
  // A user with everything that one can have.
  void MakeUser(const std::string& user) const {
    std::filesystem::create_directory(folder_.path() + user);
    const std::string folder = user + '/';
    for (const std::string& file : kAllFiles) folder_.Write(folder + file, "some bytes");
  }

  TemporaryFolder folder_;
  SessionState session_ = {.base_folder = folder_.path()};
};

TEST_F(UserFilesTest, ANewUserGetsEightEmptyFiles) {
  CreateUserFiles(session_, "Ann");
  EXPECT_EQ(folder_.Names(), Names{"Ann"});
  EXPECT_EQ(NamesIn("Ann"), kFirstFiles);
  for (const std::string& file : kFirstFiles) EXPECT_EQ(folder_.Read("Ann/" + file), "") << file;
}

TEST_F(UserFilesTest, TheUserWhoIsLoggedInDoesNotMatter) {
  session_.user = UserFolder::In(folder_.path(), "Bob");
  CreateUserFiles(session_, "Ann");
  EXPECT_EQ(folder_.Names(), Names{"Ann"});
  MakeUser("Bob");
  DeleteUserFiles(session_, "Ann");
  EXPECT_EQ(folder_.Names(), Names{"Bob"});
  EXPECT_EQ(NamesIn("Bob"), kAllFiles);
}

TEST_F(UserFilesTest, CreatingAUserAgainEmptiesTheEight) {
  MakeUser("Ann");
  folder_.Write("Ann/notes.txt", "notes");
  CreateUserFiles(session_, "Ann");
  for (const std::string& file : kAllFiles) {
    const bool first = std::ranges::find(kFirstFiles, file) != kFirstFiles.end();
    EXPECT_EQ(folder_.Read("Ann/" + file), first ? "" : "some bytes") << file;
  }
  EXPECT_EQ(folder_.Read("Ann/notes.txt"), "notes");
}

TEST_F(UserFilesTest, CreatingAUserLeavesNothingOfInterruptedWrites) {
  MakeUser("Ann");
  for (const std::string& file : kFirstFiles) folder_.Write(TemporaryPath("Ann/" + file), "half");
  CreateUserFiles(session_, "Ann");
  EXPECT_EQ(NamesIn("Ann"), kAllFiles);
}

TEST_F(UserFilesTest, AFolderThatCannotBeMadeIsNotReported) {
  folder_.Write("Ann", "a file");
  CreateUserFiles(session_, "Ann");
  EXPECT_EQ(folder_.Names(), Names{"Ann"});
  EXPECT_EQ(folder_.Read("Ann"), "a file");
}

TEST_F(UserFilesTest, DeletingAUserTakesAllElevenAndTheFolder) {
  MakeUser("Ann");
  MakeUser("Bob");
  DeleteUserFiles(session_, "Ann");
  EXPECT_EQ(folder_.Names(), Names{"Bob"});
  EXPECT_EQ(NamesIn("Bob"), kAllFiles);
}

TEST_F(UserFilesTest, MissingFilesAreIgnored) {
  CreateUserFiles(session_, "Ann");
  DeleteUserFiles(session_, "Ann");
  EXPECT_EQ(folder_.Names(), Names{});
  DeleteUserFiles(session_, "Ann");
  EXPECT_EQ(folder_.Names(), Names{});
}

TEST_F(UserFilesTest, AnyOtherFileKeepsTheFolder) {
  MakeUser("Ann");
  folder_.Write("Ann/notes.txt", "notes");
  folder_.Write("Ann/notes.txt.new", "notes");
  DeleteUserFiles(session_, "Ann");
  EXPECT_EQ(NamesIn("Ann"), (Names{"notes.txt", "notes.txt.new"}));
  EXPECT_EQ(folder_.Read("Ann/notes.txt"), "notes");
}

TEST_F(UserFilesTest, DeletingAUserTakesWhatInterruptedWritesLeft) {
  MakeUser("Ann");
  for (const std::string& file : kAllFiles) folder_.Write(TemporaryPath("Ann/" + file), "half");
  for (const char* const file : {"Ann/z1.ASC", "Ann/z2.ASC"}) {
    folder_.Write(TemporaryPath(file), "half");
  }
  DeleteUserFiles(session_, "Ann");
  EXPECT_FALSE(Exists("Ann"));
}

TEST_F(UserFilesTest, TheExchangesOfADayOutliveTheirUser) {
  MakeUser("Ann");
  folder_.Write("Ann/z1.ASC", "8.");
  folder_.Write("Ann/z2.ASC", "1.7");
  DeleteUserFiles(session_, "Ann");
  EXPECT_EQ(NamesIn("Ann"), (Names{"z1.ASC", "z2.ASC"}));
}

TEST_F(UserFilesTest, DeletingAUserTakesWhatWasKeptBesideTheReports) {
  MakeUser("Ann");
  for (const char* const file :
       {"waga.ASC", "whr.ASC", "mirvo.ASC", "zestaw.ASC", "cwiczenia.ASC"}) {
    folder_.Write("Ann/"s + file + ".rest.txt", "rest");
    folder_.Write(TemporaryPath("Ann/"s + file + ".rest.txt"), "half");
  }
  DeleteUserFiles(session_, "Ann");
  EXPECT_FALSE(Exists("Ann"));
}

TEST_F(UserFilesTest, WithoutANameTheElevenInTheBaseFolderAreDeleted) {
  MakeUser("Ann");
  MakeUser("");
  folder_.Write("users.ASC", "Ann");
  folder_.Write("data.txt", "");
  DeleteUserFiles(session_, "");
  EXPECT_EQ(folder_.Names(), (Names{"Ann", "data.txt", "users.ASC"}));
  EXPECT_EQ(NamesIn("Ann"), kAllFiles);
}

TEST_F(UserFilesTest, WithoutANameTheBaseFolderStays) {
  MakeUser("");
  DeleteUserFiles(session_, "");
  EXPECT_EQ(folder_.Names(), Names{});
  EXPECT_TRUE(Exists(""));
}

TEST(ReadUserRegistryTest, ANulAmongTheNamesDoesNotCostTheRest) {
  const TemporaryFolder folder;
  std::string list = "Ann\r\nBob\0hidden\r\n"s;
  while (list.size() < 1000) list += "user" + std::to_string(list.size()) + "\r\n";
  const std::string rest = "behind\0the\r\nlimit"s;
  const UserRegistry registry = ReadUserRegistry(folder.Write("users.ASC", list + rest)).value();
  EXPECT_EQ(registry.names, (std::vector<std::string>{"Ann", "Bob"}));
  EXPECT_TRUE(registry.rest.ends_with(rest));
}

TEST(ReadUserRegistryTest, WhatCannotBeReadIsNoEmptyList) {
  const TemporaryFolder folder;
  EXPECT_EQ(ReadUserRegistry(folder.path()), std::nullopt);  // a folder
}

}  // namespace
}  // namespace velnor

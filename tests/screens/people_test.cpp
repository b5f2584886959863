// Registering and removing users, through their dialog.

#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/people_fixture.h"

namespace velnor {
namespace {

using Texts = std::vector<std::string>;

const std::string kForbidden =
    "The name contain forbidden signs\n"
    "         space + -  / . ; ~ ` > < | : tab ! @ # $ % ^ & * ( ) \"";

TEST_F(PeopleTest, AMissingListOpensEmpty) {
  Start();
  OpenUsers();
  EXPECT_EQ(users_.ItemCount(700), 0);
}

TEST_F(PeopleTest, AddedUsersGetTheirFilesAtOnceAndTheirEntryOnOk) {
  Start();
  OpenUsers();
  EXPECT_EQ(Add("Zoe"), Texts{});
  EXPECT_EQ(users_.Text(701), "");
  EXPECT_EQ(Add("adam"), Texts{});
  EXPECT_EQ(Registry(), "(missing)");
  EXPECT_EQ(folder_.Names(), (Texts{"Zoe", "adam"}));
  Texts files;
  for (const auto& entry : std::filesystem::directory_iterator(folder_.path() + "Zoe")) {
    files.push_back(entry.path().filename().string());
    EXPECT_EQ(entry.file_size(), 0U);
  }
  std::ranges::sort(files);
  EXPECT_EQ(files, (Texts{"cwiczenia.ASC", "info.ASC", "mirvo.ASC", "waga.ASC", "whr.ASC",
                          "wykoda.txt", "wykwag.txt", "zestaw.ASC"}));
  users_.Press(1);
  EXPECT_EQ(users_.Log(), (Texts{"focus 701", "close"}));
  EXPECT_EQ(Registry(), "adam\r\nZoe");
}

TEST_F(PeopleTest, CancelKeepsTheFolderAndForgetsTheEntry) {
  Start();
  OpenUsers();
  Add("Zoe");
  users_.Press(2);
  EXPECT_EQ(folder_.Names(), (Texts{"Zoe"}));
}

TEST_F(PeopleTest, ASelectionFillsTheName) {
  folder_.Write("users.ASC", "Ann\r\nBob");
  Start();
  OpenUsers();
  users_.Choose(700, "Bob");
  EXPECT_EQ(users_.Text(701), "Bob");
}

TEST_F(PeopleTest, ANameNeedsASign) {
  Start();
  OpenUsers();
  users_.Press(702);
  ASSERT_EQ(boxes_.shown.size(), 1U);
  EXPECT_EQ(boxes_.shown[0].text, "The name of the user must\ncontain at least 1 sign");
  EXPECT_EQ(boxes_.shown[0].caption, "ERROR!");
  EXPECT_EQ(boxes_.shown[0].icon, MessageIcon::kInformation);
  EXPECT_EQ(boxes_.shown[0].owner, MessageOwner::kNone);
  EXPECT_EQ(users_.ItemCount(700), 0);
}

TEST_F(PeopleTest, EveryForbiddenSignHasItsBox) {
  Start();
  OpenUsers();
  EXPECT_EQ(Add("Ann Lee"), (Texts{kForbidden}));
  EXPECT_EQ(Add("a.b-c"), (Texts{kForbidden, kForbidden}));
  EXPECT_EQ(Add("..\\x").size(), 3U);
  EXPECT_EQ(Add("a?b"), (Texts{kForbidden}));  // no folder can be called so
  EXPECT_EQ(users_.ItemCount(700), 0);
  EXPECT_EQ(folder_.Names(), Texts{});
}

TEST_F(PeopleTest, ANameOrAListTooLongIsRefusedAndNothingIsMade) {
  Start();
  OpenUsers();
  EXPECT_EQ(Add(std::string(100, 'n')),
            (Texts{"The name of the user can\ncontain at most 99 signs"}));
  for (int i = 0; i < 9; ++i) EXPECT_EQ(Add(std::string(98, 'n') + std::to_string(i)), Texts{});
  // 9 names of 99 and 8 line ends make 907 bytes; 91 more and a line end are 1000.
  EXPECT_EQ(Add(std::string(92, 'x')),
            (Texts{"The list of users is full\nRemove some user first"}));
  EXPECT_EQ(Add(std::string(91, 'x')), Texts{});
  EXPECT_EQ(users_.ItemCount(700), 10);
  EXPECT_EQ(folder_.Names().size(), 10U);
  users_.Press(1);
  EXPECT_EQ(Registry().size(), 1000U);
}

TEST_F(PeopleTest, ARegisteredNameIsTakenAgainAndItsFilesBecomeEmpty) {
  Start();
  OpenUsers();
  Add("Ann");
  folder_.Write("Ann/waga.ASC", "old");
  Add("Ann");
  users_.Press(1);
  EXPECT_EQ(Registry(), "Ann\r\nAnn");
  EXPECT_EQ(folder_.Read("Ann/waga.ASC"), "");
}

// The platform has one folder for both.
TEST_F(PeopleTest, ANameThatDiffersInCaseAloneIsRefused) {
  Start();
  Register("Zoe");
  Register("\xA3ukasz");
  folder_.Write("Zoe/waga.ASC", "hers");
  OpenUsers();
  const std::string refusal = "The name differs only in small and capital\nletters from ";
  EXPECT_EQ(Add("zoe"), (Texts{refusal + "Zoe"}));
  EXPECT_EQ(Add("ZOE"), (Texts{refusal + "Zoe"}));
  EXPECT_EQ(Add("\xB3UKASZ"), (Texts{refusal + "\xA3ukasz"}));
  EXPECT_EQ(users_.ItemCount(700), 2);
  EXPECT_EQ(users_.Text(701), "\xB3UKASZ");
  EXPECT_EQ(folder_.Read("Zoe/waga.ASC"), "hers");
  EXPECT_EQ(folder_.Names(), (Texts{"Zoe", "users.ASC", "\xA3ukasz"}));
}

TEST_F(PeopleTest, AFolderThatNobodyIsRegisteredForCountsToo) {
  std::filesystem::create_directory(folder_.path() + "Zoe");
  folder_.Write("Zoe/waga.ASC", "hers");
  folder_.Write("ADAM", "no folder");
  Start();
  OpenUsers();
  EXPECT_EQ(Add("zoe"), (Texts{"The name differs only in small and capital\nletters from Zoe"}));
  EXPECT_EQ(folder_.Read("Zoe/waga.ASC"), "hers");
  EXPECT_EQ(Add("adam"), Texts{});
  EXPECT_EQ(Add("Zoe"), Texts{});
}

TEST_F(PeopleTest, EnterInTheNameAddsItAndElsewhereIsOk) {
  Start();
  Register("Bob");
  OpenUsers();
  users_.Type(701, "Ann");
  users_.PressEnter();
  EXPECT_EQ(users_.Items(700), (Texts{"Ann", "Bob"}));
  EXPECT_EQ(users_.Text(701), "");
  // A selection fills the name; nobody is added again, and made empty, by leaving.
  users_.MoveFocusTo(700);
  users_.Choose(700, "Bob");
  users_.PressEnter();
  EXPECT_EQ(users_.Log(), (Texts{"focus 701", "close"}));
  EXPECT_EQ(Registry(), "Ann\r\nBob");
}

TEST_F(PeopleTest, EnterInAnEmptyNameIsOk) {
  Start();
  OpenUsers();
  users_.Type(701, "A");
  users_.Type(701, "");
  users_.PressEnter();
  EXPECT_EQ(users_.Log(), (Texts{"focus 701", "close"}));
  EXPECT_EQ(boxes_.TakeTexts(), Texts{});
}

TEST_F(PeopleTest, RemovalAsksAndTakesEverythingAway) {
  Start();
  Register("Ann");
  for (const char* const file : {"zapot.ASC", "bilans.ASC", "erg.txt"}) {
    folder_.Write(std::string("Ann/") + file, "x");
  }
  OpenUsers();
  users_.Choose(700, "Ann");
  users_.Press(703);
  ASSERT_EQ(boxes_.shown.size(), 1U);
  EXPECT_EQ(boxes_.shown[0].text, "Delete user??");
  EXPECT_EQ(boxes_.shown[0].caption, "CAUTION");
  EXPECT_EQ(boxes_.shown[0].buttons, MessageButtons::kYesNo);
  EXPECT_EQ(boxes_.shown[0].icon, MessageIcon::kQuestion);
  EXPECT_EQ(boxes_.shown[0].owner, MessageOwner::kNone);
  EXPECT_EQ(users_.ItemCount(700), 0);
  EXPECT_EQ(users_.Text(701), "");
  EXPECT_EQ(Registry(), "Ann");  // until OK
  EXPECT_EQ(folder_.Names(), (Texts{"kopie zapasowe", "users.ASC"}));
  users_.Press(1);
  EXPECT_EQ(Registry(), "");
}

// The box has no owner: the dialog behind it can be used.
TEST_F(PeopleTest, TheQuestionIsAboutTheNameAndTheEntryItWasAskedFor) {
  Start();
  for (const char* const name : {"Ann", "Cid"}) Register(name);
  OpenUsers();
  users_.Choose(700, "Ann");
  boxes_.while_open = [this] { users_.Choose(700, "Cid"); };
  users_.Press(703);
  EXPECT_EQ(users_.Items(700), (Texts{"Cid"}));
  EXPECT_EQ(folder_.Names(), (Texts{"Cid", "kopie zapasowe", "users.ASC"}));
}

TEST_F(PeopleTest, AUserAddedBehindTheQuestionDoesNotLeaveTheListInsteadOfTheRemovedOne) {
  Start();
  for (const char* const name : {"Bob", "Cid"}) Register(name);
  OpenUsers();
  users_.Choose(700, "Bob");
  boxes_.while_open = [this] {
    users_.SetText(701, "Ann");
    users_.Press(702);
  };
  users_.Press(703);
  EXPECT_EQ(users_.Items(700), (Texts{"Ann", "Cid"}));
  EXPECT_EQ(folder_.Names(), (Texts{"Ann", "Cid", "kopie zapasowe", "users.ASC"}));
}

TEST_F(PeopleTest, NoRemovesNothing) {
  Start();
  Register("Ann");
  OpenUsers();
  users_.Choose(700, "Ann");
  boxes_.answer = Answer::kNo;
  users_.Press(703);
  EXPECT_EQ(users_.ItemCount(700), 1);
  EXPECT_EQ(folder_.Names(), (Texts{"Ann", "users.ASC"}));
}

TEST_F(PeopleTest, ATypedNameIsRemovedWithoutAListEntry) {
  Start();
  Register("Ann");
  OpenUsers();
  users_.SetText(701, "Ann");
  users_.Press(703);
  EXPECT_EQ(users_.ItemCount(700), 1);
  EXPECT_EQ(folder_.Names(), (Texts{"kopie zapasowe", "users.ASC"}));
}

TEST_F(PeopleTest, ATypedNameThatLeavesTheFolderRemovesNothing) {
  folder_.Write("waga.ASC", "not a user's");
  std::filesystem::create_directory(folder_.path() + "inner");
  folder_.Write("inner/waga.ASC", "x");
  Start();
  OpenUsers();
  for (const char* const name : {"..", "inner/../..", "..\\x", "C:x", ". "}) {
    users_.SetText(701, name);
    users_.Press(703);
    EXPECT_EQ(boxes_.TakeTexts(), (Texts{"Delete user??", kForbidden})) << name;
  }
  EXPECT_EQ(folder_.Read("waga.ASC"), "not a user's");
  EXPECT_EQ(folder_.Read("inner/waga.ASC"), "x");
}

TEST_F(PeopleTest, RemovingANameLikeTheUsersLogsThemOut) {
  Start();
  Register("Bea");
  Register("Bob");
  Register("Rob");
  LogIn("Bea");
  Open(252);
  OpenUsers();
  users_.Choose(700, "Rob");
  users_.Press(703);
  EXPECT_EQ(User(), "Bea");
  EXPECT_EQ(program_->session().screen, 20);
  window_.log.clear();
  boxes_.TakeTexts();
  users_.Choose(700, "Bob");
  users_.Press(703);
  EXPECT_EQ(boxes_.TakeTexts(), (Texts{"Delete user??"}));
  EXPECT_EQ(User(), "");
  EXPECT_EQ(program_->session().screen, 0);
  EXPECT_EQ(window_.log, (Texts{"paint now"}));
  EXPECT_TRUE(window_.menu.at(200));
  EXPECT_TRUE(window_.menu.at(238));
  EXPECT_FALSE(window_.menu.at(239));
}

TEST_F(PeopleTest, AListThatIsTooLongKeepsWhatIsNotShown) {
  std::string list;
  for (int i = 100; i < 500; ++i) list += "user" + std::to_string(i) + "\r\n";
  folder_.Write("users.ASC", list);
  Start();
  OpenUsers();
  EXPECT_EQ(users_.ItemCount(700), 111);  // nine bytes each
  users_.Press(1);
  EXPECT_EQ(Registry(), list.substr(0, list.size()));
}

TEST_F(PeopleTest, AListThatCannotBeWrittenKeepsTheDialogOpen) {
  std::filesystem::create_directory(folder_.path() + "users.ASC");
  Start();
  OpenUsers();
  Add("Ann");
  users_.Press(1);
  EXPECT_EQ(boxes_.TakeTexts(), (Texts{"The list of users could not be written"}));
  EXPECT_EQ(users_.Log(), (Texts{"focus 701"}));
}

TEST_F(PeopleTest, AListThatCouldNotBeReadIsNotOverwritten) {
  std::filesystem::create_directory(folder_.path() + "users.ASC");  // stands for a locked file
  Start();
  OpenUsers();
  std::filesystem::remove(folder_.path() + "users.ASC");
  folder_.Write("users.ASC", "Ann\r\nBob");  // it can be read and written again
  users_.Press(1);
  EXPECT_EQ(boxes_.TakeTexts(), (Texts{"The list of users could not be written"}));
  EXPECT_EQ(Registry(), "Ann\r\nBob");
}

}  // namespace
}  // namespace velnor

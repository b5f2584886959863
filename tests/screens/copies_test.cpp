// Copies through the whole program: those that nobody asks for, and the two dialogs that make one
// and bring one back.

#include <filesystem>
#include <string>
#include <vector>

#include "shell/own_menu.h"
#include "tests/support/day_fixture.h"
#include "tests/support/people_fixture.h"
#include "tests/support/tree.h"
#include "users/backup.h"

namespace velnor {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

constexpr const char* kNoCopy =
    "A copy of your data could not be made.\n"
    "Is the disk full, or the folder \"kopie zapasowe\" write-protected?";

class CopiesTest : public DayTest {
 protected:
  static constexpr int kOpenWeightReport = 210;

  Tree CopyCalled(const std::string& name) const {
    return TreeBelow(folder_.path() + "kopie zapasowe/" + name);
  }
  std::vector<ListedCopy> PressCopies() const {
    std::vector<ListedCopy> copies = ListCopies(folder_.path());
    std::erase_if(copies, [](const ListedCopy& copy) { return copy.about.empty(); });
    return copies;
  }
  // What was about to be done at each press's copy, the newest first.
  Texts Presses() const {
    Texts presses;
    for (const ListedCopy& copy : PressCopies()) presses.push_back(copy.about);
    return presses;
  }
  void OpenOwn(int item) {
    ASSERT_TRUE(RunOwnMenuItem(program_->parts(), item));
    window_.UseForm(dialog_);
    window_.opened->OnOpen(dialog_);
  }
  bool IsClosed() const { return dialog_.Log().back() == "close"; }
  // What the boxes say when this path is given and OK pressed.
  Texts Confirm(const std::string& path) {
    dialog_.SetText(801, path);
    dialog_.Press(1);
    return boxes_.TakeTexts();
  }

  FakeForm dialog_;
};

TEST_F(CopiesTest, TheFirstLoginOfADayCopiesTheDayBefore) {
  fs::create_directory(folder_.path() + "Ann");
  Write("bilans.ASC", "15.11.2026\r\n1800.\r\n70.\r\n60.\r\n200.");
  OpenCounter();
  EXPECT_EQ(Balance(), "16.11.2026");
  EXPECT_EQ(CopyCalled("2026-11-16"),
            (Tree{{"users.ASC", "Ann"},
                  {"Ann/info.ASC", "35\r\n170\r\nwomen\r\nlow\r\nnone"},
                  {"Ann/bilans.ASC", "15.11.2026\r\n1800.\r\n70.\r\n60.\r\n200."}}));
  OpenCounter();  // once more on the same day
  EXPECT_EQ(ListCopies(folder_.path()).size(), 1U);
}

TEST_F(CopiesTest, AMissingCopyHindersNoLoginAndIsSaidOnce) {
  folder_.Write("kopie zapasowe", "a file of that name");
  Start();
  std::string said;
  boxes_.while_open = [&] { said += boxes_.shown.back().text; };
  OpenCounter();
  EXPECT_EQ(said, kNoCopy);
  EXPECT_EQ(Balance(), "16.11.2026");
  AddStrawberries("100");
  Open(kOpenBalance);
  form_.Press(kClearDay);
  OpenCounter();
  EXPECT_EQ(said, kNoCopy);
  EXPECT_EQ(Balance(), "16.11.2026");
}

TEST_F(CopiesTest, ClearOnTheBalanceCopiesTheDayFirst) {
  OpenCounter();
  AddStrawberries("100");
  const std::string day = Read("bilans.ASC");
  Open(kOpenBalance);
  form_.Press(kClearDay);
  ASSERT_EQ(Presses(), Texts{"Clear (daily balance)"});
  const ListedCopy copy = PressCopies().front();
  EXPECT_EQ(copy.people, "Ann");
  EXPECT_EQ(TreeBelow(copy.path)["Ann/bilans.ASC"], day);
}

TEST_F(CopiesTest, ClearRaportCopiesTheReportFirst) {
  OpenCounter();
  Write("waga.ASC", "years of records");
  Open(kOpenWeightReport);
  boxes_.answer = Answer::kNo;
  form_.Press(151);
  EXPECT_EQ(Presses(), Texts{});
  boxes_.answer = Answer::kYes;
  form_.Press(151);
  ASSERT_EQ(Presses(), Texts{"Clear raport"});
  EXPECT_EQ(TreeBelow(PressCopies()[0].path)["Ann/waga.ASC"], "years of records");
  EXPECT_EQ(Read("waga.ASC"), "");
}

// Another window of the program stays usable behind the box.
TEST_F(CopiesTest, TheReportIsThatOfWhoPressed) {
  OpenCounter();
  Write("waga.ASC", "years of records");
  fs::create_directory(folder_.path() + "Bob");
  folder_.Write("Bob/info.ASC", "40");
  Open(kOpenWeightReport);
  boxes_.while_open = [this] {
    program_->parts().session.user = UserFolder::In(folder_.path(), "Bob");
  };
  form_.Press(151);
  ASSERT_EQ(PressCopies().size(), 1U);
  EXPECT_EQ(PressCopies()[0].people, "Ann");
  EXPECT_EQ(Read("waga.ASC"), "");
}

TEST_F(CopiesTest, SavingCopiesAReportThatIsLongerThanShownAndNoOther) {
  OpenCounter();
  Write("waga.ASC", "short");
  Open(kOpenWeightReport);
  form_.Press(152);
  EXPECT_EQ(Presses(), Texts{});
  const std::string report(40'000, 'x');
  Write("waga.ASC", report);
  Open(kOpenWeightReport);
  form_.Press(152);
  ASSERT_EQ(Presses(), Texts{"Save changes (long report)"});
  EXPECT_EQ(TreeBelow(PressCopies()[0].path)["Ann/waga.ASC"], report);
}

class CopiesOfPeopleTest : public PeopleTest {
 protected:
  Texts Presses() const {
    Texts presses;
    for (const ListedCopy& copy : ListCopies(folder_.path())) {
      presses.push_back(copy.about + ": " + copy.people);
    }
    return presses;
  }
};

TEST_F(CopiesOfPeopleTest, AddingANameThatIsThereCopiesItsFilesFirst) {
  Start();
  Register("Ann");
  EXPECT_EQ(Presses(), Texts{});
  folder_.Write("Ann/info.ASC", "35");
  Register("Ann");
  ASSERT_EQ(Presses(), Texts{"add user: Ann"});
  EXPECT_EQ(TreeBelow(ListCopies(folder_.path())[0].path)["Ann/info.ASC"], "35");
  EXPECT_EQ(folder_.Read("Ann/info.ASC"), "");
}

TEST_F(CopiesOfPeopleTest, AFolderThatIsNobodysIsNotCopied) {
  Start();
  fs::create_directory(folder_.path() + "Photos");
  folder_.Write("Photos/cat.jpg", "a large picture");
  Register("Photos");
  EXPECT_EQ(Presses(), Texts{});
  EXPECT_EQ(folder_.Read("Photos/cat.jpg"), "a large picture");
}

TEST_F(CopiesOfPeopleTest, RemovingAUserCopiesTheirFilesFirst) {
  Start();
  Register("Ann");
  folder_.Write("Ann/dziennik.csv", "history");
  OpenUsers();
  users_.Choose(700, "Ann");
  boxes_.answer = Answer::kNo;
  users_.Press(703);
  EXPECT_EQ(Presses(), Texts{});
  boxes_.answer = Answer::kYes;
  users_.Press(703);
  ASSERT_EQ(Presses(), Texts{"remove user: Ann"});
  EXPECT_EQ(TreeBelow(ListCopies(folder_.path())[0].path)["Ann/dziennik.csv"], "history");
  EXPECT_FALSE(fs::exists(folder_.path() + "Ann"));
}

class BackUpTest : public CopiesTest {
 protected:
  void SetUp() override {
    OpenCounter();
    OpenOwn(kBackUpItem);
  }
};

TEST_F(BackUpTest, MakesAFolderOfTheDayAndSaysHowManyFiles) {
  const TemporaryFolder disk;
  EXPECT_EQ(Confirm(disk.path()), Texts{"4 files were copied and read back. The copy is in\n" +
                                        disk.path() + "Velnor 2000-01-01"});
  EXPECT_TRUE(IsClosed());
  const Tree copy = TreeBelow(disk.path() + "Velnor 2000-01-01");
  ASSERT_EQ(copy.size(), 4U);
  EXPECT_EQ(copy.at("users.ASC"), "Ann");
  EXPECT_EQ(copy.at("Ann/bilans.ASC"), "16.11.2026");
}

TEST_F(BackUpTest, TheSecondOfADayGetsANumberAndQuotesAreNoPartOfAPath) {
  const TemporaryFolder disk;
  const std::string folder = disk.path().substr(0, disk.path().size() - 1);
  Confirm(folder);
  OpenOwn(kBackUpItem);
  EXPECT_NE(Confirm('"' + folder + '"').front().find("Velnor 2000-01-01 (2)"), std::string::npos);
}

TEST_F(BackUpTest, BrowseFillsThePath) {
  dialog_.Press(802);
  EXPECT_EQ(dialog_.Text(801), "");  // the person chose none
  window_.folder_to_choose = "D:\\";
  dialog_.Press(802);
  EXPECT_EQ(dialog_.Text(801), "D:\\");
}

TEST_F(BackUpTest, SaysWhatIsMissingAndStaysOpen) {
  EXPECT_EQ(Confirm(""), Texts{"Choose the folder for the copy first."});
  const std::string nowhere = folder_.path() + "nowhere";
  EXPECT_EQ(Confirm(nowhere), Texts{"There is no such folder:\n" + nowhere});
  EXPECT_FALSE(fs::exists(nowhere));
  EXPECT_NE(dialog_.Log().back(), "close");
  EXPECT_EQ(boxes_.shown.size(), 0U);
}

TEST_F(BackUpTest, WhatCannotBeMadeIsSaid) {
  const TemporaryFolder disk;
  fs::create_directory(folder_.path() + "Bob");
  fs::create_directory(folder_.path() + "Bob/info.ASC");  // no file that could be read
  fs::remove(folder_.path() + "users.ASC");
  fs::create_directory(folder_.path() + "users.ASC");
  EXPECT_EQ(Confirm(disk.path()), Texts{"The copy could not be made; nothing is left of it.\n"
                                        "Is the disk full or write-protected? The folder:\n" +
                                        disk.path()});
  EXPECT_TRUE(TreeBelow(disk.path()).empty());
}

class RestoreDialogTest : public CopiesTest {
 protected:
  static constexpr const char* kBehind =
      "\nare replaced by those of the copy.\n\n"
      "Everything is copied before as it is now,\n"
      "and can be restored in the same way. Restore?";

  void SetUp() override {
    folder_.Write("data.txt", "fish;smoked;old eel;100;279;19;22;0;\r\n");
    OpenCounter();
    AddStrawberries("100");
    day_ = Read("bilans.ASC");
    Open(kOpenBalance);
    form_.Press(kClearDay);
    OpenOwn(kRestoreItem);
  }

  std::string day_;
};

TEST_F(RestoreDialogTest, ListsTheCopiesTheNewestFirstAndFillsThePath) {
  ASSERT_EQ(dialog_.ItemCount(811), 2);
  EXPECT_EQ(dialog_.ItemText(811, 0), "2026-11-16   Ann   1 kB");
  EXPECT_EQ(dialog_.ItemText(811, 1),
            "2000-01-01 00:00:00   Ann   1 kB   before: Clear (daily balance)");
  dialog_.Choose(811, dialog_.ItemText(811, 1));
  EXPECT_EQ(dialog_.Text(801), folder_.path() + "kopie zapasowe/2000-01-01 000000");
}

TEST_F(RestoreDialogTest, ADayClearedByMistakeComesBack) {
  dialog_.Choose(811, dialog_.ItemText(811, 1));
  dialog_.Press(1);
  ASSERT_EQ(boxes_.shown.size(), 2U);
  EXPECT_EQ(boxes_.shown[0].text, std::string("The files of Ann") + kBehind);
  EXPECT_EQ(boxes_.shown[0].buttons, MessageButtons::kYesNo);
  EXPECT_EQ(boxes_.shown[1].text, "The copy is restored. Please log in.");
  EXPECT_EQ(Read("bilans.ASC"), day_);
  EXPECT_TRUE(IsClosed());
  EXPECT_FALSE(program_->session().user);
  EXPECT_EQ(program_->session().screen, kHomeScreen);
  EXPECT_FALSE(window_.menu.at(kOpenBalance));
  EXPECT_EQ(Presses(), (Texts{"Restore", "Clear (daily balance)"}));
}

TEST_F(RestoreDialogTest, TheProductsAreThoseOfTheCopyAtOnce) {
  folder_.Write("data.txt", "");
  program_->parts().food.user_products.Load(folder_.path() + "data.txt");
  dialog_.Choose(811, dialog_.ItemText(811, 0));
  dialog_.Press(1);
  EXPECT_EQ(
      boxes_.shown[0].text,
      std::string("The files of Ann, the list of users and the products of your own") + kBehind);
  EXPECT_EQ(program_->parts().food.user_products.products().size(), 1U);
}

TEST_F(RestoreDialogTest, WithNobodyLoggedInTheMenuStaysAsItWas) {
  program_->OnCommand(201, 0);
  boxes_.TakeTexts();
  window_.menu.clear();
  OpenOwn(kRestoreItem);
  dialog_.Choose(811, dialog_.ItemText(811, 0));
  dialog_.Press(1);
  EXPECT_EQ(boxes_.shown.back().text, "The copy is restored. Please log in.");
  EXPECT_TRUE(window_.menu.empty());
}

TEST_F(RestoreDialogTest, NoChangesNothing) {
  const Tree before = TreeBelow(folder_.path());
  boxes_.answer = Answer::kNo;
  dialog_.Choose(811, dialog_.ItemText(811, 0));
  dialog_.Press(1);
  EXPECT_EQ(boxes_.shown.size(), 1U);
  EXPECT_EQ(TreeBelow(folder_.path()), before);
  EXPECT_TRUE(program_->session().user);
}

TEST_F(RestoreDialogTest, RefusesAFolderWithoutACopy) {
  EXPECT_EQ(Confirm(""), Texts{"Choose a copy first."});
  const std::string folder = folder_.path() + "Ann";
  EXPECT_EQ(Confirm(folder), Texts{"This folder is no copy that can be read:\n" + folder});
  EXPECT_TRUE(program_->session().user);
}

TEST_F(RestoreDialogTest, ACopyMadeElsewhereIsGivenByItsPath) {
  const TemporaryFolder disk;
  OpenOwn(kBackUpItem);
  Confirm(disk.path());
  const Tree copied = TreeBelow(folder_.path() + "Ann");
  Open(kOpenCounter);
  AddStrawberries("50");
  OpenOwn(kRestoreItem);
  window_.folder_to_choose = disk.path() + "Velnor 2000-01-01";
  dialog_.Press(802);
  dialog_.Press(1);
  EXPECT_EQ(TreeBelow(folder_.path() + "Ann"), copied);
}

}  // namespace
}  // namespace velnor

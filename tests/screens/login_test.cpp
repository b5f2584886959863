// Logging in, through its dialog.

#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/people_fixture.h"

namespace velnor {
namespace {

using Texts = std::vector<std::string>;

TEST_F(PeopleTest, LoginNeedsASelection) {
  folder_.Write("users.ASC", "Ann");
  Start();
  OpenLogin();
  login_.Press(1);
  ASSERT_EQ(boxes_.shown.size(), 1U);
  EXPECT_EQ(boxes_.shown[0].text,
            "CAUTION!!\nThere`s no users\nIf You want to log in\nfirst have add at least 1 user.");
  EXPECT_EQ(boxes_.shown[0].owner, MessageOwner::kDialog);
  EXPECT_EQ(login_.Log(), Texts{});
}

TEST_F(PeopleTest, LoginOpensTheMenuAndShowsTheHomeScreen) {
  Start();
  Register("Ann");
  Open(252);
  folder_.Write("Ann/info.ASC", "35\r\n170\r\nwomen\r\nlow\r\nnone");
  window_.log.clear();
  EXPECT_EQ(LogIn("Ann"), Texts{});
  EXPECT_EQ(User(), "Ann");
  EXPECT_EQ(program_->session().screen, 0);
  EXPECT_EQ(window_.log, (Texts{"open 10002", "paint now"}));
  EXPECT_EQ(login_.Log(), (Texts{"close"}));
  for (const auto& [command, enabled] : window_.menu) EXPECT_EQ(enabled, command != 200) << command;
  const RecordingCanvas canvas = Repaint();
  EXPECT_EQ(canvas.texts[1], (DrawnText{"Ann", {45, 2}, kBodyFont, kBlack}));
  EXPECT_EQ(canvas.texts[2], (DrawnText{kTestDate, {730, 2}, kBodyFont, kBlack}));
}

TEST_F(PeopleTest, OpeningTheLoginEmptiesTheNameAndASelectionFillsIt) {
  Start();
  Register("Ann");
  LogIn("Ann");
  OpenLogin();
  EXPECT_EQ(User(), "");
  login_.Choose(700, "Ann");
  EXPECT_EQ(User(), "Ann");
  login_.Press(2);
  EXPECT_EQ(User(), "Ann");
}

TEST_F(PeopleTest, AnIncompleteProfileIsPointedOutAndTheLoginGoesOn) {
  Start();
  Register("Ann");
  const std::string fill_up = "CAUTION!!\nFill up Your profile!";
  EXPECT_EQ(LogIn("Ann"), (Texts{fill_up}));
  EXPECT_EQ(User(), "Ann");
  for (const char* const lines : {"0\r\n170\r\nwomen\r\nlow\r\nnone", "35\r\nabc\r\nwomen\r\nlow",
                                  "35\r\n170\r\n0\r\nlow", "35\r\n170\r\nwomen\r\n0\r\nnone"}) {
    folder_.Write("Ann/info.ASC", lines);
    EXPECT_EQ(LogIn("Ann"), (Texts{fill_up})) << lines;
  }
  folder_.Write("Ann/info.ASC", "35\n170\nmen\nlow");  // other is not asked for
  EXPECT_EQ(LogIn("Ann"), Texts{});
}

TEST_F(PeopleTest, APregnantManIsPointedOutButNotASucklingOne) {
  Start();
  Register("Bob");
  folder_.Write("Bob/info.ASC", "35\r\n170\r\nmen\r\nlow\r\npregnant");
  EXPECT_EQ(LogIn("Bob"),
            (Texts{"CAUTION!!\nIt seems some of Your data are incorrect\nCheck them!"}));
  folder_.Write("Bob/info.ASC", "35\r\n170\r\nmen\r\nlow\r\nsuckling mother");
  EXPECT_EQ(LogIn("Bob"), Texts{});
}

// The screens take him for a man like any other; his profile stays for him to mend.
TEST_F(PeopleTest, APregnantManIsNotTakenForOne) {
  const auto note = [this](const std::string& profile) {
    folder_.Write("Bob/info.ASC", profile);
    LogIn("Bob");
    return Open(221).texts.back().text;
  };
  Start();
  Register("Bob");
  EXPECT_EQ(note("35\r\n170\r\nwomen\r\nlow\r\npregnant"),
            "During pregnancy BMI coefficient is useless!");
  EXPECT_EQ(note("35\r\n170\r\nmen\r\nlow\r\npregnant"), "BMI =  ");
  EXPECT_EQ(folder_.Read("Bob/info.ASC"), "35\r\n170\r\nmen\r\nlow\r\npregnant");
}

TEST_F(PeopleTest, ANewDayStartsTheBalanceAfresh) {
  Start();
  Register("Ann");
  LogIn("Ann");
  EXPECT_EQ(folder_.Read("Ann/bilans.ASC"), kTestDate);
  const std::string eaten = std::string(kTestDate) + "\r\n500.\r\n20.\r\n10.\r\n80.";
  folder_.Write("Ann/bilans.ASC", eaten);
  LogIn("Ann");
  EXPECT_EQ(folder_.Read("Ann/bilans.ASC"), eaten);
  folder_.Write("Ann/bilans.ASC", "15.11.2026\r\n500.\r\n20.\r\n10.\r\n80.");
  LogIn("Ann");
  EXPECT_EQ(folder_.Read("Ann/bilans.ASC"), kTestDate);
}

TEST_F(PeopleTest, NamesThatLeaveTheFolderAreNotOffered) {
  folder_.Write("users.ASC", std::string("\r\n\nAnn\r\n..\\x\r\nC:\\y\r\n..\r\n") +
                                 std::string(200, 'n') + "\nBob");
  Start();
  OpenLogin();
  EXPECT_EQ(login_.Items(700), (Texts{"Ann", "Bob"}));
  EXPECT_EQ(folder_.Names(), (Texts{"users.ASC"}));
}

TEST_F(PeopleTest, LogoutEmptiesTheNameAfterItsBox) {
  Start();
  Register("Ann");
  LogIn("Ann");
  program_->OnCommand(201, kButtonClicked);
  EXPECT_EQ(boxes_.TakeTexts(), (Texts{"BYE, SEE YOU SOON!"}));
  EXPECT_EQ(User(), "");
  EXPECT_TRUE(window_.menu.at(240));
}

}  // namespace
}  // namespace velnor

// What ends with the session of a user, and what nobody's session leaves behind.

#include <array>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "tests/support/people_fixture.h"

namespace velnor {
namespace {

using Texts = std::vector<std::string>;

const std::string kWhole = "35\r\n170\r\nwomen\r\nlow\r\nnone";
constexpr int kLogOut = 201;
constexpr int kProfile = 204;

class SessionEndTest : public PeopleTest {
 protected:
  SessionEndTest() {
    for (const char* const name : {"Ann", "Zoe"}) {
      std::filesystem::create_directory(folder_.path() + name);
      folder_.Write(std::string(name) + "/info.ASC", kWhole);
    }
    folder_.Write("users.ASC", "Ann\r\nZoe");
    Start();
    LogIn("Zoe");
  }

  // All six, in the order of their commands below.
  void OpenDialogsOfTheSession() {
    for (std::size_t i = 0; i < kCommands.size(); ++i) {
      Open(kCommands[i].screen);
      OpenDialog(kCommands[i].command, forms_[i]);
    }
  }
  void ExpectAllClosed() const {
    for (std::size_t i = 0; i < kCommands.size(); ++i) {
      EXPECT_EQ(std::ranges::count(forms_[i].Log(), "close"), 1) << kCommands[i].command;
    }
  }
  std::map<std::string, std::string> Files() const {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder_.path())) {
      const std::string name = entry.path().string().substr(folder_.path().size());
      files[name] = entry.is_directory() ? "folder" : folder_.Read(name);
    }
    return files;
  }

  // The profile and the five records, and the screens where they can be opened.
  struct Way {
    int screen;
    int command;
  };
  static constexpr std::array<Way, 6> kCommands = {
      {{221, kProfile}, {221, 103}, {224, 107}, {231, 145}, {231, 147}, {238, 162}}};
  std::array<FakeForm, kCommands.size()> forms_;
};

TEST_F(SessionEndTest, ALogoutClosesTheDialogsOfTheUserAsCancelDoes) {
  OpenDialogsOfTheSession();
  const auto before = Files();
  program_->OnCommand(kLogOut, kButtonClicked);
  ExpectAllClosed();
  EXPECT_EQ(Files(), before);
}

TEST_F(SessionEndTest, ALogoutLeavesTheOtherDialogsOpen) {
  OpenUsers();
  program_->OnCommand(kLogOut, kButtonClicked);
  EXPECT_EQ(users_.Log(), Texts{"focus 701"});
}

TEST_F(SessionEndTest, RemovingTheUserClosesThemToo) {
  OpenDialogsOfTheSession();
  OpenUsers();
  users_.Choose(700, "Zoe");
  users_.Press(703);
  ExpectAllClosed();
  EXPECT_EQ(std::ranges::count(users_.Log(), "close"), 0);
  EXPECT_EQ(std::ranges::count(folder_.Names(), "Zoe"), 0);
}

// A login dialog that was open twice logs another user in over the first.
TEST_F(SessionEndTest, ANameChosenInALoginThatStayedOpenClosesThemToo) {
  program_->OnCommand(kLogOut, kButtonClicked);
  OpenLogin();
  const std::shared_ptr<Dialog> stays = window_.opened;
  FakeForm other;
  OpenDialog(200, other);
  other.Choose(700, "Zoe");
  other.Press(1);
  OpenDialogsOfTheSession();
  login_.Choose(700, "Ann");
  ExpectAllClosed();
}

TEST_F(SessionEndTest, AClosedDialogIsNotClosedAgain) {
  OpenProfile();
  profile_.Press(1);
  program_->OnCommand(kLogOut, kButtonClicked);
  EXPECT_EQ(profile_.Log(), Texts{"close"});
}

// The box of the contradiction has the dialog as its owner: the menu stays usable.
TEST_F(SessionEndTest, AProfileThatIsBeingSavedIsNotSavedForTheNextUser) {
  OpenProfile();
  profile_.SetText(704, "99");
  profile_.Choose(706, "men");
  profile_.Choose(708, "pregnant");
  boxes_.while_open = [this] {
    boxes_.while_open = nullptr;
    program_->OnCommand(kLogOut, kButtonClicked);
    LogIn("Ann");
    Open(252);
  };
  profile_.Press(1);
  EXPECT_EQ(profile_.Log(), Texts{"close"});
  EXPECT_EQ(folder_.Read("Ann/info.ASC"), kWhole);
  EXPECT_EQ(folder_.Read("Zoe/info.ASC"), kWhole);
  EXPECT_EQ(program_->session().screen, 20);
  Open(232);
  EXPECT_EQ(form_.Text(120), "2100-2300");
}

// So has the one that asks for a profile, when the menu is open already.
TEST_F(SessionEndTest, ALogoutBehindTheBoxOfTheLoginStartsNobodysDay) {
  program_->OnCommand(kLogOut, kButtonClicked);
  folder_.Write("Ann/info.ASC", "");
  const auto before = Files();
  boxes_.while_open = [this] {
    boxes_.while_open = nullptr;
    program_->OnCommand(kLogOut, kButtonClicked);
  };
  LogIn("Ann");
  EXPECT_EQ(login_.Log(), Texts{"close"});
  EXPECT_EQ(User(), "");
  EXPECT_FALSE(window_.menu.at(kProfile));
  EXPECT_EQ(Files(), before);
}

// The removal of the user leaves the activities enabled.
TEST_F(SessionEndTest, TheActivitiesOfNobodyReadAndWriteNothing) {
  OpenUsers();
  users_.Choose(700, "Zoe");
  users_.Press(703);
  folder_.Write("erg.txt", std::string(kTestDate) + ";77.;");
  const auto before = Files();
  Open(238);
  EXPECT_EQ(form_.Text(180), "0");
  form_.Choose(159, "sitting");
  form_.Type(160, "30");
  form_.Press(161);
  EXPECT_EQ(form_.Text(163), "9.");
  form_.Press(177);
  Repaint();
  EXPECT_EQ(form_.Text(180), "0");
  form_.Press(179);
  FakeForm record;
  OpenDialog(162, record);
  record.Press(1);
  EXPECT_EQ(record.Log(), Texts{"close"});
  EXPECT_EQ(Files(), before);
}

}  // namespace
}  // namespace velnor

// The profile through its dialog.

#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/people_fixture.h"

namespace velnor {
namespace {

using Texts = std::vector<std::string>;

class ProfileDialogTest : public PeopleTest {};

TEST_F(ProfileDialogTest, AnEmptyProfileOpensWithMenSelected) {
  Start();
  Register("Ann");
  LogIn("Ann");
  OpenProfile();
  EXPECT_EQ(profile_.Items(706), (Texts{"women", "men"}));
  EXPECT_EQ(profile_.Items(707), (Texts{"low", "medium", "high", "very high"}));
  EXPECT_EQ(profile_.Items(708), (Texts{"pregnant", "suckling mother", "athlete", "none"}));
  EXPECT_EQ(profile_.Text(704), "");
  EXPECT_EQ(profile_.SelectedText(706), "men");
  EXPECT_EQ(profile_.SelectedText(707), std::nullopt);
  EXPECT_EQ(profile_.SelectedText(708), std::nullopt);
}

TEST_F(ProfileDialogTest, WhatEachStoredValueSelects) {
  Start();
  Register("Ann");
  LogIn("Ann");
  const auto opened_with = [this](const std::string& lines) {
    folder_.Write("Ann/info.ASC", lines);
    OpenProfile();
    return Texts{profile_.Text(704), profile_.Text(705), profile_.Text(706), profile_.Text(707),
                 profile_.Text(708)};
  };
  EXPECT_EQ(opened_with("35\r\n170\r\nwomen\r\nvery high\r\nsuckling mother"),
            (Texts{"35", "170", "women", "very high", "suckling mother"}));
  EXPECT_EQ(opened_with("35\n170\nabcde\nmuch\nathlete"),  // told by length and first letter
            (Texts{"35", "170", "women", "medium", "athlete"}));
  EXPECT_EQ(opened_with("0\r\n0\r\n0\r\n0\r\n0"), (Texts{"0", "0", "men", "", ""}));
  EXPECT_EQ(opened_with("x\n\xFF\n\nhigh\nnone"), (Texts{"x", "\xFF", "men", "high", "none"}));
}

TEST_F(ProfileDialogTest, SavingWritesTheProfileAndGoesHome) {
  Start();
  Register("Ann");
  LogIn("Ann");
  Open(252);
  OpenProfile();
  profile_.SetText(704, "");
  profile_.SetText(705, "170");
  profile_.Choose(706, "women");
  profile_.Choose(707, "low");
  profile_.Choose(708, "pregnant");
  boxes_.TakeTexts();
  window_.log.clear();
  profile_.Press(1);
  EXPECT_EQ(boxes_.TakeTexts(), Texts{});
  EXPECT_EQ(folder_.Read("Ann/info.ASC"), "0\r\n170\r\nwomen\r\nlow\r\npregnant");
  EXPECT_EQ(program_->session().screen, 0);
  EXPECT_EQ(window_.log, (Texts{"paint now"}));
  EXPECT_EQ(profile_.Log(), (Texts{"close"}));
}

// A line that were longer would be read back as two, and every one behind it as the next one's.
TEST_F(ProfileDialogTest, TheLongestTextsThatAreSavedAreReadBack) {
  Start();
  Register("Ann");
  LogIn("Ann");
  OpenProfile();
  profile_.SetText(704, std::string(120, '7'));
  profile_.SetText(705, "170");
  profile_.Press(1);
  OpenProfile();
  EXPECT_EQ(profile_.Text(704), std::string(98, '7'));
  EXPECT_EQ(profile_.Text(705), "170");
}

TEST_F(ProfileDialogTest, AContradictionIsPointedOutAndSavedWithoutIt) {
  Start();
  Register("Bob");
  LogIn("Bob");
  for (const char* const other : {"pregnant", "suckling mother"}) {
    OpenProfile();
    profile_.SetText(704, "35");
    profile_.SetText(705, "180");
    profile_.Choose(706, "men");
    profile_.Choose(707, "high");
    profile_.Choose(708, other);
    boxes_.TakeTexts();
    profile_.Press(1);
    EXPECT_EQ(boxes_.TakeTexts(),
              (Texts{"ATTENTION!!\nIt seems something is wrong\nCheck Your profile!"}));
    EXPECT_EQ(folder_.Read("Bob/info.ASC"), "35\r\n180\r\nmen\r\nhigh\r\n0");
  }
}

// A link to itself can be replaced but not read, as a file that somebody has locked for a moment.
TEST_F(ProfileDialogTest, AProfileThatCannotBeReadIsNotOverwritten) {
  Start();
  Register("Ann");
  LogIn("Ann");
  const std::string path = folder_.path() + "Ann/info.ASC";
  std::filesystem::remove(path);
  std::filesystem::create_symlink(path, path);
  OpenProfile();
  EXPECT_EQ(profile_.Text(704), "");
  std::filesystem::remove(path);
  folder_.Write("Ann/info.ASC", "35\r\n170\r\nwomen\r\nlow\r\nnone");
  boxes_.TakeTexts();
  profile_.Press(1);
  EXPECT_EQ(boxes_.TakeTexts(),
            (Texts{"Your profile could not be read.\nClose this window and open it again."}));
  EXPECT_EQ(profile_.Log(), Texts{});
  EXPECT_EQ(folder_.Read("Ann/info.ASC"), "35\r\n170\r\nwomen\r\nlow\r\nnone");
  OpenProfile();
  EXPECT_EQ(profile_.Text(704), "35");
  profile_.Press(1);
  EXPECT_EQ(boxes_.TakeTexts(), Texts{});
}

TEST_F(ProfileDialogTest, AFolderThatIsGoneIsMadeAgainAndTheProfileSaved) {
  Start();
  Register("Ann");
  std::filesystem::remove_all(folder_.path() + "Ann");
  LogIn("Ann");
  Open(252);
  OpenProfile();
  profile_.SetText(704, "35");
  profile_.SetText(705, "170");
  profile_.Choose(706, "women");
  profile_.Choose(707, "low");
  boxes_.TakeTexts();
  profile_.Press(1);
  EXPECT_EQ(boxes_.TakeTexts(), Texts{});
  EXPECT_EQ(profile_.Log(), (Texts{"close"}));
  EXPECT_EQ(program_->session().screen, 0);
  EXPECT_EQ(folder_.Read("Ann/info.ASC"), "35\r\n170\r\nwomen\r\nlow\r\n0");
}

// A file lies where the folder would be made.
TEST_F(ProfileDialogTest, AProfileThatHasNoPlaceCountsForTheSession) {
  Start();
  Register("Ann");
  std::filesystem::remove_all(folder_.path() + "Ann");
  folder_.Write("Ann", "in the way");
  LogIn("Ann");
  OpenProfile();
  profile_.SetText(704, "35");
  profile_.SetText(705, "170");
  profile_.Choose(706, "women");
  profile_.Choose(707, "low");
  boxes_.TakeTexts();
  profile_.Press(1);
  EXPECT_EQ(boxes_.TakeTexts(), Texts{});
  EXPECT_EQ(profile_.Log(), (Texts{"close"}));
  EXPECT_EQ(folder_.Read("Ann"), "in the way");
  Open(232);
  EXPECT_EQ(form_.Text(120), "2100-2300");
}

// As one on a stick that was pulled out and put back.
TEST_F(ProfileDialogTest, AFolderThatComesBackKeepsItsProfile) {
  Start();
  Register("Ann");
  LogIn("Ann");
  folder_.Write("Ann/info.ASC", "35\r\n170\r\nwomen\r\nlow\r\nnone");
  std::filesystem::rename(folder_.path() + "Ann", folder_.path() + "away");
  OpenProfile();
  std::filesystem::rename(folder_.path() + "away", folder_.path() + "Ann");
  boxes_.TakeTexts();
  profile_.Press(1);
  EXPECT_EQ(boxes_.TakeTexts().size(), 1U);
  EXPECT_EQ(profile_.Log(), Texts{});
  EXPECT_EQ(folder_.Read("Ann/info.ASC"), "35\r\n170\r\nwomen\r\nlow\r\nnone");
}

TEST_F(ProfileDialogTest, OnlyAPressOfOkSavesAndCancelDoesNot) {
  Start();
  Register("Ann");
  LogIn("Ann");
  OpenProfile();
  profile_.SetText(704, "35");
  window_.opened->OnCommand(profile_, 1, 1);
  EXPECT_EQ(folder_.Read("Ann/info.ASC"), "");
  profile_.Press(2);
  EXPECT_EQ(folder_.Read("Ann/info.ASC"), "");
  EXPECT_EQ(profile_.Log(), (Texts{"close"}));
}

}  // namespace
}  // namespace velnor

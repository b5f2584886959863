// The dialog that removes a product of the user's own.

#include <string>
#include <vector>

#include "tests/support/program_fixture.h"

namespace velnor {
namespace {

using Texts = std::vector<std::string>;

class RemoveProductTest : public ProgramTest {
 protected:
  void Open() {
    Start();
    OpenDialog(241, dialog_);
  }

  FakeForm dialog_;
};

const std::string kFig = "fruits;fresh;figs;100;74;1;0;19;\r\n";
const std::string kPie = "fruits;fresh;apple pie;100;237;1.9;11;34.0;\r\n";

TEST_F(RemoveProductTest, ListsTheNamesInAlphabeticalOrder) {
  folder_.Write("data.txt", kFig + kPie + kPie + "abc\r\n");
  Open();
  EXPECT_EQ(dialog_.Items(739), (Texts{"apple pie", "apple pie", "figs"}));
}

TEST_F(RemoveProductTest, AMissingFileOpensWithAnEmptyList) {
  Open();
  EXPECT_EQ(dialog_.ItemCount(739), 0);
}

TEST_F(RemoveProductTest, AsksAndRemovesBothOfTwoButOneEntry) {
  folder_.Write("data.txt", kPie + kFig + kPie);
  Open();
  dialog_.Choose(739, "apple pie");
  dialog_.Press(1);
  ASSERT_EQ(boxes_.shown.size(), 1U);
  EXPECT_EQ(boxes_.shown[0].text, "Are You sure??");
  EXPECT_EQ(boxes_.shown[0].buttons, MessageButtons::kYesNo);
  EXPECT_EQ(boxes_.shown[0].owner, MessageOwner::kMainWindow);
  EXPECT_EQ(folder_.Read("data.txt"), kFig);
  EXPECT_EQ(dialog_.Items(739), (Texts{"apple pie", "figs"}));
  FakeForm reopened;
  OpenDialog(241, reopened);
  EXPECT_EQ(reopened.Items(739), (Texts{"figs"}));
}

TEST_F(RemoveProductTest, TheProductIsGoneFromTheListsAtOnce) {
  folder_.Write("data.txt", kPie);
  Open();
  dialog_.Choose(739, "apple pie");
  dialog_.Press(1);
  ProgramTest::Open(231);
  form_.Choose(124, "fruits");
  form_.Choose(125, "fresh");
  EXPECT_EQ(form_.ItemCount(126), 29);
}

// The dialog behind the question can be used.
TEST_F(RemoveProductTest, WhatIsSelectedWhenTheQuestionIsAnsweredGoes) {
  folder_.Write("data.txt", kPie + kFig);
  Open();
  dialog_.Choose(739, "apple pie");
  boxes_.while_open = [this] { dialog_.Choose(739, "figs"); };
  dialog_.Press(1);
  EXPECT_EQ(folder_.Read("data.txt"), kPie);
  EXPECT_EQ(dialog_.Items(739), (Texts{"apple pie"}));
}

TEST_F(RemoveProductTest, AListThatShowsItLosesItAndItsSelection) {
  folder_.Write("data.txt", kPie + kFig);
  Open();
  ProgramTest::Open(231);
  form_.Choose(124, "fruits");
  form_.Choose(125, "fresh");
  form_.Choose(126, "apple pie");
  dialog_.Choose(739, "figs");
  dialog_.Press(1);
  EXPECT_EQ(form_.SelectedText(126), "apple pie");
  dialog_.Choose(739, "apple pie");
  dialog_.Press(1);
  EXPECT_EQ(form_.SelectedText(126), std::nullopt);
  EXPECT_EQ(std::ranges::count(form_.Items(126), "apple pie"), 0);
  EXPECT_EQ(form_.Text(129), "237");
}

TEST_F(RemoveProductTest, NoRemovesNothing) {
  folder_.Write("data.txt", kPie);
  Open();
  boxes_.answer = Answer::kNo;
  dialog_.Choose(739, "apple pie");
  dialog_.Press(1);
  EXPECT_EQ(folder_.Read("data.txt"), kPie);
  EXPECT_EQ(dialog_.Items(739), (Texts{"apple pie"}));
}

TEST_F(RemoveProductTest, WithNothingSelectedItAsksAndRemovesNothing) {
  folder_.Write("data.txt", kPie);
  Open();
  dialog_.Press(1);
  EXPECT_TRUE(boxes_.shown.empty());
  EXPECT_EQ(folder_.Read("data.txt"), kPie);
}

TEST_F(RemoveProductTest, CloseCloses) {
  Open();
  dialog_.Press(2);
  EXPECT_EQ(dialog_.Log(), (Texts{"close"}));
}

}  // namespace
}  // namespace velnor

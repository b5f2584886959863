// The stand-in must behave as the platform's controls do, or the tests above it prove nothing.

#include "tests/support/fake_form.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "shell/screens.h"

namespace velnor {
namespace {

using Notifications = std::vector<std::pair<int, int>>;

class FakeFormTest : public testing::Test {
 protected:
  FakeFormTest() {
    form_.AddMainWindowControls();
    for (const ControlRow& row : MainWindowControls()) form_.Show(row.key);
    form_.SetListener([this](int id, int notification) { heard_.emplace_back(id, notification); });
  }

  FakeForm form_;
  Notifications heard_;
};

TEST_F(FakeFormTest, SortedListsIgnoreCase) {
  for (const int id : {109, 124}) {
    for (const char* const item : {"pears", "Apples", "figs", "apple pie", "APRICOTS"}) {
      form_.AddItem(id, item);
    }
    EXPECT_EQ(form_.Items(id),
              (std::vector<std::string>{"apple pie", "Apples", "APRICOTS", "figs", "pears"}));
  }
}

TEST_F(FakeFormTest, OnlyWhatIsTypedStopsAtTheLimit) {
  form_.LimitText(128, 3);
  form_.Type(128, "12345");
  EXPECT_EQ(form_.Text(128), "123");
  form_.SetText(128, "12345");
  EXPECT_EQ(form_.Text(128), "12345");
}

TEST_F(FakeFormTest, EditsTellOfTheFocusThatComesAndGoes) {
  form_.Focus(128);
  form_.MoveFocusTo(126);  // a list box tells nothing
  form_.MoveFocusTo(101);
  EXPECT_EQ(heard_, (Notifications{{128, kEditEntered}, {128, kEditLeft}, {101, kEditEntered}}));
}

TEST_F(FakeFormTest, AnItemThatGoesLeavesTheSelectionOnItsText) {
  for (const char* const item : {"apples", "figs", "pears"}) form_.AddItem(109, item);
  form_.SelectItem(109, 1);
  form_.RemoveItem(109, 0);
  EXPECT_EQ(form_.SelectedText(109), "figs");
  form_.RemoveItem(109, 0);
  EXPECT_EQ(form_.SelectedText(109), std::nullopt);
  form_.RemoveItem(109, 5);
  form_.RemoveItem(109, -1);
  EXPECT_EQ(form_.Items(109), (std::vector<std::string>{"pears"}));
}

TEST_F(FakeFormTest, FillingAndClearingAnnounceNothing) {
  form_.AddItem(109, "pears");
  form_.ClearItems(109);
  form_.SetText(129, "70.");         // a static
  form_.SetText(119, "one\r\ntwo");  // a multi-line edit
  EXPECT_EQ(heard_, Notifications{});
  EXPECT_EQ(form_.ItemCount(109), 0);
}

TEST_F(FakeFormTest, ASingleLineEditAnnouncesEveryNewText) {
  form_.SetText(128, "100");
  EXPECT_EQ(heard_, (Notifications{{128, 0x0400}, {128, 0x0300}}));
}

TEST_F(FakeFormTest, TypingAnnouncesEveryCharacter) {
  form_.Type(128, "25");
  EXPECT_EQ(heard_, (Notifications{{128, 0x0400},
                                   {128, 0x0300},
                                   {128, 0x0400},
                                   {128, 0x0300},
                                   {128, 0x0400},
                                   {128, 0x0300}}));
  EXPECT_EQ(form_.Text(128), "25");
}

TEST_F(FakeFormTest, ARefillLosesTheSelection) {
  form_.AddItem(124, "fruits");
  EXPECT_EQ(form_.SelectedText(124), std::nullopt);
  form_.Choose(124, "fruits");
  EXPECT_EQ(form_.SelectedText(124), "fruits");
  EXPECT_EQ(form_.ReadText(124, 3), "fru");
  EXPECT_EQ(heard_, (Notifications{{124, 1}}));
  form_.ClearItems(124);
  form_.AddItem(124, "fruits");
  EXPECT_EQ(form_.SelectedText(124), std::nullopt);
}

TEST_F(FakeFormTest, TheSelectionStaysOnItsItem) {
  form_.AddItem(109, "pears");
  form_.Choose(109, "pears");
  form_.AddItem(109, "figs");
  form_.AddItem(109, "plums");
  EXPECT_EQ(form_.SelectedText(109), "pears");
}

TEST_F(FakeFormTest, FillingReplacesAndAddingAdds) {
  const std::vector<std::string_view> fruits = {"pears", "figs"};
  form_.AddItem(109, "plums");
  form_.Choose(109, "plums");
  form_.AddItems(109, fruits);
  EXPECT_EQ(form_.Items(109), (std::vector<std::string>{"figs", "pears", "plums"}));
  EXPECT_EQ(form_.SelectedText(109), "plums");
  form_.FillItems(109, fruits);
  EXPECT_EQ(form_.Items(109), (std::vector<std::string>{"figs", "pears"}));
  EXPECT_EQ(form_.SelectedText(109), std::nullopt);
  EXPECT_EQ(form_.Fills(109), 3);
  form_.FillItems(109, {});
  EXPECT_EQ(form_.ItemCount(109), 0);
}

TEST_F(FakeFormTest, ReadsNoMoreThanTheLimit) {
  form_.SetText(111, "12345");
  EXPECT_EQ(form_.ReadText(111, 4), "1234");
  EXPECT_EQ(form_.ReadText(111, 30), "12345");
  EXPECT_EQ(form_.ReadText(9999, 30), "");
}

std::string Lines(int count) {
  std::string text = "line 0";
  for (int i = 1; i < count; ++i) text += "\r\nline " + std::to_string(i);
  return text;
}

TEST_F(FakeFormTest, AMultiLineEditScrollsByLinesAndPages) {
  form_.SetText(119, Lines(100));
  std::vector<int> first_lines;
  for (const ScrollStep step :
       {ScrollStep::kLineDown, ScrollStep::kPageDown, ScrollStep::kLineUp, ScrollStep::kPageUp}) {
    form_.Scroll(119, step);
    first_lines.push_back(form_.FirstVisibleLine(119));
  }
  EXPECT_EQ(first_lines, (std::vector<int>{1, 31, 30, 0}));
}

TEST_F(FakeFormTest, AMultiLineEditStopsAtItsFirstAndLastLine) {
  form_.SetText(119, Lines(40));
  form_.Scroll(119, ScrollStep::kLineUp);
  EXPECT_EQ(form_.FirstVisibleLine(119), 0);
  form_.Scroll(119, ScrollStep::kPageDown);
  EXPECT_EQ(form_.FirstVisibleLine(119), 10);
  form_.Scroll(119, ScrollStep::kLineDown);
  EXPECT_EQ(form_.FirstVisibleLine(119), 10);
  form_.SetText(119, Lines(30));
  EXPECT_EQ(form_.FirstVisibleLine(119), 0);
  form_.Scroll(119, ScrollStep::kLineDown);
  EXPECT_EQ(form_.FirstVisibleLine(119), 0);
}

TEST_F(FakeFormTest, ATextEndsAtANul) {
  form_.SetText(119, std::string_view("one\0two", 7));
  EXPECT_EQ(form_.ReadText(119, kWholeText), "one");
}

TEST_F(FakeFormTest, WhatIsNotShownCannotBeReached) {
  form_.AddItem(126, "figs");
  form_.HideAll();
  EXPECT_NONFATAL_FAILURE(form_.Press(127), "does not show 127");
  EXPECT_NONFATAL_FAILURE(form_.Type(128, "1"), "does not show 128");
  EXPECT_NONFATAL_FAILURE(form_.Choose(126, "figs"), "does not show 126");
  EXPECT_NONFATAL_FAILURE(form_.MoveFocusTo(128), "does not show 128");
  EXPECT_EQ(heard_, Notifications{});
  EXPECT_EQ(form_.Text(128), "");
  EXPECT_EQ(form_.SelectedText(126), std::nullopt);
}

TEST_F(FakeFormTest, AFailureNamesTheScreenAndTheControl) {
  form_.HideAll();
  for (const int key : ShownKeys(*FindScreen(12))) form_.Show(key);
  EXPECT_NONFATAL_FAILURE(form_.Press(127), "the main window, screen 12 does not show 127");
  form_.Press(165);
  EXPECT_EQ(heard_, (Notifications{{165, kButtonClicked}}));
}

TEST_F(FakeFormTest, EitherOfTwoControlsWithOneIdCanBePressed) {
  for (const int key : {149, SecondControl(149)}) {
    form_.HideAll();
    form_.Show(key);
    form_.Press(149);
  }
  EXPECT_EQ(heard_, (Notifications{{149, kButtonClicked}, {149, kButtonClicked}}));
}

TEST_F(FakeFormTest, WhatThereIsNotCannotBeReached) {
  EXPECT_NONFATAL_FAILURE(form_.Press(128), "no such control: 128");      // an edit
  EXPECT_NONFATAL_FAILURE(form_.Press(702), "no such control: 702");      // of a dialog
  EXPECT_NONFATAL_FAILURE(form_.Type(129, "1"), "no such control: 129");  // a static
  EXPECT_NONFATAL_FAILURE(form_.Choose(127, "figs"), "no such control: 127");
  EXPECT_NONFATAL_FAILURE(static_cast<void>(form_.Items(99)), "no control 99");
  EXPECT_EQ(heard_, Notifications{});
}

TEST_F(FakeFormTest, ADialogHasTheControlsOfItsTemplateUntilItIsClosed) {
  FakeForm dialog;
  dialog.AddDialogControls(10007);
  dialog.Type(725, "Thaw.");
  EXPECT_EQ(dialog.Text(725), "Thaw.");
  EXPECT_NONFATAL_FAILURE(dialog.Type(127, "1"), "dialog 10007 has no such control: 127");
  dialog.Close();
  EXPECT_NONFATAL_FAILURE(dialog.Press(1), "dialog 10007, which is closed");
}

}  // namespace
}  // namespace velnor

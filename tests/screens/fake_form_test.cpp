// The stand-in must behave as the platform's controls do, or the tests above it prove nothing.

#include "tests/support/fake_form.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velnor {
namespace {

using Notifications = std::vector<std::pair<int, int>>;

class FakeFormTest : public testing::Test {
 protected:
  FakeFormTest() {
    form_.AddMainWindowControls();
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

}  // namespace
}  // namespace velnor

// The stand-in must behave as the platform's controls do, or the tests above it prove nothing.

#include "tests/support/fake_form.h"

#include <gtest/gtest.h>
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

TEST_F(FakeFormTest, ReadsNoMoreThanTheLimit) {
  form_.SetText(111, "12345");
  EXPECT_EQ(form_.ReadText(111, 4), "1234");
  EXPECT_EQ(form_.ReadText(111, 30), "12345");
  EXPECT_EQ(form_.ReadText(9999, 30), "");
}

}  // namespace
}  // namespace velnor

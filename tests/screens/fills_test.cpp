// Every list of the program is filled in one step: drawn at every item, it would keep a person
// waiting for seconds.

#include <array>

#include "tests/support/people_fixture.h"

namespace velnor {
namespace {

constexpr int kOpenCounter = 231;
constexpr int kOpenOverview = 236;
constexpr int kOpenBurned = 238;

class FillsTest : public PeopleTest {};

TEST_F(FillsTest, APickerFillsEveryListOnceAChoice) {
  Start();
  for (const auto& [command, main_category, subcategory, products] :
       {std::array{kOpenCounter, 124, 125, 126}, std::array{kOpenOverview, 108, 110, 109}}) {
    Open(command);
    EXPECT_EQ(form_.Fills(main_category), 1);
    form_.Choose(main_category, "fruits");
    EXPECT_EQ(form_.Fills(subcategory), 1);
    form_.Choose(subcategory, "fresh");
    EXPECT_EQ(form_.Fills(products), 1);
    EXPECT_GT(form_.ItemCount(products), 20);
    Repaint();
    EXPECT_EQ(form_.Fills(main_category), 1);
    EXPECT_EQ(form_.Fills(products), 1);
  }
}

TEST_F(FillsTest, TheActivitiesAreFilledOnceAPainting) {
  Start();
  Open(kOpenBurned);
  EXPECT_EQ(form_.Fills(159), 1);
  Repaint();
  EXPECT_EQ(form_.Fills(159), 2);
}

TEST_F(FillsTest, ASearchFillsItsResultsOnce) {
  FakeForm dialog;
  Start();
  Open(kOpenOverview);
  OpenDialog(149, dialog);
  dialog.SetText(728, "a");
  dialog.Press(730);
  EXPECT_GT(dialog.ItemCount(729), 700);
  EXPECT_EQ(dialog.Fills(729), 1);
}

TEST_F(FillsTest, TheDialogsOfOwnProductsFillTheirListsOnce) {
  folder_.Write("data.txt",
                "fruits;fresh;figs;100;74;1;0;19;\r\nfruits;fresh;dates;100;74;1;0;19;\r\n");
  FakeForm add;
  FakeForm remove;
  Start();
  OpenDialog(240, add);
  EXPECT_EQ(add.Fills(732), 1);
  add.Choose(732, "fruits");
  EXPECT_EQ(add.Fills(733), 1);
  OpenDialog(241, remove);
  EXPECT_EQ(remove.ItemCount(739), 2);
  EXPECT_EQ(remove.Fills(739), 1);
}

TEST_F(FillsTest, TheDialogsOfPeopleFillTheirListsOnce) {
  folder_.Write("users.ASC", "Ann\r\nBob\r\nCid");
  Start();
  OpenUsers();
  EXPECT_EQ(users_.ItemCount(700), 3);
  EXPECT_EQ(users_.Fills(700), 1);
  OpenLogin();
  EXPECT_EQ(login_.ItemCount(700), 3);
  EXPECT_EQ(login_.Fills(700), 1);
  LogIn("Ann");
  OpenProfile();
  for (const int id : {706, 707, 708}) EXPECT_EQ(profile_.Fills(id), 1);
}

}  // namespace
}  // namespace velnor

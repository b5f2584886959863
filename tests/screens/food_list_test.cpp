// The list of foods eaten: adding, taking off, clearing, and the day's files that follow.

#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/day_fixture.h"

namespace velnor {
namespace {

using namespace std::string_literals;
using Texts = std::vector<std::string>;

const Texts kTooLight = {"Choose some product from the list or change weight!"};
const Texts kNotSaved = {
    "The daily balance could not be saved.\nCheck the folder of Your data and try again."};

using FoodListTest = DayTest;

TEST_F(FoodListTest, AFoodGoesOnTheListIntoTheTotalsAndIntoEveryFile) {
  OpenCounter();
  AddStrawberries("250");
  EXPECT_EQ(form_.Items(kList), (Texts{"frozen strawberries  250.0g"}));
  EXPECT_EQ(Totals(), (Texts{"250.", "70.", "1.75", "1.", "13.5"}));
  EXPECT_EQ(Ratio(), (Texts{"1.", "0.571429", "7.71429"}));
  EXPECT_EQ(ShownExchanges(), (Texts{"1.35", "0.16"}));
  EXPECT_EQ(Read("bilans.ASC"), "16.11.2026\r\n70.\r\n1.75\r\n1.\r\n13.5");
  EXPECT_EQ(Read("z1.ASC"), "1.35");
  EXPECT_EQ(Read("z2.ASC"), "0.16");
  EXPECT_EQ(Read("wykoda.txt"), "16.11.2026;70.;1.75;1.;13.5;\r\n");
  EXPECT_EQ(boxes_.TakeTexts(), Texts{});
}

TEST_F(FoodListTest, FoodsAddUp) {
  OpenCounter();
  AddStrawberries("250");
  AddOwnButter();
  EXPECT_EQ(form_.Items(kList), (Texts{"butter  100.0g", "frozen strawberries  250.0g"}));
  EXPECT_EQ(Totals(), (Texts{"350.", "803.63", "2.6", "82.11", "13.56"}));
  EXPECT_EQ(Balance(), "16.11.2026 803.63 2.6 82.11 13.56");
  EXPECT_EQ(Read("wykoda.txt"), "16.11.2026;803.63;2.6;82.11;13.56;\r\n");
  EXPECT_EQ(Read("z1.ASC"), "1.356");
}

// What stands in the fields is added: without a change of weight the product's own texts.
TEST_F(FoodListTest, TheShownFiguresAreAdded) {
  OpenCounter();
  AddOwnButter();
  EXPECT_EQ(Totals(), (Texts{"100.", "733.63", "0.85", "81.11", "0."}))
      << "a total below 0.1 counts as nothing";
  EXPECT_EQ(Balance(), "16.11.2026 733.63 0.85 81.11 0.06");
  EXPECT_EQ(Ratio(), (Texts{"1.", "95.4118", "<0.1"}));
  EXPECT_EQ(ShownExchanges(), (Texts{"<0.1", "7.3339"}));
}

TEST_F(FoodListTest, WithoutProteinThereIsNoRatio) {
  OpenCounter();
  AddStrawberries("10");
  EXPECT_EQ(Totals(), (Texts{"10.", "2.8", "0.", "0.", "0.54"}));
  EXPECT_EQ(Ratio(), (Texts{" --", " --", " --"}));
  EXPECT_EQ(ShownExchanges(), (Texts{"<0.1", "<0.1"}));
  EXPECT_EQ(Read("z1.ASC"), "0.054");
  EXPECT_EQ(Read("z2.ASC"), "0.");
}

TEST_F(FoodListTest, TheFirstFoodOfANewDayStartsItAfresh) {
  OpenCounter();
  Write("bilans.ASC", "15.11.2026\r\n500.\r\n20.\r\n10.\r\n80.");
  Write("z1.ASC", "8.");
  Write("z2.ASC", "1.7");
  Write("wykoda.txt", "15.11.2026;500.;20.;10.;80.;\r\n");
  AddStrawberries("250");
  EXPECT_EQ(Balance(), "16.11.2026 70. 1.75 1. 13.5");
  EXPECT_EQ(Read("z1.ASC"), "1.35");
  EXPECT_EQ(Read("z2.ASC"), "0.16");
  EXPECT_EQ(Read("wykoda.txt"), "15.11.2026;500.;20.;10.;80.;\r\n16.11.2026;70.;1.75;1.;13.5;\r\n");
}

TEST_F(FoodListTest, ALoginOnANewDayLeavesNothingOfTheOldOne) {
  OpenCounter();
  AddStrawberries("250");
  Write("bilans.ASC", "15.11.2026\r\n500.\r\n20.\r\n10.\r\n80.");
  LogIn("Ann", "35\r\n170\r\nwomen\r\nlow\r\nnone");
  EXPECT_EQ(Read("bilans.ASC"), "16.11.2026");
  EXPECT_EQ(Read("z1.ASC"), "");
  EXPECT_EQ(Read("z2.ASC"), "");
  AddStrawberries("250");
  EXPECT_EQ(Read("z1.ASC"), "1.35");
}

TEST_F(FoodListTest, ALoginEmptiesTheListAndTheTotals) {
  OpenCounter();
  AddStrawberries("250");
  LogIn("Bob", "35\r\n170\r\nmen\r\nlow\r\nnone");
  EXPECT_EQ(form_.ItemCount(kList), 0);
  EXPECT_EQ(Totals(), (Texts{"", "", "", "", ""}));
  EXPECT_EQ(Ratio(), (Texts{"", "", ""}));
  EXPECT_EQ(ShownExchanges(), (Texts{"", ""}));
  AddStrawberries("100");
  EXPECT_EQ(Totals(), (Texts{"100.", "28.", "0.7", "0.4", "5.4"})) << "Ann's foods were counted in";
  EXPECT_EQ(folder_.Read("Bob/bilans.ASC"), "16.11.2026\r\n28.\r\n0.7\r\n0.4\r\n5.4");
  EXPECT_EQ(Balance(), "16.11.2026 70. 1.75 1. 13.5");
}

TEST_F(FoodListTest, AWeightBelowOneGramIsRefusedAfterTheFilesWereWritten) {
  OpenCounter();
  AddStrawberries("250");
  AddStrawberries("0.9");
  EXPECT_EQ(boxes_.shown.at(0).caption, "Velnor calorie counter");
  EXPECT_EQ(boxes_.shown.at(0).icon, MessageIcon::kInformation);
  EXPECT_EQ(boxes_.TakeTexts(), kTooLight);
  EXPECT_EQ(form_.Items(kList),
            (Texts{"frozen strawberries  0.9g", "frozen strawberries  250.0g"}));
  EXPECT_EQ(Balance(), "16.11.2026 70.252 1.75 1. 13.5");
  EXPECT_EQ(Read("wykoda.txt"), "16.11.2026;70.252;1.75;1.;13.5;\r\n");
  EXPECT_EQ(Totals(), (Texts{"250.", "70.", "1.75", "1.", "13.5"}));
  EXPECT_EQ(Read("z1.ASC"), "1.35");
}

// It is only in the day's totals, so it leaves only them.
TEST_F(FoodListTest, ARefusedFoodLeavesTheDayAsItEnteredIt) {
  OpenCounter();
  AddStrawberries("250");
  AddStrawberries("0.9");
  Remove("frozen strawberries  0.9g");
  EXPECT_EQ(Balance(), "16.11.2026 70. 1.75 1. 13.5");
  EXPECT_EQ(Totals(), (Texts{"250.", "70.", "1.75", "1.", "13.5"}));
  EXPECT_EQ(Read("z1.ASC"), "1.35");
}

TEST_F(FoodListTest, WithoutAProductTheEntryIsRefused) {
  OpenCounter();
  form_.Press(kAdd);
  EXPECT_EQ(boxes_.TakeTexts(), kTooLight);
  EXPECT_EQ(Balance(), "16.11.2026 0. 0. 0. 0.");
  EXPECT_EQ(Read("z1.ASC"), "") << "the exchange files are made, nothing more";
  EXPECT_EQ(Read("z2.ASC"), "");
  EXPECT_EQ(Totals(), (Texts{"", "", "", "", ""}));
}

TEST_F(FoodListTest, WeightsThatAreNoPlainNumbers) {
  OpenCounter();
  AddStrawberries("-5");
  EXPECT_EQ(boxes_.TakeTexts(), kTooLight);
  EXPECT_EQ(Balance(), "16.11.2026 0. 0. 0. 0.");
  AddStrawberries("1,5");
  EXPECT_EQ(boxes_.TakeTexts(), Texts{});
  EXPECT_EQ(Balance(), "16.11.2026 0.28 0. 0. 0.");
  EXPECT_EQ(Totals().at(0), "1.");
  AddStrawberries("1e30");
  EXPECT_EQ(Balance(), "16.11.2026 2.8e+29 7.e+27 4.e+27 5.4e+28");
  EXPECT_EQ(Totals(), (Texts{"1.e+30", "2.8e+29", "7.e+27", "4.e+27", "5.4e+28"}));
  AddStrawberries(std::string(30, '9'));
  EXPECT_EQ(boxes_.TakeTexts(), Texts{});
  EXPECT_EQ(form_.ItemCount(kList), 4);
  Remove("frozen strawberries  999999999999999999999999999999.0g");
  Remove("frozen strawberries  1e30.0g");
  EXPECT_EQ(form_.ItemCount(kList), 2);
}

TEST_F(FoodListTest, ThirtyCharactersOfAWeightAreListed) {
  OpenCounter();
  AddStrawberries("100." + std::string(40, '0'));
  EXPECT_EQ(form_.Items(kList), (Texts{"frozen strawberries  100." + std::string(26, '0') + "g"}));
}

TEST_F(FoodListTest, TakingAFoodOffUndoesIt) {
  OpenCounter();
  AddStrawberries("250");
  AddButter("100");
  Remove("butter  100.0g");
  EXPECT_EQ(form_.Items(kList), (Texts{"frozen strawberries  250.0g"}));
  EXPECT_EQ(Totals(), (Texts{"250.", "70.", "1.75", "1.", "13.5"}));
  EXPECT_EQ(Ratio(), (Texts{"1.", "0.571429", "7.71429"}));
  EXPECT_EQ(ShownExchanges(), (Texts{"1.35", "0.16"}));
  EXPECT_EQ(Balance(), "16.11.2026 70. 1.75 1. 13.5");
  EXPECT_EQ(Read("wykoda.txt"), "16.11.2026;70.;1.75;1.;13.5;\r\n");
  EXPECT_EQ(Read("z1.ASC"), "1.35");
  EXPECT_EQ(Read("z2.ASC"), "0.16");
  Remove("frozen strawberries  250.0g");
  EXPECT_EQ(Totals(), (Texts{"0.", "0.", "0.", "0.", "0."}));
  EXPECT_EQ(Ratio(), (Texts{" --", " --", " --"}));
  EXPECT_EQ(ShownExchanges(), (Texts{"<0.1", "<0.1"}));
  EXPECT_EQ(Balance(), "16.11.2026 0. 0. 0. 0.");
  EXPECT_EQ(Read("z1.ASC"), "0.");
  EXPECT_EQ(Read("z2.ASC"), "0.");
}

// Butter has a trace of carbohydrates in its own 100 g, which is left out of a typed weight.
TEST_F(FoodListTest, WhatIsTakenOffIsWhatWasAdded) {
  OpenCounter();
  AddStrawberries("250");
  AddOwnButter();
  AddButter("100");
  EXPECT_EQ(Balance(), "16.11.2026 1537.26 3.45 163.22 13.56");
  Remove("butter  100.0g");
  Remove("butter  100.0g");
  EXPECT_EQ(Balance(), "16.11.2026 70. 1.75 1. 13.5");
  EXPECT_EQ(Totals(), (Texts{"250.", "70.", "1.75", "1.", "13.5"}));
  EXPECT_EQ(Read("z1.ASC"), "1.35");
  EXPECT_EQ(Read("z2.ASC"), "0.16");
}

// What the cleared list knew of its lines goes with them.
TEST_F(FoodListTest, AClearedListForgetsWhatItsLinesHeld) {
  OpenCounter();
  AddOwnButter();
  form_.Press(kClearList);
  AddStrawberries("250");
  AddButter("100");
  Remove("butter  100.0g");
  EXPECT_EQ(Balance(), "16.11.2026 70. 1.75 1. 13.56");
}

TEST_F(FoodListTest, WithNothingSelectedNothingIsTakenOff) {
  OpenCounter();
  form_.Press(kRemove);
  EXPECT_EQ(Read("bilans.ASC"), "16.11.2026");
  AddStrawberries("250");
  form_.Press(kRemove);
  EXPECT_EQ(form_.ItemCount(kList), 1);
  EXPECT_EQ(Balance(), "16.11.2026 70. 1.75 1. 13.5");
}

TEST_F(FoodListTest, AProductThatIsGoneLeavesItsWeightOnly) {
  OpenCounter();
  folder_.Write("data.txt", "fruits;fresh;apple pie;100;237;1.9;11;34.0;\r\n");
  Start();
  OpenCounter();
  Choose("fruits", "fresh", "apple pie");
  form_.Press(kAdd);
  EXPECT_EQ(Totals().at(1), "237.");
  FakeForm remove;
  OpenDialog(241, remove);
  remove.Choose(739, "apple pie");
  remove.Press(1);
  form_.Choose(kList, "apple pie  100.0g");
  program_->OnCommand(kRemove, kButtonClicked);
  EXPECT_EQ(form_.ItemCount(kList), 0);
  EXPECT_EQ(Totals(), (Texts{"0.", "237.", "1.9", "11.", "34."}));
}

TEST_F(FoodListTest, ClearingTheListTakesAllOfItOffTheDay) {
  OpenCounter();
  Write("bilans.ASC", "16.11.2026\r\n500.\r\n20.\r\n10.\r\n80.");
  Write("z1.ASC", "8.");
  Write("z2.ASC", "1.7");
  AddStrawberries("250");
  AddButter("100");
  form_.Press(kClearList);
  EXPECT_EQ(form_.ItemCount(kList), 0);
  EXPECT_EQ(Totals(), (Texts{"0", "0", "0", "0", "0"}));
  EXPECT_EQ(Ratio(), (Texts{"0", "0", "0"}));
  EXPECT_EQ(ShownExchanges(), (Texts{"0", "0"}));
  EXPECT_EQ(Balance(), "16.11.2026 500. 20. 10. 80.");
  EXPECT_EQ(Read("z1.ASC"), "8.");
  EXPECT_EQ(Read("z2.ASC"), "1.7");
  EXPECT_EQ(Read("wykoda.txt"), "16.11.2026;500.;20.;10.;80.;\r\n");
}

TEST_F(FoodListTest, NothingFallsBelowNothing) {
  OpenCounter();
  AddStrawberries("250");
  Write("bilans.ASC", "16.11.2026\r\n50.\r\n20.\r\n0.\r\n13.5");
  Write("z1.ASC", "1.");
  form_.Press(kClearList);
  EXPECT_EQ(Balance(), "16.11.2026 0. 18.25 0. 0.");
  EXPECT_EQ(Read("z1.ASC"), "0.");
  EXPECT_EQ(Read("z2.ASC"), "0.");
}

// Six digits are shown of the totals that are taken off.
TEST_F(FoodListTest, ClearingLeavesNoRestOfRounding) {
  OpenCounter();
  for (int i = 0; i < 3; ++i) AddStrawberries("1234.55");
  EXPECT_EQ(Totals().at(1), "1037.02");
  form_.Press(kClearList);
  EXPECT_EQ(Balance(), "16.11.2026 0. 0. 0. 0.");
  EXPECT_EQ(Read("z1.ASC"), "0.");
  EXPECT_EQ(Read("z2.ASC"), "0.");
  EXPECT_EQ(Read("wykoda.txt"), "16.11.2026;0.;0.;0.;0.;\r\n");
  AddStrawberries("250");
  form_.Press(kClearList);
  EXPECT_EQ(Balance(), "16.11.2026 0. 0. 0. 0.") << "what was left out went with the list";
}

TEST_F(FoodListTest, ClearingLeavesWhatWasEatenBeforeAsItWas) {
  OpenCounter();
  Write("bilans.ASC", "16.11.2026\r\n500.\r\n20.\r\n10.\r\n80.");
  for (int i = 0; i < 3; ++i) AddStrawberries("1234.55");
  form_.Press(kClearList);
  EXPECT_EQ(Balance(), "16.11.2026 500. 20. 10. 80.");
}

// A product that a person has given less than nothing.
TEST_F(FoodListTest, FoodOfLessThanNothingComesAndGoes) {
  folder_.Write("data.txt", "fruits;fresh;sauna visit;100;-50;0;0;0;\r\n");
  OpenCounter();
  Choose("fruits", "fresh", "sauna visit");
  form_.Press(kAdd);
  EXPECT_EQ(Balance(), "16.11.2026 -50. 0. 0. 0.");
  EXPECT_EQ(Read("wykoda.txt"), "16.11.2026;-50.;0.;0.;0.;\r\n");
  Remove("sauna visit  100.0g");
  EXPECT_EQ(Balance(), "16.11.2026 0. 0. 0. 0.");
  EXPECT_EQ(Read("wykoda.txt"), "16.11.2026;0.;0.;0.;0.;\r\n");
}

// A weight field that shows dashes has the values of no product.
TEST_F(FoodListTest, AfterAChoiceOfCategoryNothingCanBeAdded) {
  OpenCounter();
  Choose("fruits", "frozen", "frozen strawberries");
  form_.Choose(124, "fish");
  form_.Press(kAdd);
  EXPECT_EQ(boxes_.TakeTexts(), kTooLight);
  EXPECT_EQ(Balance(), "16.11.2026 0. 0. 0. 0.");
}

// Read-only for a moment, or gone: the list shows what the day knows, and the person hears of it.
TEST_F(FoodListTest, WhatCannotBeSavedIsNotOnTheList) {
  OpenCounter();
  AddStrawberries("250");
  std::filesystem::rename(folder_.path() + "Ann", folder_.path() + "away");
  AddButter("100");
  EXPECT_EQ(boxes_.TakeTexts(), kNotSaved);
  EXPECT_EQ(form_.Items(kList), (Texts{"frozen strawberries  250.0g"}));
  Remove("frozen strawberries  250.0g");
  EXPECT_EQ(boxes_.TakeTexts(), kNotSaved);
  form_.Press(kClearList);
  EXPECT_EQ(boxes_.TakeTexts(), kNotSaved);
  ClearDay();
  EXPECT_EQ(boxes_.TakeTexts(), kNotSaved);
  EXPECT_EQ(form_.Items(kList), (Texts{"frozen strawberries  250.0g"}));
  EXPECT_EQ(Totals(), (Texts{"250.", "70.", "1.75", "1.", "13.5"}));
  EXPECT_FALSE(std::filesystem::exists(folder_.path() + "Ann"));
  std::filesystem::rename(folder_.path() + "away", folder_.path() + "Ann");
  Remove("frozen strawberries  250.0g");
  EXPECT_EQ(Balance(), "16.11.2026 0. 0. 0. 0.");
}

// The day is changed whole or not at all: who tries again must not count anything twice.
TEST_F(FoodListTest, WithoutItsExchangesAFoodIsNotSavedEither) {
  OpenCounter();
  AddButter("100");
  const std::string balance = Balance();
  const std::string exchange = Read("z1.ASC");
  const std::string path = folder_.path() + "Ann/z2.ASC";
  std::filesystem::rename(path, path + ".away");
  std::filesystem::create_symlink(path, path);  // can be replaced but not read
  AddStrawberries("250");
  EXPECT_EQ(boxes_.TakeTexts(), kNotSaved);
  Remove("butter  100.0g");
  EXPECT_EQ(boxes_.TakeTexts(), kNotSaved);
  form_.Press(kClearList);
  EXPECT_EQ(boxes_.TakeTexts(), kNotSaved);
  EXPECT_EQ(form_.Items(kList), (Texts{"butter  100.0g"}));
  EXPECT_EQ(Balance(), balance);
  EXPECT_EQ(Read("z1.ASC"), exchange);
  EXPECT_TRUE(std::filesystem::is_symlink(path));
  std::filesystem::rename(path + ".away", path);
  form_.Press(kClearList);
  EXPECT_EQ(boxes_.TakeTexts(), Texts{});
  EXPECT_EQ(Balance(), "16.11.2026 0. 0. 0. 0.");
  EXPECT_EQ(Read("z2.ASC"), "0.");
}

TEST_F(FoodListTest, HostileFilesCountAsTheirTextsSay) {
  const std::string long_junk(100'000, '7');
  for (const std::string& junk : {""s, "junk"s, "\0\xFF\x1A"s, "16.11.2026"s, long_junk}) {
    OpenCounter();
    for (const char* const name : {"bilans.ASC", "z1.ASC", "z2.ASC", "wykoda.txt"}) {
      Write(name, junk);
    }
    AddStrawberries("250");
    EXPECT_EQ(Balance(), "16.11.2026 70. 1.75 1. 13.5");
    EXPECT_NE(Read("wykoda.txt").find("16.11.2026;70.;1.75;1.;13.5;\r\n"), std::string::npos);
    Remove("frozen strawberries  250.0g");
    EXPECT_EQ(Balance(), "16.11.2026 0. 0. 0. 0.");
    EXPECT_EQ(boxes_.TakeTexts(), Texts{});
  }
}

}  // namespace
}  // namespace velnor

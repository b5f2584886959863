// Saving what the food list holds: as a record of calories and as a recipe.

#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/day_fixture.h"

namespace velnor {
namespace {

using Texts = std::vector<std::string>;

constexpr int kSaveReport = 145;
constexpr int kSaveFood = 147;

const std::string kRule = std::string(120, '-') + "\r\n";
const std::string kLongRule = '\t' + std::string(86, '*') + "\r\n";
const std::string kShortRule = "\t\t\t" + std::string(35, '*') + "\r\n";

class FoodRecordDialogsTest : public DayTest {
 protected:
  void OpenReport() { OpenDialog(kSaveReport, dialog_); }
  void OpenRecipe() { OpenDialog(kSaveFood, dialog_); }
  // The recipe file with that name, totals, composition and recipe.
  static std::string Recipe(const std::string& name, const std::string& totals,
                            const std::string& composition, const std::string& recipe) {
    return kLongRule + kShortRule + "DATE: 16.11.2026\r\nNAME:  " + name + "\r\n" + totals +
           "\r\nCOMPOSITION:\r\n" + composition + "RECIPE:  \r\n" + recipe + "\r\n" + kShortRule +
           kLongRule + "\r\n";
  }

  FakeForm dialog_;
};

TEST_F(FoodRecordDialogsTest, TheReportOpensWithTheTotalsCut) {
  OpenCounter();
  AddStrawberries("1234.56");
  OpenReport();
  EXPECT_EQ(window_.log.back(), "open 10006");
  EXPECT_EQ(form_.Text(138), "345.677");
  const auto shown = [this](int id) { return dialog_.Text(id); };
  EXPECT_EQ((Texts{shown(709), shown(721), shown(722), shown(717), shown(718), shown(719)}),
            (Texts{"16.11.2026", "1234.56", "345.67", "8.64", "4.93", "66.66"}));
  EXPECT_EQ(shown(746), "6.66662");
  EXPECT_EQ(shown(747), "0.790118");
  EXPECT_EQ(shown(723), "");
}

TEST_F(FoodRecordDialogsTest, SavingAppendsTheRecordAndCloses) {
  OpenCounter();
  Write("mirvo.ASC", "kept\r\n");
  AddStrawberries("250");
  OpenReport();
  dialog_.SetText(723, "after sport");
  dialog_.Press(1);
  const std::string record =
      "16.11.2026  food weight[g]: 250.  K[kcal]: 70.  P[g]: 1.75  F[g]: 1.  C[g]: 13.5  "
      "CE: 1.35  PFE: 0.16  ||after sport\r\n" +
      kRule;
  EXPECT_EQ(Read("mirvo.ASC"), "kept\r\n" + record);
  EXPECT_EQ(dialog_.Log(), Texts{"close"});
  EXPECT_EQ(boxes_.TakeTexts(), Texts{});
}

TEST_F(FoodRecordDialogsTest, TheDateOfAReportCanBeChanged) {
  OpenCounter();
  AddStrawberries("250");
  OpenReport();
  dialog_.SetText(709, "yesterday");
  dialog_.Press(1);
  EXPECT_TRUE(Read("mirvo.ASC").starts_with("yesterday  food weight[g]: 250.  "));
}

// The two exchanges show from different sizes on; the record has them as they are.
TEST_F(FoodRecordDialogsTest, SmallExchangesAreShownByTheirOwnRules) {
  OpenCounter();
  AddStrawberries("10");
  OpenReport();
  EXPECT_EQ(dialog_.Text(746), "0.054");
  EXPECT_EQ(dialog_.Text(747), "0");
  AddStrawberries("50");
  OpenReport();
  EXPECT_EQ(dialog_.Text(746), "0.324");
  EXPECT_EQ(dialog_.Text(747), "0");
  dialog_.Press(1);
  EXPECT_NE(Read("mirvo.ASC").find("CE: 0.324  PFE: 0.032  ||"), std::string::npos)
      << Read("mirvo.ASC");
}

TEST_F(FoodRecordDialogsTest, AnEmptyListGivesARecordOfNothing) {
  OpenCounter();
  AddStrawberries("250");
  form_.Press(kClearList);
  OpenReport();
  EXPECT_EQ(dialog_.Text(746), "0");
  dialog_.Press(1);
  EXPECT_EQ(Read("mirvo.ASC"),
            "16.11.2026  food weight[g]: 0.  K[kcal]: 0.  P[g]: 0.  F[g]: 0.  C[g]: 0.  CE: 0.  "
            "PFE: 0.  ||\r\n" +
                kRule);
}

// 99 characters of what is typed are kept, 29 of a total.
TEST_F(FoodRecordDialogsTest, LongTextsAreCut) {
  OpenCounter();
  form_.SetText(137, "1" + std::string(28, '0') + "9");
  OpenReport();
  EXPECT_EQ(dialog_.Text(721), "1.e+28");
  dialog_.SetText(723, std::string(120, 'o'));
  dialog_.Press(1);
  EXPECT_NE(Read("mirvo.ASC").find("||" + std::string(99, 'o') + "\r\n-"), std::string::npos);
}

TEST_F(FoodRecordDialogsTest, CancelWritesNothing) {
  OpenCounter();
  AddStrawberries("250");
  OpenReport();
  dialog_.Press(2);
  EXPECT_EQ(dialog_.Log(), Texts{"close"});
  OpenRecipe();
  dialog_.Press(2);
  EXPECT_EQ(dialog_.Log().back(), "close");
  EXPECT_EQ(Read("mirvo.ASC"), "(missing)");
  EXPECT_EQ(Read("zestaw.ASC"), "(missing)");
}

TEST_F(FoodRecordDialogsTest, ARecipeHoldsTheListAndTheTotals) {
  OpenCounter();
  AddStrawberries("250");
  AddOwnButter();
  OpenRecipe();
  EXPECT_EQ(window_.log.back(), "open 10007");
  EXPECT_EQ(dialog_.Log(), Texts{"focus 725"});
  EXPECT_EQ(dialog_.Text(709), "16.11.2026");
  dialog_.SetText(724, "sweet butter");
  dialog_.SetText(725, "Mix.\r\nCool.");
  dialog_.Press(1);
  const std::string record =
      Recipe("sweet butter", "[kcal]:803.63 proteins[g]:2.6 fat[g]:82.11 carbohydrates[g]:13.56",
             "butter  100.0g\r\nfrozen strawberries  250.0g\r\n", "Mix.\r\nCool.");
  EXPECT_EQ(Read("zestaw.ASC"), record);
  EXPECT_EQ(dialog_.Log().back(), "close");
  OpenRecipe();
  dialog_.SetText(724, "again");
  dialog_.Press(1);
  EXPECT_TRUE(Read("zestaw.ASC").starts_with(record)) << "the first one stays";
}

// A recipe is always of today, whatever its date field holds.
TEST_F(FoodRecordDialogsTest, ARecipeOfNothing) {
  OpenCounter();
  OpenRecipe();
  dialog_.SetText(709, "yesterday");
  dialog_.Press(1);
  EXPECT_EQ(Read("zestaw.ASC"),
            Recipe("", "[kcal]: proteins[g]: fat[g]: carbohydrates[g]:", "", ""));
}

// The foods are those of the moment it opened, the totals those of the moment it saves.
TEST_F(FoodRecordDialogsTest, TheListOfARecipeIsTakenWhenItOpens) {
  OpenCounter();
  AddStrawberries("250");
  OpenRecipe();
  form_.SetText(138, "123456789.123456");
  form_.ClearItems(kList);
  dialog_.SetText(724, std::string(120, 'n'));
  dialog_.SetText(725, std::string(600, 'r'));
  dialog_.Press(1);
  EXPECT_EQ(Read("zestaw.ASC"),
            Recipe(std::string(99, 'n'),
                   "[kcal]:123456789.1234 proteins[g]:1.75 fat[g]:1. carbohydrates[g]:13.5",
                   "frozen strawberries  250.0g\r\n", std::string(499, 'r')));
}

TEST_F(FoodRecordDialogsTest, WhatCannotBeWrittenIsNotReported) {
  OpenCounter();
  std::filesystem::remove_all(folder_.path() + "Ann");
  OpenReport();
  dialog_.Press(1);
  OpenRecipe();
  dialog_.Press(1);
  EXPECT_EQ(dialog_.Log().back(), "close");
  EXPECT_EQ(boxes_.TakeTexts(), Texts{});
  EXPECT_FALSE(std::filesystem::exists(folder_.path() + "Ann"));
}

}  // namespace
}  // namespace velnor

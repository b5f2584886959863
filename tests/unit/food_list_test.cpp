#include "food/food_list.h"

#include <cmath>
#include <gtest/gtest.h>
#include <string>

#include "base/number_text.h"
#include "food/product_rules.h"
#include "tests/support/temporary_folder.h"

namespace velnor {
namespace {

TEST(FoodListTest, AWeightWithoutAPointGetsOne) {
  EXPECT_EQ(ListedWeight("150"), "150.0");
  EXPECT_EQ(ListedWeight("150."), "150.");
  EXPECT_EQ(ListedWeight("0.5"), "0.5");
  EXPECT_EQ(ListedWeight("1,5"), "1,5.0");
  EXPECT_EQ(ListedWeight(""), ".0");
}

TEST(FoodListTest, ALineIsTheNameTwoBlanksAndTheWeight) {
  EXPECT_EQ(ListLine({"milk 3,5%", "150.0"}), "milk 3,5%  150.0g");
}

TEST(FoodListTest, ALineIsTakenApartAtItsFirstTwoBlanks) {
  const auto parse = [](const char* line) {
    const ListedFood food = ParseListLine(line);
    return food.name + '|' + food.weight;
  };
  EXPECT_EQ(parse("milk 3,5%  150.0g"), "milk 3,5%|150.0");
  EXPECT_EQ(parse("eggs  with  ham  20.0g"), "eggs|with  ham  20.0");
  EXPECT_EQ(parse("ham   20.0g"), "ham| 20.0");
  EXPECT_EQ(parse("ham  20.0gg"), "ham|20.0");
  EXPECT_EQ(parse("ham  20.0"), "ham|20.0");
  EXPECT_EQ(parse("ham 20.0g"), "ham 20.0g|");
  EXPECT_EQ(parse(""), "|");
}

TEST(FoodListTest, OneGramAndMoreCount) {
  EXPECT_TRUE(CountsInTotals("1"));
  EXPECT_TRUE(CountsInTotals("1,5.0"));
  EXPECT_TRUE(CountsInTotals("1e30.0"));
  EXPECT_FALSE(CountsInTotals("0.999"));
  EXPECT_FALSE(CountsInTotals("-5.0"));
  EXPECT_FALSE(CountsInTotals("   -.0"));
  EXPECT_FALSE(CountsInTotals(".0"));
}

DayTotals Scaled(const FoodTable& food, const ListedFood& listed) {
  return ListedAmounts(food, listed, FigureKind::kScaled);
}

DayTotals Own(const FoodTable& food, const ListedFood& listed) {
  return ListedAmounts(food, listed, FigureKind::kOwn);
}

TEST(FoodListTest, AmountsAreThoseTheCounterShows) {
  const FoodTable food;
  EXPECT_EQ(Scaled(food, {"frozen strawberries", "250.0"}), (DayTotals{70, 1.75, 1, 13.5}));
  EXPECT_EQ(Scaled(food, {"frozen strawberries", "1.0"}), (DayTotals{0.28, 0, 0, 0}));
  EXPECT_EQ(Own(food, {"butter", "100.0"}), (DayTotals{733.63, 0.85, 81.11, 0.06}));
  EXPECT_EQ(Scaled(food, {"butter", "100.0"}), (DayTotals{733.63, 0.85, 81.11, 0}));
  EXPECT_EQ(Scaled(food, {"no such food", "50.0"}), DayTotals{});
  EXPECT_EQ(Own(food, {"no such food", "50.0"}), DayTotals{});
  EXPECT_EQ(Scaled(food, {"", ".0"}), DayTotals{});
}

// 33.3333 of 100 g: six digits, not what the division gives.
TEST(FoodListTest, AmountsHaveTheDigitsThatAreShown) {
  const FoodTable food;
  EXPECT_EQ(Scaled(food, {"frozen strawberries", "33.3333"}).kcal, 9.33332);
  EXPECT_EQ(Scaled(food, {"frozen strawberries", "33.33339"}).kcal, 9.33332)
      << "seven characters of a weight count";
}

TEST(FoodListTest, TheUsersProductsAreLookedThroughWhenNoRowMatches) {
  const TemporaryFolder folder;
  FoodTable food;
  food.user_products.Load(folder.Write("data.txt",
                                       "fruits;fresh;apple pie;50;237;1.9;11;34.0;\r\n"
                                       "fruits;fresh;apple pie;50;240;1.9;11;34.0;\r\n"
                                       "fruits;frozen;frozen strawberries;100;999;9;9;9;\r\n"
                                       "fruits;fresh;apxle pie;50;777;1.9;11;34.0;\r\n"));
  EXPECT_EQ(Own(food, {"apple pie", "50.0"}), (DayTotals{240, 1.9, 11, 34}));
  EXPECT_EQ(Scaled(food, {"apple pie", "100.0"}), (DayTotals{480, 3.8, 22, 68}));
  EXPECT_EQ(Own(food, {"frozen strawberries", "100.0"}).kcal, 28);
}

// Compared are the first four characters, the last two and the length.
TEST(FoodListTest, ALineNamesAProductLoosely) {
  const FoodTable food;
  const auto kcal = [&](const char* name) -> std::string {
    const ProductRecord* const found = FindListedProduct(food, name);
    return found == nullptr ? "none" : std::string(found->kcal);
  };
  EXPECT_EQ(kcal("frozen strawberries"), "28");
  EXPECT_EQ(kcal("frozXXXXXXXXXXXXXes"), "28");
  EXPECT_EQ(kcal("frozen strawberriXs"), "none");
  EXPECT_EQ(kcal("frozen strawberrieX"), "none");
  EXPECT_EQ(kcal("froXen strawberries"), "none");
  EXPECT_EQ(kcal("Xrozen strawberries"), "none");
  EXPECT_EQ(kcal("frozen strawberriess"), "none");
}

TEST(FoodListTest, OfSeveralMatchingRowsTheLastWins) {
  constexpr ProductRecord kRows[] = {
      {"soup", "home", "tomato soup", "100", "40", "1", "1", "1"},
      {"soup", "instant", "tomaXo soup", "100", "50", "1", "1", "1"},
  };
  FoodTable food;
  food.products = kRows;
  EXPECT_EQ(FindListedProduct(food, "tomato soup"), &kRows[1]);
}

TEST(FoodListTest, TotalsAddUpInSinglePrecision) {
  const ListTotals totals =
      TotalsAfter({"150.", "70.", "1.75", "1.", "13.5"}, 100.5, {28, 0.7, 0.4, 5.4});
  EXPECT_EQ(totals.weight, 250.5F);
  EXPECT_EQ(totals.kcal, 98.0F);
  EXPECT_EQ(totals.protein, 2.45F);
  EXPECT_EQ(totals.fat, 1.4F);
  EXPECT_EQ(totals.carbohydrate, 18.9F);
}

// 81.51 in single precision less 81.11 would be 0.400002.
TEST(FoodListTest, TakingOffLeavesNoRestOfWhatWasAdded) {
  const ListTotals totals =
      TotalsAfter({"200.", "761.63", "1.55", "81.51", "5.46"}, -100, {-733.63, -0.85, -81.11, 0});
  EXPECT_EQ(totals.kcal, 28.0F);
  EXPECT_EQ(totals.protein, 0.7F);
  EXPECT_EQ(totals.fat, 0.4F);
}

// Three times 345.674 kcal; 1037.022 has seven digits.
TEST(FoodListTest, WhatSixDigitsLeaveOutIsKnown) {
  const DayTotals food = {345.674, 0.05, 8, 5};
  TotalTexts shown;
  DayTotals left_out;
  const auto change = [&](const DayTotals& by, const TotalTexts& after) {
    left_out = LeftOutAfter(left_out, shown, by, after);
    shown = after;
  };
  change(food, {"", "345.674", "0.", "8.", "5."});
  change(food, {"", "691.348", "0.", "16.", "10."});
  EXPECT_NEAR(left_out.kcal, 0, 1e-9);
  change(food, {"", "1037.02", "0.", "24.", "15."});
  EXPECT_NEAR(left_out.kcal, 0.002, 1e-9);
  EXPECT_EQ(left_out.protein, 0.0) << "a trace is no total";
  EXPECT_EQ(left_out.fat, 0.0);
  change(-food, {"", "691.346", "0.", "16.", "10."});
  EXPECT_NEAR(left_out.kcal, 0.002, 1e-9);
  change(-food, {"", "345.672", "0.", "8.", "5."});
  change(-food, {"", "0.", "0.", "0.", "0."});
  EXPECT_EQ(left_out, DayTotals{});
}

// A weight of tons typed by mistake swallows the figure before it; taking it off brings that back.
TEST(FoodListTest, WhatAHugeTotalSwallowsIsNotForgotten) {
  DayTotals left_out =
      LeftOutAfter({}, {"", "23.456", "", "", ""}, {5.6e7, 0, 0, 0}, {"", "5.6e+07", "", "", ""});
  EXPECT_NEAR(left_out.kcal, 23.456, 1e-6);
  left_out = LeftOutAfter(left_out, {"", "5.6e+07", "", "", ""}, {-5.6e7, 0, 0, 0},
                          {"", "0.", "", "", ""});
  EXPECT_NEAR(left_out.kcal, 23.456, 1e-6);
  left_out = LeftOutAfter(left_out, {}, {1e308, 0, 0, 0}, {"", "inf", "", "", ""});
  left_out = LeftOutAfter(left_out, {}, {1e308, 0, 0, 0}, {"", "inf", "", "", ""});
  EXPECT_EQ(left_out.kcal, 0.0);
}

TEST(FoodListTest, TotalsBelowATraceAreNothing) {
  ListTotals totals = TotalsAfter({}, 5, {0.0999, 0.1, 0.09, -5});
  EXPECT_EQ(totals.weight, 5.0F);
  EXPECT_EQ(totals.kcal, 0.0F);
  EXPECT_EQ(totals.protein, 0.1F);
  EXPECT_EQ(totals.fat, 0.0F);
  EXPECT_EQ(totals.carbohydrate, 0.0F);
  totals = TotalsAfter({"5.", "0", "0.1", "0", "0"}, -6, {std::nan(""), 0, 0, 0});
  EXPECT_EQ(totals.weight, 0.0F);
  EXPECT_EQ(totals.kcal, 0.0F);
}

}  // namespace
}  // namespace velnor

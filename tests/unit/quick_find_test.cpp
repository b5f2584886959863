#include "food/quick_find.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/support/temporary_folder.h"

namespace velnor {
namespace {

using Names = std::vector<std::string>;

constexpr std::size_t kMany = 5000;
const std::string kDate = "2026-11-21";

class QuickFindTest : public testing::Test {
 protected:
  // The only products.
  void Own(const Names& names) {
    std::string lines;
    for (const std::string& name : names) lines += "fruits;fresh;" + name + ";100;50;1;2;3;\r\n";
    food_.products = {};
    food_.user_products.Load(folder_.Write("data.txt", lines));
  }
  void Eat(const std::string& name, const std::string& date, const std::string& time,
           double weight = 70) {
    habits_.Note({.date = date, .time = time, .name = name, .amount = weight});
  }
  Names Find(std::string_view query, std::size_t limit = kMany) {
    return NamesOf(find_.Find(query, DayNumber(kDate), limit));
  }
  Names Around(int hour) { return NamesOf(find_.EatenAround(hour, DayNumber(kDate), kMany)); }
  static Names NamesOf(const std::vector<QuickMatch>& matches) {
    Names names;
    for (const QuickMatch& match : matches) names.push_back(match.name);
    return names;
  }

  TemporaryFolder folder_;
  FoodTable food_;
  EatingHabits habits_;
  QuickFind find_{food_, habits_};
};

TEST_F(QuickFindTest, FindsWordsInAnyOrderAndCase) {
  Own({"rye bread with grains", "white bread", "bread, rye"});
  EXPECT_EQ(Find("BREAD rye"), (Names{"bread, rye", "rye bread with grains"}));
  EXPECT_EQ(Find(" grain  bre "), (Names{"rye bread with grains"}));
  EXPECT_EQ(Find("rye cake"), Names{});
  EXPECT_EQ(Find(""), Names{});
  EXPECT_EQ(Find("   "), Names{});
}

TEST_F(QuickFindTest, PolishLettersAreFoundWithOrWithoutTheirMarks) {
  Own({"\xBFurek \x9Cl\xB9ski", "zupa"});
  for (const char* const query : {"zurek", "\xBFurek", "\xAFUR", "slaski", "\x9Cl\xB9sk"}) {
    EXPECT_EQ(Find(query), (Names{"\xBFurek \x9Cl\xB9ski"})) << query;
  }
  Own({"zurek"});
  EXPECT_EQ(Find("\xBFurek"), (Names{"zurek"}));
}

TEST_F(QuickFindTest, BeginningsOfWordsComeBeforeMiddles) {
  Own({"pineapple", "crab apple jelly", "apples", "rhubarb-apple jam"});
  EXPECT_EQ(Find("app"), (Names{"apples", "crab apple jelly", "rhubarb-apple jam", "pineapple"}));
}

TEST_F(QuickFindTest, WhatIsEatenOftenAndLatelyComesBeforeOthers) {
  Own({"milk", "milk, long ago", "milk, often", "milk, lately", "buttermilk"});
  for (int i = 0; i < 20; ++i) Eat("milk, long ago", "2019-05-05", "08:00:00");
  for (int i = 0; i < 3; ++i) Eat("milk, often", "2026-11-10", "08:00:00");
  Eat("milk, lately", "2026-11-20", "08:00:00");
  for (int i = 0; i < 99; ++i) Eat("buttermilk", "2026-11-20", "08:00:00");
  // Even then a middle stays behind the beginnings.
  EXPECT_EQ(Find("milk"),
            (Names{"milk, often", "milk, lately", "milk, long ago", "milk", "buttermilk"}));
}

TEST_F(QuickFindTest, OtherwiseTheNameThatBeginsSoAndTheShorterOneIsBetter) {
  Own({"oat milk", "milk with honey", "milk", "milk drink"});
  EXPECT_EQ(Find("mil"), (Names{"milk", "milk drink", "milk with honey", "oat milk"}));
}

TEST_F(QuickFindTest, GivesTheFiguresTheMarkAndTheLastWeight) {
  Own({"apple pie"});
  food_.products = BuiltInProducts();
  Eat("apple pie", "2026-11-20", "08:00:00", 120);
  const std::vector<QuickMatch> matches = find_.Find("apple pie", DayNumber(kDate), kMany);
  const auto own = std::ranges::find(matches, true, &QuickMatch::is_own);
  ASSERT_NE(own, matches.end());
  EXPECT_EQ(own->ListText(), "[B] apple pie");
  EXPECT_EQ(own->product.kcal, "50");
  EXPECT_EQ(own->last_weight, "120");
  const std::vector<QuickMatch> built_in = find_.Find("frozen strawberries", 0, 1);
  ASSERT_EQ(built_in.size(), 1U);
  EXPECT_EQ(built_in[0].ListText(), "frozen strawberries");
  EXPECT_EQ(built_in[0].last_weight, "");
}

TEST_F(QuickFindTest, GivesNoMoreThanTheLimit) {
  Own({"milk 1", "milk 2", "milk 3"});
  EXPECT_EQ(Find("milk", 2), (Names{"milk 1", "milk 2"}));
}

TEST_F(QuickFindTest, AnotherLoadOfTheProductsIsNoticed) {
  Own({"milk"});
  EXPECT_EQ(Find("milk"), (Names{"milk"}));
  Own({"soy milk", "milk shake"});
  EXPECT_EQ(Find("milk"), (Names{"milk shake", "soy milk"}));
}

TEST_F(QuickFindTest, WithoutAQueryWhatIsEatenMostAtThisTime) {
  Own({"oats", "soup", "tea", "never"});
  for (int i = 0; i < 3; ++i) Eat("oats", "2026-11-10", "07:40:00");
  for (int i = 0; i < 2; ++i) Eat("tea", "2026-11-10", "08:10:00");
  for (int i = 0; i < 5; ++i) Eat("soup", "2026-11-10", "13:00:00");
  Eat("gone from the tables", "2026-11-20", "07:00:00");
  EXPECT_EQ(Around(7), (Names{"oats", "tea", "soup"}));
  EXPECT_EQ(Around(13), (Names{"soup", "oats", "tea"}));
}

}  // namespace
}  // namespace velnor

#include "food/search_text.h"

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

namespace velnor {
namespace {

using namespace std::string_literals;
using Places = std::vector<std::size_t>;

SearchText Fruits() {
  SearchText text;
  text.Add("fresh", "apple");
  text.Add("fresh", "pineapple, apple and quince");
  text.Add("frozen", "plums");
  text.Add("", "zz");
  return text;
}

TEST(SearchTextTest, FindsEveryTextOnceInOrder) {
  EXPECT_EQ(Fruits().Find("apple"), (Places{0, 1}));
  EXPECT_EQ(Fruits().Find("e"), (Places{0, 1, 2}));
  EXPECT_EQ(Fruits().Find("plums"), (Places{2}));
  EXPECT_EQ(Fruits().Find("quinces"), Places{});
}

TEST(SearchTextTest, FindsAcrossTheBlankAndNotAcrossTexts) {
  EXPECT_EQ(Fruits().Find("h a"), (Places{0}));
  EXPECT_EQ(Fruits().Find(" zz"), (Places{3}));
  EXPECT_EQ(Fruits().Find("applefresh"), Places{});
  EXPECT_EQ(Fruits().Find("apple\0fresh"s), Places{});
  EXPECT_EQ(Fruits().Find("\0"s), Places{});
}

TEST(SearchTextTest, FindsAtBothEndsOfATextAndOfAll) {
  EXPECT_EQ(Fruits().Find("fresh apple"), (Places{0}));
  EXPECT_EQ(Fruits().Find("zz"), (Places{3}));
  EXPECT_EQ(Fruits().Find("zzz"), Places{});
  EXPECT_EQ(Fruits().Find("quince"), (Places{1}));
}

TEST(SearchTextTest, FindsNothingForNothingAndWhenCleared) {
  EXPECT_EQ(Fruits().Find(""), Places{});
  SearchText text = Fruits();
  text.Clear();
  EXPECT_EQ(text.Find("apple"), Places{});
  text.Add("dried", "apple");
  EXPECT_EQ(text.Find("apple"), (Places{0}));
}

// What one search through all texts finds is what a search in each would find.
TEST(SearchTextTest, AgreesWithASearchInEachText) {
  std::mt19937 random(7);  // the same texts in every run
  const auto word = [&random](std::size_t longest) {
    std::string text;
    for (std::size_t length = random() % (longest + 1); length > 0; --length) {
      text += "aex \xB9\xFF"[random() % 6];
    }
    return text;
  };
  for (int round = 0; round < 300; ++round) {
    SearchText text;
    std::vector<std::string> texts;
    for (int i = 0; i < 20; ++i) {
      const std::string first = word(4);
      const std::string second = word(8);
      text.Add(first, second);
      texts.emplace_back(first).append(1, ' ').append(second);
    }
    const std::string query = word(4) + "aex"[random() % 3];
    Places expected;
    for (std::size_t i = 0; i < texts.size(); ++i) {
      if (texts[i].find(query) != std::string::npos) expected.push_back(i);
    }
    EXPECT_EQ(text.Find(query), expected) << query;
  }
}

}  // namespace
}  // namespace velnor

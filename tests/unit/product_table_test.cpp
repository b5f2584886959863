// The table of built-in products: its shape, the rows everything else is measured by, and that
// every figure in it is a true one.

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "base/number_text.h"
#include "food/food_table.h"

namespace velnor {
namespace {

using Filing = std::pair<std::string, std::string>;  // main category, subcategory

struct FilingCount {
  const char* main_category;
  const char* subcategory;
  int rows;
};

// In the spelling of the rows.
constexpr FilingCount kFilingCounts[] = {
    {"alcohol", "beer", 1},
    {"alcohol", "vodka", 1},
    {"alcohol", "wine", 1},
    {"bread", "mixed", 12},
    {"bread", "rye", 11},
    {"bread", "wheat", 13},
    {"dairy products", "cheese", 26},
    {"dairy products", "cottage cheese", 20},
    {"dairy products", "eggs", 3},
    {"dairy products", "other", 3},
    {"dairy products", "processed cheese", 4},
    {"dishes", "other", 14},
    {"dishes", "salad", 24},
    {"dishes", "traditional/fish", 13},
    {"dishes", "traditional/meat", 56},
    {"dishes", "traditional/no meat", 32},
    {"dishes",
     "tradycyjne  mi\xEA"
     "sne",
     1},
    {"drinks", "carbonated", 14},
    {"drinks", "compote", 2},
    {"drinks", "gazowane", 1},
    {"drinks", "juice", 36},
    {"drinks", "non-carbonated", 26},
    {"drinks", "syrup", 10},
    {"fats", "animal fats", 4},
    {"fats", "plant fats", 34},
    {"fish", "fish preserves", 26},
    {"fish", "fresh", 21},
    {"fish", "frozen", 2},
    {"fish", "other", 1},
    {"fish", "seafood", 2},
    {"fish", "smoked", 5},
    {"fruits", "dried", 10},
    {"fruits", "fresh", 29},
    {"fruits", "frozen", 3},
    {"fruits", "preserves", 17},
    {"fruits", "w puszce", 4},
    {"grain preserves", "breakfast", 11},
    {"grain preserves", "flour", 2},
    {"grain preserves", "groats", 11},
    {"grain preserves", "rice", 2},
    {"meat", "beef", 4},
    {"meat", "game", 1},
    {"meat", "horsemeat", 1},
    {"meat", "mutton", 2},
    {"meat", "other", 6},
    {"meat", "pork", 11},
    {"meat", "porky", 1},
    {"meat", "preserves", 11},
    {"meat", "veal", 3},
    {"milk preserves", "cream", 7},
    {"milk preserves", "drinks", 29},
    {"milk preserves", "milk", 12},
    {"mushrooms", "dried", 1},
    {"mushrooms", "fresh", 4},
    {"noodles", "pasta", 9},
    {"other", "honey", 5},
    {"other", "no category", 3},
    {"other", "sugar", 1},
    {"poultry", "chicken", 3},
    {"poultry", "duck", 2},
    {"poultry", "giblets", 2},
    {"poultry", "goose", 2},
    {"poultry", "hen", 3},
    {"poultry", "other", 1},
    {"poultry", "turkey", 5},
    {"preserves zbo\xBF"
     "owe",
     "breakfast", 15},
    {"preserves zbo\xBF"
     "owe",
     "other", 2},
    {"preserves zbo\xBF"
     "owe",
     "rice", 3},
    {"pulse and nutts", "nutts", 11},
    {"pulse and nutts", "other", 1},
    {"pulse and nutts", "pulse", 6},
    {"sausages", "chicken", 12},
    {"sausages", "offal", 9},
    {"sausages", "other", 3},
    {"sausages", "pork/beef", 27},
    {"sausages", "turkey", 5},
    {"soup", "frozen", 7},
    {"soup", "inna", 1},
    {"soup", "instant", 7},
    {"soup", "other", 4},
    {"soup", "pouder", 9},
    {"soup", "traditional", 21},
    {"spices", "dry spices", 19},
    {"spices", "sauce", 17},
    {"spices", "wet spices", 1},
    {"sweets&snacks", "cake", 16},
    {"sweets&snacks", "candy", 5},
    {"sweets&snacks", "chocolate", 32},
    {"sweets&snacks", "chocolate bar", 19},
    {"sweets&snacks", "crisps", 6},
    {"sweets&snacks", "dessert", 22},
    {"sweets&snacks", "gummi", 2},
    {"sweets&snacks", "ice cream", 8},
    {"sweets&snacks", "other", 4},
    {"sweets&snacks", "small cakes", 27},
    {"tinned food", "fish", 1},
    {"tinned food", "offal", 1},
    {"tinned food", "pork/beef", 7},
    {"tinned food", "poultry", 1},
    {"vegetable", "dried", 5},
    {"vegetable", "fresh", 49},
    {"vegetable", "frozen", 9},
    {"vegetable", "preserves", 13},
};

// Rows that must stand exactly so, irregular figures included.
constexpr ProductRecord kFoundingRows[] = {
    {"fruits", "frozen", "frozen strawberries", "100", "28", "0.70", "0.40", "5.40"},
    {"fruits", "frozen", "frozen plums", "100", "45", "0.50", "0.20", "10.30"},
    {"milk preserves", "drinks", "strawberry buttermilk", "100", "75", "3.40", "1.50", "11.30"},
    {"sweets&snacks", "chocolate", "yoghurt chocolate (strawberry)", "100", "560", "6.80", "52.50",
     "35.50"},
    {"milk preserves", "milk", "milk 3,5%", "100", "63.90", "3.30", "3.50", "4.80"},
    {"milk preserves", "milk", "goat milk", "100", "67.70", "3.20", "4.1", "4.50"},
    {"milk preserves", "milk", "fat-free milk pouder", "100", "354.8", "35.7", "0.8", "51.2"},
    {"milk preserves", "cream", "cream 30%", "100", "291.2", "2.2", "30.0", "3.1"},
    {"meat", "pork", "pork-raw ham", "100", "263,7", "18.0", "21.3", "0.0"},
    {"meat", "porky", "pork tounge", "100", "165.0", "16.5", "11.1", "0.0"},
    {"sausages", "offal", "collar gut", "100", "233", "10", "21", "???"},
    {"vegetable", "fresh", "broccoli", "100", "36.4", "3.0", "0.4", "5.2"},
    {"fruits", "w puszce", "sliced pineapple", "100", "84.0", "0.4", "0.1", "21.0"},
    {"drinks", "gazowane", "fruit drink", "100", "42.0", "0.0", "0.0", "10.3"},
    {"soup", "inna", "apple soup", "100", "42.0", "0.1", "0.1", "11.8"},
    {"alcohol", "beer", "beer (lager)", "100", "44.0", "0.5", "0.0", "3.8"},
    {"alcohol", "vodka", "vodka 40%", "100", "220.0", "0.0", "0.0", "0.0"},
    {"other", "sugar", "sugar", "100", "399.2", "0.0", "0.0", "99.8"},
    {"other", "honey", "bee's honey", "100", "319.2", "0.3", "0.0", "79.5"},
};

const ProductRecord* FindByName(std::string_view name) {
  for (const ProductRecord& row : BuiltInProducts()) {
    if (row.name == name) return &row;
  }
  return nullptr;
}

bool IsFoundingRow(const ProductRecord& row) {
  return std::ranges::find(kFoundingRows, row.name, &ProductRecord::name) !=
         std::end(kFoundingRows);
}

TEST(ProductTableTest, HasTheRightNumberOfRowsInEveryPlace) {
  std::map<Filing, int> expected;
  for (const FilingCount& row : kFilingCounts) {
    expected[{row.main_category, row.subcategory}] = row.rows;
  }
  std::map<Filing, int> actual;
  for (const ProductRecord& row : BuiltInProducts()) {
    ++actual[{std::string(row.main_category), std::string(row.subcategory)}];
  }
  EXPECT_EQ(actual, expected);
  EXPECT_EQ(BuiltInProducts().size(), 1044U);
}

TEST(ProductTableTest, HoldsTheFoundingRows) {
  for (const ProductRecord& expected : kFoundingRows) {
    const ProductRecord* const row = FindByName(expected.name);
    ASSERT_NE(row, nullptr) << expected.name;
    EXPECT_EQ(row->main_category, expected.main_category) << expected.name;
    EXPECT_EQ(row->subcategory, expected.subcategory) << expected.name;
    EXPECT_EQ(row->mass, expected.mass) << expected.name;
    EXPECT_EQ(row->kcal, expected.kcal) << expected.name;
    EXPECT_EQ(row->protein, expected.protein) << expected.name;
    EXPECT_EQ(row->fat, expected.fat) << expected.name;
    EXPECT_EQ(row->carbohydrate, expected.carbohydrate) << expected.name;
  }
  EXPECT_EQ(BuiltInProducts().front().name, "frozen strawberries");
}

TEST(ProductTableTest, ReadsTheIrregularFiguresAsTheLeadingNumber) {
  EXPECT_EQ(ParseNumber(FindByName("pork-raw ham")->kcal), 263);
  EXPECT_EQ(ParseNumber(FindByName("collar gut")->carbohydrate), 0);
}

TEST(ProductTableTest, NamesAreShortLowerCaseAndPlain) {
  for (const ProductRecord& row : BuiltInProducts()) {
    EXPECT_LE(row.name.size(), 45U) << row.name;
    EXPECT_FALSE(row.name.empty());
    for (const char c : row.name) {
      EXPECT_TRUE(c >= ' ' && c <= '~' && !(c >= 'A' && c <= 'Z') && c != ';') << row.name;
    }
    EXPECT_NE(row.name.front(), ' ') << row.name;
    EXPECT_NE(row.name.back(), ' ') << row.name;
    EXPECT_EQ(row.name.find("  "), std::string_view::npos) << row.name;
    EXPECT_EQ(row.mass, "100") << row.name;
  }
}

TEST(ProductTableTest, OnlyThreeNamesStandTwice) {
  std::map<std::string_view, int> times;
  for (const ProductRecord& row : BuiltInProducts()) ++times[row.name];
  std::erase_if(times, [](const auto& entry) { return entry.second == 1; });
  const std::map<std::string_view, int> expected = {
      {"carrot juice", 2}, {"pea soup", 2}, {"tomato soup", 2}};
  EXPECT_EQ(times, expected);
}

// What people eat every day and look for first.
TEST(ProductTableTest, HoldsEverydayFoods) {
  constexpr std::string_view kEverydayFoods[] = {"boiled potatoes",
                                                 "baked potatoes",
                                                 "boiled white rice",
                                                 "boiled hen egg",
                                                 "fried egg",
                                                 "scrambled eggs",
                                                 "minced beef",
                                                 "stewing beef",
                                                 "chicken thigh with skin",
                                                 "chicken wings",
                                                 "roast chicken",
                                                 "roast duck breast with skin",
                                                 "chicken hearts",
                                                 "zander",
                                                 "ceps",
                                                 "mushrooms, tinned",
                                                 "boiled lentils",
                                                 "white beans, tinned",
                                                 "tofu",
                                                 "hummus",
                                                 "unsweetened cocoa powder",
                                                 "vinegar",
                                                 "potato starch",
                                                 "linseed",
                                                 "poppy seeds",
                                                 "sweet potato",
                                                 "parsnips (also for parsley root)",
                                                 "lamb's lettuce",
                                                 "bilberries",
                                                 "limes",
                                                 "bread dumplings",
                                                 "gnocchi",
                                                 "plain pancakes",
                                                 "tortilla wrap",
                                                 "soft pretzel",
                                                 "salted crackers",
                                                 "oat drink",
                                                 "herbal tea",
                                                 "dry-cured ham, lean",
                                                 "chilli powder"};
  for (const std::string_view name : kEverydayFoods) EXPECT_NE(FindByName(name), nullptr) << name;
}

TEST(ProductTableTest, FiguresAreWrittenAsNumbers) {
  for (const ProductRecord& row : BuiltInProducts()) {
    if (row.name == "pork-raw ham" || row.name == "collar gut") continue;
    for (const std::string_view figure : {row.kcal, row.protein, row.fat, row.carbohydrate}) {
      EXPECT_EQ(figure.find_first_not_of("0123456789."), std::string_view::npos) << row.name;
      const std::size_t point = figure.find('.');
      EXPECT_NE(point, 0U) << row.name;
      EXPECT_EQ(point, figure.rfind('.')) << row.name;
      EXPECT_EQ(FormatNumber(ParseNumber(figure), 6),
                FormatNumber(std::stod(std::string(figure)), 6));
    }
  }
}

// 4 kcal a gram of protein and of carbohydrate, 9 of fat, 7 of alcohol. The founding rows are as
// they were given; "wine" holds alcohol, which the table has no column for.
TEST(ProductTableTest, EnergyFollowsFromTheNutrients) {
  for (const ProductRecord& row : BuiltInProducts()) {
    if (IsFoundingRow(row) || row.main_category == "alcohol") continue;
    const double energy =
        4 * ParseNumber(row.protein) + 9 * ParseNumber(row.fat) + 4 * ParseNumber(row.carbohydrate);
    const double given = ParseNumber(row.kcal);
    EXPECT_LE(std::abs(given - energy), std::max(3.0, 0.03 * energy)) << row.name;
  }
}

TEST(ProductTableTest, FoundingRowsFollowTheEnergyRuleToo) {
  const std::set<std::string_view> exceptions = {"yoghurt chocolate (strawberry)", "apple soup",
                                                 "beer (lager)", "vodka 40%"};
  for (const ProductRecord& row : kFoundingRows) {
    const double energy =
        4 * ParseNumber(row.protein) + 9 * ParseNumber(row.fat) + 4 * ParseNumber(row.carbohydrate);
    const bool follows = std::abs(ParseNumber(row.kcal) - energy) <= std::max(3.0, 0.03 * energy);
    EXPECT_EQ(follows, !exceptions.contains(row.name)) << row.name << ' ' << energy;
  }
}

TEST(ProductTableTest, NutrientsFitIntoAHundredGrams) {
  for (const ProductRecord& row : BuiltInProducts()) {
    EXPECT_LE(ParseNumber(row.protein) + ParseNumber(row.fat) + ParseNumber(row.carbohydrate),
              100.0 + 1e-9)
        << row.name;
  }
}

}  // namespace
}  // namespace velnor

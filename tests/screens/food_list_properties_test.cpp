// The bookkeeping of a day under any sequence of presses: the list's totals, the day's balance, its
// exchanges and its line of the chart series tell the same.

#include <algorithm>
#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "base/number_text.h"
#include "food/day_balance.h"
#include "food/food_list.h"
#include "food/food_table.h"
#include "tests/support/day_fixture.h"

namespace velnor {
namespace {

using Numbers = std::vector<double>;

// What a figure may be off: a unit of the sixth digit, at the size it had before the last press,
// since it was rounded twice.
void ExpectSame(const Numbers& got, const Numbers& expected, const Numbers& before,
                const std::string& what) {
  ASSERT_EQ(got.size(), expected.size()) << what;
  for (std::size_t i = 0; i < got.size(); ++i) {
    const double digit = std::pow(10.0, std::floor(std::log10(std::abs(before[i]) + 1)) - 5);
    EXPECT_NEAR(got[i], expected[i], digit * 1.001) << what << ", figure " << i;
  }
}

class FoodListPropertiesTest : public DayTest {
 protected:
  struct Figures {
    Numbers list;       // kcal, protein, fat, carbohydrate
    Numbers balance;    // the same
    Numbers series;     // the same
    Numbers exchanges;  // carbohydrate, protein-fat
  };

  Figures Read() const {
    Figures figures;
    for (const std::string& text : Totals()) figures.list.push_back(ParseNumber(text));
    figures.list.erase(figures.list.begin());
    figures.balance = Split(DayTest::Read("bilans.ASC"), '\n');
    const std::string series = DayTest::Read("wykoda.txt");
    figures.series = Split(series.substr(series.rfind('\n', series.size() - 2) + 1), ';');
    for (const char* const name : {"z1.ASC", "z2.ASC"}) {
      figures.exchanges.push_back(ParseNumber(DayTest::Read(name)));
    }
    return figures;
  }

  void AddSomething(std::mt19937& random) {
    const auto products = BuiltInProducts();
    const ProductRecord& product = products[random() % products.size()];
    form_.ClearItems(126);
    form_.AddItem(126, product.name);
    form_.Choose(126, std::string(product.name));
    if (random() % 3 != 0) {
      form_.Type(128, FormatNumber(1 + static_cast<double>(random() % 50'000) / 100, 6));
    }
    form_.Press(kAdd);
  }

  bool RemoveSomething(std::mt19937& random) {
    const int count = form_.ItemCount(kList);
    if (count == 0) return false;
    Remove(form_.ItemText(kList, static_cast<int>(random() % static_cast<unsigned>(count))));
    return true;
  }

 private:
  // The four numbers behind the first piece, which is the date.
  static Numbers Split(const std::string& text, char separator) {
    Numbers numbers(4);
    std::size_t at = 0;
    for (double& number : numbers) {
      at = text.find(separator, at);
      if (at == std::string::npos) break;
      number = ParseNumber(text.substr(++at));
    }
    return numbers;
  }
};

void ExpectNothingNegative(const Numbers& numbers) {
  for (const double number : numbers) EXPECT_GE(number, 0);
}

TEST_F(FoodListPropertiesTest, WhateverIsPressedTheFiguresAgree) {
  OpenCounter();
  std::mt19937 random(20'261'116);
  for (int round = 0; round < 10; ++round) {
    ClearDay();
    for (int presses = 1; presses <= 25; ++presses) {
      const unsigned choice = random() % 16;
      if (choice == 0) {
        form_.Press(kClearList);
      } else if (choice < 6) {
        RemoveSomething(random);
      } else {
        AddSomething(random);
      }
      const Figures figures = Read();
      ExpectSame(figures.series, figures.balance, figures.balance, "chart series");
      // A trace in a product's own texts is in the balance but no total of the list.
      for (std::size_t n = 0; n < 4; ++n) {
        EXPECT_NEAR(figures.list[n], figures.balance[n], 0.1 * presses) << "list, figure " << n;
      }
      EXPECT_NEAR(figures.exchanges[0], figures.balance[3] / 10, 1e-3 * presses);
      EXPECT_NEAR(figures.exchanges[1], (figures.balance[1] * 4 + figures.balance[2] * 9) / 100,
                  1e-3 * presses);
      ExpectNothingNegative(figures.list);
      ExpectNothingNegative(figures.balance);
      ExpectNothingNegative(figures.series);
      ExpectNothingNegative(figures.exchanges);
    }
  }
}

// However often the shown totals were rounded on the way.
TEST_F(FoodListPropertiesTest, AClearedListLeavesAnEmptyDay) {
  OpenCounter();
  std::mt19937 random(18'032'026);
  for (int round = 0; round < 10; ++round) {
    for (int presses = 0; presses < 60; ++presses) {
      if (random() % 3 == 0) {
        RemoveSomething(random);
      } else {
        AddStrawberries(FormatNumber(40 + static_cast<double>(random() % 500'000) / 100, 6));
      }
    }
    form_.Press(kClearList);
    ASSERT_EQ(Balance(), "16.11.2026 0. 0. 0. 0.") << "round " << round;
    ASSERT_EQ(DayTest::Read("z1.ASC"), "0.");
    ASSERT_EQ(DayTest::Read("z2.ASC"), "0.");
  }
}

TEST_F(FoodListPropertiesTest, AddingAndTakingOffAgainChangesNothing) {
  OpenCounter();
  std::mt19937 random(5'032'026);
  for (int round = 0; round < 60; ++round) {
    if (round % 10 == 0) ClearDay();
    AddSomething(random);
    const Figures before = Read();
    const std::vector<std::string> lines = form_.Items(kList);
    AddSomething(random);
    std::string added;
    for (const std::string& line : form_.Items(kList)) {
      if (std::ranges::count(form_.Items(kList), line) != std::ranges::count(lines, line)) {
        added = line;
      }
    }
    const Figures between = Read();
    Remove(added);
    const Figures after = Read();
    EXPECT_EQ(form_.Items(kList), lines);
    ExpectSame(after.list, before.list, between.list, "list after " + added);
    ExpectSame(after.balance, before.balance, between.balance, "balance after " + added);
    ExpectSame(after.series, before.series, between.series, "series after " + added);
    ExpectSame(after.exchanges, before.exchanges, between.exchanges, "exchanges after " + added);
  }
}

// What is taken off for a line is what the counter showed when it was added: for every product, in
// its own weight and in others.
TEST_F(FoodListPropertiesTest, EveryProductIsTakenOffAsItWasAdded) {
  OpenCounter();
  const FoodTable food;
  for (const ProductRecord& product : food.products) {
    form_.ClearItems(126);
    form_.AddItem(126, product.name);
    form_.Choose(126, std::string(product.name));
    for (const char* const weight : {"", "37.5", "1", "999999"}) {
      if (*weight != '\0') form_.Type(128, weight);
      const auto shown = [this](int id) { return ParseNumber(form_.Text(id)); };
      const DayTotals expected = {shown(129), shown(130), shown(131), shown(132)};
      const ListedFood listed = {std::string(product.name), ListedWeight(form_.Text(128))};
      const FigureKind kind = *weight == '\0' ? FigureKind::kOwn : FigureKind::kScaled;
      const DayTotals amounts = ListedAmounts(food, ParseListLine(ListLine(listed)), kind);
      ASSERT_EQ(amounts, expected) << ListLine(listed);
    }
  }
}

TEST_F(FoodListPropertiesTest, OneFoodLeavesAnEmptyDay) {
  OpenCounter();
  std::mt19937 random(1);
  for (int round = 0; round < 100; ++round) {
    AddSomething(random);
    ASSERT_EQ(form_.ItemCount(kList), 1);
    const std::string line = form_.ItemText(kList, 0);
    Remove(line);
    ASSERT_EQ(Balance(), "16.11.2026 0. 0. 0. 0.") << line;
    ASSERT_EQ(DayTest::Read("z1.ASC"), "0.") << line;
    ASSERT_EQ(DayTest::Read("z2.ASC"), "0.") << line;
  }
}

}  // namespace
}  // namespace velnor

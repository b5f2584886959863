#include "tests/support/diary_histories.h"

#include <array>
#include <cmath>
#include <random>
#include <string_view>

#include "users/history_file.h"

namespace velnor {
namespace {

struct Dish {
  std::string_view name;
  double weight;  // g
  double kcal;    // of 100 g
  double protein;
  double fat;
  double carbohydrate;
};

constexpr std::array<Dish, 16> kDishes = {{
    {"wholemeal bread", 90, 225, 8.4, 1.7, 43},
    {"butter", 12, 735, 0.7, 82.5, 0.7},
    {"cottage cheese", 100, 98, 12.3, 4.3, 3.3},
    {"milk 2%", 250, 51, 3.4, 2, 4.9},
    {"apple", 180, 52, 0.3, 0.2, 12.1},
    {"oat flakes", 60, 366, 11.9, 7.2, 62.4},
    {"chicken breast", 150, 110, 23, 1.9, 0},
    {"boiled potatoes", 220, 79, 1.9, 0.1, 16.8},
    {"pierogi ruskie", 260, 190, 6.2, 5.4, 29.8},
    {"\xBFurek z jajkiem", 350, 62, 3.1, 3, 5.6},
    {"tomato", 140, 19, 0.9, 0.2, 2.9},
    {"rice", 70, 344, 6.7, 0.7, 76.8},
    {"chocolate with nuts", 35, 560, 8, 36, 49},
    {"salmon", 130, 201, 19.9, 13.6, 0},
    {"olive oil", 10, 897, 0, 99.6, 0.2},
    {"coffee with milk", 200, 12, 0.7, 0.5, 1.1},
}};

constexpr std::array<std::string_view, 5> kHours = {"07:12:30", "10:05:11", "13:34:52", "16:20:08",
                                                    "19:41:44"};

double Rounded(double value) { return std::round(value * 10) / 10; }

HistoryEntry FoodEntry(const std::string& date, std::string_view time, const Dish& dish,
                       double weight) {
  return {.date = date,
          .time = std::string(time),
          .kind = HistoryKind::kFood,
          .name = std::string(dish.name),
          .amount = weight,
          .unit = "g",
          .kcal = Rounded(dish.kcal * weight / 100),
          .protein = Rounded(dish.protein * weight / 100),
          .fat = Rounded(dish.fat * weight / 100),
          .carbohydrate = Rounded(dish.carbohydrate * weight / 100)};
}

HistoryEntry Removed(HistoryEntry food) {
  food.kind = HistoryKind::kRemoved;
  food.kcal = -*food.kcal;
  food.protein = -*food.protein;
  food.fat = -*food.fat;
  food.carbohydrate = -*food.carbohydrate;
  return food;
}

// std::uniform_int_distribution differs between libraries.
int Below(std::mt19937& random, unsigned bound) { return static_cast<int>(random() % bound); }

}  // namespace

std::string LivedHistory(int days, DayNumber last) {
  std::string history = std::string(kHistoryHeader) + '\n';
  std::mt19937 random(23);
  for (DayNumber day = last - days + 1; day <= last; ++day) {
    const int age = last - day;
    const bool is_left_out = age > 0 && (Below(random, 17) == 0 || age % 90 / 6 == 7);
    const std::string date = IsoDateOfDay(day);
    const double wavers = 0.45 * std::sin(day * 1.7) + Below(random, 60) / 100.0;
    if (Below(random, 5) != 0) {
      const double slip = Below(random, 60) == 0 ? 6.5 : 0;
      history += HistoryLine({.date = date,
                              .time = "06:55:00",
                              .kind = HistoryKind::kWeight,
                              .amount = Rounded(71 + 9 * std::sin(age / 500.0) + wavers + slip),
                              .unit = "kg"});
    }
    if (is_left_out) continue;
    const bool is_weekend = WeekdayOfDay(day) >= 5;
    for (int i = 0; i < (is_weekend ? 12 : 10); ++i) {
      const Dish& dish = kDishes[static_cast<std::size_t>(Below(random, kDishes.size()))];
      const double weight = std::round(dish.weight * (70 + Below(random, 60)) / 100);
      const auto hour = static_cast<std::size_t>(i * 5 / 12);
      const HistoryEntry food = FoodEntry(date, kHours[hour], dish, weight);
      history += HistoryLine(food);
      if (Below(random, 25) == 0) history += HistoryLine(Removed(food));
    }
    if (Below(random, 3) == 0) {
      history += HistoryLine({.date = date,
                              .time = "18:02:00",
                              .kind = HistoryKind::kBurned,
                              .name = "walking",
                              .amount = 45,
                              .unit = "min",
                              .kcal = 150.0 + Below(random, 100)});
    }
  }
  return history;
}

std::string HostileHistory(DayNumber last) {
  std::string history = "no header\n;;;;;;;;;\n2026-13-45;;food;x;1;g;1;1;1;1\n\"open;quote\n";
  const auto add = [&](const std::string& date, std::string_view name, double amount, double kcal) {
    history += HistoryLine({.date = date,
                            .time = "12:00:00",
                            .kind = HistoryKind::kFood,
                            .name = std::string(name),
                            .amount = amount,
                            .unit = "<u>",
                            .kcal = kcal,
                            .protein = kcal / 50,
                            .fat = kcal / 60,
                            .carbohydrate = kcal / 8});
  };
  constexpr std::array<std::string_view, 9> kNames = {
      "<script>console.error('script');fetch('http://127.0.0.1:9/x')</script>",
      "<img src=x onerror=console.error(1)>",
      R"("><svg onload=console.error(2)></svg><!--)",
      "</title></style></table></details><h1>loose</h1>",
      R"(=HYPERLINK("http://127.0.0.1:9";"x"))",
      "&amp;&lt;&#x3c;b&#62; \x01\x02\x7F\x81\x98 \xB9\xE6\xEA",
      "two\r\nlines;and a semicolon",
      "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa"
      "a",
      "@import url(http://127.0.0.1:9/y)"};
  for (int age = 60; age >= 0; --age) {
    const std::string date = IsoDateOfDay(last - age);
    for (const std::string_view name : kNames) {
      add(date, name, 100.0 + age, 200.0 + age % 7 * 20);
    }
  }
  const std::string today = IsoDateOfDay(last);
  add(IsoDateOfDay(last - 5), "all there is", 1e30, 1e30);
  add(IsoDateOfDay(last - 9), "less than nothing", -1e308, -1e308);
  add(IsoDateOfDay(last - 12), "much", 1e7, 19999);
  for (const char* const date : {"1970-01-01", "0001-01-01", "9999-12-31", "9999-12-30"}) {
    add(date, "out of time", 1, 2000);
    history += std::string(date) + ";;weight;;80;kg;;;;\n";
  }
  for (int age = 50; age > 0; age -= 3) {
    history += IsoDateOfDay(last - age) + ";06:00:00;weight;;" + (age % 4 == 0 ? "1e300" : "70.5") +
               ";kg;;;;\n";
  }
  history += today + ";06:00:00;weight;;-4;kg;;;;\n";
  history += today + ";06:00:01;burned;<b>bold</b>;1;min;1e30;;;\n";
  history += today + ";06:00:02;waist-hip;;1e30;;;;;\n";
  return history + std::string(3, '\0') + "\xFF\xFE";
}

}  // namespace velnor

// What three people do on every day of a month, and what their reports and series hold of it. Used
// by the test of a month.

#ifndef VELNOR_TESTS_SCREENS_MONTH_DAY_H_
#define VELNOR_TESTS_SCREENS_MONTH_DAY_H_

#include <array>
#include <string>

#include "activity/burned_calories.h"
#include "activity/burned_record.h"
#include "base/number_text.h"
#include "base/text_file.h"
#include "body/weight_record.h"
#include "body/whr_record.h"
#include "food/calorie_record.h"
#include "food/recipe_record.h"

namespace velnor {

inline constexpr int kDays = 31;
// A series that holds 21 days starts again with the next one.
inline constexpr int kDaysOfAFullSeries = 21;

struct Person {
  std::string name;
  std::array<std::string, 5> profile;  // a metre tall: the body mass index is the weight
  std::string calories;                // the daily requirement, as the screen shows it
  std::array<std::string, 8> limits;   // empty, or a person's own
};

inline const Person kPeople[] = {
    {"Ann", {"35", "100", "women", "low", "none"}, "2100-2300", {}},
    {"Bob", {"35", "100", "men", "medium", "athlete"}, "4500", {}},
    {"Zoe",
     {"15", "100", "women", "high", "pregnant"},
     " unavailable",  // limits of one's own are shown in their fields
     {"2000", "2500", "60", "80", "50", "70", "200", "300"}},
};

// The figures of one person's day. No two days of anybody are alike.
struct Day {
  const Person& person;
  int number;  // of the month
  int unit;    // what every figure of the day is a multiple of

  Day(const Person& somebody, int number_of_day)
      : person(somebody),
        number(number_of_day),
        unit(kDays * static_cast<int>(&somebody - kPeople) + number_of_day) {}

  static std::string Number(double value) { return FormatNumber(value, 6); }
  static std::string DateOf(int number) { return std::to_string(number) + ".3.2027"; }

  std::string Date() const { return DateOf(number); }
  // What the person writes into every record.
  std::string Mark() const { return person.name + " on day " + std::to_string(number); }
  // Frozen strawberries: 28 kcal, 0.70 g, 0.40 g and 5.40 g in 100 g.
  std::string FoodWeight() const { return std::to_string(100 * unit); }
  std::string FoodLine() const { return "frozen strawberries  " + FoodWeight() + ".0g"; }
  TotalTexts Eaten() const {
    return {Number(100.0 * unit), Number(28.0 * unit), Number(0.7 * unit), Number(0.4 * unit),
            Number(5.4 * unit)};
  }
  double CarbohydrateExchange() const { return 0.54 * unit; }
  double ProteinFatExchange() const { return 0.064 * unit; }
  // Ten a minute.
  std::string Minutes() const { return std::to_string(unit); }
  std::string Burned() const { return Number(10.0 * unit); }
  std::string BodyWeight() const { return std::to_string(50 + unit); }

  std::string NutrientLine() const {
    const TotalTexts eaten = Eaten();
    return Date() + ';' + eaten.kcal + ';' + eaten.protein + ';' + eaten.fat + ';' +
           eaten.carbohydrate + ";\r\n";
  }
  std::string WeightLine() const {
    return Date() + ';' + BodyWeight() + ';' + BodyWeight() + ".;\r\n";
  }
};

// Every day of a person, one behind the other.
template <typename TextOfDay>
std::string EveryDay(const Person& person, int first, const TextOfDay& text_of_day) {
  std::string text;
  for (int number = first; number <= kDays; ++number) text += text_of_day(Day(person, number));
  return text;
}

// What the five reports hold of one day.
inline std::string WeightRecords(const Day& day) {
  const std::string bmi = day.BodyWeight() + '.';
  return WithCrLf(WeightRecordLine({day.Date(), "1", "1.", "mistyped"}) +
                  WeightRecordLine({day.Date(), day.BodyWeight(), bmi, day.Mark()}));
}
inline std::string WhrRecords(const Day& day) {
  const std::string girth = Day::Number(day.unit);
  return WithCrLf(WhrRecordLine({day.Date(), girth, girth, "1.", day.Mark()}));
}
inline std::string CalorieRecords(const Day& day) {
  return WithCrLf(CalorieRecordText({day.Date(), CutForRecord(day.Eaten()),
                                     static_cast<float>(day.CarbohydrateExchange()),
                                     static_cast<float>(day.ProteinFatExchange()), day.Mark()}));
}
inline std::string RecipeRecords(const Day& day) {
  return WithCrLf(RecipeRecordText(
      {day.Date(), day.Mark(), day.Eaten(), {day.FoodLine()}, "Thaw.\r\nEat, " + day.Mark()}));
}
inline std::string BurnedRecords(const Day& day) {
  const std::string fat = CountBurned("swimming", day.Minutes()).FatText();
  return WithCrLf(BurnedRecordText({day.Date(), "swimming", day.Minutes(), day.Burned(),
                                    fat.substr(0, kRecordFigureLimit), day.Mark()}));
}

struct ReportOfMonth {
  int command;
  std::string (*of_day)(const Day& day);
};
inline constexpr ReportOfMonth kReports[] = {
    {210, WeightRecords}, {214, WhrRecords},    {212, CalorieRecords},
    {213, RecipeRecords}, {215, BurnedRecords},
};

}  // namespace velnor

#endif  // VELNOR_TESTS_SCREENS_MONTH_DAY_H_

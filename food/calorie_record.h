// The record of eaten calories: a paragraph of the report file for each save. Written by its
// dialog, shown by the reports.

#ifndef VELNOR_FOOD_CALORIE_RECORD_H_
#define VELNOR_FOOD_CALORIE_RECORD_H_

#include <string>
#include <string_view>

namespace velnor {

// The totals of the food list as they are shown.
struct TotalTexts {
  std::string weight;        // g
  std::string kcal;          // kcal
  std::string protein;       // g
  std::string fat;           // g
  std::string carbohydrate;  // g
};

// The totals as a record has them: cut to two decimals, at most six digits.
TotalTexts CutForRecord(const TotalTexts& totals);

struct CalorieRecord {
  std::string date;
  TotalTexts totals;
  float carbohydrate_exchange = 0;
  float protein_fat_exchange = 0;
  std::string other;
};

// The bytes of the record, with LF line ends. Nothing is checked: empty texts stay empty.
std::string CalorieRecordText(const CalorieRecord& record);

// An exchange as the dialog shows it: "0" below `least`.
std::string ShownExchange(float exchange, double least);

// Six significant digits.
std::string RecordNumber(float number);

}  // namespace velnor

#endif  // VELNOR_FOOD_CALORIE_RECORD_H_

// The record of a recipe: what the food list holds, with a name and how to make it. Written by its
// dialog, shown by the reports.

#ifndef VELNOR_FOOD_RECIPE_RECORD_H_
#define VELNOR_FOOD_RECIPE_RECORD_H_

#include <string>
#include <string_view>
#include <vector>

#include "food/calorie_record.h"

namespace velnor {

struct RecipeRecord {
  std::string date;
  std::string name;
  TotalTexts totals;  // of which the weight is not written
  std::vector<std::string> composition;
  std::string recipe;  // line breaks as typed
};

// The lines of a food list as a recipe keeps them: the first 70, each to its 127th character, up to
// the first empty one.
std::vector<std::string> CompositionOf(const std::vector<std::string>& lines);

// The bytes of the record, with LF line ends but for those of the recipe text. Nothing is checked.
std::string RecipeRecordText(const RecipeRecord& record);

}  // namespace velnor

#endif  // VELNOR_FOOD_RECIPE_RECORD_H_

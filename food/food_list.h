// The list of foods eaten: how a line of it reads, and the totals of its foods. Used by the lower
// half of the nutrition counter.

#ifndef VELNOR_FOOD_FOOD_LIST_H_
#define VELNOR_FOOD_FOOD_LIST_H_

#include <string>
#include <string_view>

#include "food/calorie_record.h"
#include "food/day_balance.h"
#include "food/food_table.h"
#include "food/nutrition.h"

namespace velnor {

// A food as its line names it. The weight is the text that was typed, in grams.
struct ListedFood {
  std::string name;
  std::string weight;
};

// The weight text as the list has it: one without a point gets ".0".
std::string ListedWeight(std::string_view typed);

// "name  100.0g": the name, two blanks, the weight.
std::string ListLine(const ListedFood& food);

// The food of a line: the name goes to the first two blanks in a row, the weight on to the next
// "g". A line without two blanks is all name.
ListedFood ParseListLine(std::string_view line);

// Characters of a weight that the list takes.
inline constexpr std::size_t kListedWeightLimit = 30;

// What the counter shows for a typed weight of that product, and so what is added with it: traces
// below 0.1 left out, six digits. Of the weight the first seven characters count.
DayTotals ShownAmounts(const SelectedProduct& product, std::string_view weight);

// Whether a weight is one to be eaten: 1 g or more. Smaller ones never enter the list's totals.
bool CountsInTotals(std::string_view weight);

// How the counter came to the figures of a food.
enum class FigureKind {
  kOwn,     // the product's own, as they are shown when it has been chosen
  kScaled,  // scaled to a typed weight, traces below 0.1 left out
};

// What the counter shows for that product and weight, and so what is added with it. Of the weight
// the first seven characters count, as in the counter. A product in neither table has nothing.
DayTotals ListedAmounts(const FoodTable& food, const ListedFood& listed, FigureKind kind);

// The totals of a list, single precision.
struct ListTotals {
  float weight = 0;        // g
  float kcal = 0;          // kcal
  float protein = 0;       // g
  float fat = 0;           // g
  float carbohydrate = 0;  // g
};

// The totals when a food is added to the ones that are shown, or taken off them with negative
// figures. A total below 0.1 becomes 0. Single precision begins with the result: a shown figure
// that went through it first would keep a rest of what was added when that is taken off again.
ListTotals TotalsAfter(const TotalTexts& shown, double weight_change, const DayTotals& change);

// What six shown digits leave out of the totals of a list, so that the whole of it can be taken off
// the day: 0.002 of 1037.022 kcal. `left_out` before a change, the totals shown before and after
// it. Traces below 0.1 are no totals of a list and are not left out of one.
DayTotals LeftOutAfter(const DayTotals& left_out, const TotalTexts& before, const DayTotals& change,
                       const TotalTexts& after);

}  // namespace velnor

#endif  // VELNOR_FOOD_FOOD_LIST_H_

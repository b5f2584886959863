// What a weight of food holds: scaling a product's values, exchanges, and the ratio of nutrients,
// with the rules by which small figures are shown. Used by the screens that weigh food.

#ifndef VELNOR_FOOD_NUTRITION_H_
#define VELNOR_FOOD_NUTRITION_H_

#include <cstddef>
#include <string>
#include <string_view>

#include "food/food_table.h"

namespace velnor {

// The texts of the chosen product, copied because the user's products may be reloaded under it.
struct SelectedProduct {
  std::string mass;  // g, what the four values refer to
  std::string kcal;
  std::string protein;
  std::string fat;
  std::string carbohydrate;

  static SelectedProduct CopyOf(const ProductRecord& product);
};

struct NutrientAmounts {
  float kcal = 0;
  float protein = 0;       // g
  float fat = 0;           // g
  float carbohydrate = 0;  // g
};

// What `weight` grams of the product hold: value * weight / mass. A mass that reads as 0 gives
// infinite or undefined amounts.
NutrientAmounts ScaleToWeight(const SelectedProduct& product, double weight);

// The two exchange units of dietetics, from grams. Carbohydrate exchanges: one for every 10 g of
// available carbohydrate. Protein-fat exchanges: one for every 100 kcal from protein (4 kcal/g) and
// fat (9 kcal/g).
double CarbohydrateExchanges(double carbohydrate);
double ProteinFatExchanges(double protein, double fat);

// Counts the same, with results in single precision, and remembers the last result of each.
class Exchanges {
 public:
  float CountCarbohydrate(float carbohydrate);
  float CountProteinFat(float protein, float fat);

  float last_carbohydrate() const { return last_carbohydrate_; }
  float last_protein_fat() const { return last_protein_fat_; }

 private:
  float last_carbohydrate_ = 0;
  float last_protein_fat_ = 0;
};

// Amounts below this are traces: they show as nothing, or as "<0.1".
inline constexpr double kTrace = 0.1;
inline constexpr std::string_view kBelowTrace = "<0.1";

// Characters of a weight that the nutrition counter weighs with.
inline constexpr std::size_t kCounterWeightLimit = 7;
// Characters of a chosen product's name that it keeps.
inline constexpr std::size_t kCounterNameLimit = 99;
// Characters of a weight that the products overview weighs with.
inline constexpr std::size_t kOverviewWeightLimit = 4;
// Characters of a figure of the counter, its weight included, that goes on the food list.
inline constexpr std::size_t kListedFigureLimit = 30;

// Six significant digits, as every figure of the counter is shown.
inline constexpr int kShownDigits = 6;

// An amount as the nutrition counter shows it: below 0.1 it counts as 0 ("0.").
std::string CounterText(float amount);

// An amount as the products overview shows it: `trace` instead of anything not above 0.1.
std::string OverviewText(float amount, std::string_view trace);

struct RatioTexts {
  std::string protein;
  std::string fat;
  std::string carbohydrate;
};

// The ratio protein : fat : carbohydrate with protein as 1, from the shown texts, of which the
// first four characters count. A part below 0.1 shows as `trace`. Without more than 0.1 g of
// protein there is no ratio: " --" in all three.
RatioTexts NutrientRatio(std::string_view protein, std::string_view fat,
                         std::string_view carbohydrate, std::string_view trace);

}  // namespace velnor

#endif  // VELNOR_FOOD_NUTRITION_H_

#include "food/food_list.h"

#include <cmath>

#include "base/number_text.h"
#include "food/product_rules.h"

namespace velnor {
namespace {

constexpr std::string_view kGap = "  ";
constexpr char kUnit = 'g';
constexpr double kLeastWeight = 1.0;

float Total(std::string_view shown, double change) {
  const auto total = static_cast<float>(ParseNumber(shown) + change);
  return total >= kTrace ? total : 0;
}

double LeftOut(double left_out, std::string_view before, double change, std::string_view after) {
  const double whole = ParseNumber(before) + change + left_out;
  const double shown = ParseNumber(after);
  const bool is_trace = shown == 0 && whole < kTrace;
  return is_trace || !std::isfinite(whole) ? 0 : whole - shown;
}

}  // namespace

std::string ListedWeight(std::string_view typed) {
  std::string weight(typed);
  if (weight.find('.') == std::string::npos) weight += ".0";
  return weight;
}

std::string ListLine(const ListedFood& food) {
  return food.name + std::string(kGap) + food.weight + kUnit;
}

ListedFood ParseListLine(std::string_view line) {
  const std::size_t gap = line.find(kGap);
  if (gap == std::string_view::npos) return {std::string(line), ""};
  const std::string_view weight = line.substr(gap + kGap.size());
  return {std::string(line.substr(0, gap)), std::string(weight.substr(0, weight.find(kUnit)))};
}

DayTotals ShownAmounts(const SelectedProduct& product, std::string_view weight) {
  const NutrientAmounts amounts =
      ScaleToWeight(product, ParseNumber(weight.substr(0, kCounterWeightLimit)));
  const auto shown = [](float amount) { return ParseNumber(CounterText(amount)); };
  return {shown(amounts.kcal), shown(amounts.protein), shown(amounts.fat),
          shown(amounts.carbohydrate)};
}

bool CountsInTotals(std::string_view weight) { return !(ParseNumber(weight) < kLeastWeight); }

DayTotals ListedAmounts(const FoodTable& food, const ListedFood& listed, FigureKind kind) {
  const ProductRecord* const product = FindListedProduct(food, listed.name);
  if (product == nullptr) return {};
  if (kind == FigureKind::kOwn) {
    return {ParseNumber(product->kcal), ParseNumber(product->protein), ParseNumber(product->fat),
            ParseNumber(product->carbohydrate)};
  }
  return ShownAmounts(SelectedProduct::CopyOf(*product), listed.weight);
}

ListTotals TotalsAfter(const TotalTexts& shown, double weight_change, const DayTotals& change) {
  return {Total(shown.weight, weight_change), Total(shown.kcal, change.kcal),
          Total(shown.protein, change.protein), Total(shown.fat, change.fat),
          Total(shown.carbohydrate, change.carbohydrate)};
}

DayTotals LeftOutAfter(const DayTotals& left_out, const TotalTexts& before, const DayTotals& change,
                       const TotalTexts& after) {
  return {
      LeftOut(left_out.kcal, before.kcal, change.kcal, after.kcal),
      LeftOut(left_out.protein, before.protein, change.protein, after.protein),
      LeftOut(left_out.fat, before.fat, change.fat, after.fat),
      LeftOut(left_out.carbohydrate, before.carbohydrate, change.carbohydrate, after.carbohydrate)};
}

}  // namespace velnor

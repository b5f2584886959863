#include "food/nutrition.h"

#include "base/number_text.h"

namespace velnor {
namespace {

constexpr std::size_t kRatioCharacters = 4;

double ReadRatioText(std::string_view text) {
  return ParseNumber(text.substr(0, kRatioCharacters));
}

std::string RatioPart(double nutrient, double protein, std::string_view trace) {
  const auto part = static_cast<float>(nutrient / protein);
  return part < kTrace ? std::string(trace) : FormatNumber(part, kShownDigits);
}

}  // namespace

SelectedProduct SelectedProduct::CopyOf(const ProductRecord& product) {
  return {std::string(product.mass), std::string(product.kcal), std::string(product.protein),
          std::string(product.fat), std::string(product.carbohydrate)};
}

NutrientAmounts ScaleToWeight(const SelectedProduct& product, double weight) {
  const double mass = ParseNumber(product.mass);
  const auto scale = [=](std::string_view value) {
    return static_cast<float>(ParseNumber(value) * weight / mass);
  };
  return {scale(product.kcal), scale(product.protein), scale(product.fat),
          scale(product.carbohydrate)};
}

double CarbohydrateExchanges(double carbohydrate) { return carbohydrate / 10; }

double ProteinFatExchanges(double protein, double fat) { return (protein * 4 + fat * 9) / 100; }

float Exchanges::CountCarbohydrate(float carbohydrate) {
  last_carbohydrate_ = static_cast<float>(CarbohydrateExchanges(carbohydrate));
  return last_carbohydrate_;
}

float Exchanges::CountProteinFat(float protein, float fat) {
  last_protein_fat_ = static_cast<float>(ProteinFatExchanges(protein, fat));
  return last_protein_fat_;
}

std::string CounterText(float amount) {
  return FormatNumber(amount < kTrace ? 0.0F : amount, kShownDigits);
}

std::string OverviewText(float amount, std::string_view trace) {
  return amount > kTrace ? FormatNumber(amount, kShownDigits) : std::string(trace);
}

RatioTexts NutrientRatio(std::string_view protein, std::string_view fat,
                         std::string_view carbohydrate, std::string_view trace) {
  const double p = ReadRatioText(protein);
  if (!(p > kTrace)) return {" --", " --", " --"};
  return {FormatNumber(1.0, kShownDigits), RatioPart(ReadRatioText(fat), p, trace),
          RatioPart(ReadRatioText(carbohydrate), p, trace)};
}

}  // namespace velnor

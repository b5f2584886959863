#include "food/counter_screen.h"

namespace velnor {
namespace {

constexpr PickerControls kControls = {.matching = Matching::kCounter,
                                      .main_category = 124,
                                      .subcategory = 125,
                                      .products = 126,
                                      .weight = 128,
                                      .kcal = 129,
                                      .protein = 130,
                                      .fat = 131,
                                      .carbohydrate = 132,
                                      .weight_limit = kCounterWeightLimit,
                                      .name_limit = kCounterNameLimit};

constexpr std::string_view kNoValue = "   -";

constexpr Font kWeightFont{15, 700, false};

constexpr PlacedText kPickerTexts[] = {
    {{25, 75}, "Choose main category:"},
    {{330, 75}, "Choose product:"},
    {{25, 145}, "Choose subcategory:"},
};

constexpr PlacedText kWeightText = {{25, 240}, "Food weight[g]:"};

constexpr PlacedText kValueTexts[] = {
    {{125, 240}, "[kcal]"},
    {{222, 240}, "proteins[g]"},
    {{320, 240}, "fat[g]"},
    {{400, 240}, "carbohydrates[g]"},
};

constexpr PlacedText kListTexts[] = {
    {{25, 320}, "Your list:"},
    {{400, 340}, "Total weight[g]:"},
    {{400, 370}, "Calories[kcal]:"},
    {{400, 400}, "proteins[g]:"},
    {{400, 430}, "Fat[g]:"},
    {{400, 460}, "Carbohydrates[g]:"},
    {{400, 490}, "P:F:C"},
    {{600, 340}, "Carb Exch:"},
    {{600, 400}, "Protein-Fat Exch:"},
};

}  // namespace

CounterScreen::CounterScreen(const FoodTable& food, Form& form)
    : ProductPicker(food, kControls, form) {}

void CounterScreen::Paint(Canvas& canvas) {
  canvas.SetFont(kTitleFont);
  canvas.WriteText({10, 30}, "build, count or check food");
  canvas.DrawLine({5, 55}, {695, 55});
  canvas.SetFont(kBodyFont);
  WriteTexts(canvas, kPickerTexts);
  canvas.DrawLine({25, 230}, {305, 230});
  canvas.SetFont(kWeightFont);
  canvas.SetTextColour(kRed);
  canvas.WriteText(kWeightText.at, kWeightText.text);
  canvas.SetTextColour(kBlack);
  canvas.SetFont(kBodyFont);
  WriteTexts(canvas, kValueTexts);
  WriteTexts(canvas, kListTexts);
  FillMainCategoryList();
}

void CounterScreen::ShowNoProduct() {
  for (const int id : {kControls.weight, kControls.kcal, kControls.protein, kControls.fat,
                       kControls.carbohydrate}) {
    form().SetText(id, kNoValue);
  }
}

void CounterScreen::ShowAmounts(const NutrientAmounts& amounts) {
  form().SetText(kControls.kcal, CounterText(amounts.kcal));
  form().SetText(kControls.protein, CounterText(amounts.protein));
  form().SetText(kControls.fat, CounterText(amounts.fat));
  form().SetText(kControls.carbohydrate, CounterText(amounts.carbohydrate));
}

}  // namespace velnor

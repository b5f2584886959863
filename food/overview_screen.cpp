#include "food/overview_screen.h"

namespace velnor {
namespace {

constexpr PickerControls kControls = {.matching = Matching::kOverview,
                                      .main_category = 108,
                                      .subcategory = 110,
                                      .products = 109,
                                      .weight = 111,
                                      .kcal = 112,
                                      .protein = 113,
                                      .fat = 114,
                                      .carbohydrate = 115,
                                      .weight_limit = kOverviewWeightLimit,
                                      .name_limit = UserProductTable::kLineLimit};

constexpr int kRatioProtein = 116;
constexpr int kRatioFat = 117;
constexpr int kRatioCarbohydrate = 118;
constexpr int kCarbohydrateExchange = 185;
constexpr int kProteinFatExchange = 186;

// Traces of a value, and of a part of the ratio once a weight was typed, show as nothing at all.
constexpr std::string_view kNoTrace = "0";

// Room for any text of a value field; the ratio takes what it needs of it.
constexpr std::size_t kValueLimit = 30;

constexpr PlacedText kTexts[] = {
    {{10, 85}, "Choose main category: "},
    {{10, 135}, "Choose subcategory: "},
    {{10, 175}, "Choose the product: "},
    {{73, 265}, "Food weight [g]: "},
    {{50, 350}, "Calories [kcal]: "},
    {{50, 395}, "proteins [g]: "},
    {{50, 420}, "Fat [g]: "},
    {{50, 445}, "Carbohydrates [g]: "},
    {{50, 490}, "B : T : W"},
    {{600, 340}, "Carb Exch:"},
    {{600, 370}, "(Carbohydrate Exchange)"},
    {{600, 400}, "Protein-Fat Exch:"},
    {{600, 430}, "(Protein-Fat Exchange)"},
};

}  // namespace

OverviewScreen::OverviewScreen(const FoodTable& food, Exchanges& exchanges, Form& form)
    : ProductPicker(food, kControls, form), exchanges_(exchanges) {}

void OverviewScreen::Paint(Canvas& canvas) {
  canvas.SetFont(kTitleFont);
  canvas.WriteText({10, 30}, "Products overview");
  canvas.DrawLine({5, 55}, {695, 55});
  canvas.SetFont(kBodyFont);
  WriteTexts(canvas, kTexts);
  FillMainCategoryList();
}

void OverviewScreen::ShowChosenProduct() { ShowRatio(kBelowTrace); }

void OverviewScreen::ShowAmounts(const NutrientAmounts& amounts) {
  form().SetText(kControls.kcal, OverviewText(amounts.kcal, kNoTrace));
  form().SetText(kControls.protein, OverviewText(amounts.protein, kNoTrace));
  form().SetText(kControls.fat, OverviewText(amounts.fat, kNoTrace));
  form().SetText(kControls.carbohydrate, OverviewText(amounts.carbohydrate, kNoTrace));
  form().SetText(kCarbohydrateExchange,
                 OverviewText(exchanges_.CountCarbohydrate(amounts.carbohydrate), kBelowTrace));
  form().SetText(
      kProteinFatExchange,
      OverviewText(exchanges_.CountProteinFat(amounts.protein, amounts.fat), kBelowTrace));
  ShowRatio(kNoTrace);
}

void OverviewScreen::ShowRatio(std::string_view trace) {
  const RatioTexts ratio = NutrientRatio(
      form().ReadText(kControls.protein, kValueLimit), form().ReadText(kControls.fat, kValueLimit),
      form().ReadText(kControls.carbohydrate, kValueLimit), trace);
  form().SetText(kRatioProtein, ratio.protein);
  form().SetText(kRatioFat, ratio.fat);
  form().SetText(kRatioCarbohydrate, ratio.carbohydrate);
}

}  // namespace velnor

#include "food/overview_screen.h"

#include "food/search_dialog.h"

namespace velnor {
namespace {

constexpr int kMainCategory = 108;
constexpr int kProducts = 109;
constexpr int kSubcategory = 110;
constexpr int kWeight = 111;
constexpr int kKcal = 112;
constexpr int kProtein = 113;
constexpr int kFat = 114;
constexpr int kCarbohydrate = 115;
constexpr int kRatioProtein = 116;
constexpr int kRatioFat = 117;
constexpr int kRatioCarbohydrate = 118;
constexpr int kFind = 149;  // as that of the nutrition counter, which is made first
constexpr int kCarbohydrateExchange = 185;
constexpr int kProteinFatExchange = 186;

constexpr ControlRow kControls[] = {
    DropDownList(kMainCategory, {260, 85, 280, 450}, "Choose main category"),
    ListBox(kProducts, {260, 175, 280, 140}, "Choose the product"),
    DropDownList(kSubcategory, {260, 135, 280, 450}, "Choose subcategory"),
    NumberField(kWeight, {85, 285, 60, 23}, kOverviewWeightLimit, "Food weight [g]"),
    Figure(kKcal, {290, 350, 60, 20}),
    Figure(kProtein, {290, 395, 60, 20}),
    Figure(kFat, {290, 420, 60, 20}),
    Figure(kCarbohydrate, {290, 445, 60, 20}),
    Figure(kRatioProtein, {270, 490, 33, 20}),
    Figure(kRatioFat, {313, 490, 33, 20}),
    Figure(kRatioCarbohydrate, {356, 490, 33, 20}),
    Button(SecondControl(kFind), "Find", {410, 320, 110, 35}),
    Figure(kCarbohydrateExchange, {640, 340, 50, 23}),
    Figure(kProteinFatExchange, {640, 400, 50, 23}),
};

constexpr ControlEvent<OverviewScreen> kEvents[] = {
    {kFind, kButtonClicked, &OverviewScreen::OpenSearch}};

constexpr PickerControls kPicker = {.matching = Matching::kOverview,
                                    .main_category = kMainCategory,
                                    .subcategory = kSubcategory,
                                    .products = kProducts,
                                    .weight = kWeight,
                                    .kcal = kKcal,
                                    .protein = kProtein,
                                    .fat = kFat,
                                    .carbohydrate = kCarbohydrate,
                                    .weight_limit = kOverviewWeightLimit,
                                    .name_limit = UserProductTable::kLineLimit};

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

OverviewScreen::OverviewScreen(const FoodTable& food, Exchanges& exchanges, Form& form,
                               MainWindow& window)
    : ProductPicker(food, kPicker, form), exchanges_(exchanges), window_(window) {}

std::span<const ControlRow> OverviewScreen::Controls() { return kControls; }

bool OverviewScreen::OnControl(int id, int notification) {
  return ProductPicker::OnControl(id, notification) ||
         RunEvent<OverviewScreen>(*this, kEvents, id, notification);
}

void OverviewScreen::OpenSearch() { velnor::OpenSearch(window_, food()); }

void OverviewScreen::Paint(Canvas& canvas) const {
  canvas.SetFont(kTitleFont);
  canvas.WriteText({10, 30}, "Products overview");
  canvas.DrawLine({5, 55}, {695, 55});
  canvas.SetFont(kBodyFont);
  WriteTexts(canvas, kTexts);
}

void OverviewScreen::ShowChosenProduct() { ShowRatio(kBelowTrace); }

void OverviewScreen::ShowAmounts(const NutrientAmounts& amounts) {
  form().SetText(kKcal, OverviewText(amounts.kcal, kNoTrace));
  form().SetText(kProtein, OverviewText(amounts.protein, kNoTrace));
  form().SetText(kFat, OverviewText(amounts.fat, kNoTrace));
  form().SetText(kCarbohydrate, OverviewText(amounts.carbohydrate, kNoTrace));
  form().SetText(kCarbohydrateExchange,
                 OverviewText(exchanges_.CountCarbohydrate(amounts.carbohydrate), kBelowTrace));
  form().SetText(
      kProteinFatExchange,
      OverviewText(exchanges_.CountProteinFat(amounts.protein, amounts.fat), kBelowTrace));
  ShowRatio(kNoTrace);
}

void OverviewScreen::ShowRatio(std::string_view trace) {
  const RatioTexts ratio =
      NutrientRatio(form().ReadText(kProtein, kValueLimit), form().ReadText(kFat, kValueLimit),
                    form().ReadText(kCarbohydrate, kValueLimit), trace);
  form().SetText(kRatioProtein, ratio.protein);
  form().SetText(kRatioFat, ratio.fat);
  form().SetText(kRatioCarbohydrate, ratio.carbohydrate);
}

}  // namespace velnor

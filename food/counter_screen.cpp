#include "food/counter_screen.h"

#include <memory>

#include "food/calorie_record_dialog.h"
#include "food/counter_controls.h"
#include "food/recipe_record_dialog.h"
#include "food/search_dialog.h"

namespace velnor {
namespace {

using namespace counter;  // NOLINT(google-build-using-namespace): the names of its controls

constexpr ControlRow kControls[] = {
    DropDownList(kMainCategory, {25, 100, 280, 450}, "Choose main category"),
    DropDownList(kSubcategory, {25, 170, 280, 450}, "Choose subcategory"),
    ListBox(kProducts, {330, 100, 330, 140}, "Choose product"),
    MainButton(kAddFood, "Add", {570, 264, 65, 35}),
    NumberField(kWeight, {25, 270, 50, 23}, kListedFigureLimit, "Food weight[g]"),
    Figure(kKcal, {125, 270, 50, 23}),
    Figure(kProtein, {225, 270, 50, 23}),
    Figure(kFat, {325, 270, 50, 23}),
    Figure(kCarbohydrate, {425, 270, 50, 23}),
    Frame(kProductFrame, {10, 58, 665, 250}),
    ListBox(kList, {25, 345, 330, 155}, "Your list"),
    Frame(kTotalsFrame, {380, 320, 350, 200}),
    Button(kRemoveFood, "Remove", {25, 500, 100, 35}),
    Figure(kTotalWeight, {500, 340, 75, 23}),
    Figure(kTotalKcal, {500, 370, 75, 23}),
    Figure(kTotalProtein, {500, 400, 75, 23}),
    Figure(kTotalFat, {500, 430, 75, 23}),
    Figure(kTotalCarbohydrate, {500, 460, 75, 23}),
    Figure(kRatioProtein, {500, 490, 33, 23}),
    Figure(kRatioFat, {550, 490, 33, 23}),
    Figure(kRatioCarbohydrate, {600, 490, 33, 23}),
    Button(kSaveReport, "Save raport", {680, 80, 110, 35}),
    Button(kClearList, "Clear list", {245, 500, 110, 35}),
    Button(kSaveFood, "Save food", {680, 130, 110, 35}),
    Button(kFind, "Find", {680, 264, 110, 35}),
    Figure(kCarbohydrateExchange, {640, 360, 50, 23}),
    Figure(kProteinFatExchange, {640, 420, 50, 23}),
};

constexpr ControlEvent<CounterScreen> kEvents[] = {
    {kFind, kButtonClicked, &CounterScreen::OpenSearch},
    {kAddFood, kButtonClicked, &CounterScreen::AddToList},
    {kRemoveFood, kButtonClicked, &CounterScreen::RemoveFromList},
    {kClearList, kButtonClicked, &CounterScreen::ClearList},
    {kSaveReport, kButtonClicked, &CounterScreen::OpenCalorieRecord},
    {kSaveFood, kButtonClicked, &CounterScreen::OpenRecipeRecord},
};

constexpr PickerControls kPicker = {.matching = Matching::kCounter,
                                    .main_category = kMainCategory,
                                    .subcategory = kSubcategory,
                                    .products = kProducts,
                                    .weight = kWeight,
                                    .kcal = kKcal,
                                    .protein = kProtein,
                                    .fat = kFat,
                                    .carbohydrate = kCarbohydrate,
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

CounterScreen::CounterScreen(const SessionState& session, const FoodTable& food,
                             const Exchanges& exchanges, FoodListPanel& list,
                             DayRequirement& requirement, Form& form, MainWindow& window)
    : ProductPicker(food, kPicker, form),
      session_(session),
      exchanges_(exchanges),
      list_(list),
      requirement_(requirement),
      window_(window) {}

std::span<const ControlRow> CounterScreen::Controls() { return kControls; }

void CounterScreen::OnChosen() { requirement_.Update(); }

bool CounterScreen::OnControl(int id, int notification) {
  return ProductPicker::OnControl(id, notification) ||
         RunEvent<CounterScreen>(*this, kEvents, id, notification);
}

void CounterScreen::OpenSearch() { velnor::OpenSearch(window_, food()); }

void CounterScreen::AddToList() { list_.Add(chosen_name()); }

void CounterScreen::RemoveFromList() { list_.Remove(); }

void CounterScreen::ClearList() { list_.ClearList(); }

void CounterScreen::OpenCalorieRecord() {
  window_.OpenSessionDialog(kCalorieRecordResource,
                            std::make_unique<CalorieRecordDialog>(
                                session_, exchanges_, list_.Totals(kCalorieTotalLimit)));
}

void CounterScreen::OpenRecipeRecord() {
  window_.OpenSessionDialog(kRecipeRecordResource,
                            std::make_unique<RecipeRecordDialog>(session_, list_));
}

void CounterScreen::Paint(Canvas& canvas) const {
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
}

void CounterScreen::ShowNoProduct() {
  for (const int id : {kWeight, kKcal, kProtein, kFat, kCarbohydrate}) {
    form().SetText(id, kNoValue);
  }
}

void CounterScreen::ShowAmounts(const NutrientAmounts& amounts) {
  form().SetText(kKcal, CounterText(amounts.kcal));
  form().SetText(kProtein, CounterText(amounts.protein));
  form().SetText(kFat, CounterText(amounts.fat));
  form().SetText(kCarbohydrate, CounterText(amounts.carbohydrate));
}

}  // namespace velnor

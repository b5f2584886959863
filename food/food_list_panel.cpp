#include "food/food_list_panel.h"

#include <algorithm>
#include <optional>

#include "base/number_text.h"
#include "food/counter_controls.h"

namespace velnor {
namespace {

using namespace counter;  // NOLINT(google-build-using-namespace): the names of its controls

constexpr int kFields[] = {kTotalWeight,       kTotalKcal,         kTotalProtein,
                           kTotalFat,          kTotalCarbohydrate, kRatioProtein,
                           kRatioFat,          kRatioCarbohydrate, kCarbohydrateExchange,
                           kProteinFatExchange};

constexpr std::size_t kNumberLimit = kListedFigureLimit;
constexpr std::size_t kLineLimit = 150;

constexpr std::string_view kZero = "0";

// The system's own text, as it stands.
constexpr std::string_view kTooLight = "Choose some product from the list or change weight!";

constexpr std::string_view kNotWritten =
    "The daily balance could not be saved.\nCheck the folder of Your data and try again.";

// Nothing for food that does not count.
std::optional<DayExchanges> ExchangesOf(const DayTotals& food, bool counts) {
  if (!counts) return std::nullopt;
  return DayExchanges{CarbohydrateExchanges(food.carbohydrate),
                      ProteinFatExchanges(food.protein, food.fat)};
}

std::string ExchangeText(float exchange) {
  return exchange < kTrace ? std::string(kBelowTrace) : FormatNumber(exchange, kShownDigits);
}

}  // namespace

FoodListPanel::FoodListPanel(const FoodTable& food, DayBalance& day, Exchanges& exchanges,
                             Form& form, MessageBoxes& message_boxes)
    : food_(food), day_(day), exchanges_(exchanges), form_(form), message_boxes_(message_boxes) {}

void FoodListPanel::Add(const std::string& product) {
  const auto number = [this](int id) { return ParseNumber(form_.ReadText(id, kNumberLimit)); };
  Put({product,
       form_.ReadText(kWeight, kListedWeightLimit),
       {number(kKcal), number(kProtein), number(kFat), number(kCarbohydrate)}});
}

bool FoodListPanel::AddChosen(const WeighedFood& food) {
  const ListedFood listed = {food.name, ListedWeight(food.weight)};
  const std::string line = ListLine(listed);
  if (!Put(food)) return false;
  if (AmountsOf(line, listed) != food.amounts) {
    lines_of_other_products_.push_back({line, food.amounts});
  }
  return true;
}

bool FoodListPanel::Put(const WeighedFood& food) {
  const ListedFood listed = {food.name, ListedWeight(food.weight)};
  const bool counts = CountsInTotals(listed.weight);
  day_.MakeExchangeFiles();
  if (!day_.Add(food.amounts, ExchangesOf(food.amounts, counts),
                {food.name, ParseNumber(listed.weight)})) {
    ReportFailedWrite();
    return false;
  }
  const std::string line = ListLine(listed);
  if (food.amounts == ListedAmounts(food_, listed, FigureKind::kOwn)) {
    lines_with_own_figures_.push_back(line);
  }
  form_.AddItem(kList, line);
  if (counts) {
    ChangeTotals(ParseNumber(listed.weight), food.amounts);
  } else {
    message_boxes_.Show({.text = kTooLight});
  }
  return true;
}

void FoodListPanel::Remove() {
  std::optional<std::string> line = form_.SelectedText(kList);
  if (!line) return;
  if (line->size() > kLineLimit) line->resize(kLineLimit);
  const ListedFood listed = ParseListLine(*line);
  const DayTotals amounts = AmountsOf(*line, listed);
  // A food that was refused for its weight is in the day's totals alone.
  const bool counts = CountsInTotals(listed.weight);
  const FoodOfDeed food = {listed.name, ParseNumber(listed.weight)};
  if (!day_.TakeOff(amounts, ExchangesOf(amounts, counts), food)) return ReportFailedWrite();
  form_.RemoveSelectedItem(kList);
  Forget(*line);
  if (counts) ChangeTotals(-ParseNumber(listed.weight), -amounts);
}

DayTotals FoodListPanel::AmountsOf(const std::string& line, const ListedFood& listed) const {
  const auto other = std::ranges::find(lines_of_other_products_, line, &AddedLine::line);
  if (other != lines_of_other_products_.end()) return other->amounts;
  const bool is_own =
      std::ranges::find(lines_with_own_figures_, line) != lines_with_own_figures_.end();
  return ListedAmounts(food_, listed, is_own ? FigureKind::kOwn : FigureKind::kScaled);
}

// One of them, as AmountsOf looks them through: the same line may stand in the list twice.
void FoodListPanel::Forget(const std::string& line) {
  const auto other = std::ranges::find(lines_of_other_products_, line, &AddedLine::line);
  if (other != lines_of_other_products_.end()) {
    lines_of_other_products_.erase(other);
    return;
  }
  const auto own = std::ranges::find(lines_with_own_figures_, line);
  if (own != lines_with_own_figures_.end()) lines_with_own_figures_.erase(own);
}

void FoodListPanel::ClearList() {
  const TotalTexts totals = Totals(kNumberLimit);
  const DayTotals amounts = {ParseNumber(totals.kcal) + left_out_.kcal,
                             ParseNumber(totals.protein) + left_out_.protein,
                             ParseNumber(totals.fat) + left_out_.fat,
                             ParseNumber(totals.carbohydrate) + left_out_.carbohydrate};
  if (!day_.ClearList(amounts, *ExchangesOf(amounts, true))) return ReportFailedWrite();
  Empty(kZero);
}

void FoodListPanel::ClearDay() {
  if (!day_.Clear()) return ReportFailedWrite();
  Empty(kZero);
}

void FoodListPanel::Empty(std::string_view nothing) {
  form_.ClearItems(kList);
  lines_with_own_figures_.clear();
  lines_of_other_products_.clear();
  left_out_ = {};
  for (const int id : kFields) form_.SetText(id, nothing);
  exchanges_.CountCarbohydrate(0);
  exchanges_.CountProteinFat(0, 0);
}

TotalTexts FoodListPanel::Totals(std::size_t limit) const {
  return {form_.ReadText(kTotalWeight, limit), form_.ReadText(kTotalKcal, limit),
          form_.ReadText(kTotalProtein, limit), form_.ReadText(kTotalFat, limit),
          form_.ReadText(kTotalCarbohydrate, limit)};
}

std::vector<std::string> FoodListPanel::Lines() const {
  std::vector<std::string> lines;
  const int count = form_.ItemCount(kList);
  lines.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) lines.push_back(form_.ItemText(kList, i));
  return lines;
}

void FoodListPanel::ChangeTotals(double weight, const DayTotals& amounts) {
  const TotalTexts before = Totals(kNumberLimit);
  ShowTotals(TotalsAfter(before, weight, amounts));
  left_out_ = LeftOutAfter(left_out_, before, amounts, Totals(kNumberLimit));
}

void FoodListPanel::ShowTotals(const ListTotals& totals) {
  const std::string protein = CounterText(totals.protein);
  const std::string fat = CounterText(totals.fat);
  const std::string carbohydrate = CounterText(totals.carbohydrate);
  const RatioTexts ratio = NutrientRatio(protein, fat, carbohydrate, kBelowTrace);
  form_.SetText(kTotalWeight, CounterText(totals.weight));
  form_.SetText(kTotalKcal, CounterText(totals.kcal));
  form_.SetText(kTotalProtein, protein);
  form_.SetText(kTotalFat, fat);
  form_.SetText(kTotalCarbohydrate, carbohydrate);
  form_.SetText(kRatioProtein, ratio.protein);
  form_.SetText(kRatioFat, ratio.fat);
  form_.SetText(kRatioCarbohydrate, ratio.carbohydrate);
  form_.SetText(kCarbohydrateExchange,
                ExchangeText(exchanges_.CountCarbohydrate(totals.carbohydrate)));
  form_.SetText(kProteinFatExchange,
                ExchangeText(exchanges_.CountProteinFat(totals.protein, totals.fat)));
}

void FoodListPanel::ReportFailedWrite() { message_boxes_.Show({.text = kNotWritten}); }

}  // namespace velnor

#include "food/quick_add_dialog.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string_view>
#include <utility>

#include "base/number_text.h"
#include "base/text_file.h"
#include "food/food_list.h"
#include "res/ids.h"

namespace velnor {
namespace {

constexpr int kQuery = ID_QUICK_ADD_QUERY;
constexpr int kMatches = ID_QUICK_ADD_MATCHES;
constexpr int kWeight = ID_QUICK_ADD_WEIGHT;
constexpr int kFigures = ID_QUICK_ADD_FIGURES;

constexpr std::size_t kQueryLimit = 148;
constexpr std::size_t kShownMatches = 100;  // nobody reads on; typing another letter is quicker

// Fifty years of many foods a day; more would take long to read.
constexpr std::size_t kHistoryLimit = std::size_t{64} * 1024 * 1024;

struct Step {
  Key key;
  int lines;
};
constexpr Step kSteps[] = {
    {Key::kUp, -1}, {Key::kDown, 1}, {Key::kPageUp, -7}, {Key::kPageDown, 7}};

// A comma may have been pasted.
std::string TypedWeight(const Form& form) {
  std::string weight = form.ReadText(kWeight, kListedWeightLimit);
  std::ranges::replace(weight, ',', '.');
  return weight;
}

std::string Figure(double amount) {
  std::string text = FormatNumber(amount, kShownDigits);
  if (text.ends_with('.')) text.pop_back();
  return text;
}

}  // namespace

QuickAddDialog::QuickAddDialog(const FoodTable& food, FoodListPanel& list, const Clock& clock,
                               std::string history_path)
    : list_(list), clock_(clock), history_path_(std::move(history_path)), find_(food, habits_) {}

void QuickAddDialog::OnOpen(Form& form) {
  habits_ = EatingHabits(ReadFile(history_path_, kHistoryLimit));
  form.LimitText(kQuery, kQueryLimit);
  form.LimitText(kWeight, kListedWeightLimit);
  form.TakeNumbers(kWeight);
  Refill(form);
  form.Focus(kQuery);
}

void QuickAddDialog::OnCommand(Form& form, int id, int notification) {
  if (id == kQuery && notification == kEditUpdated) Refill(form);
  if (id == kMatches && notification == kSelectionChanged) OfferWeight(form);
  if (id == kWeight && notification == kEditUpdated) ShowFigures(form);
  if (id == kOkButton && notification == kButtonClicked) Add(form);
  if (id == kCancelButton) form.Close();
}

bool QuickAddDialog::OnKey(Form& form, int id, Key key) {
  if (key == Key::kEnter && (id == kQuery || id == kMatches)) {
    Weigh(form);
    return true;
  }
  if (key == Key::kEnter && id == kWeight) {
    Add(form);
    return true;
  }
  const Step* const step = std::ranges::find(kSteps, key, &Step::key);
  if (id != kQuery || step == std::end(kSteps)) return false;
  Move(form, step->lines);
  return true;
}

void QuickAddDialog::Refill(Form& form) {
  const Moment now = clock_.Now();
  const int today = DayNumber(now.date);
  const std::string query = form.ReadText(kQuery, kQueryLimit);
  const bool is_empty = query.find_first_not_of(' ') == std::string::npos;
  matches_ = is_empty ? find_.EatenAround(HourOf(now.time), today, kShownMatches)
                      : find_.Find(query, today, kShownMatches);
  std::vector<std::string> texts;
  texts.reserve(matches_.size());
  for (const QuickMatch& match : matches_) texts.push_back(match.ListText());
  form.FillItems(kMatches, Views(texts));
  form.SelectItem(kMatches, 0);
  OfferWeight(form);
}

void QuickAddDialog::Move(Form& form, int lines) {
  const int last = form.ItemCount(kMatches) - 1;
  if (last < 0) return;
  const int place = form.SelectedItem(kMatches).value_or(0) + lines;
  form.SelectItem(kMatches, std::clamp(place, 0, last));
  OfferWeight(form);
}

// The new weight announces itself, with which its figures are shown.
void QuickAddDialog::OfferWeight(Form& form) {
  const QuickMatch* const match = Chosen(form);
  std::string weight;
  if (match != nullptr)
    weight = match->last_weight.empty() ? match->product.mass : match->last_weight;
  form.SetText(kWeight, weight);
}

void QuickAddDialog::ShowFigures(Form& form) {
  const QuickMatch* const match = Chosen(form);
  if (match == nullptr) {
    form.SetText(kFigures, "");
    return;
  }
  const DayTotals amounts = ShownAmounts(match->product, TypedWeight(form));
  form.SetText(kFigures, Figure(amounts.kcal) + " kcal   protein " + Figure(amounts.protein) +
                             " g   fat " + Figure(amounts.fat) + " g   carbohydrates " +
                             Figure(amounts.carbohydrate) + " g");
}

void QuickAddDialog::Weigh(Form& form) {
  if (Chosen(form) == nullptr) return;
  form.Focus(kWeight);
  form.SelectAllText(kWeight);
}

void QuickAddDialog::Add(Form& form) {
  const QuickMatch* const match = Chosen(form);
  if (match == nullptr) {
    form.Focus(kQuery);
    return;
  }
  const std::string name = match->name.substr(0, kCounterNameLimit);
  const std::string weight = TypedWeight(form);
  const DayTotals amounts = ShownAmounts(match->product, weight);
  if (!list_.AddChosen({name, weight, amounts})) return;
  const Moment now = clock_.Now();
  habits_.Note({.date = now.date, .time = now.time, .name = name, .amount = ParseNumber(weight)});
  form.SetText(kQuery, "");
  form.Focus(kQuery);
}

const QuickMatch* QuickAddDialog::Chosen(const Form& form) const {
  const std::optional<int> place = form.SelectedItem(kMatches);
  if (!place || static_cast<std::size_t>(*place) >= matches_.size()) return nullptr;
  return &matches_[static_cast<std::size_t>(*place)];
}

}  // namespace velnor

#include "food/search_dialog.h"

#include "food/product_search.h"

namespace velnor {
namespace {

constexpr int kQuery = 728;
constexpr int kResults = 729;
constexpr int kFind = 730;
constexpr int kReset = 731;

constexpr std::size_t kQueryLimit = 148;
constexpr std::string_view kNotFound = "-------- not found --------";

void Reset(Form& form) {
  form.SetText(kQuery, "");
  form.ClearItems(kResults);
  form.Focus(kFind);
}

}  // namespace

void SearchDialog::OnOpen(Form& form) {
  form.LimitText(kQuery, kQueryLimit);
  form.Focus(kQuery);
}

void SearchDialog::OnCommand(Form& form, int id, int notification) {
  if (id == kFind && notification == kButtonClicked) Find(form);
  if (id == kReset && notification == kButtonClicked) Reset(form);
  if (id == kCancelButton) form.Close();
}

// Results of one search after the other stay in the list until it is reset.
void SearchDialog::Find(Form& form) {
  const auto results = SearchProducts(food_, form.ReadText(kQuery, kQueryLimit));
  if (results.empty()) {
    form.AddItem(kResults, kNotFound);
  } else {
    form.AddItems(kResults, Views(results));
  }
  form.Focus(kFind);
}

}  // namespace velnor

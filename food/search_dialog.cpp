#include "food/search_dialog.h"

#include <memory>

#include "food/product_search.h"
#include "res/ids.h"

namespace velnor {
namespace {

constexpr int kQuery = ID_SEARCH_QUERY;
constexpr int kResults = ID_SEARCH_RESULTS;
constexpr int kFind = ID_SEARCH_FIND;
constexpr int kReset = ID_SEARCH_RESET;

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

void OpenSearch(MainWindow& window, const FoodTable& food) {
  window.OpenDialog(kSearchResource, std::make_unique<SearchDialog>(food));
}

}  // namespace velnor

// The dialog that finds products and says where they are filed.

#ifndef VELNOR_FOOD_SEARCH_DIALOG_H_
#define VELNOR_FOOD_SEARCH_DIALOG_H_

#include "base/dialog.h"
#include "base/main_window.h"
#include "food/food_table.h"
#include "res/ids.h"

namespace velnor {

inline constexpr int kSearchResource = ID_SEARCH_DIALOG;

class SearchDialog final : public Dialog {
 public:
  explicit SearchDialog(const FoodTable& food) : food_(food) {}

  void OnOpen(Form& form) override;
  void OnCommand(Form& form, int id, int notification) override;

 private:
  void Find(Form& form);

  const FoodTable& food_;
};

// Opens the dialog.
void OpenSearch(MainWindow& window, const FoodTable& food);

}  // namespace velnor

#endif  // VELNOR_FOOD_SEARCH_DIALOG_H_

// The dialog that saves what the food list holds as a recipe.

#ifndef VELNOR_FOOD_RECIPE_RECORD_DIALOG_H_
#define VELNOR_FOOD_RECIPE_RECORD_DIALOG_H_

#include <string>
#include <vector>

#include "base/dialog.h"
#include "base/session.h"
#include "food/food_list_panel.h"
#include "res/ids.h"

namespace velnor {

inline constexpr int kRecipeRecordResource = ID_RECIPE_RECORD_DIALOG;

class RecipeRecordDialog final : public Dialog {
 public:
  // Keeps the lines that `list` has now; its totals are read when the recipe is saved.
  RecipeRecordDialog(const SessionState& session, const FoodListPanel& list)
      : session_(session), list_(list), composition_(CompositionOf(list.Lines())) {}

  void OnOpen(Form& form) override;
  void OnCommand(Form& form, int id, int notification) override;

 private:
  void Save(const Form& form) const;

  const SessionState& session_;
  const FoodListPanel& list_;
  std::vector<std::string> composition_;
};

}  // namespace velnor

#endif  // VELNOR_FOOD_RECIPE_RECORD_DIALOG_H_

// The dialog that adds a food by a few letters of its name, without the mouse: the letters, the
// matches below them, the weight, and Enter twice.

#ifndef VELNOR_FOOD_QUICK_ADD_DIALOG_H_
#define VELNOR_FOOD_QUICK_ADD_DIALOG_H_

#include <string>
#include <vector>

#include "base/clock.h"
#include "base/dialog.h"
#include "food/eating_habits.h"
#include "food/food_list_panel.h"
#include "food/food_table.h"
#include "food/quick_find.h"
#include "res/ids.h"

namespace velnor {

inline constexpr int kQuickAddResource = ID_QUICK_ADD_DIALOG;

class QuickAddDialog final : public Dialog {
 public:
  // Adds to `list`. `history_path`: the history of the person who is logged in, of which their
  // habits are read when the dialog opens; a missing file is one of somebody without any.
  QuickAddDialog(const FoodTable& food, FoodListPanel& list, const Clock& clock,
                 std::string history_path);

  void OnOpen(Form& form) override;
  void OnCommand(Form& form, int id, int notification) override;
  bool OnKey(Form& form, int id, Key key) override;

 private:
  // Shows what matches the letters typed, the first of it chosen.
  void Refill(Form& form);
  void Move(Form& form, int lines);
  // The chosen match has changed: offers its weight.
  void OfferWeight(Form& form);
  void ShowFigures(Form& form);
  void Weigh(Form& form);
  void Add(Form& form);

  const QuickMatch* Chosen(const Form& form) const;

  FoodListPanel& list_;
  const Clock& clock_;
  std::string history_path_;
  EatingHabits habits_;
  QuickFind find_;
  std::vector<QuickMatch> matches_;  // in the order of the list
};

}  // namespace velnor

#endif  // VELNOR_FOOD_QUICK_ADD_DIALOG_H_

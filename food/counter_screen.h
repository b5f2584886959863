// The nutrition counter: pick a product, type a weight, read what is in it; below it, the list of
// what was eaten today.

#ifndef VELNOR_FOOD_COUNTER_SCREEN_H_
#define VELNOR_FOOD_COUNTER_SCREEN_H_

#include <span>

#include "activity/day_requirement.h"
#include "base/control.h"
#include "base/main_window.h"
#include "base/session.h"
#include "food/food_list_panel.h"
#include "food/product_picker.h"

namespace velnor {

class CounterScreen final : public ProductPicker {
 public:
  CounterScreen(const SessionState& session, const FoodTable& food, const Exchanges& exchanges,
                FoodListPanel& list, DayRequirement& requirement, Form& form, MainWindow& window);

  static std::span<const ControlRow> Controls();
  void OnChosen() override;
  void Paint(Canvas& canvas) const override;
  bool OnControl(int id, int notification) override;

  // The buttons.
  void OpenSearch();
  void AddToList();
  void RemoveFromList();
  void ClearList();
  void OpenCalorieRecord();
  void OpenRecipeRecord();

 private:
  void ShowNoProduct() override;
  void ShowAmounts(const NutrientAmounts& amounts) override;

  const SessionState& session_;
  const Exchanges& exchanges_;
  FoodListPanel& list_;
  DayRequirement& requirement_;
  MainWindow& window_;
};

}  // namespace velnor

#endif  // VELNOR_FOOD_COUNTER_SCREEN_H_

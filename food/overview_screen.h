// The products overview: a product's values for a weight, its exchanges and its nutrient ratio.

#ifndef VELNOR_FOOD_OVERVIEW_SCREEN_H_
#define VELNOR_FOOD_OVERVIEW_SCREEN_H_

#include <span>
#include <string_view>

#include "base/control.h"
#include "base/main_window.h"
#include "food/product_picker.h"

namespace velnor {

class OverviewScreen final : public ProductPicker {
 public:
  // `exchanges` keeps the last exchanges counted, here or elsewhere.
  OverviewScreen(const FoodTable& food, Exchanges& exchanges, Form& form, MainWindow& window);

  static std::span<const ControlRow> Controls();
  void Paint(Canvas& canvas) const override;
  bool OnControl(int id, int notification) override;

  // The button.
  void OpenSearch();

 private:
  void ShowChosenProduct() override;
  void ShowAmounts(const NutrientAmounts& amounts) override;
  void ShowRatio(std::string_view trace);

  Exchanges& exchanges_;
  MainWindow& window_;
};

}  // namespace velnor

#endif  // VELNOR_FOOD_OVERVIEW_SCREEN_H_

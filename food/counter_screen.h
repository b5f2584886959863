// The nutrition counter: pick a product, type a weight, read what is in it; below it, the list of
// what was eaten today.

#ifndef VELNOR_FOOD_COUNTER_SCREEN_H_
#define VELNOR_FOOD_COUNTER_SCREEN_H_

#include "base/canvas.h"
#include "food/product_picker.h"

namespace velnor {

class CounterScreen final : public ProductPicker {
 public:
  CounterScreen(const FoodTable& food, Form& form);

  // Draws the fixed texts and offers the main categories.
  void Paint(Canvas& canvas);

 private:
  void ShowNoProduct() override;
  void ShowAmounts(const NutrientAmounts& amounts) override;
};

}  // namespace velnor

#endif  // VELNOR_FOOD_COUNTER_SCREEN_H_

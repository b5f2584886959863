// Picking a product and weighing it: what the nutrition counter and the products overview have in
// common. Each is an instance over its own controls and its own loose comparisons.

#ifndef VELNOR_FOOD_PRODUCT_PICKER_H_
#define VELNOR_FOOD_PRODUCT_PICKER_H_

#include <cstddef>
#include <optional>
#include <string>

#include "base/form.h"
#include "base/screen.h"
#include "food/food_table.h"
#include "food/nutrition.h"
#include "food/product_rules.h"

namespace velnor {

// The controls of one picker and the texts it reads from them.
struct PickerControls {
  Matching matching;  // how it compares names
  int main_category;  // combo box
  int subcategory;    // combo box
  int products;       // sorted list box
  int weight;         // edit, g
  int kcal;           // statics for the values of that weight
  int protein;
  int fat;
  int carbohydrate;
  std::size_t weight_limit;  // characters of the weight that count
  std::size_t name_limit;    // characters of a chosen name that count
};

class ProductPicker : public Screen {
 public:
  ProductPicker(const FoodTable& food, const PickerControls& controls, Form& form)
      : food_(food), controls_(controls), form_(form) {}

  // Offers the main categories, once: a box that has entries keeps them.
  void Refresh() override;
  // The events of the picker's own controls.
  bool OnControl(int id, int notification) override;

  // The user chose a main category: offers its subcategories and empties the product list.
  void OnMainCategoryChosen();
  // The user chose a subcategory: lists its products.
  void OnSubcategoryChosen();
  // The user chose a product: shows its mass and its values per that mass, as the table has them.
  void OnProductChosen();
  // Called when the products have changed: lists those of the chosen subcategory again. The
  // selection stays while its product is there.
  void OnProductsChanged();
  // The weight has a new text, from the user or from the program: shows what it holds. Until a
  // product has been chosen there is nothing to weigh and nothing changes.
  void OnWeightChanged();

  // The name of the last product chosen; empty before the first choice.
  const std::string& chosen_name() const { return chosen_name_; }

 protected:
  // What a picker shows beyond the four values.
  virtual void ShowNoProduct() {}      // after a choice of main category
  virtual void ShowChosenProduct() {}  // after the values of a choice stand
  virtual void ShowAmounts(const NutrientAmounts& amounts) = 0;

  const FoodTable& food() const { return food_; }
  Form& form() { return form_; }

 private:
  const FoodTable& food_;
  const PickerControls& controls_;
  Form& form_;
  std::string chosen_name_;
  // Copied, since the table of user products can be reloaded under it. Empty until the first
  // choice.
  std::optional<SelectedProduct> selected_;
};

}  // namespace velnor

#endif  // VELNOR_FOOD_PRODUCT_PICKER_H_

#include "food/product_picker.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "base/number_text.h"

namespace velnor {

void ProductPicker::FillMainCategoryList() {
  if (form_.ItemCount(controls_.main_category) > 0) return;
  form_.FillItems(controls_.main_category, ListMainCategories(food_));
}

void ProductPicker::OnMainCategoryChosen() {
  const std::optional<std::string> main_category = form_.SelectedText(controls_.main_category);
  if (!main_category) return;
  form_.FillItems(controls_.subcategory,
                  ListSubcategories(food_, controls_.matching, *main_category));
  form_.ClearItems(controls_.products);
  ShowNoProduct();
}

void ProductPicker::OnSubcategoryChosen() {
  const std::optional<std::string> main_category = form_.SelectedText(controls_.main_category);
  const std::optional<std::string> subcategory = form_.SelectedText(controls_.subcategory);
  if (!main_category || !subcategory) return;
  form_.FillItems(controls_.products,
                  ListProducts(food_, controls_.matching, *main_category, *subcategory));
}

void ProductPicker::OnProductChosen() {
  std::optional<std::string> name = form_.SelectedText(controls_.products);
  if (!name) return;
  name->resize(std::min(name->size(), controls_.name_limit));
  const ProductRecord* const product = FindProduct(food_, controls_.matching, *name);
  if (product == nullptr) return;
  chosen_name_ = std::move(*name);
  const SelectedProduct& chosen = selected_.emplace(SelectedProduct::CopyOf(*product));
  // Setting the weight announces a change, which shows computed values; the product's own texts
  // take their place.
  form_.SetText(controls_.weight, chosen.mass);
  form_.SetText(controls_.kcal, chosen.kcal);
  form_.SetText(controls_.protein, chosen.protein);
  form_.SetText(controls_.fat, chosen.fat);
  form_.SetText(controls_.carbohydrate, chosen.carbohydrate);
  ShowChosenProduct();
}

void ProductPicker::OnProductsChanged() {
  const std::optional<std::string> selected = form_.SelectedText(controls_.products);
  OnSubcategoryChosen();
  for (int i = 0; selected && i < form_.ItemCount(controls_.products); ++i) {
    if (form_.ItemText(controls_.products, i) != *selected) continue;
    form_.SelectItem(controls_.products, i);
    return;
  }
}

void ProductPicker::OnWeightChanged() {
  if (!selected_) return;
  const std::string weight = form_.ReadText(controls_.weight, controls_.weight_limit);
  ShowAmounts(ScaleToWeight(*selected_, ParseNumber(weight)));
}

}  // namespace velnor

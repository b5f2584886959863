// The dialog that adds a product of the user's own.

#ifndef VELNOR_FOOD_ADD_PRODUCT_DIALOG_H_
#define VELNOR_FOOD_ADD_PRODUCT_DIALOG_H_

#include <functional>
#include <string>

#include "base/dialog.h"
#include "base/message_boxes.h"
#include "base/session.h"
#include "food/food_table.h"
#include "res/ids.h"

namespace velnor {

inline constexpr int kAddProductResource = ID_ADD_PRODUCT_DIALOG;

class AddProductDialog final : public Dialog {
 public:
  // Adds to the file of own products and reloads those of `food` from it. Calls `on_changed` when
  // they may have changed.
  AddProductDialog(FoodTable& food, const SessionState& session, MessageBoxes& message_boxes,
                   std::function<void()> on_changed);

  void OnOpen(Form& form) override;
  void OnCommand(Form& form, int id, int notification) override;

 private:
  void OfferSubcategories(Form& form);
  void Add(Form& form);
  bool Write(const ProductRecord& product) const;

  FoodTable& food_;
  const SessionState& session_;
  MessageBoxes& message_boxes_;
  std::function<void()> on_changed_;
};

}  // namespace velnor

#endif  // VELNOR_FOOD_ADD_PRODUCT_DIALOG_H_

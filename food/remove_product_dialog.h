// The dialog that removes products of the user's own.

#ifndef VELNOR_FOOD_REMOVE_PRODUCT_DIALOG_H_
#define VELNOR_FOOD_REMOVE_PRODUCT_DIALOG_H_

#include <string>

#include "base/dialog.h"
#include "base/message_boxes.h"
#include "base/session.h"
#include "food/food_table.h"

namespace velnor {

inline constexpr int kRemoveProductResource = 10011;

class RemoveProductDialog final : public Dialog {
 public:
  // Removes from the file of own products and reloads those of `food` from it.
  RemoveProductDialog(FoodTable& food, const SessionState& session, MessageBoxes& message_boxes);

  void OnOpen(Form& form) override;
  void OnCommand(Form& form, int id, int notification) override;

 private:
  void Remove(Form& form);

  FoodTable& food_;
  const SessionState& session_;
  MessageBoxes& message_boxes_;
};

}  // namespace velnor

#endif  // VELNOR_FOOD_REMOVE_PRODUCT_DIALOG_H_

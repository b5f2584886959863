// The dialog that removes products of the user's own.

#ifndef VELNOR_FOOD_REMOVE_PRODUCT_DIALOG_H_
#define VELNOR_FOOD_REMOVE_PRODUCT_DIALOG_H_

#include <functional>
#include <string>

#include "base/dialog.h"
#include "base/message_boxes.h"
#include "base/session.h"
#include "food/food_table.h"
#include "res/ids.h"

namespace velnor {

inline constexpr int kRemoveProductResource = ID_REMOVE_PRODUCT_DIALOG;

class RemoveProductDialog final : public Dialog {
 public:
  // Removes from the file of own products and reloads those of `food` from it; calls `on_changed`
  // when they may have changed.
  RemoveProductDialog(FoodTable& food, const SessionState& session, MessageBoxes& message_boxes,
                      std::function<void()> on_changed);

  void OnOpen(Form& form) override;
  void OnCommand(Form& form, int id, int notification) override;

 private:
  void Remove(Form& form);

  FoodTable& food_;
  const SessionState& session_;
  MessageBoxes& message_boxes_;
  std::function<void()> on_changed_;
};

}  // namespace velnor

#endif  // VELNOR_FOOD_REMOVE_PRODUCT_DIALOG_H_

// The dialog that adds products of the user's own from a table of another program.

#ifndef VELNOR_FOOD_IMPORT_PRODUCTS_DIALOG_H_
#define VELNOR_FOOD_IMPORT_PRODUCTS_DIALOG_H_

#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "base/dialog.h"
#include "base/main_window.h"
#include "base/message_boxes.h"
#include "base/session.h"
#include "food/food_table.h"
#include "food/product_import.h"
#include "res/ids.h"

namespace velnor {

inline constexpr int kImportProductsResource = ID_IMPORT_DIALOG;

class ImportProductsDialog final : public Dialog {
 public:
  // Adds to the file of own products and reloads those of `food` from it; calls `on_changed` when
  // they may have changed.
  ImportProductsDialog(FoodTable& food, const SessionState& session, MainWindow& window,
                       MessageBoxes& message_boxes, std::function<void()> on_changed);

  void OnOpen(Form& form) override;
  void OnCommand(Form& form, int id, int notification) override;

 private:
  void OfferSubcategories(Form& form);
  void Browse(Form& form);
  void Import(Form& form);
  // Whether the plan is carried out, as far as the slots go; asks where that is not all of it.
  bool Confirm(const ImportPlan& plan);
  void CarryOut(const ImportPlan& plan);
  bool Write(std::span<const ProductRecord> records) const;
  void Say(std::string_view text);

  FoodTable& food_;
  const SessionState& session_;
  MainWindow& window_;
  MessageBoxes& message_boxes_;
  std::function<void()> on_changed_;
};

}  // namespace velnor

#endif  // VELNOR_FOOD_IMPORT_PRODUCTS_DIALOG_H_

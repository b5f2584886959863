#include "food/remove_product_dialog.h"

#include <optional>
#include <utility>

#include "base/transaction.h"
#include "food/user_product_file.h"
#include "res/ids.h"

namespace velnor {
namespace {

constexpr int kNames = ID_REMOVE_PRODUCT_NAMES;

}  // namespace

RemoveProductDialog::RemoveProductDialog(FoodTable& food, const SessionState& session,
                                         MessageBoxes& message_boxes,
                                         std::function<void()> on_changed)
    : food_(food),
      session_(session),
      message_boxes_(message_boxes),
      on_changed_(std::move(on_changed)) {}

void RemoveProductDialog::OnOpen(Form& form) {
  form.FillItems(kNames, Views(ReadUserProductNames(session_.BaseFile(kUserProductsFile))));
}

void RemoveProductDialog::OnCommand(Form& form, int id, int notification) {
  if (id == kOkButton && notification == kButtonClicked) Remove(form);
  if (id == kCancelButton) form.Close();
}

void RemoveProductDialog::Remove(Form& form) {
  if (!form.SelectedText(kNames)) return;
  const Answer answer = message_boxes_.Show({.text = "Are You sure??",
                                             .buttons = MessageButtons::kYesNo,
                                             .icon = MessageIcon::kQuestion});
  // The list can be used behind the question: what is selected now is meant.
  const std::optional<std::string> name = form.SelectedText(kNames);
  if (answer != Answer::kYes || !name) return;
  // A file that cannot be written is not reported; what it still holds stays in the list.
  Transaction deed(session_.base_folder);
  if (RemoveUserProduct(deed, session_.BaseFile(kUserProductsFile), *name) && deed.Commit()) {
    form.RemoveSelectedItem(kNames);
  }
  food_.user_products.Load(session_.BaseFile(kUserProductsFile));
  on_changed_();
}

}  // namespace velnor

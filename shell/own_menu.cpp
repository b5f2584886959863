#include "shell/own_menu.h"

#include <algorithm>
#include <memory>

#include "food/import_products_dialog.h"
#include "shell/parts.h"

namespace velnor {
namespace {

void OpenImportProducts(Parts& parts) {
  parts.window.OpenDialog(kImportProductsResource,
                          std::make_unique<ImportProductsDialog>(
                              parts.food, parts.session, parts.window, parts.message_boxes,
                              [&parts] { parts.OnProductsChanged(); }));
}

constexpr OwnMenuItem kItems[] = {
    {kImportItem, "Import products...", false, OpenImportProducts},
};

}  // namespace

std::span<const OwnMenuItem> OwnMenuItems() { return kItems; }

bool CanBeChosen(const OwnMenuItem& item, const SessionState& session) {
  return !item.needs_user || session.user.has_value();
}

bool RunOwnMenuItem(Parts& parts, int id, std::span<const OwnMenuItem> items) {
  const auto item = std::ranges::find(items, id, &OwnMenuItem::id);
  if (item == items.end()) return false;
  if (CanBeChosen(*item, parts.session)) item->run(parts);
  return true;
}

}  // namespace velnor

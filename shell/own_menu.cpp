#include "shell/own_menu.h"

#include <algorithm>
#include <memory>

#include "diary/diary_command.h"
#include "food/import_products_dialog.h"
#include "food/quick_add_dialog.h"
#include "shell/parts.h"
#include "users/history_file.h"

namespace velnor {
namespace {

void OpenImportProducts(Parts& parts) {
  parts.window.OpenDialog(kImportProductsResource,
                          std::make_unique<ImportProductsDialog>(
                              parts.food, parts.session, parts.window, parts.message_boxes,
                              [&parts] { parts.OnProductsChanged(); }));
}

void OpenQuickAdd(Parts& parts) {
  parts.window.OpenSessionDialog(
      kQuickAddResource,
      std::make_unique<QuickAddDialog>(parts.food, parts.food_list, *parts.session.clock,
                                       parts.session.user->File(kHistoryFile)));
}

void OpenDiary(Parts& parts) {
  parts.requirement.Update();
  DiaryCommand(parts.session, parts.window, parts.message_boxes)
      .Run(parts.profile, parts.requirement.Bounds());
}

constexpr OwnMenuItem kItems[] = {
    {kQuickAddItem, "Quick add...\tCtrl+K", true, OpenQuickAdd},
    {kDiaryItem, "Diary...\tCtrl+D", true, OpenDiary},
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

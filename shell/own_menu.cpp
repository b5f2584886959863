#include "shell/own_menu.h"

#include <algorithm>
#include <memory>

#include "diary/diary_command.h"
#include "food/import_products_dialog.h"
#include "food/quick_add_dialog.h"
#include "shell/commands.h"
#include "shell/parts.h"
#include "users/back_up_dialog.h"
#include "users/history_file.h"
#include "users/restore_dialog.h"

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

void OpenBackUp(Parts& parts) {
  parts.window.OpenDialog(kBackUpResource, std::make_unique<BackUpDialog>(
                                               parts.session, parts.window, parts.message_boxes));
}

// Who is logged in may not be there any more, and nothing that is known of their day holds.
void OnRestored(Parts& parts) {
  if (parts.session.user) EndSession(parts);
  parts.food.user_products.Load(parts.session.BaseFile(kUserProductsFile));
  parts.OnProductsChanged();
}

void OpenRestore(Parts& parts) {
  parts.window.OpenDialog(kRestoreResource, std::make_unique<RestoreDialog>(
                                                parts.session, parts.window, parts.message_boxes,
                                                [&parts] { OnRestored(parts); }));
}

constexpr OwnMenuItem kItems[] = {
    {kQuickAddItem, "Quick add...\tCtrl+K", true, OpenQuickAdd},
    {kDiaryItem, "Diary...\tCtrl+D", true, OpenDiary},
    {kBackUpItem, "Back up...", false, OpenBackUp},
    {kRestoreItem, "Restore...", false, OpenRestore},
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

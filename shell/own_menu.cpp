#include "shell/own_menu.h"

#include <algorithm>

#include "shell/program.h"

namespace velnor {
namespace {

constexpr OwnMenuItem kItems[] = {
    {kQuickAddItem, "Quick add...\tCtrl+K", true, [](Program& p) { p.OpenQuickAdd(); }},
    {kDiaryItem, "Diary...\tCtrl+D", true, [](Program& p) { p.OpenDiary(); }},
    {kImportItem, "Import products...", false, [](Program& p) { p.OpenImportProducts(); }},
};

}  // namespace

std::span<const OwnMenuItem> OwnMenuItems() { return kItems; }

bool CanBeChosen(const OwnMenuItem& item, const SessionState& session) {
  return !item.needs_user || session.user.has_value();
}

bool RunOwnMenuItem(Program& program, int id, std::span<const OwnMenuItem> items) {
  const auto item = std::ranges::find(items, id, &OwnMenuItem::id);
  if (item == items.end()) return false;
  if (CanBeChosen(*item, program.session())) item->run(program);
  return true;
}

}  // namespace velnor

#include "shell/keyboard.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "base/control.h"
#include "food/search_dialog.h"
#include "shell/own_menu.h"
#include "shell/parts.h"
#include "shell/screens.h"

namespace velnor {
namespace {

// The whole guide and the short one, as they lie beside the program.
constexpr std::string_view kGuideFiles[] = {"README.md", "README.txt"};
constexpr std::string_view kNoGuide =
    "The guide is the file README.md that came with the program\n"
    "(on Debian it is in /usr/share/doc/velnor).\n"
    "F1 opens it where it lies beside the program or in the folder of Your data.";

void OpenGuide(Parts& parts) {
  const bool opened = std::ranges::any_of(
      kGuideFiles, [&parts](std::string_view name) { return parts.window.OpenGuideFile(name); });
  if (!opened) parts.message_boxes.Show({.text = kNoGuide});
}

struct KeyRow {
  KeyPress press;
  void (*run)(Parts& parts);
};

constexpr KeyRow kKeys[] = {
    {{.key = kF1Key}, OpenGuide},
    {{.key = 'F', .control = true}, [](Parts& p) { OpenSearch(p.window, p.food); }},
    {{.key = 'K', .control = true}, [](Parts& p) { RunOwnMenuItem(p, kQuickAddItem); }},
    {{.key = 'D', .control = true}, [](Parts& p) { RunOwnMenuItem(p, kDiaryItem); }},
};

}  // namespace

bool RunKey(Parts& parts, const KeyPress& press) {
  const auto* const row = std::ranges::find(kKeys, press, &KeyRow::press);
  if (row == std::end(kKeys)) return false;
  row->run(parts);
  return true;
}

int ButtonOfEnter(ScreenId screen, int focused_key) {
  const std::span<const ControlRow> all = MainWindowControls();
  const auto focused = std::ranges::find(all, focused_key, &ControlRow::key);
  if (focused == all.end()) return 0;
  if (focused->control_class == ControlClass::kButton) return focused->id();
  const ScreenRow* const row = FindScreen(screen);
  const bool is_field = focused->control_class == ControlClass::kEdit &&
                        (focused->style & control_style::kMultiLine) == 0;
  if (row == nullptr || !is_field) return 0;
  const std::span<const ControlRow> own = row->controls();
  const auto button = std::ranges::find(own, true, &ControlRow::is_pressed_by_enter);
  return button == own.end() ? 0 : button->id();
}

}  // namespace velnor

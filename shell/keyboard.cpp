#include "shell/keyboard.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "base/form.h"
#include "shell/controls.h"
#include "shell/own_menu.h"
#include "shell/program.h"

namespace velnor {
namespace {

// The whole guide and the short one, as they lie beside the program.
constexpr std::string_view kGuideFiles[] = {"README.md", "README.txt"};
constexpr std::string_view kNoGuide =
    "The guide is the file README.md that came with the program\n"
    "(on Debian it is in /usr/share/doc/velnor).\n"
    "F1 opens it where it lies beside the program or in the folder of Your data.";

void OpenGuide(Program& program) {
  const bool opened = std::ranges::any_of(kGuideFiles, [&program](std::string_view name) {
    return program.window().OpenGuideFile(name);
  });
  if (!opened) program.message_boxes().Show({.text = kNoGuide});
}

struct KeyRow {
  KeyPress press;
  void (*run)(Program& program);
};

constexpr KeyRow kKeys[] = {
    {{.key = kF1Key}, OpenGuide},
    {{.key = 'F', .control = true}, [](Program& p) { p.OpenSearch(); }},
    {{.key = 'K', .control = true}, [](Program& p) { RunOwnMenuItem(p, kQuickAddItem); }},
    {{.key = 'D', .control = true}, [](Program& p) { RunOwnMenuItem(p, kDiaryItem); }},
};

struct MainButton {
  ScreenId screen;
  int button;
};

constexpr MainButton kMainButtons[] = {
    {1, 102},   // Count BMI
    {2, 106},   // Count WHR
    {6, 174},   // Activate
    {7, 127},   // Add
    {10, 161},  // Count
    {18, 176},  // Count BMR
    {19, 182},  // COUNT ENERGY BALANCE / REFRESH
};

}  // namespace

bool RunKey(Program& program, const KeyPress& press) {
  const auto* const row = std::ranges::find(kKeys, press, &KeyRow::press);
  if (row == std::end(kKeys)) return false;
  row->run(program);
  return true;
}

int ButtonOfEnter(ScreenId screen, int focused_key) {
  const std::span<const ControlRow> rows = MainWindowControls();
  const int id = focused_key & ~SecondControl(0);
  const auto row = std::ranges::find(rows, id, &ControlRow::id);
  if (row == rows.end()) return 0;
  if (row->control_class == ControlClass::kButton) return id;
  const bool is_field =
      row->control_class == ControlClass::kEdit && (row->style & control_style::kMultiLine) == 0;
  const auto* const main = std::ranges::find(kMainButtons, screen, &MainButton::screen);
  return is_field && main != std::end(kMainButtons) ? main->button : 0;
}

}  // namespace velnor

// What a person can do, in any order: every line of the input is a step. Only what can be seen can
// be pressed and typed into, and only menu items that are not greyed can be chosen.
//
//   o231          chooses menu command 231          y, n    answers questions with yes or no from
//   now t128 250      types into control 128            u, d    turns the wheel c124 3 chooses the
//   third item of a list  f       brings another open dialog to the front p127          presses a
//   button                  T C P   the same three in the front dialog
//
// A number that names nothing stands for the control or item that it falls on when they are counted
// through, so that every input does something.

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "base/number_text.h"
#include "fuzz/day.h"
#include "shell/screens.h"
#include "tests/support/resource_script.h"

namespace velnor {
namespace {

constexpr int kFirstCommand = 200;
constexpr int kCommands = 75;
constexpr std::size_t kMostSteps = 60;

// A window that a person works in, and what in it can be worked with.
struct Target {
  FakeForm& form;
  std::vector<DialogControl> controls;
};

Target MainWindowOf(ProgramRun& run) {
  Target target = {run.form(), {}};
  const std::set<int> shown = run.form().ShownKeys();
  for (const ControlRow& row : MainWindowControls()) {
    if (!shown.contains(row.key)) continue;
    if (row.style == control_style::kGroupBox) continue;
    target.controls.push_back({row.id(), row.control_class, row.style});
  }
  return target;
}

int Wrap(int number, std::size_t count) {
  const int size = static_cast<int>(count);
  return (number % size + size) % size;
}

// The control of those classes that `number` names or falls on; null when there is none.
const DialogControl* Find(const Target& target, std::initializer_list<ControlClass> classes,
                          int number) {
  std::vector<const DialogControl*> found;
  for (const DialogControl& control : target.controls) {
    if (std::ranges::find(classes, control.control_class) == classes.end()) continue;
    if (control.id == number) return &control;
    found.push_back(&control);
  }
  return found.empty() ? nullptr : found[static_cast<std::size_t>(Wrap(number, found.size()))];
}

void Type(const Target& target, int number, std::string_view text) {
  const DialogControl* const edit = Find(target, {ControlClass::kEdit}, number);
  if (edit == nullptr || (edit->style & control_style::kReadOnly) != 0) return;
  const bool has_lines = (edit->style & control_style::kMultiLine) != 0;
  target.form.SetText(edit->id, has_lines ? std::string(text.substr(0, text.find('\0')))
                                          : ProgramRun::OneLine(text));
}

void Choose(const Target& target, int number, std::string_view item) {
  const DialogControl* const list =
      Find(target, {ControlClass::kListBox, ControlClass::kComboBox}, number);
  if (list == nullptr || target.form.ItemCount(list->id) == 0) return;
  const auto& items = target.form.Items(list->id);
  const int index = Wrap(ParseInteger(item), items.size());
  const bool is_named = std::ranges::find(items, item) != items.end();
  target.form.Choose(list->id,
                     is_named ? std::string(item) : items[static_cast<std::size_t>(index)]);
}

void Press(const Target& target, int number) {
  const DialogControl* const button = Find(target, {ControlClass::kButton}, number);
  if (button != nullptr) target.form.Press(button->id);
}

void WorkIn(const Target& target, char step, int number, std::string_view text) {
  if (step == 't') Type(target, number, text);
  if (step == 'c') Choose(target, number, text);
  if (step == 'p') Press(target, number);
}

void TakeStep(ProgramRun& run, std::string_view line) {
  const char step = line[0];
  const std::string_view rest = line.substr(1);
  const int number = ParseInteger(rest);
  std::string_view text = rest;
  TakeUpTo(' ', text);
  if (step == 'o') run.Choose(kFirstCommand + Wrap(number - kFirstCommand, kCommands));
  if (step == 'y') run.boxes().answer = Answer::kYes;
  if (step == 'n') run.boxes().answer = Answer::kNo;
  if (step == 'u') run.program().OnMouseWheel(120);
  if (step == 'd') run.program().OnMouseWheel(-120);
  if (step == 'f') run.BringLastDialogToFront();
  if (step == 't' || step == 'c' || step == 'p') {
    WorkIn(MainWindowOf(run), step, number, text);
  }
  FakeForm* const dialog = run.dialog();
  if ((step == 'T' || step == 'C' || step == 'P') && dialog != nullptr) {
    WorkIn({*dialog, DialogTemplate(run.dialog_resource())}, static_cast<char>(step - 'A' + 'a'),
           number, text);
  }
  run.Settle();
}

}  // namespace
}  // namespace velnor

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velnor;  // NOLINT(google-build-using-namespace)
  ProgramRun run;
  run.AllowNoNumbers();  // a person can type a product without a mass, and weights beyond any
  run.MakeUser();
  run.Start();
  run.LogIn();
  std::string_view input = InputText(data, size);
  for (std::size_t step = 0; step < kMostSteps && !input.empty(); ++step) {
    const std::string_view line = TakeUpTo('\n', input);
    if (!line.empty()) TakeStep(run, line);
  }
  const std::string balance = run.Read("Ann/bilans.ASC");
  if (!balance.empty()) RequireSoundDay(run);
  return 0;
}

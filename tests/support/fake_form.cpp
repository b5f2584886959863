#include "tests/support/fake_form.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "shell/screens.h"
#include "tests/support/resource_script.h"

namespace velnor {
namespace {

constexpr int kEditChanged = 0x0300;  // what the platform sends after kEditUpdated

bool ComesBefore(const std::string& a, const std::string& b) {
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
  return std::ranges::lexicographical_compare(a, b, {}, lower, lower);
}

int CountLines(std::string_view text) {
  int lines = 1;
  for (std::size_t end = 0; (end = text.find("\r\n", end)) != std::string_view::npos; end += 2) {
    ++lines;
  }
  return lines;
}

}  // namespace

bool FakeForm::Control::IsSorted() const {
  return (control_class == ControlClass::kListBox && (style & control_style::kSortedList) != 0) ||
         (control_class == ControlClass::kComboBox && (style & control_style::kSortedCombo) != 0);
}

void FakeForm::Control::Insert(const std::string& item) {
  const auto place = IsSorted() ? std::ranges::lower_bound(items, item, ComesBefore) : items.end();
  const auto index = place - items.begin();
  items.insert(place, item);
  if (selection >= index) ++selection;
}

void FakeForm::AddMainWindowControls() {
  for (const ControlRow& row : MainWindowControls()) {
    AddControl(row.key, row.control_class, row.style);
    if (row.limit > 0) LimitText(row.id(), row.limit);
  }
  HideAll();
}

void FakeForm::AddDialogControls(int resource_id) {
  resource_id_ = resource_id;
  for (const DialogControl& control : DialogTemplate(resource_id)) {
    AddControl(control.id, control.control_class, control.style);
  }
}

void FakeForm::AddControl(int key, ControlClass control_class, std::uint32_t style) {
  controls_[key] = {.control_class = control_class, .style = style};
  controls_[key].shown = true;
}

void FakeForm::Choose(int id, const std::string& item) {
  Control* const control = Reach(id, {ControlClass::kListBox, ControlClass::kComboBox});
  if (control == nullptr) return;
  const auto found = std::ranges::find(control->items, item);
  ASSERT_NE(found, control->items.end()) << "control " << id << " has no item " << item;
  control->selection = static_cast<int>(found - control->items.begin());
  Notify(id, kSelectionChanged);
}

void FakeForm::Type(int id, const std::string& text) {
  Control* const control = Reach(id, {ControlClass::kEdit});
  if (control == nullptr) return;
  ASSERT_EQ(control->style & control_style::kReadOnly, 0U) << "control " << id << " is read-only";
  // Typing changes the text character by character, and each change is announced.
  for (std::size_t length = 0; length <= std::min(text.size(), control->limit); ++length) {
    control->text = text.substr(0, length);
    Notify(id, kEditUpdated);
    Notify(id, kEditChanged);
  }
}

void FakeForm::Press(int id) {
  if (Reach(id, {ControlClass::kButton}) != nullptr) Notify(id, kButtonClicked);
}

void FakeForm::PressEnter() { Press(default_button_); }

void FakeForm::MoveFocusTo(int id) {
  const Control* const reached = Reach(id, {ControlClass::kButton, ControlClass::kComboBox,
                                            ControlClass::kEdit, ControlClass::kListBox});
  if (reached == nullptr) return;
  const auto is_edit = [this](int key) {
    const Control* const control = Find(key);
    return control != nullptr && control->control_class == ControlClass::kEdit;
  };
  const int left = std::exchange(focused_, id);
  if (is_edit(left)) Notify(left, kEditLeft);
  if (is_edit(id)) Notify(id, kEditEntered);
}

const std::vector<std::string>& FakeForm::Items(int id) const { return Existing(id).items; }

int FakeForm::Fills(int id) const { return Existing(id).fills; }

std::set<int> FakeForm::ShownKeys() const {
  std::set<int> keys;
  for (const auto& [key, control] : controls_) {
    if (control.shown) keys.insert(key);
  }
  return keys;
}

std::string FakeForm::ReadText(int id, std::size_t limit) const {
  const Control* const control = Find(id);
  if (control == nullptr) return {};
  if (control->control_class == ControlClass::kComboBox) {
    return SelectedText(id).value_or("").substr(0, limit);
  }
  return control->text.substr(0, limit);
}

void FakeForm::SetText(int id, std::string_view text) {
  Control* const control = Find(id);
  if (control == nullptr) return;
  control->text = text.substr(0, text.find('\0'));
  control->first_line = 0;
  const bool is_edit = control->control_class == ControlClass::kEdit;
  if (is_edit && (control->style & control_style::kMultiLine) == 0) {
    Notify(id, kEditUpdated);
    Notify(id, kEditChanged);
  }
}

void FakeForm::LimitText(int id, std::size_t limit) {
  Control* const control = Find(id);
  if (control != nullptr) control->limit = limit;
}

int FakeForm::ItemCount(int id) const {
  const Control* const control = Find(id);
  return control == nullptr ? 0 : static_cast<int>(control->items.size());
}

void FakeForm::FillItems(int id, std::span<const std::string_view> texts) {
  ClearItems(id);
  AddItems(id, texts);
}

void FakeForm::AddItems(int id, std::span<const std::string_view> texts) {
  Control* const control = Find(id);
  if (control == nullptr) return;
  for (const std::string_view text : texts) control->Insert(std::string(text));
  ++control->fills;
}

void FakeForm::ClearItems(int id) {
  Control* const control = Find(id);
  if (control == nullptr) return;
  control->items.clear();
  control->selection = -1;
}

std::string FakeForm::ItemText(int id, int index) const {
  return index < 0 || index >= ItemCount(id) ? "" : Items(id)[static_cast<std::size_t>(index)];
}

void FakeForm::SelectItem(int id, int index) {
  Control* const control = Find(id);
  if (control != nullptr) control->selection = index < ItemCount(id) ? index : -1;
}

std::optional<int> FakeForm::SelectedItem(int id) const {
  const Control* const control = Find(id);
  if (control == nullptr || control->selection < 0) return std::nullopt;
  return control->selection;
}

std::optional<std::string> FakeForm::SelectedText(int id) const {
  const std::optional<int> selection = SelectedItem(id);
  return selection ? std::optional(ItemText(id, *selection)) : std::nullopt;
}

void FakeForm::RemoveSelectedItem(int id) {
  const Control* const control = Find(id);
  if (control != nullptr) RemoveItem(id, control->selection);
}

void FakeForm::RemoveItem(int id, int index) {
  Control* const control = Find(id);
  if (control == nullptr || index < 0 || index >= ItemCount(id)) return;
  control->items.erase(control->items.begin() + index);
  if (control->selection == index) control->selection = -1;
  if (control->selection > index) --control->selection;
}

void FakeForm::Focus(int id) {
  log_.push_back("focus " + std::to_string(id));
  MoveFocusTo(id);
}

void FakeForm::SelectAllText(int id) { log_.push_back("select all of " + std::to_string(id)); }

void FakeForm::Scroll(int id, ScrollStep step) {
  Control* const control = Find(id);
  if (control == nullptr) return;
  const bool pages = step == ScrollStep::kPageUp || step == ScrollStep::kPageDown;
  const bool down = step == ScrollStep::kLineDown || step == ScrollStep::kPageDown;
  const int lines = pages ? kVisibleLines : 1;
  const int last = std::max(CountLines(control->text) - kVisibleLines, 0);
  control->first_line = std::clamp(control->first_line + (down ? lines : -lines), 0, last);
}

int FakeForm::FirstVisibleLine(int id) const { return Existing(id).first_line; }

void FakeForm::Show(int key) {
  Control* const control = Find(key);
  ASSERT_NE(control, nullptr) << "no control " << key;
  control->shown = true;
}

void FakeForm::HideAll() {
  for (auto& [key, control] : controls_) control.shown = false;
}

void FakeForm::Close() {
  log_.emplace_back("close");
  closed_ = true;
}

FakeForm::Control* FakeForm::Reach(int id, std::initializer_list<ControlClass> kinds) {
  if (closed_) {
    ADD_FAILURE() << "control " << id << " of " << Name() << ", which is closed";
    return nullptr;
  }
  Control* hidden = nullptr;
  for (const int key : {id, SecondControl(id)}) {
    Control* const control = Find(key);
    if (control == nullptr || std::ranges::find(kinds, control->control_class) == kinds.end()) {
      continue;
    }
    if (control->shown) return control;
    hidden = control;
  }
  ADD_FAILURE() << Name() << (hidden == nullptr ? " has no such control: " : " does not show ")
                << id;
  return nullptr;
}

std::string FakeForm::Name() const {
  if (resource_id_ != 0) return "dialog " + std::to_string(resource_id_);
  std::string name = "the main window, screen";
  for (const ScreenRow& screen : Screens()) {
    const std::vector<int> keys = ::velnor::ShownKeys(screen);
    if (std::set<int>(keys.begin(), keys.end()) == ShownKeys()) {
      name += ' ' + std::to_string(screen.id);
    }
  }
  return name;
}

FakeForm::Control* FakeForm::Find(int key) {
  const auto found = controls_.find(key);
  return found == controls_.end() ? nullptr : &found->second;
}

const FakeForm::Control* FakeForm::Find(int key) const {
  const auto found = controls_.find(key);
  return found == controls_.end() ? nullptr : &found->second;
}

const FakeForm::Control& FakeForm::Existing(int id) const {
  static const Control kNone = {.control_class = ControlClass::kStatic, .style = 0};
  const Control* const control = Find(id);
  if (control != nullptr) return *control;
  ADD_FAILURE() << Name() << " has no control " << id;
  return kNone;
}

void FakeForm::Notify(int id, int notification) {
  if (listener_) listener_(id, notification);
}

}  // namespace velnor

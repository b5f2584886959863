// Controls that behave as the platform's do, without a window: sorted lists compare letters without
// regard to case, a refill loses the selection, and notifications come where the platform sends
// them: from the user's own choices, and from every new text of a single-line edit. Lines of
// multi-line edits are never too wide, so they break at CR LF only. It is as strict as the
// platform: what a person could not do to the window fails the test.

#ifndef VELNOR_TESTS_SUPPORT_FAKE_FORM_H_
#define VELNOR_TESTS_SUPPORT_FAKE_FORM_H_

#include <functional>
#include <initializer_list>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "base/control.h"
#include "base/dialog.h"
#include "base/form.h"

namespace velnor {

class FakeForm final : public Form {
 public:
  using Listener = std::function<void(int id, int notification)>;

  FakeForm() = default;

  // All controls of the main window, hidden until its screens show them.
  void AddMainWindowControls();
  // The controls of a dialog's template, which are all shown.
  void AddDialogControls(int resource_id);
  void AddControl(int key, ControlClass control_class, std::uint32_t style);
  // Who hears of notifications.
  void SetListener(Listener listener) { listener_ = std::move(listener); }

  // What a person does. The test fails, and nothing happens, when the control does not exist, is
  // not shown, is of another kind, stands in a dialog that was closed, or cannot be changed; also
  // when the list does not have the item.
  void Choose(int id, const std::string& item);
  void Type(int id, const std::string& text);
  void Press(int id);
  void PressEnter();  // in a dialog: presses its default button
  void MoveFocusTo(int id);

  // What a person sees.
  std::string Text(int id) const { return ReadText(id, std::string::npos); }
  const std::vector<std::string>& Items(int id) const;
  std::set<int> ShownKeys() const;
  // How often the list was filled or added to: every time, a person sees it drawn.
  int Fills(int id) const;
  // Of a multi-line edit, counted from 0. It shows kVisibleLines of them.
  int FirstVisibleLine(int id) const;
  static constexpr int kVisibleLines = 30;
  // The fields in which a typed comma is a point.
  const std::set<int>& NumberFields() const { return number_fields_; }
  // Moves of the focus, selections of whole texts and closings, in order.
  const std::vector<std::string>& Log() const { return log_; }

  std::string ReadText(int id, std::size_t limit) const override;
  void SetText(int id, std::string_view text) override;
  void LimitText(int id, std::size_t limit) override;
  void TakeNumbers(int id) override { number_fields_.insert(id); }
  int ItemCount(int id) const override;
  void FillItems(int id, std::span<const std::string_view> texts) override;
  void AddItems(int id, std::span<const std::string_view> texts) override;
  void ClearItems(int id) override;
  std::string ItemText(int id, int index) const override;
  void SelectItem(int id, int index) override;
  std::optional<int> SelectedItem(int id) const override;
  std::optional<std::string> SelectedText(int id) const override;
  void RemoveSelectedItem(int id) override;
  void RemoveItem(int id, int index) override;
  void Focus(int id) override;
  void SelectAllText(int id) override;
  void SetDefaultButton(int id) override { default_button_ = id; }
  void Scroll(int id, ScrollStep step) override;
  void Show(int key) override;
  void HideAll() override;
  void Close() override;

 private:
  struct Control {
    ControlClass control_class;
    std::uint32_t style;
    std::string text = {};
    std::vector<std::string> items = {};
    int fills = 0;
    int selection = -1;
    std::size_t limit = std::string::npos;  // of what can be typed
    int first_line = 0;
    bool shown = false;

    bool IsSorted() const;
    void Insert(const std::string& item);
  };

  // The control that a person reaches under this id. Null, with a failure of the test, when there
  // is none of that kind.
  Control* Reach(int id, std::initializer_list<ControlClass> kinds);
  // Which window this is: "dialog 10002", or "the main window" with the screens that look so.
  std::string Name() const;
  Control* Find(int key);
  const Control* Find(int key) const;
  // A control that there is not fails the test; the one returned then is empty.
  const Control& Existing(int id) const;
  void Notify(int id, int notification);

  std::map<int, Control> controls_;
  int resource_id_ = 0;  // of a dialog; 0: this is the main window
  bool closed_ = false;
  int focused_ = 0;
  int default_button_ = kOkButton;
  std::set<int> number_fields_;
  std::vector<std::string> log_;
  Listener listener_;
};

}  // namespace velnor

#endif  // VELNOR_TESTS_SUPPORT_FAKE_FORM_H_

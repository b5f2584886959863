// The child controls of one window, the main window or a dialog, addressed by control id. Screens
// and dialogs speak to their controls through this and nothing else. The window system answers for
// real; tests use a stand-in that behaves as the platform's controls do.

#ifndef VELNOR_BASE_FORM_H_
#define VELNOR_BASE_FORM_H_

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velnor {

// What a control says happened to it, in the notification codes of the platform.
inline constexpr int kButtonClicked = 0;     // also what a menu command carries
inline constexpr int kSelectionChanged = 1;  // list boxes and combo boxes, by the user only
inline constexpr int kEditUpdated = 0x0400;  // single-line edits, also when the program sets them
inline constexpr int kEditEntered = 0x0100;  // edits: the keyboard's focus has come
inline constexpr int kEditLeft = 0x0200;     // edits: the keyboard's focus has gone

// As much of a text as there is.
inline constexpr std::size_t kWholeText = static_cast<std::size_t>(-1);

enum class ScrollStep { kLineUp, kLineDown, kPageUp, kPageDown };

// The key of the second of two controls that share `id` (the main window has two "Find" buttons).
// Showing takes keys; everything else means the first control of that id.
constexpr int SecondControl(int id) { return id | 0x10000; }

// A control id that the window does not have is ignored: texts read from it are empty, lists have
// no items. All text is code page 1250.
class Form {
 public:
  virtual ~Form() = default;

  // At most `limit` characters of the control's text.
  virtual std::string ReadText(int id, std::size_t limit) const = 0;
  // Replaces the text, with which an edit's caret and first visible line go back to the start. It
  // ends at a NUL. A single-line edit announces kEditUpdated before this returns.
  virtual void SetText(int id, std::string_view text) = 0;
  // From here on a person can type or paste into an edit until it holds `limit` characters; what
  // SetText puts there is not cut.
  virtual void LimitText(int id, std::size_t limit) = 0;

  // From here on a comma that a person types into the edit is a point, as numbers are written. What
  // is pasted, and what SetText puts there, keeps its commas.
  virtual void TakeNumbers(int id) = 0;

  // List boxes and combo boxes. Sorted ones put an item at its alphabetical place, letters compared
  // without regard to case. None of these announces anything.
  virtual int ItemCount(int id) const = 0;
  // Both fill the list in one step, so that it is drawn once. FillItems replaces what the list
  // holds and ends the selection. AddItems leaves both.
  virtual void FillItems(int id, std::span<const std::string_view> texts) = 0;
  virtual void AddItems(int id, std::span<const std::string_view> texts) = 0;
  void AddItem(int id, std::string_view text) { AddItems(id, {&text, 1}); }
  virtual void ClearItems(int id) = 0;  // takes the selection with it
  // Returns the text of an item, counted from 0, or an empty text if there is no such item.
  virtual std::string ItemText(int id, int index) const = 0;
  // Selects an item, counted from 0. Nothing is announced.
  virtual void SelectItem(int id, int index) = 0;
  // Returns the place of the selected item, counted from 0, or nothing if no item is selected.
  virtual std::optional<int> SelectedItem(int id) const = 0;
  // Returns the text of the selected item, or nothing if no item is selected.
  virtual std::optional<std::string> SelectedText(int id) const = 0;
  // Takes the selected item off a list box. Does nothing without a selection.
  virtual void RemoveSelectedItem(int id) = 0;
  // Takes an item, counted from 0, off a list box. Does nothing if there is no such item.
  virtual void RemoveItem(int id, int index) = 0;

  virtual void Focus(int id) = 0;
  // Selects all of an edit's text, so that what is typed takes its place.
  virtual void SelectAllText(int id) = 0;
  // Makes the button the one that a dialog's Enter key presses.
  virtual void SetDefaultButton(int id) = 0;

  // Scrolls a multi-line edit. Scrolling stops at the first and the last line.
  virtual void Scroll(int id, ScrollStep step) = 0;

  virtual void Show(int key) = 0;
  // Hides every control of the window, in the order in which they were made.
  virtual void HideAll() = 0;

  // Closes the window; a dialog's object lives until its current handler has returned.
  virtual void Close() = 0;
};

// Texts as a form takes them, good as long as the texts are.
inline std::vector<std::string_view> Views(std::span<const std::string> texts) {
  return {texts.begin(), texts.end()};
}

}  // namespace velnor

#endif  // VELNOR_BASE_FORM_H_

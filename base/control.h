// The child controls of the main window, as the tables of the screens describe them. They are made
// once, hidden, and each screen shows its own.

#ifndef VELNOR_BASE_CONTROL_H_
#define VELNOR_BASE_CONTROL_H_

#include <cstddef>
#include <cstdint>

#include "base/canvas.h"
#include "base/form.h"

namespace velnor {

enum class ControlClass { kButton, kComboBox, kEdit, kListBox, kStatic };

// The style bits that controls have beyond being a child, by the platform's values.
namespace control_style {
inline constexpr std::uint32_t kPlain = 0;
inline constexpr std::uint32_t kGroupBox = 0x0007;
inline constexpr std::uint32_t kDropDownList = 0x0003;
inline constexpr std::uint32_t kSortedCombo = 0x0100;
inline constexpr std::uint32_t kListNotify = 0x0001;
inline constexpr std::uint32_t kSortedList = 0x0002;
inline constexpr std::uint32_t kMultiLine = 0x0004;
inline constexpr std::uint32_t kScrollVertically = 0x0040;
inline constexpr std::uint32_t kKeepSelection = 0x0100;
inline constexpr std::uint32_t kReadOnly = 0x0800;
inline constexpr std::uint32_t kBorder = 0x00800000;
inline constexpr std::uint32_t kVerticalScroll = 0x00200000;
inline constexpr std::uint32_t kHorizontalScroll = 0x00100000;
}  // namespace control_style

struct Rectangle {
  int x, y, width, height;  // client pixels of the main window
};

// A control as it is made: a row of a screen's table. The functions below make the usual ones.
struct ControlRow {
  int key;  // its id, or SecondControl(id) where a control before it has the id already
  ControlClass control_class;
  const char* text;
  std::uint32_t style;
  Rectangle place;
  std::size_t limit = 0;   // characters that can be typed into it; 0: nothing can, or any number
  const char* label = "";  // of a field: the text painted beside it, without what ends it
  bool holds_number = false;
  Font font = kBodyFont;
  bool is_shown = true;              // with its screen; some are made for no screen to show
  bool is_pressed_by_enter = false;  // a button: by Enter in a field of one line on its screen

  int id() const { return key & 0xFFFF; }
  // Every control has a sunken edge, only group boxes have none.
  bool has_sunken_edge() const { return style != control_style::kGroupBox; }
};

constexpr ControlRow Button(int key, const char* text, Rectangle place) {
  return {key, ControlClass::kButton, text, control_style::kPlain, place};
}

constexpr ControlRow MainButton(int key, const char* text, Rectangle place) {
  ControlRow row = Button(key, text, place);
  row.is_pressed_by_enter = true;
  return row;
}

// A box around other controls.
constexpr ControlRow Frame(int key, Rectangle place) {
  return {key, ControlClass::kButton, "", control_style::kGroupBox, place};
}

// A field of one line for a number of at most `limit` characters.
constexpr ControlRow NumberField(int key, Rectangle place, std::size_t limit, const char* label) {
  return {key, ControlClass::kEdit, "", control_style::kPlain, place, limit, label, true};
}

// Both sorted. The height of a drop-down list is that of the open one.
constexpr ControlRow DropDownList(int key, Rectangle place, const char* label) {
  constexpr std::uint32_t kStyle = control_style::kDropDownList | control_style::kSortedCombo;
  return {key, ControlClass::kComboBox, "", kStyle, place, 0, label};
}
constexpr ControlRow ListBox(int key, Rectangle place, const char* label) {
  constexpr std::uint32_t kStyle =
      control_style::kVerticalScroll | control_style::kListNotify | control_style::kSortedList;
  return {key, ControlClass::kListBox, "", kStyle, place, 0, label};
}

// Six digits with a point and a zero before them, as "0.571429", fit into so many pixels in this
// font. Anything smaller could not be read: of a figure that is wider than its field, the first
// digits are seen.
inline constexpr int kSmallFigureWidth = 50;
inline constexpr Font kSmallFigureFont{12, 0, false};

// A text that the program sets. In a narrow one the letters are small.
constexpr ControlRow Figure(int key, Rectangle place) {
  ControlRow row = {key, ControlClass::kStatic, "", control_style::kPlain, place};
  if (place.width <= kSmallFigureWidth) row.font = kSmallFigureFont;
  return row;
}

// One with more digits than that: burned energy and fat have nine, the day's total fifteen.
constexpr ControlRow LongFigure(int key, Rectangle place) {
  ControlRow row = Figure(key, place);
  row.font = kSmallFigureFont;
  return row;
}

}  // namespace velnor

#endif  // VELNOR_BASE_CONTROL_H_

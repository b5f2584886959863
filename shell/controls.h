// The child controls of the main window. All screens share them: they are created once, hidden, and
// each screen shows its own.

#ifndef VELNOR_SHELL_CONTROLS_H_
#define VELNOR_SHELL_CONTROLS_H_

#include <cstddef>
#include <cstdint>
#include <span>

#include "base/canvas.h"

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

struct ControlRow {
  int id;
  ControlClass control_class;
  const char* text;
  std::uint32_t style;
  Rectangle place;
  std::size_t limit = 0;   // characters that can be typed into it; 0: nothing can, or any number
  const char* label = "";  // of a field: the text painted beside it, without what ends it
  bool holds_number = false;

  // Every control has a sunken edge, only group boxes have none.
  bool has_sunken_edge() const { return style != control_style::kGroupBox; }
};

// The font of a control: the body font, or a smaller one where the figures of a field would not fit
// otherwise. The first digits of what does not fit either are seen.
Font ControlFont(const ControlRow& row);

// The 86 controls in the order in which they are created and hidden. Two of them have the id 149.
std::span<const ControlRow> MainWindowControls();

}  // namespace velnor

#endif  // VELNOR_SHELL_CONTROLS_H_

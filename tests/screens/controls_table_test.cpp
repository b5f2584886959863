// The table from which the controls of the main window are made.

#include <cstdint>
#include <gtest/gtest.h>
#include <iterator>
#include <set>
#include <span>
#include <string>

#include "base/canvas.h"
#include "shell/controls.h"

namespace velnor {
namespace {

// As the platform's headers have them.
constexpr std::uint32_t BS_GROUPBOX = 0x0007;
constexpr std::uint32_t CBS_DROPDOWNLIST = 0x0003;
constexpr std::uint32_t CBS_SORT = 0x0100;
constexpr std::uint32_t ES_MULTILINE = 0x0004;
constexpr std::uint32_t ES_AUTOVSCROLL = 0x0040;
constexpr std::uint32_t ES_NOHIDESEL = 0x0100;
constexpr std::uint32_t ES_READONLY = 0x0800;
constexpr std::uint32_t LBS_NOTIFY = 0x0001;
constexpr std::uint32_t LBS_SORT = 0x0002;
constexpr std::uint32_t WS_BORDER = 0x00800000;
constexpr std::uint32_t WS_HSCROLL = 0x00100000;
constexpr std::uint32_t WS_VSCROLL = 0x00200000;

struct ExpectedControl {
  int id;
  const char* window_class;
  const char* text;
  std::uint32_t style;
  int x, y, width, height;
};

constexpr ExpectedControl kExpected[] = {
#include "tests/support/main_window_controls.inc"
};

const char* NameOf(ControlClass control_class) {
  switch (control_class) {
    case ControlClass::kButton:
      return "button";
    case ControlClass::kComboBox:
      return "combobox";
    case ControlClass::kEdit:
      return "edit";
    case ControlClass::kListBox:
      return "listbox";
    case ControlClass::kStatic:
      return "static";
  }
  return "none";
}

TEST(MainWindowControlsTest, AreTheEightySixInTheirOrder) {
  const std::span<const ControlRow> controls = MainWindowControls();
  ASSERT_EQ(controls.size(), 86U);
  ASSERT_EQ(std::size(kExpected), 86U);
  for (std::size_t i = 0; i < controls.size(); ++i) {
    const ControlRow& control = controls[i];
    const ExpectedControl& expected = kExpected[i];
    SCOPED_TRACE("control " + std::to_string(expected.id) + ", row " + std::to_string(i));
    EXPECT_EQ(control.id, expected.id);
    EXPECT_STREQ(NameOf(control.control_class), expected.window_class);
    EXPECT_STREQ(control.text, expected.text);
    EXPECT_EQ(control.style, expected.style);
    EXPECT_EQ(control.place.x, expected.x);
    EXPECT_EQ(control.place.y, expected.y);
    EXPECT_EQ(control.place.width, expected.width);
    EXPECT_EQ(control.place.height, expected.height);
  }
}

TEST(MainWindowControlsTest, OnlyTheGroupBoxesHaveNoEdge) {
  for (const ControlRow& control : MainWindowControls()) {
    EXPECT_EQ(control.has_sunken_edge(), control.id != 133 && control.id != 135) << control.id;
  }
}

TEST(MainWindowControlsTest, WhatCanBeTypedIsWhatIsRead) {
  std::map<int, std::size_t> limits = {{101, 29}, {104, 29}, {105, 29}, {111, 4},
                                       {128, 30}, {160, 8},  {181, 10}};
  for (int id = 166; id <= 173; ++id) limits[id] = 5;
  for (const ControlRow& control : MainWindowControls()) {
    const bool is_line = control.control_class == ControlClass::kEdit &&
                         (control.style & control_style::kMultiLine) == 0;
    EXPECT_EQ(limits.contains(control.id), is_line) << control.id;
    EXPECT_EQ(control.limit, is_line ? limits[control.id] : 0U) << control.id;
  }
}

TEST(MainWindowControlsTest, OnlyFiguresWithMoreDigitsThanRoomAreSmall) {
  const std::set<int> small = {116, 117, 118, 129, 130, 131, 132, 142, 143,
                               144, 163, 164, 180, 183, 184, 185, 186};
  for (const ControlRow& control : MainWindowControls()) {
    const Font expected = small.contains(control.id) ? Font{12, 0, false} : kBodyFont;
    EXPECT_EQ(ControlFont(control), expected) << control.id;
  }
}

}  // namespace
}  // namespace velnor

// The keyboard on the screens: the order of Tab, what Enter presses, the keys of commands, the
// fields that hold numbers, and the names that screen readers are told.

#include "shell/keyboard.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "shell/screens.h"
#include "shell/tab_order.h"
#include "tests/support/expected_screens.h"
#include "tests/support/program_fixture.h"

namespace velnor {
namespace {

using KeyboardTest = ProgramTest;
using Keys = std::vector<int>;
using Log = std::vector<std::string>;

constexpr int kOverviewFind = SecondControl(149);
const std::string kProfileLines = "35\n170\nwomen\nlow\nnone\n";
bool IsField(const ControlRow& row) {
  return row.control_class == ControlClass::kEdit || row.control_class == ControlClass::kComboBox ||
         row.control_class == ControlClass::kListBox;
}

bool HoldsOneLine(const ControlRow& row) {
  return row.control_class == ControlClass::kEdit && (row.style & control_style::kMultiLine) == 0;
}

const ControlRow& RowOf(int key) {
  return *std::ranges::find(MainWindowControls(), key, &ControlRow::key);
}

TEST_F(KeyboardTest, TabGoesThroughEveryScreenAsItReads) {
  const Keys report = {152, 151, 158, 156, 154, 119, 157, 155, 153};
  const std::map<int, Keys> orders = {
      {221, {101, 102, 103}},
      {224, {104, 105, 106, 107}},
      {236, {108, 110, 109, 111, kOverviewFind}},
      {210, report},
      {214, report},
      {232, {174, 175, 166, 167, 168, 169, 170, 171, 172, 173}},
      {231, {124, 125, 126, 145, 147, 128, 127, 149, 134, 136, 146}},
      {212, report},
      {213, report},
      {238, {159, 160, 161, 162, 177, 179}},
      {215, report},
      {233, {165}},
      {225, {101, 176}},
      {239, {181, 182}},
      {252, {}},
  };
  Start();
  for (const auto& [command, order] : orders) {
    Open(command);
    const std::set<int> shown = form_.ShownKeys();
    EXPECT_EQ(TabOrder(Keys(shown.begin(), shown.end())), order) << command;
  }
}

TEST(TabOrderTest, HoldsEveryControlOnceButTextsAndFrames) {
  std::set<int> expected;
  Keys all;
  for (const ControlRow& row : MainWindowControls()) {
    all.push_back(row.key);
    const bool is_frame = row.key == 133 || row.key == 135;
    if (row.control_class != ControlClass::kStatic && !is_frame) expected.insert(row.key);
  }
  const Keys order = TabOrder(all);
  EXPECT_EQ(std::set<int>(order.begin(), order.end()), expected);
  EXPECT_EQ(order.size(), expected.size());
}

TEST(TabOrderTest, WhatNoControlHasIsLeftOut) {
  EXPECT_EQ(TabOrder({}), Keys{});
  EXPECT_EQ(TabOrder(Keys{0, 7, 112, 133, 102, SecondControl(102)}), Keys{102});
}

TEST(TabOrderTest, TheOrderIsARing) {
  const Keys order = {5, 3, 9};
  EXPECT_EQ(NextInTabOrder(order, 5, false), 3);
  EXPECT_EQ(NextInTabOrder(order, 9, false), 5);
  EXPECT_EQ(NextInTabOrder(order, 9, true), 3);
  EXPECT_EQ(NextInTabOrder(order, 5, true), 9);
  EXPECT_EQ(NextInTabOrder(order, 0, false), 5);
  EXPECT_EQ(NextInTabOrder(order, 0, true), 9);
  EXPECT_EQ(NextInTabOrder(Keys{5}, 5, true), 5);
  EXPECT_EQ(NextInTabOrder({}, 5, false), 0);
}

TEST_F(KeyboardTest, EnterInAFieldPressesTheMainButton) {
  const std::map<int, int> main_buttons = {{221, 102}, {224, 106}, {232, 174}, {231, 127},
                                           {238, 161}, {225, 176}, {239, 182}};
  Program& program = Start();
  for (const ExpectedScreen& screen : ExpectedScreens()) {
    const int command = screen.command;
    if (command == 0) continue;
    Open(command);
    const auto main = main_buttons.find(command);
    for (const int key : form_.ShownKeys()) {
      const ControlRow& row = RowOf(key);
      int expected = 0;
      if (HoldsOneLine(row) && main != main_buttons.end()) expected = main->second;
      if (row.control_class == ControlClass::kButton) expected = row.id();
      EXPECT_EQ(ButtonOfEnter(program.session().screen, key), expected) << command << ' ' << key;
    }
    if (main != main_buttons.end()) {
      EXPECT_TRUE(form_.ShownKeys().contains(main->second)) << command;
    }
    EXPECT_EQ(ButtonOfEnter(program.session().screen, 0), 0) << command;
  }
}

TEST_F(KeyboardTest, KeysCarryOutTheirCommands) {
  Program& program = Start();
  EXPECT_TRUE(RunKey(program.parts(), {.key = 'F', .control = true}));
  EXPECT_EQ(window_.log, (Log{"open 10009"}));
}

TEST_F(KeyboardTest, OtherKeysAndOtherModifiersDoNothing) {
  Program& program = Start();
  const KeyPress others[] = {{.key = 'F'},
                             {.key = 'F', .control = true, .alt = true},  // the right Alt key
                             {.key = 'F', .control = true, .shift = true},
                             {.key = 'G', .control = true},
                             {.key = kF1Key, .control = true},
                             {.key = kF1Key, .alt = true},
                             {.key = kEnterKey},
                             {}};
  for (const KeyPress& press : others) EXPECT_FALSE(RunKey(program.parts(), press)) << press.key;
  EXPECT_TRUE(window_.log.empty());
  EXPECT_TRUE(boxes_.shown.empty());
}

TEST_F(KeyboardTest, F1OpensTheWholeGuideOrTheShortOne) {
  Program& program = Start();
  window_.guide = "README.md";
  EXPECT_TRUE(RunKey(program.parts(), {.key = kF1Key}));
  EXPECT_EQ(window_.log, (Log{"guide README.md"}));
  window_.log.clear();
  window_.guide = "README.txt";
  EXPECT_TRUE(RunKey(program.parts(), {.key = kF1Key}));
  EXPECT_EQ(window_.log, (Log{"guide README.md", "guide README.txt"}));
  EXPECT_TRUE(boxes_.shown.empty());
}

TEST_F(KeyboardTest, F1SaysWhereTheGuideIsWhenItCannotBeOpened) {
  RunKey(Start().parts(), {.key = kF1Key});
  const Log texts = boxes_.TakeTexts();
  ASSERT_EQ(texts.size(), 1U);
  EXPECT_NE(texts[0].find("README.md"), std::string::npos);
}

TEST(NumberFieldsTest, AreTheFieldsOfOneLine) {
  for (const ControlRow& row : MainWindowControls()) {
    EXPECT_EQ(row.holds_number, HoldsOneLine(row)) << row.id();
  }
}

TEST_F(KeyboardTest, DialogsTakeNumbersWhereTheyReadSome) {
  struct {
    int screen, command;
    std::set<int> fields;
  } const dialogs[] = {
      {231, 240, {735, 736, 737, 738, 740}},  // a new product
      {231, 204, {704, 705}},                 // the profile
      {221, 103, {710, 711}},                 // records of the body
      {224, 107, {713, 714, 715}},
  };
  LogIn("Ann", kProfileLines);
  for (const auto& [screen, command, ids] : dialogs) {
    Open(screen);
    FakeForm form;
    OpenDialog(command, form);
    EXPECT_EQ(form.NumberFields(), ids) << command;
  }
}

// The parts of a name stand among the painted texts of every screen that shows the field; the main
// title of a report and the weight's text on one of its two screens differ.
TEST_F(KeyboardTest, EveryFieldIsNamedForWhatIsPaintedBesideIt) {
  LogIn("Ann", kProfileLines);
  for (const ExpectedScreen& screen : ExpectedScreens()) {
    const int command = screen.command;
    if (command == 0) continue;
    const RecordingCanvas canvas = Open(command);
    for (const int key : form_.ShownKeys()) {
      const ControlRow& row = RowOf(key);
      const std::string_view label = row.label;
      EXPECT_EQ(!label.empty(), IsField(row)) << key;
      if (!IsField(row) || key == 119 || (key == 101 && command == 225)) continue;
      for (std::size_t from = 0; from < label.size();) {
        const std::size_t comma = std::min(label.find(", ", from), label.size());
        const std::string_view part = label.substr(from, comma - from);
        EXPECT_TRUE(std::ranges::any_of(
            canvas.texts, [part](const DrawnText& text) { return text.text.starts_with(part); }))
            << command << ' ' << key << ' ' << part;
        from = comma + 2;
      }
    }
  }
}

}  // namespace
}  // namespace velnor

// The 86 controls of the running window, as the platform made them, and which of them every screen
// shows.

#include <array>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>

#include "tests/desktop/driver.h"
#include "tests/support/expected_screens.h"

namespace velnor::desktop {
namespace {

struct ExpectedControl {
  int id;
  const char* window_class;
  const char* text;
  LONG style;  // beyond that of a child window
  int x, y, width, height;
};

constexpr ExpectedControl kExpected[] = {
#include "tests/support/main_window_controls.inc"
};

class Controls : public testing::Test {
 protected:
  WorkFolder folder_;
  App app_{folder_};
};

std::string ClassOf(HWND control) {
  std::array<char, 32> name = {};
  GetClassNameA(control, name.data(), static_cast<int>(name.size()));
  CharLowerA(name.data());
  return name.data();
}

// The window manager may be moving the window still: a place counts that was asked for while the
// window stood.
RECT PlaceIn(HWND window, HWND control) {
  RECT place = {};
  WaitUntil([&] {
    RECT before = {};
    GetWindowRect(window, &before);
    if (ClassOf(control) == "combobox") {
      SendMessageA(control, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&place));
    } else {
      GetWindowRect(control, &place);
    }
    MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&place), 2);
    RECT after = {};
    GetWindowRect(window, &after);
    return EqualRect(&before, &after) != FALSE;
  });
  return place;
}

void Overfill(HWND list) {
  for (int i = 0; i < 100; ++i) {
    SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>("item"));
  }
}

TEST_F(Controls, AreTheEightySixOfTheTable) {
  const HWND window = app_.main().handle();
  const std::vector<HWND> controls = app_.main().Controls();
  ASSERT_EQ(controls.size(), std::size(kExpected));
  for (std::size_t i = 0; i < controls.size(); ++i) {
    const ExpectedControl& expected = kExpected[i];
    const HWND control = controls[i];
    SCOPED_TRACE("control " + std::to_string(expected.id) + ", row " + std::to_string(i));
    EXPECT_EQ(GetDlgCtrlID(control), expected.id);
    EXPECT_EQ(ClassOf(control), expected.window_class);
    EXPECT_EQ(Window(control).Caption(), expected.text);
    const bool is_list = ClassOf(control) == "listbox";
    if (is_list) Overfill(control);  // an empty list box takes its scroll bar off
    EXPECT_EQ(GetWindowLongA(control, GWL_STYLE), WS_CHILD | expected.style);
    // A combo box that drops down draws its edge itself and takes the bit off.
    const bool no_edge = expected.id == 133 || expected.id == 135 || ClassOf(control) == "combobox";
    EXPECT_EQ(GetWindowLongA(control, GWL_EXSTYLE), no_edge ? 0 : WS_EX_CLIENTEDGE);

    const RECT place = PlaceIn(window, control);
    EXPECT_EQ(place.left, expected.x);
    EXPECT_EQ(place.top, expected.y);
    EXPECT_EQ(place.right - place.left, expected.width);
    const LONG height = place.bottom - place.top;
    if (is_list) {
      // A list box gives up what does not hold a whole line.
      const LONG line = static_cast<LONG>(SendMessageA(control, LB_GETITEMHEIGHT, 0, 0));
      EXPECT_LE(height, expected.height);
      EXPECT_GT(height, expected.height - line);
    } else if (ClassOf(control) != "combobox") {  // what drops down is as high as its entries
      EXPECT_EQ(height, expected.height);
    }
  }
}

// The keys of the controls that the screen after `command` shows.
std::multiset<int> ShownAfter(const App& app, int command) {
  if (command != 0) app.main().Command(command);
  app.Settle();
  std::multiset<int> shown;
  const std::vector<HWND> controls = app.main().Controls();
  for (std::size_t i = 0; i < controls.size(); ++i) {
    if (IsWindowVisible(controls[i]) == 0) continue;
    const bool overview_find = kExpected[i].id == 149 && kExpected[i].x == 410;
    shown.insert(overview_find ? 149 | 0x10000 : kExpected[i].id);
  }
  return shown;
}

constexpr int kFirstChart = 270;
constexpr int kLastChart = 274;

// The charts, which show none, need a user: they are looked at in charts_test.cpp.
TEST_F(Controls, EveryScreenShowsItsOwn) {
  for (const ExpectedScreen& screen : ExpectedScreens()) {
    if (screen.command >= kFirstChart && screen.command <= kLastChart) continue;
    const std::multiset<int> expected(screen.controls.begin(), screen.controls.end());
    EXPECT_EQ(ShownAfter(app_, screen.command), expected) << "after command " << screen.command;
  }
  EXPECT_EQ(ShownAfter(app_, 231).size(), 27U);
  EXPECT_EQ(ShownAfter(app_, 221), (std::multiset<int>{101, 102, 103}));
}

// What the display shows of the inside of a control, from its left edge on: a row of signs for each
// row of pixels, "#" for what is darker than half.
std::string PixelsOf(const App& app, int id, int width) {
  constexpr int kEdge = 2;
  app.Settle();
  Sleep(200);  // the display draws a moment after the program has finished
  const RECT place = PlaceIn(app.main().handle(), app.main().Control(id));
  std::string rows;
  for (LONG y = place.top + kEdge; y < place.bottom - kEdge; ++y) {
    for (LONG x = place.left + kEdge; x < place.left + kEdge + width; ++x) {
      rows += GetGValue(PixelAt(app.main(), x, y)) < 128 ? '#' : '.';
    }
    rows += '\n';
  }
  return rows;
}

int RowsWithInk(const std::string& pixels) {
  int rows = 0;
  for (std::size_t at = 0; at < pixels.size(); at = pixels.find('\n', at) + 1) {
    rows += pixels.find('#', at) < pixels.find('\n', at) ? 1 : 0;
  }
  return rows;
}

// Neither its middle nor its end, and not on two lines.
TEST_F(Controls, AFigureTooWideForItsFieldShowsItsFirstDigits) {
  struct Field {
    int command;
    int id;
    const char* figure;
    const char* seen;
    int width;  // of what is seen
  };
  const Field fields[] = {
      {231, 142, "1.06061", "1.06", 20},
      {231, 143, "0.571429", "0.571", 26},
      {236, 117, "0.571429", "0.571", 26},
      {238, 163, "1234567.8901234", "1234567.8", 50},
      {238, 180, "1234567.8901234", "1234567.8", 50},
  };
  for (const Field& field : fields) {
    app_.main().Command(field.command);
    app_.Settle();  // a painting fills the fields
    app_.main().SetText(field.id, field.seen);
    const std::string seen = PixelsOf(app_, field.id, field.width);
    app_.main().SetText(field.id, field.figure);
    EXPECT_EQ(PixelsOf(app_, field.id, field.width), seen) << field.id;
    EXPECT_GE(RowsWithInk(seen), 7) << "digits that can be read\n" << seen;
    EXPECT_LE(RowsWithInk(seen), 12) << "one line\n" << seen;
  }
}

TEST_F(Controls, TheWheelScrollsAReportOneLineAndNothingElsewhere) {
  std::string report;
  for (int line = 0; line < 100; ++line) report += "line " + std::to_string(line) + "\r\n";
  app_.main().Command(210);
  app_.Settle();
  app_.main().SetText(119, report);
  const auto first_line = [this] {
    return SendMessageA(app_.main().Control(119), EM_GETFIRSTVISIBLELINE, 0, 0);
  };
  const auto turn = [this](int distance) {
    SendMessageA(app_.main().handle(), WM_MOUSEWHEEL,
                 static_cast<WPARAM>(static_cast<UINT>(MAKELONG(0, distance))), 0);
  };
  EXPECT_EQ(first_line(), 0);
  turn(-120);
  EXPECT_EQ(first_line(), 1);
  turn(-360);
  EXPECT_EQ(first_line(), 2);
  turn(120);
  EXPECT_EQ(first_line(), 1);
  app_.main().Command(233);
  app_.Settle();
  turn(-120);
  EXPECT_EQ(first_line(), 1);
}

}  // namespace
}  // namespace velnor::desktop

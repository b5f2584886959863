// The 86 controls of the running window, as the platform made them, and which of them every screen
// shows.

#include <array>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <utility>

#include "tests/desktop/driver.h"

namespace velnor::desktop {
namespace {

struct ExpectedControl {
  int id;
  const char* window_class;
  const char* text;
  LONG style;  // beyond that of a child window
  int x, y, width, height;
};

// clang-format off
constexpr ExpectedControl kExpected[] = {
    {101, "edit", "", 0, 170, 90, 60, 23},
    {102, "button", "Count BMI", 0, 100, 180, 100, 35},
    {103, "button", "Save raport", 0, 100, 220, 100, 35},
    {104, "edit", "", 0, 200, 90, 50, 23},
    {105, "edit", "", 0, 200, 120, 50, 23},
    {106, "button", "Count WHR", 0, 100, 220, 100, 35},
    {107, "button", "Save raport", 0, 100, 260, 100, 35},
    {108, "combobox", "", CBS_DROPDOWNLIST | CBS_SORT, 260, 85, 280, 450},
    {109, "listbox", "", WS_VSCROLL | LBS_NOTIFY | LBS_SORT, 260, 175, 280, 140},
    {110, "combobox", "", CBS_DROPDOWNLIST | CBS_SORT, 260, 135, 280, 450},
    {111, "edit", "", 0, 85, 285, 60, 23},
    {112, "static", "", 0, 290, 350, 60, 20},
    {113, "static", "", 0, 290, 395, 60, 20},
    {114, "static", "", 0, 290, 420, 60, 20},
    {115, "static", "", 0, 290, 445, 60, 20},
    {116, "static", "", 0, 270, 490, 33, 20},
    {117, "static", "", 0, 313, 490, 33, 20},
    {118, "static", "", 0, 356, 490, 33, 20},
    {119, "edit", "", WS_BORDER | ES_MULTILINE | ES_AUTOVSCROLL | ES_NOHIDESEL, 5, 85, 780, 430},
    {120, "static", "", 0, 170, 355, 100, 23},
    {121, "static", "", 0, 170, 390, 100, 23},
    {122, "static", "", 0, 170, 425, 100, 23},
    {123, "static", "", 0, 170, 460, 100, 23},
    {124, "combobox", "", CBS_DROPDOWNLIST | CBS_SORT, 25, 100, 280, 450},
    {125, "combobox", "", CBS_DROPDOWNLIST | CBS_SORT, 25, 170, 280, 450},
    {126, "listbox", "", WS_VSCROLL | LBS_NOTIFY | LBS_SORT, 330, 100, 330, 140},
    {127, "button", "Add", 0, 570, 264, 65, 35},
    {128, "edit", "", 0, 25, 270, 50, 23},
    {129, "static", "", 0, 125, 270, 50, 23},
    {130, "static", "", 0, 225, 270, 50, 23},
    {131, "static", "", 0, 325, 270, 50, 23},
    {132, "static", "", 0, 425, 270, 50, 23},
    {133, "button", "", BS_GROUPBOX, 10, 58, 665, 250},
    {134, "listbox", "", WS_VSCROLL | LBS_NOTIFY | LBS_SORT, 25, 345, 330, 155},
    {135, "button", "", BS_GROUPBOX, 380, 320, 350, 200},
    {136, "button", "Remove", 0, 25, 500, 100, 35},
    {137, "static", "", 0, 500, 340, 75, 23},
    {138, "static", "", 0, 500, 370, 75, 23},
    {139, "static", "", 0, 500, 400, 75, 23},
    {140, "static", "", 0, 500, 430, 75, 23},
    {141, "static", "", 0, 500, 460, 75, 23},
    {142, "static", "", 0, 500, 490, 33, 23},
    {143, "static", "", 0, 550, 490, 33, 23},
    {144, "static", "", 0, 600, 490, 33, 23},
    {145, "button", "Save raport", 0, 680, 80, 110, 35},
    {146, "button", "Clear list", 0, 245, 500, 110, 35},
    {147, "button", "Save food", 0, 680, 130, 110, 35},
    {148, "edit", "", WS_VSCROLL | WS_HSCROLL | ES_MULTILINE | ES_READONLY, 10, 85, 775, 450},
    {149, "button", "Find", 0, 680, 264, 110, 35},
    {149, "button", "Find", 0, 410, 320, 110, 35},
    {151, "button", "Clear raport", 0, 580, 23, 115, 29},
    {152, "button", "Save changes", 0, 450, 23, 110, 29},
    {153, "button", "V", 0, 750, 520, 30, 23},
    {154, "button", "^", 0, 750, 57, 30, 23},
    {155, "button", "VV", 0, 710, 520, 30, 23},
    {156, "button", "^^", 0, 710, 57, 30, 23},
    {157, "button", "VVV", 0, 650, 520, 45, 23},
    {158, "button", "^^^", 0, 650, 57, 45, 23},
    {159, "listbox", "", WS_VSCROLL | LBS_NOTIFY | LBS_SORT, 25, 100, 330, 350},
    {160, "edit", "", 0, 380, 100, 50, 23},
    {161, "button", "Count", 0, 460, 95, 100, 35},
    {162, "button", "Save raport", 0, 380, 180, 100, 35},
    {163, "static", "", 0, 235, 470, 73, 23},
    {164, "static", "", 0, 235, 510, 73, 23},
    {165, "button", "Clear", 0, 705, 23, 80, 25},
    {166, "edit", "", 0, 500, 355, 100, 23},
    {167, "edit", "", 0, 630, 355, 100, 23},
    {168, "edit", "", 0, 500, 390, 100, 23},
    {169, "edit", "", 0, 630, 390, 100, 23},
    {170, "edit", "", 0, 500, 425, 100, 23},
    {171, "edit", "", 0, 630, 425, 100, 23},
    {172, "edit", "", 0, 500, 460, 100, 23},
    {173, "edit", "", 0, 630, 460, 100, 23},
    {174, "button", "Activate", 0, 540, 255, 140, 30},
    {175, "button", "Clear", 0, 540, 290, 140, 30},
    {176, "button", "Count BMR", 0, 100, 180, 100, 35},
    {177, "button", "ADD", 0, 320, 465, 150, 23},
    {178, "button", "REMOVE", 0, 320, 490, 150, 23},
    {179, "button", "CLEAR", 0, 320, 515, 150, 23},
    {180, "static", "", 0, 600, 490, 73, 23},
    {181, "edit", "", 0, 200, 150, 50, 23},
    {182, "button", "COUNT ENERGY BALANCE / REFRESH", 0, 299, 150, 310, 25},
    {183, "static", "", 0, 640, 360, 50, 23},
    {184, "static", "", 0, 640, 420, 50, 23},
    {185, "static", "", 0, 640, 340, 50, 23},
    {186, "static", "", 0, 640, 400, 50, 23},
};
// clang-format on

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

RECT PlaceIn(HWND window, HWND control) {
  RECT place = {};
  if (ClassOf(control) == "combobox") {
    SendMessageA(control, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&place));
  } else {
    GetWindowRect(control, &place);
  }
  MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&place), 2);
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

// The places in the table above of the controls that the screen after `command` shows.
std::multiset<int> ShownAfter(const App& app, int command) {
  if (command != 0) app.main().Command(command);
  app.Settle();
  std::multiset<int> shown;
  const std::vector<HWND> controls = app.main().Controls();
  for (std::size_t i = 0; i < controls.size(); ++i) {
    if (IsWindowVisible(controls[i]) == 0) continue;
    const bool overview_find = kExpected[i].id == 149 && kExpected[i].x == 410;
    shown.insert(overview_find ? -149 : kExpected[i].id);
  }
  return shown;
}

TEST_F(Controls, EveryScreenShowsItsOwn) {
  const std::multiset<int> reports = {119, 151, 152, 153, 154, 155, 156, 157, 158};
  const std::vector<std::pair<int, std::multiset<int>>> screens = {
      {0, {}},
      {221, {101, 102, 103}},
      {224, {104, 105, 106, 107}},
      {236, {108, 109, 110, 111, 112, 113, 114, 115, 116, 117, 118, -149, 185, 186}},
      {210, reports},
      {214, reports},
      {232, {120, 121, 122, 123, 166, 167, 168, 169, 170, 171, 172, 173, 174, 175}},
      {231, {124, 125, 126, 127, 128, 129, 130, 131, 132, 133, 134, 135, 136, 137,
             138, 139, 140, 141, 142, 143, 144, 145, 146, 147, 149, 183, 184}},
      {212, reports},
      {213, {}},
      {238, {159, 160, 161, 162, 163, 164, 177, 179, 180}},
      {215, {}},
      {233, {165}},
      {270, {}},
      {271, {}},
      {272, {}},
      {273, {}},
      {274, {}},
      {225, {101, 176}},
      {239, {181, 182}},
      {252, {}},
  };
  for (const auto& [command, controls] : screens) {
    EXPECT_EQ(ShownAfter(app_, command), controls) << "after command " << command;
  }
  EXPECT_EQ(ShownAfter(app_, 231).size(), 27U);
  EXPECT_EQ(ShownAfter(app_, 221), (std::multiset<int>{101, 102, 103}));
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

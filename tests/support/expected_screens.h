// The screens and the commands of the menu as they are to be, in one table each, for the tests over
// the stand-ins and those of the running window.

#ifndef VELNOR_TESTS_SUPPORT_EXPECTED_SCREENS_H_
#define VELNOR_TESTS_SUPPORT_EXPECTED_SCREENS_H_

#include <set>
#include <vector>

namespace velnor {

// What happens to a menu item at start, at a login, at a logout and when the user who is logged in
// is removed: E is enabled, g is greyed, a point is left alone.
using MenuItemStates = const char*;

struct ExpectedScreen {
  int screen;
  int command;  // 0: none
  const char* background;
  MenuItemStates states;
  std::set<int> controls;  // keys
};

// By screen number.
inline const std::vector<ExpectedScreen>& ExpectedScreens() {
  constexpr int kOverviewFind = 149 | 0x10000;  // the second control of that id
  static const std::set<int> kReport = {119, 151, 152, 153, 154, 155, 156, 157, 158};
  static const std::vector<ExpectedScreen> kScreens = {
      {0, 0, "TLO", "....", {}},
      {1, 221, "BMI2", "gEgg", {101, 102, 103}},
      {2, 224, "WHR", "gEgg", {104, 105, 106, 107}},
      {3,
       236,
       "POS",
       "EEEE",
       {108, 109, 110, 111, 112, 113, 114, 115, 116, 117, 118, kOverviewFind, 185, 186}},
      {4, 210, "BCG", "gEgg", kReport},
      {5, 214, "BCG", "gEgg", kReport},
      {6,
       232,
       "ZAAP",
       "gEgg",
       {120, 121, 122, 123, 166, 167, 168, 169, 170, 171, 172, 173, 174, 175}},
      {7, 231, "POS", "gEgg", {124, 125, 126, 127, 128, 129, 130, 131, 132, 133, 134, 135, 136, 137,
                               138, 139, 140, 141, 142, 143, 144, 145, 146, 147, 149, 183, 184}},
      {8, 212, "BCG", "gEgg", kReport},
      {9, 213, "BCG", "gEgg", kReport},
      {10, 238, "SPAL", "gEg.", {159, 160, 161, 162, 163, 164, 177, 179, 180}},
      {11, 215, "BCG", "gEgg", kReport},
      {12, 233, "BILANS", "gEgg", {165}},
      {13, 270, "BCG", "gEgg", {}},
      {14, 271, "BCG", "gEgg", {}},
      {15, 272, "BCG", "gEgg", {}},
      {16, 273, "BCG", "gEgg", {}},
      {17, 274, "BCG", "gEgg", {}},
      {18, 225, "SPAL", "gEgg", {101, 176}},
      {19, 239, "SPAL", "gEgg", {181, 182}},
      {20, 252, "POS", "....", {}},
  };
  return kScreens;
}

struct ExpectedCommand {
  int id;
  MenuItemStates states;
};

// The commands that open no screen; some have no item in the menu.
inline const std::vector<ExpectedCommand>& ExpectedCommands() {
  static const std::vector<ExpectedCommand> kCommands = {
      {200, "EgEE"}, {201, "gEgg"}, {202, "EEEE"}, {203, "EEEE"}, {204, "gEgg"}, {211, "gEgg"},
      {220, "gEgg"}, {222, "gEgg"}, {223, "gEgg"}, {230, "gEgg"}, {234, "gEgg"}, {235, "gEgg"},
      {237, "gEEg"}, {240, "EE.E"}, {241, "EE.E"}, {250, "EEEE"}, {251, "EEEE"},
  };
  return kCommands;
}

}  // namespace velnor

#endif  // VELNOR_TESTS_SUPPORT_EXPECTED_SCREENS_H_

// Reads the resource script that the program is built with: its text, and the controls of its
// dialogs. Used by the tests of the dialogs and by the stand-in of their controls.

#ifndef VELNOR_TESTS_SUPPORT_RESOURCE_SCRIPT_H_
#define VELNOR_TESTS_SUPPORT_RESOURCE_SCRIPT_H_

#include <cstdint>
#include <string>
#include <vector>

#include "base/control.h"

namespace velnor {

// The script. A number stands where it has a name that it shares with the program.
std::string ResourceScript();

struct DialogControl {
  int id;
  ControlClass control_class;
  std::uint32_t style;  // whether lists are sorted, edits read-only or of several lines
};

// The controls of a template that have an id, in its order. A dialog without a template fails the
// test and has none.
const std::vector<DialogControl>& DialogTemplate(int resource_id);

}  // namespace velnor

#endif  // VELNOR_TESTS_SUPPORT_RESOURCE_SCRIPT_H_

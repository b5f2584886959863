// The controls of the dialogs, read from the resource script that the program is built with, so
// that a fuzz target meets every dialog with the controls it really has.

#ifndef VELNOR_FUZZ_DIALOG_TEMPLATES_H_
#define VELNOR_FUZZ_DIALOG_TEMPLATES_H_

#include <cstdint>
#include <vector>

#include "base/control.h"

namespace velnor {

struct DialogControl {
  int id;
  ControlClass control_class;
  std::uint32_t style;  // whether lists are sorted, edits read-only or of several lines
};

// The controls of a template that have an id, in its order. An unknown template ends the process.
const std::vector<DialogControl>& DialogTemplate(int resource_id);

}  // namespace velnor

#endif  // VELNOR_FUZZ_DIALOG_TEMPLATES_H_

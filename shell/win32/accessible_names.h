// Names of the fields for screen readers: the platform takes a field's name from a text control
// beside it, but the labels of the screens are painted.

#ifndef VELNOR_SHELL_WIN32_ACCESSIBLE_NAMES_H_
#define VELNOR_SHELL_WIN32_ACCESSIBLE_NAMES_H_

#include <windows.h>

#include "shell/win32/window_form.h"

namespace velnor {

// Tells the platform the label of every field of the form as its name, where the platform can be
// told. A platform without that service leaves the fields without names.
void NameFields(const MainForm& form);

}  // namespace velnor

#endif  // VELNOR_SHELL_WIN32_ACCESSIBLE_NAMES_H_

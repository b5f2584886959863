// The fields of the main window and of the dialogs that hold a number: there the comma key types a
// point.

#ifndef VELNOR_SHELL_WIN32_NUMBER_FIELD_H_
#define VELNOR_SHELL_WIN32_NUMBER_FIELD_H_

#include <windows.h>

namespace velnor {

// From here on the edit is a field that holds a number. Null is ignored.
void MarkNumberField(HWND edit);

// Makes a point of the message's character when it is a comma that was typed into a number field.
void TypePointForComma(MSG& message);

}  // namespace velnor

#endif  // VELNOR_SHELL_WIN32_NUMBER_FIELD_H_

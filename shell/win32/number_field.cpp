#include "shell/win32/number_field.h"

namespace velnor {
namespace {

// In what the platform keeps for the owner of a control; no pointer is equal to it.
constexpr LONG_PTR kHoldsNumber = 1;

}  // namespace

void MarkNumberField(HWND edit) { SetWindowLongPtrA(edit, GWLP_USERDATA, kHoldsNumber); }

void TypePointForComma(MSG& message) {
  const bool comma = message.message == WM_CHAR && message.wParam == ',';
  if (comma && GetWindowLongPtrA(message.hwnd, GWLP_USERDATA) == kHoldsNumber) message.wParam = '.';
}

}  // namespace velnor

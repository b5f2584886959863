#include "shell/win32/fault_barrier.h"

#include <string_view>

#include "base/session.h"

namespace velnor {
namespace {

// Literals, because there may be no memory for a copy.
constexpr const char* kText =
    "This could not be done.\n"
    "The computer may be short of memory: close other programs and try again.";
static_assert(*(kTitle.data() + kTitle.size()) == '\0');

constexpr const char* kBoxIsOpen = "VelnorFaultBoxIsOpen";  // a property of the main window

}  // namespace

void ReportFault(HWND window) {
  const HWND main_window = GetAncestor(window, GA_ROOTOWNER);
  // A picture that could not be painted is not asked for over and over.
  ValidateRect(main_window, nullptr);
  if (GetPropA(main_window, kBoxIsOpen) != nullptr) return;
  SetPropA(main_window, kBoxIsOpen, main_window);
  MessageBoxA(window, kText, kTitle.data(), MB_OK | MB_ICONWARNING);
  RemovePropA(main_window, kBoxIsOpen);
}

}  // namespace velnor

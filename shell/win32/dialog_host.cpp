#include "shell/win32/dialog_host.h"

#include "shell/win32/window_form.h"

namespace velnor {
namespace {

// A modal dialog's window ends its loop instead of being destroyed by us.
class ModalForm final : public WindowForm {
 public:
  explicit ModalForm(HWND dialog) : WindowForm(dialog) {}
  void Close() override { EndDialog(window(), 0); }
};

INT_PTR CALLBACK DialogProcedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  ModalForm form(window);
  switch (message) {
    case WM_INITDIALOG:
      SetWindowLongPtrA(window, DWLP_USER, lparam);
      reinterpret_cast<Dialog*>(lparam)->OnOpen(form);
      return TRUE;
    case WM_COMMAND:
      if (auto* const dialog = reinterpret_cast<Dialog*>(GetWindowLongPtrA(window, DWLP_USER))) {
        dialog->OnCommand(form, LOWORD(wparam), HIWORD(wparam));
      }
      return TRUE;
    default:
      return FALSE;
  }
}

}  // namespace

void RunModalDialog(HINSTANCE instance, HWND owner, int resource_id, Dialog& dialog) {
  DialogBoxParamA(instance, MAKEINTRESOURCEA(resource_id), owner, DialogProcedure,
                  reinterpret_cast<LPARAM>(&dialog));
}

}  // namespace velnor

#include "shell/win32/dialog_host.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "shell/win32/caption_icon.h"
#include "shell/win32/fault_barrier.h"
#include "shell/win32/window_form.h"

namespace velnor {
namespace {

// A dialog object with its window. It lives from the opening of the window until the window is gone
// and the last handler has returned: a handler may close its own window.
class Host final : public WindowForm {
 public:
  Host(HWND window, Dialog& dialog) : WindowForm(window), dialog_(&dialog) {}
  Host(HWND window, std::unique_ptr<Dialog> dialog, std::function<void(HWND)> on_close)
      : WindowForm(window),
        dialog_(dialog.get()),
        owned_dialog_(std::move(dialog)),
        on_close_(std::move(on_close)) {}

  void Close() override {
    if (on_close_ == nullptr) {
      EndDialog(window(), 0);
    } else {
      on_close_(window());
      DestroyWindow(window());
    }
  }

  void Open() { dialog_->OnOpen(*this); }

  void Command(int id, int notification) {
    ++running_handlers_;
    BehindBarrier(window(), 0, [&] {
      dialog_->OnCommand(*this, id, notification);
      return 0;
    });
    --running_handlers_;
    DeleteWhenDone();
  }

  bool TakesKey(int id, Key key) {
    ++running_handlers_;
    const bool taken =
        BehindBarrier(window(), false, [&] { return dialog_->OnKey(*this, id, key); });
    --running_handlers_;
    DeleteWhenDone();
    return taken;
  }

  void WindowIsGone() {
    window_is_gone_ = true;
    DeleteWhenDone();
  }

 private:
  void DeleteWhenDone() {
    if (window_is_gone_ && running_handlers_ == 0) delete this;
  }

  Dialog* dialog_;
  std::unique_ptr<Dialog> owned_dialog_;  // a modal dialog belongs to its caller
  std::function<void(HWND)> on_close_;    // null for a modal dialog
  int running_handlers_ = 0;
  bool window_is_gone_ = false;
};

// What the opening message carries.
struct Opening {
  Dialog* modal_dialog = nullptr;
  std::unique_ptr<Dialog> modeless_dialog = nullptr;
  std::function<void(HWND)> on_close = nullptr;

  Host* MakeHost(HWND window) {
    if (modal_dialog != nullptr) return new Host(window, *modal_dialog);
    return new Host(window, std::move(modeless_dialog), std::move(on_close));
  }
};

struct KeyCode {
  WPARAM code;
  Key key;
};
constexpr KeyCode kKeyCodes[] = {{VK_RETURN, Key::kEnter},
                                 {VK_UP, Key::kUp},
                                 {VK_DOWN, Key::kDown},
                                 {VK_PRIOR, Key::kPageUp},
                                 {VK_NEXT, Key::kPageDown}};

bool HasClass(HWND control, const char* class_name) {
  char name[16] = {};
  GetClassNameA(control, name, sizeof name);
  return lstrcmpiA(name, class_name) == 0;
}

// Where a template lets a list box reach over the buttons below it, the list ends above them. It
// rounds its height to whole lines itself.
void KeepListsOffButtons(HWND dialog) {
  constexpr int kGap = 3;
  const auto place_in_dialog = [dialog](HWND control) {
    RECT place = {};
    GetWindowRect(control, &place);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&place), 2);
    return place;
  };
  for (HWND list = GetWindow(dialog, GW_CHILD); list != nullptr;
       list = GetWindow(list, GW_HWNDNEXT)) {
    if (!HasClass(list, "listbox")) continue;
    RECT place = place_in_dialog(list);
    for (HWND button = GetWindow(dialog, GW_CHILD); button != nullptr;
         button = GetWindow(button, GW_HWNDNEXT)) {
      const RECT other = place_in_dialog(button);
      const bool below = HasClass(button, "button") && other.top > place.top &&
                         other.left < place.right && other.right > place.left;
      if (below) place.bottom = std::min(place.bottom, other.top - kGap);
    }
    MoveWindow(list, place.left, place.top, place.right - place.left, place.bottom - place.top,
               FALSE);
  }
}

// Fixed texts may stand close together: none paints a background over its neighbour. One with an id
// of its own changes, and has to, or its texts would lie on one another.
bool IsFixedText(HWND control) {
  constexpr WORD kNoId = 0xFFFF;  // -1 in the template
  return HasClass(control, "static") && LOWORD(GetDlgCtrlID(control)) == kNoId;
}

INT_PTR OpenDialog(HWND window, Opening& opening) {
  Host* const host = opening.MakeHost(window);
  SetWindowLongPtrA(window, DWLP_USER, reinterpret_cast<LONG_PTR>(host));
  SetCaptionIcon(window);
  KeepListsOffButtons(window);
  const HWND focus_before = GetFocus();
  host->Open();
  return GetFocus() == focus_before ? TRUE : FALSE;
}

INT_PTR CALLBACK DialogProcedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == WM_INITDIALOG) {
    const INT_PTR result = BehindBarrier(window, INT_PTR{TRUE}, [&] {
      return OpenDialog(window, *reinterpret_cast<Opening*>(lparam));
    });
    // Without its object it could not even be closed.
    if (GetWindowLongPtrA(window, DWLP_USER) == 0) EndDialog(window, 0);
    return result;
  }
  auto* const host = reinterpret_cast<Host*>(GetWindowLongPtrA(window, DWLP_USER));
  if (host == nullptr) return FALSE;
  switch (message) {
    case WM_COMMAND:
      host->Command(LOWORD(wparam), HIWORD(wparam));
      return TRUE;
    case WM_CTLCOLORSTATIC:
      if (!IsFixedText(reinterpret_cast<HWND>(lparam))) return FALSE;
      SetBkMode(reinterpret_cast<HDC>(wparam), TRANSPARENT);
      return reinterpret_cast<INT_PTR>(GetStockObject(NULL_BRUSH));
    case WM_NCDESTROY:
      SetWindowLongPtrA(window, DWLP_USER, 0);
      host->WindowIsGone();
      return FALSE;
    default:
      return FALSE;
  }
}

}  // namespace

void RunModalDialog(HINSTANCE instance, HWND owner, int resource_id, Dialog& dialog) {
  Opening opening{.modal_dialog = &dialog};
  DialogBoxParamA(instance, MAKEINTRESOURCEA(resource_id), owner, DialogProcedure,
                  reinterpret_cast<LPARAM>(&opening));
}

HWND OpenModelessDialog(HINSTANCE instance, HWND owner, int resource_id,
                        std::unique_ptr<Dialog> dialog, std::function<void(HWND)> on_close) {
  Opening opening{.modeless_dialog = std::move(dialog), .on_close = std::move(on_close)};
  const HWND window = CreateDialogParamA(instance, MAKEINTRESOURCEA(resource_id), owner,
                                         DialogProcedure, reinterpret_cast<LPARAM>(&opening));
  if (window == nullptr) return nullptr;
  if (opening.modeless_dialog != nullptr) {  // nobody took it
    DestroyWindow(window);
    return nullptr;
  }
  ShowWindow(window, SW_SHOW);
  return window;
}

bool OfferKey(HWND window, const MSG& message) {
  if (message.message != WM_KEYDOWN || GetParent(message.hwnd) != window) return false;
  const auto* const row = std::ranges::find(kKeyCodes, message.wParam, &KeyCode::code);
  auto* const host = reinterpret_cast<Host*>(GetWindowLongPtrA(window, DWLP_USER));
  if (row == std::end(kKeyCodes) || host == nullptr) return false;
  return host->TakesKey(GetDlgCtrlID(message.hwnd), row->key);
}

}  // namespace velnor

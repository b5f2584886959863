#include "shell/win32/win32_main_window.h"

#include <string>
#include <utility>

#include "res/ids.h"
#include "shell/win32/accessible_names.h"
#include "shell/win32/caption_icon.h"
#include "shell/win32/dialog_host.h"
#include "shell/win32/fault_barrier.h"
#include "shell/win32/file_picker.h"
#include "shell/win32/shell_open.h"
#include "shell/win32/wide_path.h"
#include "users/history_file.h"

namespace velnor {
namespace {

constexpr int kMenuResource = ID_MENU;

constexpr int kWidth = 800;
constexpr int kHeight = 600;
constexpr COLORREF kSurfaceColour = RGB(179, 179, 179);

constexpr UINT kNameFields = WM_APP;  // posted to ourselves
constexpr UINT kHelpPartialKey = 0x105;

// The system rejects this background mode, so statics keep the opaque one they have; the colour
// under their text is that of the surface.
constexpr int kNoBackgroundMode = 255;

std::string Today() {
  SYSTEMTIME now;
  GetLocalTime(&now);
  return DateText(now.wDay, now.wMonth, now.wYear);
}

// As the frame draws itself over the picture.
void DrawFrame(HWND window, HWND frame, HDC picture) {
  POINT at = {};
  MapWindowPoints(frame, window, &at, 1);
  POINT before = {};
  SetViewportOrgEx(picture, at.x, at.y, &before);
  SendMessageA(frame, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(picture), PRF_CLIENT);
  SetViewportOrgEx(picture, before.x, before.y, nullptr);
}

}  // namespace

Moment Win32Clock::Now() const {
  SYSTEMTIME now;
  GetLocalTime(&now);
  return {IsoDate(DateText(now.wDay, now.wMonth, now.wYear)),
          TimeText(now.wHour, now.wMinute, now.wSecond)};
}

Win32MainWindow::Win32MainWindow(HINSTANCE instance)
    : instance_(instance), surface_(CreateSolidBrush(kSurfaceColour)) {}

bool Win32MainWindow::Open(int show_command) {
  const std::string title(kTitle);
  WNDCLASSEXA window_class = {};
  window_class.cbSize = sizeof window_class;
  window_class.style = CS_DBLCLKS;
  window_class.lpfnWndProc = Procedure;
  window_class.hInstance = instance_;
  window_class.hIcon = ProgramIcon();
  window_class.hIconSm = window_class.hIcon;
  window_class.hCursor = LoadCursorA(nullptr, IDC_ARROW);
  window_class.hbrBackground = surface_;
  window_class.lpszClassName = title.c_str();
  if (RegisterClassExA(&window_class) == 0) return false;

  const HWND window = CreateWindowExA(
      0, title.c_str(), title.c_str(), WS_BORDER | WS_SYSMENU | WS_MINIMIZEBOX, CW_USEDEFAULT,
      CW_USEDEFAULT, kWidth, kHeight, nullptr, nullptr, instance_, this);
  if (window == nullptr) return false;
  ShowWindow(window, show_command);
  return true;
}

int Win32MainWindow::RunMessageLoop() {
  MSG message;
  while (GetMessageA(&message, nullptr, 0, 0) > 0) {
    if (!BehindBarrier(window_, true, [&] { return TakeFirst(message); })) {
      TranslateMessage(&message);
      DispatchMessageA(&message);
    }
    if (IsWindow(window_) != FALSE) {
      screen_keys_->UpdateFrame(back_buffer_.Begin(client_width_, client_height_));
    }
  }
  return static_cast<int>(message.wParam);
}

// What does not go to the control with the focus, and whether it was dealt with here.
bool Win32MainWindow::TakeFirst(MSG& message) {
  if (screen_keys_->OnMessage(message)) return true;
  if (modeless_dialog_ != nullptr && OfferKey(modeless_dialog_, message)) return true;
  if (modeless_dialog_ != nullptr && IsDialogMessageA(modeless_dialog_, &message) != 0) return true;
  // An edit would scroll as many lines at a turn of the wheel as it likes.
  const bool wheel = message.message == WM_MOUSEWHEEL && IsChild(window_, message.hwnd) != 0;
  return wheel && OnMouseWheel(message.wParam);
}

LRESULT CALLBACK Win32MainWindow::Procedure(HWND window, UINT message, WPARAM wparam,
                                            LPARAM lparam) {
  if (message == WM_NCCREATE) {
    const auto* const creation = reinterpret_cast<const CREATESTRUCTA*>(lparam);
    auto* const self = static_cast<Win32MainWindow*>(creation->lpCreateParams);
    self->window_ = window;
    SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
  }
  auto* const self = reinterpret_cast<Win32MainWindow*>(GetWindowLongPtrA(window, GWLP_USERDATA));
  if (self == nullptr) return DefWindowProcA(window, message, wparam, lparam);
  const LRESULT on_fault = message == WM_CREATE ? -1 : 0;  // a window that could not be made goes
  return BehindBarrier(window, on_fault, [&] { return self->OnMessage(message, wparam, lparam); });
}

LRESULT Win32MainWindow::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  if (own_menus_ && own_menus_->OnMessage(message, wparam, lparam)) return 0;
  switch (message) {
    case WM_CREATE:
      return OnCreate() ? 0 : -1;
    case WM_SIZE:
      client_width_ = LOWORD(lparam);
      client_height_ = HIWORD(lparam);
      drawn_.reset();
      return 0;
    case WM_ERASEBKGND:  // the screens cover the client area with their picture
      return 0;
    case WM_ACTIVATE:
      OnActivate(LOWORD(wparam) != WA_INACTIVE, wparam, lparam);
      return 0;
    case WM_PAINT:
      OnPaint();
      return 0;
    case WM_COMMAND:
      program_->OnCommand(LOWORD(wparam), HIWORD(wparam));
      return 0;
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
      SetBkMode(reinterpret_cast<HDC>(wparam), TRANSPARENT);
      return reinterpret_cast<LRESULT>(surface_);
    case WM_CTLCOLORSTATIC:
      SetBkMode(reinterpret_cast<HDC>(wparam), kNoBackgroundMode);
      SetBkColor(reinterpret_cast<HDC>(wparam), kSurfaceColour);
      return reinterpret_cast<LRESULT>(surface_);
    case WM_MOUSEWHEEL:
      OnMouseWheel(wparam);
      return 0;
    case WM_GETOBJECT:
      OnAccessibility();
      return DefWindowProcA(window_, message, wparam, lparam);
    case kNameFields:
      NameFields(*form_);
      return 0;
    case WM_CLOSE:
      DestroyWindow(window_);
      return 0;
    case WM_DESTROY:
      PostQuitMessage(0);
      return 0;
    case WM_NCDESTROY:
      SetWindowLongPtrA(window_, GWLP_USERDATA, 0);
      return DefWindowProcA(window_, message, wparam, lparam);
    default:
      return DefWindowProcA(window_, message, wparam, lparam);
  }
}

bool Win32MainWindow::OnCreate() {
  form_.emplace(window_);
  message_boxes_.emplace(window_);
  program_.emplace(StartUpFolder(), Today(), *form_, *this, *message_boxes_, clock_);
  menu_ = LoadMenuA(instance_, MAKEINTRESOURCEA(kMenuResource));
  SetMenu(window_, menu_);
  own_menus_.emplace(window_, *program_);
  own_menus_->AddToTitleBarMenu();
  screen_keys_.emplace(window_, *form_, *program_);
  resources_.FindBackgrounds(instance_);
  if (!form_->CreateControls(instance_, resources_)) return false;
  program_->Start();
  return true;
}

bool Win32MainWindow::OnMouseWheel(WPARAM wparam) {
  return program_->OnMouseWheel(static_cast<std::int32_t>(static_cast<std::uint32_t>(wparam)));
}

// The first question of a screen reader, or of a tool like one. What is done about it loads a
// library and waits until the question is answered.
void Win32MainWindow::OnAccessibility() {
  if (!std::exchange(fields_named_, true)) PostMessageA(window_, kNameFields, 0, 0);
}

// Everything is drawn in memory and copied to the window once, around the controls that stay. Where
// the system refuses the memory it is drawn on the window itself, which flickers.
void Win32MainWindow::OnPaint() {
  // Hiding the control that has the focus takes the focus away; a screen that shows it again gets
  // it back.
  const HWND focused = GetFocus();
  program_->PreparePaint();
  Painting painting;
  program_->Paint(painting);
  const HDC picture = back_buffer_.Begin(client_width_, client_height_);
  if (picture == nullptr) drawn_.reset();
  if (picture == nullptr || DrawInMemory(picture, painting)) {
    RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_NOCHILDREN);
  }
  form_->HideTheRest();
  PAINTSTRUCT paint;
  const HDC context = BeginPaint(window_, &paint);
  form_->ClipTo(context);
  if (picture != nullptr) {
    BitBlt(context, 0, 0, client_width_, client_height_, picture, 0, 0, SRCCOPY);
  } else {
    GdiCanvas canvas(context, surface_, resources_);
    painting.DrawOn(canvas);
    for (const HWND frame : form_->ChosenFrames()) DrawFrame(window_, frame, context);
  }
  EndPaint(window_, &paint);
  form_->ShowChosen();
  FocusIfShown(focused);
  screen_keys_->RedrawFrame(picture);
  program_->FinishPaint();
}

// Returns false if the picture in memory shows just this already.
bool Win32MainWindow::DrawInMemory(HDC picture, const Painting& painting) {
  Drawn wanted = {painting, form_->ChosenFrames()};
  if (drawn_ == wanted) return false;
  drawn_.reset();
  GdiCanvas canvas(picture, surface_, resources_);
  wanted.painting.DrawOn(canvas);
  for (const HWND frame : wanted.frames) DrawFrame(window_, frame, picture);
  if (canvas.is_complete()) drawn_ = std::move(wanted);
  return true;
}

// The platform gives the focus to the window itself when it comes to the front again; it belongs to
// the control that had it.
void Win32MainWindow::OnActivate(bool active, WPARAM wparam, LPARAM lparam) {
  if (!active) focus_when_active_ = GetFocus();
  DefWindowProcA(window_, WM_ACTIVATE, wparam, lparam);
  if (active) FocusIfShown(focus_when_active_);
}

void Win32MainWindow::FocusIfShown(HWND control) const {
  if (control != nullptr && IsChild(window_, control) != 0 && IsWindowVisible(control) != 0) {
    SetFocus(control);
  }
}

// The controls draw themselves; a new picture around them is no reason to.
void Win32MainWindow::Invalidate() {
  RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_NOCHILDREN);
}

void Win32MainWindow::InvalidateWithoutErasing() {
  RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_NOCHILDREN);
}

void Win32MainWindow::PaintNow() { SendMessageA(window_, WM_PAINT, 0, 0); }

void Win32MainWindow::Close() { SendMessageA(window_, WM_CLOSE, 0, 0); }

void Win32MainWindow::EnableMenuItem(int command, bool enabled) {
  ::EnableMenuItem(menu_, static_cast<UINT>(command),
                   static_cast<UINT>(MF_BYCOMMAND | (enabled ? MF_ENABLED : MF_GRAYED)));
}

void Win32MainWindow::OpenDialog(int resource_id, std::unique_ptr<Dialog> dialog) {
  modeless_dialog_ =
      OpenModelessDialog(instance_, window_, resource_id, std::move(dialog), [this](HWND closed) {
        modeless_dialog_ = nullptr;
        std::erase(session_dialogs_, closed);
      });
}

void Win32MainWindow::OpenSessionDialog(int resource_id, std::unique_ptr<Dialog> dialog) {
  OpenDialog(resource_id, std::move(dialog));
  if (modeless_dialog_ != nullptr) session_dialogs_.push_back(modeless_dialog_);
}

void Win32MainWindow::CloseSessionDialogs() {
  const std::vector<HWND> open = session_dialogs_;  // each takes itself off the list
  for (const HWND dialog : open) SendMessageA(dialog, WM_COMMAND, kCancelButton, 0);
}

void Win32MainWindow::RunDialog(int resource_id, Dialog& dialog) {
  RunModalDialog(instance_, window_, resource_id, dialog);
}

std::optional<std::string> Win32MainWindow::ChooseFile(const FileKind& kind) {
  return Choose([&kind](HWND owner) { return PickFile(owner, kind); });
}

std::optional<std::string> Win32MainWindow::ChooseFolder(std::string_view title) {
  return Choose([title](HWND owner) { return PickFolder(owner, title); });
}

// The dialog waits like a box of its own; the window behind it has to as well, or the program could
// be left while the person is choosing.
std::optional<std::string> Win32MainWindow::Choose(
    const std::function<std::optional<std::string>(HWND owner)>& pick) {
  const HWND active = GetActiveWindow();
  EnableWindow(window_, FALSE);
  std::optional<std::string> path = pick(active != nullptr ? active : window_);
  EnableWindow(window_, TRUE);
  return path;
}

bool Win32MainWindow::OpenGuideFile(std::string_view name) {
  return velnor::OpenGuideFile(window_, name);
}

void Win32MainWindow::OpenHelp(std::string_view file_name) {
  WinHelpA(window_, std::string(file_name).c_str(), kHelpPartialKey, 0);
}

bool Win32MainWindow::OpenInBrowser(const std::string& path) {
  return velnor::OpenInBrowser(window_, path);
}

}  // namespace velnor

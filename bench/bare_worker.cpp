#include "bench/bare_worker.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

#include "shell/screens.h"

namespace velnor::bench {
namespace {

bool HasClass(HWND control, const char* class_name) {
  std::array<char, 16> name = {};
  GetClassNameA(control, name.data(), static_cast<int>(name.size()));
  return lstrcmpiA(name.data(), class_name) == 0;
}

// The bytes of a file, replaced whole, as safe from a crash as the program's.
void WriteBytes(const std::string& name, int count) {
  const std::string bytes(static_cast<std::size_t>(count), '0');
  const std::string fresh = name + ".new";
  const HANDLE file = CreateFileA(fresh.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
  DWORD written = 0;
  WriteFile(file, bytes.data(), static_cast<DWORD>(count), &written, nullptr);
  FlushFileBuffers(file);
  CloseHandle(file);
  MoveFileExA(fresh.c_str(), name.c_str(), MOVEFILE_REPLACE_EXISTING);
}

void AppendBytes(const std::string& name, int count) {
  const std::string bytes(static_cast<std::size_t>(count), '0');
  const HANDLE file = CreateFileA(name.c_str(), FILE_APPEND_DATA, 0, nullptr, OPEN_ALWAYS,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
  DWORD written = 0;
  WriteFile(file, bytes.data(), static_cast<DWORD>(count), &written, nullptr);
  FlushFileBuffers(file);
  CloseHandle(file);
}

void Redraw(HWND window) {
  RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_NOCHILDREN);
}

}  // namespace

void BareWorker::Begin(HWND window, std::map<int, HWND> children) {
  window_ = window;
  children_ = std::move(children);
}

void BareWorker::OnCommand(int id, int notification) {
  const std::string trigger = std::to_string(notification);
  bool meant = false;
  const Work work = work_;  // a step may open a box, under which another work is learned
  for (const Step& step : work) {
    if (step.verb == kOn) {
      meant = step.number == id && step.texts.front() == trigger;
    } else if (meant) {
      Perform(step);
    }
  }
}

void BareWorker::Perform(const Step& step) {
  const HWND control = Control(step.number);
  if (step.verb == kFill) Fill(control, step.texts, true);
  if (step.verb == kAdd) Fill(control, step.texts, false);
  if (step.verb == kRemove) SendMessageA(control, LB_DELETESTRING, 0, 0);
  if (step.verb == kText) SetWindowTextA(control, step.texts.front().c_str());
  if (step.verb == kSelect) SendMessageA(control, CB_SETCURSEL, 0, 0);
  if (step.verb == kWrite) WriteBytes(step.texts.front(), step.number);
  if (step.verb == kAppend) AppendBytes(step.texts.front(), step.number);
  if (step.verb == kOpen) OpenDialog(step.number);
  if (step.verb == kShow) ShowWindow(dialog_, SW_SHOW);
  if (step.verb == kClose) DestroyWindow(std::exchange(dialog_, nullptr));
  if (step.verb == kScreen) ShowScreen(step.number);
  if (step.verb == kBox) MessageBoxA(window_, step.texts.front().c_str(), "bare window", MB_OK);
}

HWND BareWorker::Control(int id) const {
  const HWND in_dialog = dialog_ == nullptr ? nullptr : GetDlgItem(dialog_, id);
  if (in_dialog != nullptr) return in_dialog;
  const auto found = children_.find(id);
  return found == children_.end() ? nullptr : found->second;
}

void BareWorker::Fill(HWND list, const std::vector<std::string>& texts, bool replace) {
  const bool drops_down = HasClass(list, "combobox");
  const bool put_off = !drops_down && (GetWindowLongA(list, GWL_STYLE) & WS_VISIBLE) != 0;
  if (put_off) SendMessageA(list, WM_SETREDRAW, FALSE, 0);
  if (replace) SendMessageA(list, drops_down ? CB_RESETCONTENT : LB_RESETCONTENT, 0, 0);
  SendMessageA(list, drops_down ? CB_INITSTORAGE : LB_INITSTORAGE, texts.size(), 0);
  for (const std::string& text : texts) {
    SendMessageA(list, drops_down ? CB_ADDSTRING : LB_ADDSTRING, 0,
                 reinterpret_cast<LPARAM>(text.c_str()));
  }
  if (!put_off) return;
  SendMessageA(list, WM_SETREDRAW, TRUE, 0);
  InvalidateRect(list, nullptr, TRUE);
}

// Controls that both screens have are left alone.
void BareWorker::ShowScreen(int number) {
  const auto row = std::ranges::find(Screens(), number, &ScreenRow::id);
  std::vector<HWND> next;
  for (const int key : ShownKeys(*row)) next.push_back(children_.at(key));
  for (const HWND child : shown_) {
    if (std::ranges::find(next, child) == next.end()) ShowWindow(child, SW_HIDE);
  }
  screen_ = number;
  Redraw(window_);
  UpdateWindow(window_);
  for (const HWND child : next) {
    const bool is_frame = (GetWindowLongA(child, GWL_EXSTYLE) & WS_EX_TRANSPARENT) != 0;
    if (std::ranges::find(shown_, child) == shown_.end()) {
      ShowWindow(child, SW_SHOWNORMAL);
    } else if (is_frame) {
      InvalidateRect(child, nullptr, FALSE);
    }
  }
  shown_ = std::move(next);
}

void BareWorker::OpenDialog(int resource) {
  dialog_ = CreateDialogParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(resource), window_,
                               DialogProcedure, reinterpret_cast<LPARAM>(this));
}

INT_PTR CALLBACK BareWorker::DialogProcedure(HWND window, UINT message, WPARAM wparam,
                                             LPARAM lparam) {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrA(window, DWLP_USER, lparam);
    return TRUE;
  }
  auto* const self = reinterpret_cast<BareWorker*>(GetWindowLongPtrA(window, DWLP_USER));
  if (message != WM_COMMAND || self == nullptr) return FALSE;
  self->OnCommand(LOWORD(wparam), HIWORD(wparam));
  return TRUE;
}

}  // namespace velnor::bench

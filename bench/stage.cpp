#include "bench/stage.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <vector>

namespace velnor::bench {
namespace {

bool IsComboBox(HWND control) {
  std::array<char, 16> name = {};
  GetClassNameA(control, name.data(), static_cast<int>(name.size()));
  return lstrcmpiA(name.data(), "combobox") == 0;
}

// What the boxes say that are open.
std::string OpenBoxes() {
  constexpr int kMessageText = 0xFFFF;
  std::string texts;
  HWND box = nullptr;
  while ((box = FindWindowExA(nullptr, box, kDialogClass, nullptr)) != nullptr) {
    texts += " \"" + desktop::Window(box).Text(kMessageText) + '"';
  }
  return texts;
}

// A box that nobody answers must not hold the bench up for ever.
void SendCommand(HWND window, int id, int notification) {
  DWORD_PTR result = 0;
  if (SendMessageTimeoutA(window, WM_COMMAND, static_cast<WPARAM>(MAKELONG(id, notification)), 0,
                          SMTO_NORMAL, 2 * kPatience, &result) == 0) {
    throw std::runtime_error("command " + std::to_string(id) + " is not carried out;" +
                             OpenBoxes());
  }
}

}  // namespace

Stage::Stage(Player player, const std::string& program, const desktop::WorkFolder& folder)
    : player_(player),
      folder_(folder),
      started_(player == Player::kVelnor ? program : "bare_window.exe work",
               player == Player::kVelnor ? kVelnorClass : kBareClass, folder.path()),
      main_(started_.window()) {}

void Stage::Learn(const Work& work) const {
  if (is_velnor()) return;
  std::string text = Encode(work);
  COPYDATASTRUCT sent = {0, static_cast<DWORD>(text.size()), text.data()};
  SendMessageA(main_, WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&sent));
}

void Stage::Send(int id, int notification) const { SendCommand(main_, id, notification); }

void Stage::SendToDialog(int id, int notification) const { SendCommand(dialog_, id, notification); }

void Stage::Post(int id) const { PostMessageA(main_, WM_COMMAND, static_cast<WPARAM>(id), 0); }

void Stage::PostToDialog(int id) const {
  PostMessageA(dialog_, WM_COMMAND, static_cast<WPARAM>(id), 0);
}

void Stage::Select(int id, int index) const {
  const HWND control = Control(id);
  SendMessageA(control, IsComboBox(control) ? CB_SETCURSEL : LB_SETCURSEL,
               static_cast<WPARAM>(index), 0);
}

void Stage::Select(int id, const std::string& item) const {
  if (!is_velnor()) return;
  const std::vector<std::string> items = desktop::Window(GetParent(Control(id))).Items(id);
  const auto found = std::ranges::find(items, item);
  if (found == items.end()) throw std::runtime_error("there is no " + item);
  Select(id, static_cast<int>(found - items.begin()));
}

void Stage::SetText(int id, const std::string& text) const {
  SendMessageA(Control(id), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

void Stage::SelectAll(int id) const { SendMessageA(Control(id), EM_SETSEL, 0, -1); }

void Stage::Type(int id, char character) const {
  SendMessageA(Control(id), WM_CHAR, static_cast<WPARAM>(character), 1);
}

HWND Stage::Control(int id) const {
  const HWND in_dialog = dialog_ == nullptr ? nullptr : GetDlgItem(dialog_, id);
  return in_dialog != nullptr ? in_dialog : GetDlgItem(main_, id);
}

HWND Stage::FindPopup(HWND known) {
  for (const double begin = Milliseconds(); Milliseconds() - begin < kPatience;) {
    HWND popup = nullptr;
    while ((popup = FindWindowExA(nullptr, popup, kDialogClass, nullptr)) != nullptr) {
      if (popup != known && IsWindowVisible(popup) != 0) return popup;
    }
  }
  throw std::runtime_error("no dialog opens");
}

void Stage::WaitForDialog() { dialog_ = FindPopup(nullptr); }

void Stage::WaitForBox() {
  box_ = FindPopup(dialog_);
  WaitUntilPainted(box_);
}

void Stage::CloseDialog() {
  PostToDialog(IDCANCEL);
  ForgetDialog();
}

void Stage::CloseBox() {
  PostMessageA(box_, WM_COMMAND, IDOK, 0);
  if (!desktop::WaitUntilGone(box_)) throw std::runtime_error("a box stays open");
  box_ = nullptr;
}

void Stage::ForgetDialog() {
  if (!desktop::WaitUntilGone(dialog_)) throw std::runtime_error("a dialog stays open");
  dialog_ = nullptr;
}

void Stage::Settle() const {
  WaitUntilPainted(main_);
  if (dialog_ != nullptr && IsWindow(dialog_) != 0) WaitUntilPainted(dialog_);
}

void Stage::Calm() { Sleep(20); }

}  // namespace velnor::bench

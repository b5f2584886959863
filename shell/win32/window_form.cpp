#include "shell/win32/window_form.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

#include "shell/screens.h"
#include "shell/win32/list_order.h"
#include "shell/win32/number_field.h"

namespace velnor {
namespace {

static_assert(control_style::kGroupBox == BS_GROUPBOX);
static_assert(control_style::kDropDownList == CBS_DROPDOWNLIST);
static_assert(control_style::kSortedCombo == CBS_SORT);
static_assert(control_style::kListNotify == LBS_NOTIFY);
static_assert(control_style::kSortedList == LBS_SORT);
static_assert(control_style::kMultiLine == ES_MULTILINE);
static_assert(control_style::kScrollVertically == ES_AUTOVSCROLL);
static_assert(control_style::kKeepSelection == ES_NOHIDESEL);
static_assert(control_style::kReadOnly == ES_READONLY);
static_assert(control_style::kBorder == WS_BORDER);
static_assert(control_style::kVerticalScroll == WS_VSCROLL);
static_assert(control_style::kHorizontalScroll == WS_HSCROLL);
static_assert(kButtonClicked == BN_CLICKED);
static_assert(kSelectionChanged == LBN_SELCHANGE);
static_assert(kSelectionChanged == CBN_SELCHANGE);
static_assert(kEditUpdated == EN_UPDATE);
static_assert(kEditEntered == EN_SETFOCUS);
static_assert(kEditLeft == EN_KILLFOCUS);

constexpr std::array kClassNames = {"button", "combobox", "edit", "listbox", "static"};

const char* ClassName(ControlClass control_class) {
  return kClassNames[static_cast<std::size_t>(control_class)];
}

// By ScrollStep.
constexpr std::array<WPARAM, 4> kScrollCodes = {SB_LINEUP, SB_LINEDOWN, SB_PAGEUP, SB_PAGEDOWN};

// List boxes and combo boxes do the same things under different message numbers.
struct ListMessages {
  UINT count, reserve, add, reset, selection, select, text_length, text;
};
constexpr ListMessages kListBoxMessages = {LB_GETCOUNT,     LB_INITSTORAGE, LB_ADDSTRING,
                                           LB_RESETCONTENT, LB_GETCURSEL,   LB_SETCURSEL,
                                           LB_GETTEXTLEN,   LB_GETTEXT};
constexpr ListMessages kComboBoxMessages = {CB_GETCOUNT,     CB_INITSTORAGE, CB_ADDSTRING,
                                            CB_RESETCONTENT, CB_GETCURSEL,   CB_SETCURSEL,
                                            CB_GETLBTEXTLEN, CB_GETLBTEXT};

bool IsComboBox(HWND control) {
  char name[16] = {};
  GetClassNameA(control, name, sizeof name);
  return lstrcmpiA(name, ClassName(ControlClass::kComboBox)) == 0;
}

const ListMessages& MessagesOf(HWND control) {
  return IsComboBox(control) ? kComboBoxMessages : kListBoxMessages;
}

// A list box that scrolls sideways has to be told how wide its widest item is.
void WidenTo(HWND list, std::span<const std::string_view> items) {
  constexpr LRESULT kMargin = 8;
  const HDC context = GetDC(list);
  const HGDIOBJ previous =
      SelectObject(context, reinterpret_cast<HFONT>(SendMessageA(list, WM_GETFONT, 0, 0)));
  LRESULT widest = 0;
  for (const std::string_view item : items) {
    SIZE size = {};
    GetTextExtentPoint32A(context, item.data(), static_cast<int>(item.size()), &size);
    widest = std::max<LRESULT>(widest, size.cx);
  }
  SelectObject(context, previous);
  ReleaseDC(list, context);
  const LRESULT width = widest + kMargin;
  if (width > SendMessageA(list, LB_GETHORIZONTALEXTENT, 0, 0)) {
    SendMessageA(list, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(width), 0);
  }
}

// Whether it is shown when the main window is.
bool IsShown(HWND control) { return (GetWindowLongA(control, GWL_STYLE) & WS_VISIBLE) != 0; }

LPARAM ToParameter(const char* text) { return reinterpret_cast<LPARAM>(text); }

bool IsSorted(HWND list_box) { return (GetWindowLongA(list_box, GWL_STYLE) & LBS_SORT) != 0; }

// Adds texts to a list, which keeps a sorted list's order. An empty sorted list box gets them in
// its own order and has not to look for the place of each.
void Append(HWND list, std::span<const std::string_view> texts) {
  constexpr auto kAtTheEnd = static_cast<WPARAM>(-1);
  const ListMessages& messages = MessagesOf(list);
  std::size_t bytes = 0;
  for (const std::string_view text : texts) bytes += text.size() + 1;
  SendMessageA(list, messages.reserve, texts.size(), static_cast<LPARAM>(bytes));
  std::optional<std::vector<std::string>> ordered;
  if (!IsComboBox(list) && IsSorted(list) && SendMessageA(list, LB_GETCOUNT, 0, 0) == 0) {
    ordered = OrderOfList(list, texts);
  }
  if (ordered) {
    for (const std::string& text : *ordered) {
      SendMessageA(list, LB_INSERTSTRING, kAtTheEnd, ToParameter(text.c_str()));
    }
  } else {
    for (const std::string_view text : texts) {
      SendMessageA(list, messages.add, 0, ToParameter(std::string(text).c_str()));
    }
  }
  if ((GetWindowLongA(list, GWL_STYLE) & WS_HSCROLL) != 0) WidenTo(list, texts);
}

// While it lives, a list box is not drawn; then it is, once. A hidden one is left alone: nothing of
// it is drawn anyway, and allowing it to be drawn again would show it. So is the list of a combo
// box, which drops down later.
class DrawnAtTheEnd {
 public:
  explicit DrawnAtTheEnd(HWND list) : list_(!IsComboBox(list) && IsShown(list) ? list : nullptr) {
    if (list_ != nullptr) SendMessageA(list_, WM_SETREDRAW, FALSE, 0);
  }
  DrawnAtTheEnd(const DrawnAtTheEnd&) = delete;
  DrawnAtTheEnd& operator=(const DrawnAtTheEnd&) = delete;
  ~DrawnAtTheEnd() {
    if (list_ == nullptr) return;
    SendMessageA(list_, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(list_, nullptr, TRUE);
  }

 private:
  HWND list_;
};

}  // namespace

HWND WindowForm::Control(int key) const { return GetDlgItem(window_, key); }

std::string WindowForm::ReadText(int id, std::size_t limit) const {
  const HWND control = Control(id);
  const auto all = static_cast<std::size_t>(GetWindowTextLengthA(control));
  std::string text(std::min(limit, all) + 1, '\0');
  const int length = GetWindowTextA(control, text.data(), static_cast<int>(text.size()));
  text.resize(static_cast<std::size_t>(length));
  return text;
}

void WindowForm::SetText(int id, std::string_view text) {
  SetWindowTextA(Control(id), std::string(text).c_str());
}

void WindowForm::LimitText(int id, std::size_t limit) {
  SendMessageA(Control(id), EM_SETLIMITTEXT, limit, 0);
}

void WindowForm::TakeNumbers(int id) { MarkNumberField(Control(id)); }

int WindowForm::ItemCount(int id) const {
  const HWND control = Control(id);
  const LRESULT count = SendMessageA(control, MessagesOf(control).count, 0, 0);
  return static_cast<int>(std::max<LRESULT>(count, 0));
}

void WindowForm::FillItems(int id, std::span<const std::string_view> texts) {
  const DrawnAtTheEnd drawn_at_the_end(Control(id));
  ClearItems(id);
  Append(Control(id), texts);
}

void WindowForm::AddItems(int id, std::span<const std::string_view> texts) {
  const DrawnAtTheEnd drawn_at_the_end(Control(id));
  Append(Control(id), texts);
}

void WindowForm::ClearItems(int id) {
  const HWND control = Control(id);
  SendMessageA(control, MessagesOf(control).reset, 0, 0);
}

std::string WindowForm::ItemText(int id, int index) const {
  const HWND control = Control(id);
  const ListMessages& messages = MessagesOf(control);
  const auto item = static_cast<WPARAM>(index);
  const LRESULT length = SendMessageA(control, messages.text_length, item, 0);
  if (length < 0) return {};
  std::string text(static_cast<std::size_t>(length) + 1, '\0');
  // The length asked for may be more than the text has.
  const LRESULT copied =
      SendMessageA(control, messages.text, item, reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(std::clamp<LRESULT>(copied, 0, length)));
  return text;
}

void WindowForm::SelectItem(int id, int index) {
  const HWND control = Control(id);
  SendMessageA(control, MessagesOf(control).select, static_cast<WPARAM>(index), 0);
}

std::optional<int> WindowForm::SelectedItem(int id) const {
  const HWND control = Control(id);
  const LRESULT selection = SendMessageA(control, MessagesOf(control).selection, 0, 0);
  if (control == nullptr || selection < 0) return std::nullopt;
  return static_cast<int>(selection);
}

std::optional<std::string> WindowForm::SelectedText(int id) const {
  const std::optional<int> selection = SelectedItem(id);
  return selection ? std::optional(ItemText(id, *selection)) : std::nullopt;
}

void WindowForm::RemoveSelectedItem(int id) {
  const LRESULT selection = SendMessageA(Control(id), LB_GETCURSEL, 0, 0);
  RemoveItem(id, static_cast<int>(selection));
}

void WindowForm::RemoveItem(int id, int index) {
  if (index >= 0) SendMessageA(Control(id), LB_DELETESTRING, static_cast<WPARAM>(index), 0);
}

void WindowForm::Focus(int id) { SetFocus(Control(id)); }

void WindowForm::SelectAllText(int id) { SendMessageA(Control(id), EM_SETSEL, 0, -1); }

void WindowForm::SetDefaultButton(int id) {
  SendMessageA(window_, DM_SETDEFID, static_cast<WPARAM>(id), 0);
}

void WindowForm::Scroll(int id, ScrollStep step) {
  SendMessageA(Control(id), EM_SCROLL, kScrollCodes[static_cast<std::size_t>(step)], 0);
}

void WindowForm::Show(int key) { ShowWindow(Control(key), SW_SHOWNORMAL); }

void WindowForm::HideAll() {
  for (HWND child = GetWindow(window_, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    ShowWindow(child, SW_HIDE);
  }
}

void WindowForm::Close() { DestroyWindow(window_); }

bool MainForm::CreateControls(HINSTANCE instance, GdiResources& resources) {
  for (const ControlRow& row : MainWindowControls()) {
    const DWORD edge = row.has_sunken_edge() ? WS_EX_CLIENTEDGE : 0;
    const HWND control =
        CreateWindowExA(edge, ClassName(row.control_class), row.text, WS_CHILD | row.style,
                        row.place.x, row.place.y, row.place.width, row.place.height, window(),
                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(row.id())), instance, nullptr);
    if (control == nullptr) return false;
    const HFONT font = resources.FontFor(row.font);
    SendMessageA(control, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    // List boxes have rounded their height to whole lines of the font they were born with.
    if (row.control_class == ControlClass::kListBox) {
      MoveWindow(control, row.place.x, row.place.y, row.place.width, row.place.height, FALSE);
    }
    // What has no edge has nothing inside.
    if (!row.has_sunken_edge()) frames_.insert(control);
    if (row.holds_number) MarkNumberField(control);
    if (row.limit > 0) SendMessageA(control, EM_SETLIMITTEXT, row.limit, 0);
    controls_by_key_.emplace(row.key, control);
  }
  return true;
}

void MainForm::HideAll() { chosen_.clear(); }

void MainForm::Show(int key) { chosen_.insert(Control(key)); }

std::vector<HWND> MainForm::ChosenFrames() const {
  std::vector<HWND> frames;
  std::ranges::set_intersection(chosen_, frames_, std::back_inserter(frames));
  return frames;
}

void MainForm::HideTheRest() {
  for (const auto& [key, control] : controls_by_key_) {
    if (IsShown(control) && !chosen_.contains(control)) {
      ShowWindow(control, SW_HIDE);
    }
  }
}

// Controls keep their places: the region of the last time serves as long as they are the same.
void MainForm::ClipTo(HDC context) {
  constexpr int kFarOut = 0x7FFF;
  std::vector<HWND> clipped;
  for (const HWND control : chosen_) {
    if (IsShown(control) && !frames_.contains(control)) clipped.push_back(control);
  }
  if (clipped != clipped_) {
    SetRectRgn(region_.handle(), 0, 0, kFarOut, kFarOut);
    const Region one;
    for (const HWND control : clipped) {
      RECT place;
      GetWindowRect(control, &place);
      MapWindowPoints(nullptr, window(), reinterpret_cast<POINT*>(&place), 2);
      SetRectRgn(one.handle(), place.left, place.top, place.right, place.bottom);
      CombineRgn(region_.handle(), region_.handle(), one.handle(), RGN_DIFF);
    }
    clipped_ = std::move(clipped);
  }
  if (!clipped_.empty()) ExtSelectClipRgn(context, region_.handle(), RGN_AND);
}

void MainForm::ShowChosen() const {
  for (const HWND control : chosen_) {
    if (!IsShown(control)) ShowWindow(control, SW_SHOWNORMAL);
  }
}

std::vector<int> MainForm::UsableKeys() const {
  std::vector<int> keys;
  for (const auto& [key, control] : controls_by_key_) {
    if (IsShown(control) && IsWindowEnabled(control) != FALSE) keys.push_back(key);
  }
  return keys;
}

int MainForm::KeyOf(HWND control) const {
  for (const auto& [key, candidate] : controls_by_key_) {
    if (candidate == control) return key;
  }
  return 0;
}

HWND MainForm::Control(int key) const {
  const auto found = controls_by_key_.find(key);
  return found == controls_by_key_.end() ? nullptr : found->second;
}

}  // namespace velnor

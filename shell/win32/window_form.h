// The controls of a real window, by id.

#ifndef VELNOR_SHELL_WIN32_WINDOW_FORM_H_
#define VELNOR_SHELL_WIN32_WINDOW_FORM_H_

#include <windows.h>

#include <map>
#include <set>
#include <vector>

#include "base/control.h"
#include "base/form.h"
#include "shell/win32/gdi_canvas.h"

namespace velnor {

// The controls of a window of our own or of a dialog template.
class WindowForm : public Form {
 public:
  explicit WindowForm(HWND window) : window_(window) {}

  std::string ReadText(int id, std::size_t limit) const override;
  void SetText(int id, std::string_view text) override;
  void LimitText(int id, std::size_t limit) override;
  void TakeNumbers(int id) override;
  int ItemCount(int id) const override;
  void FillItems(int id, std::span<const std::string_view> texts) override;
  void AddItems(int id, std::span<const std::string_view> texts) override;
  void ClearItems(int id) override;
  std::string ItemText(int id, int index) const override;
  void SelectItem(int id, int index) override;
  std::optional<int> SelectedItem(int id) const override;
  std::optional<std::string> SelectedText(int id) const override;
  void RemoveSelectedItem(int id) override;
  void RemoveItem(int id, int index) override;
  void Focus(int id) override;
  void SelectAllText(int id) override;
  void SetDefaultButton(int id) override;
  void Scroll(int id, ScrollStep step) override;
  void Show(int key) override;
  void HideAll() override;
  void Close() override;

 protected:
  HWND window() const { return window_; }
  virtual HWND Control(int key) const;

 private:
  HWND window_;
};

// A part of a window, in client pixels.
class Region {
 public:
  Region() = default;
  Region(const Region&) = delete;
  Region& operator=(const Region&) = delete;
  ~Region() { DeleteObject(handle_); }

  HRGN handle() const { return handle_; }

 private:
  HRGN handle_ = CreateRectRgn(0, 0, 0, 0);
};

// The main window's controls, which it creates from the table. Every repaint hides all of them and
// shows those of its screen. Here both are noted only, and carried out around the copying of the
// picture: a control that was there and stays is never hidden, so it does not flicker and keeps
// focus, caret, selection and an open drop-down list.
class MainForm final : public WindowForm {
 public:
  explicit MainForm(HWND main_window) : WindowForm(main_window) {}

  // Creates all controls of the table, hidden. Returns false if the system refuses one.
  bool CreateControls(HINSTANCE instance, GdiResources& resources);

  void Show(int key) override;
  void HideAll() override;

  // The frames that the repaint showed. The picture is to be seen through them.
  std::vector<HWND> ChosenFrames() const;
  // Before the picture is copied: hides what the repaint did not show.
  void HideTheRest();
  // While it is copied: keeps it off the controls that stay, other than frames.
  void ClipTo(HDC context);
  // After that: shows what the repaint showed.
  void ShowChosen() const;

  // The keys of the controls that a person can reach now.
  std::vector<int> UsableKeys() const;
  // The key of a control; 0 for any other window.
  int KeyOf(HWND control) const;
  // By key; null when there is none.
  HWND Find(int key) const { return Control(key); }

 protected:
  HWND Control(int key) const override;

 private:
  std::map<int, HWND> controls_by_key_;
  std::set<HWND> frames_;
  std::set<HWND> chosen_;      // what the repaint in progress shows
  std::vector<HWND> clipped_;  // what region_ keeps the picture off
  Region region_;
};

}  // namespace velnor

#endif  // VELNOR_SHELL_WIN32_WINDOW_FORM_H_

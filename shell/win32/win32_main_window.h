// The main window: turns the platform's messages into calls of the program and the program's wishes
// into calls of the platform. Decides nothing itself.

#ifndef VELNOR_SHELL_WIN32_WIN32_MAIN_WINDOW_H_
#define VELNOR_SHELL_WIN32_WIN32_MAIN_WINDOW_H_

#include <windows.h>

#include <functional>
#include <optional>
#include <vector>

#include "base/clock.h"
#include "base/main_window.h"
#include "shell/painting.h"
#include "shell/program.h"
#include "shell/win32/gdi_canvas.h"
#include "shell/win32/own_menus.h"
#include "shell/win32/screen_keys.h"
#include "shell/win32/win32_message_boxes.h"
#include "shell/win32/window_form.h"

namespace velnor {

// The clock of the machine.
class Win32Clock final : public Clock {
 public:
  Moment Now() const override;
};

class Win32MainWindow final : public MainWindow {
 public:
  explicit Win32MainWindow(HINSTANCE instance);
  Win32MainWindow(const Win32MainWindow&) = delete;
  Win32MainWindow& operator=(const Win32MainWindow&) = delete;

  // Registers the class, creates the window and shows it. Returns false if the system refuses.
  bool Open(int show_command);

  // Serves messages until the window is closed; returns the exit code.
  int RunMessageLoop();

  void Invalidate() override;
  void InvalidateWithoutErasing() override;
  void PaintNow() override;
  void Close() override;
  void EnableMenuItem(int command, bool enabled) override;
  void OpenDialog(int resource_id, std::unique_ptr<Dialog> dialog) override;
  void OpenSessionDialog(int resource_id, std::unique_ptr<Dialog> dialog) override;
  void CloseSessionDialogs() override;
  void RunDialog(int resource_id, Dialog& dialog) override;
  std::optional<std::string> ChooseFile(const FileKind& kind) override;
  std::optional<std::string> ChooseFolder(std::string_view title) override;
  bool OpenGuideFile(std::string_view name) override;
  void OpenHelp(std::string_view file_name) override;
  [[nodiscard]] bool OpenInBrowser(const std::string& path) override;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam);
  bool OnCreate();
  bool OnMouseWheel(WPARAM wparam);
  void OnPaint();
  void OnAccessibility();
  bool TakeFirst(MSG& message);
  std::optional<std::string> Choose(
      const std::function<std::optional<std::string>(HWND owner)>& pick);
  bool DrawInMemory(HDC picture, const Painting& painting);
  void OnActivate(bool active, WPARAM wparam, LPARAM lparam);
  void FocusIfShown(HWND control) const;

  HINSTANCE instance_;
  Win32Clock clock_;
  HBRUSH surface_;  // behind the screens and in the controls; the window class owns it
  HWND window_ = nullptr;
  int client_width_ = 0;
  int client_height_ = 0;
  HWND focus_when_active_ = nullptr;
  HMENU menu_ = nullptr;
  HWND modeless_dialog_ = nullptr;
  std::vector<HWND> session_dialogs_;  // the open ones
  GdiResources resources_;
  MemoryPicture back_buffer_;
  // What the picture in memory shows; nothing: it is not known.
  struct Drawn {
    Painting painting;
    std::vector<HWND> frames;
    bool operator==(const Drawn&) const = default;
  };
  std::optional<Drawn> drawn_;
  std::optional<MainForm> form_;
  std::optional<Win32MessageBoxes> message_boxes_;
  std::optional<Program> program_;
  std::optional<OwnMenus> own_menus_;
  std::optional<ScreenKeys> screen_keys_;
  bool fields_named_ = false;
};

}  // namespace velnor

#endif  // VELNOR_SHELL_WIN32_WIN32_MAIN_WINDOW_H_

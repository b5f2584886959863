// Drives the real velnor.exe from outside, through the messages and input events of the platform,
// as a person or an assistive tool would. Everything the driver starts, it ends.

#ifndef VELNOR_TESTS_DESKTOP_DRIVER_H_
#define VELNOR_TESTS_DESKTOP_DRIVER_H_

#include <windows.h>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velnor::desktop {

// A folder and the files in it, byte by byte.
class Folder {
 public:
  explicit Folder(std::string path) : path_(std::move(path)) {}  // with a separator at its end

  const std::string& path() const { return path_; }
  void Write(const std::string& name, std::string_view bytes) const;
  // The bytes of a file; nothing when there is no such file.
  std::optional<std::string> Read(const std::string& name) const;
  // The names of everything in it, or in a folder in it, sorted.
  std::vector<std::string> Names(const std::string& folder = "") const;

 private:
  std::string path_;
};

// A folder of its own for one run of the program, empty at first and gone with the object.
class WorkFolder : public Folder {
 public:
  WorkFolder();
  WorkFolder(const WorkFolder&) = delete;
  WorkFolder& operator=(const WorkFolder&) = delete;
  ~WorkFolder();
};

// One window of the program with its controls: the main window or a dialog. Controls are addressed
// by id; of several with the same id `nth` chooses one, counted from 0 in the order of creation.
class Window {
 public:
  explicit Window(HWND handle) : handle_(handle) {}

  HWND handle() const { return handle_; }
  std::string Caption() const;
  HWND Control(int id, int nth = 0) const;
  std::vector<HWND> Controls() const;
  bool IsShown(int id, int nth = 0) const;
  // The id of the control with the keyboard focus; 0 when none of the program's has it.
  int FocusedId() const;

  std::string Text(int id) const;
  void SetText(int id, const std::string& text) const;
  // List boxes and combo boxes.
  std::vector<std::string> Items(int id) const;
  std::optional<std::string> Selected(int id) const;
  // Selects the item and tells the window, as a click on it does. False: there is no such item.
  bool Choose(int id, const std::string& item) const;

  // Sends a menu command or a press of a button and returns when it has been carried out.
  void Command(int id, int notification = 0) const;
  // The same without waiting: for what opens a box that waits for an answer.
  void PostCommand(int id) const;

  // Saves what the screen shows of the window as a 24-bit bitmap file.
  void SavePicture(const std::string& path) const;

 private:
  HWND handle_;
};

// A message box of the program while it is open.
struct MessageBoxSeen {
  HWND handle;
  std::string caption;
  std::string text;
};

class App {
 public:
  // Starts velnor.exe (it lies beside this test program) in `folder` and waits for its main window.
  explicit App(const WorkFolder& folder);
  // The same with another copy of the program, by its path.
  App(const std::string& program, const Folder& folder);
  // The same in a folder that may have any name.
  App(const std::string& program, const std::wstring& folder);
  App(const App&) = delete;
  App& operator=(const App&) = delete;
  ~App();

  const Window& main() const { return main_; }
  HANDLE process() const { return process_.hProcess; }
  bool IsRunning() const;
  // Ends the program at once, as a power failure would, and waits until it is gone.
  void Kill() const;
  // The exit code, once the program has ended by itself; nothing when it goes on running.
  std::optional<DWORD> WaitForExit() const;

  // The menu from left to right and top to bottom.
  struct MenuItem {
    int id;  // 0: a separator, -1: a popup, whose items follow
    std::string text;
    bool enabled;
  };
  std::vector<MenuItem> ReadMenu() const;
  // The items of another menu of the program, and where one of them is on the display while its
  // menu is open.
  std::vector<MenuItem> ItemsOf(HMENU menu) const;
  RECT ItemPlace(HMENU menu, UINT position) const;
  // Whether each item of the menu can be chosen, by its command.
  std::map<int, bool> MenuStates() const;

  // The icon of the program, and those that a window was given for its caption, by their handles;
  // 0: none. Wine tells other programs nothing of icons.
  struct Icons {
    DWORD of_program, small_one, big_one;
  };
  Icons IconsOf(HWND window) const;

  // The dialog or message box that is open or opens, other than the dialog `known`; a null handle
  // or an empty box when none comes.
  Window WaitForPopup(const Window& known = Window(nullptr)) const;
  MessageBoxSeen WaitForMessageBox(const Window& known = Window(nullptr)) const;

  // Sends a menu command or a press of a button, to the main window or to the open dialog `window`,
  // and answers every box that it shows with Yes or, where there is no Yes, with OK, until it has
  // been carried out and painted. The texts of the boxes, in order. Not for what opens a dialog.
  std::vector<std::string> CommandAndAnswer(const Window& window, int id) const;

  // Waits until the program has dealt with everything it was sent so far.
  void Settle() const;

 private:
  // Runs a function of the platform with up to five arguments inside the program and returns its
  // result: menus can be read only from within the process they belong to. The program must be
  // idle: Wine breaks into whatever it is doing to start the call, and when that is the taking of
  // memory, as in a paint, neither comes to an end.
  DWORD CallInside(const char* function, std::vector<ULONG_PTR> arguments) const;
  void AppendMenu(ULONG_PTR menu, std::vector<MenuItem>& items) const;

  PROCESS_INFORMATION process_ = {};
  Window main_{nullptr};
};

// The velnor.exe that is driven.
std::string ProgramPath();

// The date as the program writes it, without leading zeros.
std::string Today();

// What the display shows at a point of the window's client area.
COLORREF PixelAt(const Window& window, int x, int y);

// Presses a button of an open box and waits until the box is gone.
void Answer(const MessageBoxSeen& box, int button);

// Looks at the condition again and again; whether it came true before patience ran out. Input
// events arrive in their own time: what they do is waited for.
bool WaitUntil(const std::function<bool()>& condition);

// Whether the window is gone before patience is.
bool WaitUntilGone(HWND window);

// Real input events, which go to whatever window is in front, as from mouse and keyboard.
void ClickOn(HWND control);
void ClickAt(POINT on_display);
void RightClickAt(POINT on_display);
void TurnWheel(int distance);          // negative: towards the person; goes where the focus is
void TypeKeys(std::string_view keys);  // letters, digits and points
enum class KeyModifier { kNone, kAlt, kControl, kShift };
void PressKey(WORD virtual_key, KeyModifier modifier = KeyModifier::kNone);

}  // namespace velnor::desktop

#endif  // VELNOR_TESTS_DESKTOP_DRIVER_H_

// What the program may ask of its main window, beyond the controls on it (those are a Form).

#ifndef VELNOR_BASE_MAIN_WINDOW_H_
#define VELNOR_BASE_MAIN_WINDOW_H_

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "base/dialog.h"

namespace velnor {

// A kind of files to choose from: what it is called and the patterns of its names, as in
// {"Tables (*.csv; *.txt)", "*.csv;*.txt"}.
struct FileKind {
  std::string_view name;
  std::string_view patterns;
};

class MainWindow {
 public:
  virtual ~MainWindow() = default;

  // Asks for a repaint of the whole client area, background included, when the program is idle.
  virtual void Invalidate() = 0;
  // Asks for a repaint without having the background erased first.
  virtual void InvalidateWithoutErasing() = 0;
  // Repaints before returning.
  virtual void PaintNow() = 0;
  // Asks the window to close; nothing is asked and nothing is saved.
  virtual void Close() = 0;

  // Enables or greys a menu item. A command without an item is ignored.
  virtual void EnableMenuItem(int command, bool enabled) = 0;

  // Opens the dialog template `resource_id` and returns at once. The dialog lives until it is
  // closed. Of several open dialogs the newest gets the keyboard's dialog keys; closing any of them
  // leaves none that gets them.
  virtual void OpenDialog(int resource_id, std::unique_ptr<Dialog> dialog) = 0;

  // Opens a dialog that works on the data of the user who is logged in.
  virtual void OpenSessionDialog(int resource_id, std::unique_ptr<Dialog> dialog) = 0;
  // Closes the open ones among these as their cancel buttons do, also one that waits for the answer
  // to a box of its own, which goes with it.
  virtual void CloseSessionDialogs() = 0;

  // Opens the dialog template `resource_id` and waits until it is closed.
  virtual void RunDialog(int resource_id, Dialog& dialog) = 0;

  // Lets the person choose a file that there is, over the dialog they are working in, and waits.
  // Its path, as the files of the program are named; nothing when none was chosen.
  virtual std::optional<std::string> ChooseFile(const FileKind& kind) = 0;

  // The same with a folder; `title` stands above the folders.
  virtual std::optional<std::string> ChooseFolder(std::string_view title) = 0;

  // Opens a text file that lies beside the program or in the start-up folder for reading. Returns
  // false if there is none of that name or nothing opens it.
  virtual bool OpenGuideFile(std::string_view name) = 0;

  // Asks the platform to open a help file of the start-up folder. What a platform without such a
  // file, or without a viewer for it, does is its own affair.
  virtual void OpenHelp(std::string_view file_name) = 0;

  // Opens a page, a file with its whole path, in the person's browser and returns at once. Returns
  // false if the platform knows no browser or cannot start it.
  [[nodiscard]] virtual bool OpenInBrowser(const std::string& path) = 0;
};

}  // namespace velnor

#endif  // VELNOR_BASE_MAIN_WINDOW_H_

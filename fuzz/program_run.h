// One run of the whole program over the tests' stand-ins, for the fuzz targets: files are put into
// a folder of its own, a person logs in, opens screens, types and presses. Everything a run shows
// and leaves behind is looked at on the way. What is found wrong ends the process, as libFuzzer
// wants.

#ifndef VELNOR_FUZZ_PROGRAM_RUN_H_
#define VELNOR_FUZZ_PROGRAM_RUN_H_

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "base/main_window.h"
#include "shell/program.h"
#include "tests/support/fake_form.h"
#include "tests/support/program_fixture.h"
#include "tests/support/recording_canvas.h"
#include "tests/support/temporary_folder.h"

namespace velnor {

// Ends the process when `holds` is false; `what` says what should have held.
void Require(bool holds, std::string_view what);

// The bytes that libFuzzer hands over.
std::string_view InputText(const std::uint8_t* data, std::size_t size);

// What stands before the next `divider`, which is taken off `rest` with it; all of `rest` when
// there is none.
std::string_view TakeUpTo(char divider, std::string_view& rest);

// The user who logs in where a target names no other.
inline constexpr const char* kFuzzUser = "Ann";
inline constexpr const char* kFuzzProfile = "35\r\n170\r\nwomen\r\nlow\r\nnone";

class ProgramRun final : private MainWindow {
 public:
  // Names of files, those of folders with a slash at the end, and the bytes they hold.
  using Files = std::map<std::string, std::string>;

  ProgramRun();
  ProgramRun(const ProgramRun&) = delete;
  ProgramRun& operator=(const ProgramRun&) = delete;
  // Makes sure that nothing was left outside of the start-up folder.
  ~ProgramRun() override;

  // The start-up folder. Names are relative to it.
  std::string Path(const std::string& name) const { return base_folder_ + name; }
  void Write(const std::string& name, std::string_view bytes);
  std::string Read(const std::string& name) const;
  Files AllFiles() const;
  // Makes sure that no file but those named has come, gone or changed since. Histories may have
  // grown; copies are nobody's business here.
  void RequireUnchanged(const Files& before, std::initializer_list<std::string_view> but) const;

  // A registered user with complete data.
  void MakeUser(const std::string& name = kFuzzUser, std::string_view profile = kFuzzProfile);

  void Start();
  void LogIn(const std::string& name = kFuzzUser);
  // Chooses a menu item; greyed ones do nothing.
  void Choose(int command);
  // Chooses a menu item and paints the screen that follows.
  RecordingCanvas Open(int command);
  // Presses a button of the main window.
  void Press(int id);
  // Takes what a single-line edit would take of `text`: everything before the first line end.
  static std::string OneLine(std::string_view text);
  // Lets what was asked for happen: the repaint, and the end of the dialogs that closed.
  void Settle();
  // Paints the current screen, wanted or not.
  RecordingCanvas Repaint();

  Program& program() { return *program_; }
  FakeForm& form() { return form_; }
  FakeMessageBoxes& boxes() { return boxes_; }
  // The dialog that was opened last, or brought to the front; null when none is open.
  FakeForm* dialog() { return dialogs_.empty() ? nullptr : &dialogs_.back().form; }
  int dialog_resource() const { return dialogs_.empty() ? 0 : dialogs_.back().resource_id; }
  void BringLastDialogToFront();
  // Presses a button of that dialog, and settles.
  void PressInDialog(int id);

  // From here on figures may be no numbers: the input can hold what makes them so.
  void AllowNoNumbers() { figures_are_numbers_ = false; }

 private:
  struct OpenedDialog {
    int resource_id = 0;
    std::unique_ptr<Dialog> dialog = {};
    FakeForm form = {};
    bool is_of_session = false;
  };

  void Invalidate() override { wants_repaint_ = true; }
  void InvalidateWithoutErasing() override { wants_repaint_ = true; }
  void PaintNow() override { Repaint(); }
  void Close() override {}
  void EnableMenuItem(int command, bool enabled) override { menu_[command] = enabled; }
  void OpenDialog(int resource_id, std::unique_ptr<Dialog> dialog) override;
  void OpenSessionDialog(int resource_id, std::unique_ptr<Dialog> dialog) override;
  void CloseSessionDialogs() override;
  void RunDialog(int resource_id, Dialog& dialog) override;
  std::optional<std::string> ChooseFile(const FileKind&) override { return std::nullopt; }
  std::optional<std::string> ChooseFolder(std::string_view) override { return std::nullopt; }
  bool OpenGuideFile(std::string_view) override { return true; }
  void OpenHelp(std::string_view) override {}
  [[nodiscard]] bool OpenInBrowser(const std::string&) override { return true; }

  void RequireNumbers(const RecordingCanvas& canvas) const;

  TemporaryFolder outer_;
  std::string base_folder_;
  FakeForm form_;
  FakeMessageBoxes boxes_;
  std::map<int, bool> menu_;
  bool wants_repaint_ = true;
  bool figures_are_numbers_ = true;
  std::optional<Program> program_;
  std::list<OpenedDialog> dialogs_;
};

}  // namespace velnor

#endif  // VELNOR_FUZZ_PROGRAM_RUN_H_

// The whole program over stand-ins: every test gets its own, in an empty folder of its own.

#ifndef VELNOR_TESTS_SUPPORT_PROGRAM_FIXTURE_H_
#define VELNOR_TESTS_SUPPORT_PROGRAM_FIXTURE_H_

#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "shell/program.h"
#include "tests/support/fake_form.h"
#include "tests/support/recording_canvas.h"
#include "tests/support/temporary_folder.h"

namespace velnor {

// Keeps what the program asked of its main window.
class FakeMainWindow final : public MainWindow {
 public:
  void Invalidate() override { log.emplace_back("invalidate"); }
  void InvalidateWithoutErasing() override { log.emplace_back("invalidate without erasing"); }
  void PaintNow() override {
    log.emplace_back("paint now");
    if (on_paint_now) on_paint_now();
  }
  void Close() override { log.emplace_back("close"); }
  void EnableMenuItem(int command, bool enabled) override { menu[command] = enabled; }
  void OpenDialog(int resource_id, std::unique_ptr<Dialog> dialog) override {
    log.push_back("open " + std::to_string(resource_id));
    opened = std::move(dialog);
    opened_resource = resource_id;
  }
  void OpenSessionDialog(int resource_id, std::unique_ptr<Dialog> dialog) override;
  void CloseSessionDialogs() override;
  void RunDialog(int resource_id, Dialog& dialog) override;
  std::optional<std::string> ChooseFile(const FileKind& kind) override {
    log.push_back("choose " + std::string(kind.patterns));
    return file_to_choose;
  }
  std::optional<std::string> ChooseFolder(std::string_view title) override {
    log.push_back("choose folder: " + std::string(title));
    return folder_to_choose;
  }
  bool OpenGuideFile(std::string_view name) override {
    log.push_back("guide " + std::string(name));
    return name == guide;
  }
  void OpenHelp(std::string_view file_name) override {
    log.push_back("help " + std::string(file_name));
  }
  [[nodiscard]] bool OpenInBrowser(const std::string& path) override {
    log.push_back("browse " + path);
    return has_browser;
  }

  // The dialog opened last has these controls: those of its template, as new.
  void UseForm(FakeForm& form);

  bool has_browser = true;
  std::vector<std::string> log;
  std::optional<std::string> file_to_choose;  // what the person will choose
  std::optional<std::string> folder_to_choose;
  std::function<void()> on_paint_now;
  std::string guide;               // the file that can be opened as the guide
  std::map<int, bool> menu;        // command to whether it can be chosen
  std::shared_ptr<Dialog> opened;  // the last one
  int opened_resource = 0;         // its template

  // Those of the session, as far as they are open; forms of those that are belong to the test.
  struct SessionDialog {
    std::shared_ptr<Dialog> dialog;
    FakeForm* form = nullptr;
  };
  std::vector<SessionDialog> session_dialogs;
};

// Keeps the boxes that were shown; answers with OK, or to a question with what the test has set.
class FakeMessageBoxes final : public MessageBoxes {
 public:
  struct Shown {
    std::string text;
    std::string caption;
    MessageButtons buttons;
    MessageIcon icon;
    MessageOwner owner;
  };

  Answer Show(const Message& message) override {
    shown.push_back({std::string(message.text), std::string(message.caption), message.buttons,
                     message.icon, message.owner});
    if (while_open) while_open();
    return message.buttons == MessageButtons::kOk ? Answer::kOk : answer;
  }

  // The texts of the boxes since the last call, in order.
  std::vector<std::string> TakeTexts() {
    std::vector<std::string> texts;
    for (const Shown& box : shown) texts.push_back(box.text);
    shown.clear();
    return texts;
  }

  Answer answer = Answer::kYes;
  std::function<void()> while_open;  // what happens before the person answers
  std::vector<Shown> shown;
};

inline constexpr const char* kTestDate = "16.11.2026";

class ProgramTest : public testing::Test {
 protected:
  ProgramTest();

  // Starts the program, on that day; files of the folder are written before.
  Program& Start(const std::string& date = kTestDate);
  // The repaint that follows a change of screen, and what the program does after it.
  RecordingCanvas Repaint();
  // Chooses the command and repaints.
  RecordingCanvas Open(int command);
  // Chooses the command, or presses the button, that opens a dialog over `form`, which becomes one
  // of its controls.
  void OpenDialog(int command, FakeForm& form);
  // Logs `name` in, whose folder is made when it is missing and whose profile gets these five
  // lines; starts the program when nothing has. Boxes of the login are not kept.
  void LogIn(const std::string& name, const std::string& profile);

  TemporaryFolder folder_;
  FakeForm form_;
  FakeMainWindow window_;
  FakeMessageBoxes boxes_;
  std::optional<Program> program_;
};

}  // namespace velnor

#endif  // VELNOR_TESTS_SUPPORT_PROGRAM_FIXTURE_H_

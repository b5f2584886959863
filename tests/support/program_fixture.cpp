#include "tests/support/program_fixture.h"

#include <algorithm>
#include <filesystem>

#include "shell/screens.h"

namespace velnor {

void FakeMainWindow::OpenSessionDialog(int resource_id, std::unique_ptr<Dialog> dialog) {
  OpenDialog(resource_id, std::move(dialog));
  session_dialogs.push_back({.dialog = opened});
}

void FakeMainWindow::CloseSessionDialogs() {
  const std::vector<SessionDialog> open = std::exchange(session_dialogs, {});
  for (const auto& [dialog, form] : open) {
    if (form != nullptr) dialog->OnCommand(*form, kCancelButton, kButtonClicked);
  }
}

void FakeMainWindow::UseForm(FakeForm& form) {
  form = FakeForm();
  form.AddDialogControls(opened_resource);
  const auto of_session = std::ranges::find(session_dialogs, opened, &SessionDialog::dialog);
  if (of_session != session_dialogs.end()) of_session->form = &form;
  const std::weak_ptr<Dialog> dialog = opened;
  form.SetListener([this, dialog, &form](int id, int notification) {
    const std::shared_ptr<Dialog> open = dialog.lock();
    if (open == nullptr) return;
    open->OnCommand(form, id, notification);
    const bool is_closed = std::ranges::find(form.Log(), "close") != form.Log().end();
    if (is_closed)
      std::erase_if(session_dialogs, [&](const auto& of) { return of.dialog == open; });
  });
}

void FakeMainWindow::RunDialog(int resource_id, Dialog& dialog) {
  // The person presses OK at once.
  FakeForm form;
  dialog.OnOpen(form);
  dialog.OnCommand(form, kOkButton, kButtonClicked);
  log.push_back("dialog " + std::to_string(resource_id) + ' ' +
                (form.Log() == std::vector<std::string>{"close"} ? "closed" : "left open"));
}

ProgramTest::ProgramTest() { form_.AddMainWindowControls(); }

Program& ProgramTest::Start(const std::string& date) {
  window_.session_dialogs.clear();
  Program& program = program_.emplace(folder_.path(), date, form_, window_, boxes_);
  form_.SetListener([&program](int id, int notification) { program.OnCommand(id, notification); });
  program.Start();
  return program;
}

RecordingCanvas ProgramTest::Repaint() {
  RecordingCanvas canvas;
  program_->PreparePaint();
  program_->Paint(canvas);
  program_->FinishPaint();
  return canvas;
}

RecordingCanvas ProgramTest::Open(int command) {
  program_->OnCommand(command, kButtonClicked);
  return Repaint();
}

void ProgramTest::OpenDialog(int command, FakeForm& form) {
  window_.opened.reset();
  if (std::ranges::find(MainWindowControls(), command, &ControlRow::id) !=
      MainWindowControls().end()) {
    form_.Press(command);
  } else {
    program_->OnCommand(command, kButtonClicked);
  }
  ASSERT_NE(window_.opened, nullptr) << "command " << command << " opened no dialog";
  window_.UseForm(form);
  window_.opened->OnOpen(form);
}

void ProgramTest::LogIn(const std::string& name, const std::string& profile) {
  std::filesystem::create_directory(folder_.path() + name);
  folder_.Write("users.ASC", name);
  folder_.Write(name + "/info.ASC", profile);
  if (!program_) Start();
  FakeForm login;
  OpenDialog(200, login);
  login.Choose(700, name);
  login.Press(1);
  boxes_.TakeTexts();
}

}  // namespace velnor

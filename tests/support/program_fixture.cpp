#include "tests/support/program_fixture.h"

#include <filesystem>

namespace velnor {

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
  Program& program = program_.emplace(folder_.path(), date, form_, window_, boxes_);
  form_.SetListener([&program](int id, int notification) { program.OnCommand(id, notification); });
  program.Start();
  return program;
}

RecordingCanvas ProgramTest::Repaint() {
  RecordingCanvas canvas;
  program_->HideControls();
  program_->Paint(canvas);
  program_->FinishPaint();
  return canvas;
}

RecordingCanvas ProgramTest::Open(int command) {
  program_->OnCommand(command, kButtonClicked);
  return Repaint();
}

void ProgramTest::OpenDialog(int command, FakeForm& form) {
  program_->OnCommand(command, kButtonClicked);
  ASSERT_NE(window_.opened, nullptr) << "command " << command << " opened no dialog";
  Dialog& dialog = *window_.opened;
  form.SetListener(
      [&dialog, &form](int id, int notification) { dialog.OnCommand(form, id, notification); });
  dialog.OnOpen(form);
}

void ProgramTest::LogIn(const std::string& name, const std::string& profile) {
  std::filesystem::create_directory(folder_.path() + name);
  folder_.Write("users.ASC", name);
  folder_.Write(name + "/info.ASC", profile);
  if (!program_) Start();
  FakeForm login;
  login.AddControl(700, ControlClass::kListBox, control_style::kSortedList);
  OpenDialog(200, login);
  login.Choose(700, name);
  login.Press(1);
  boxes_.TakeTexts();
}

}  // namespace velnor

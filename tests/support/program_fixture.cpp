#include "tests/support/program_fixture.h"

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

Program& ProgramTest::Start() {
  Program& program = program_.emplace(folder_.path(), kTestDate, form_, window_, boxes_);
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

}  // namespace velnor

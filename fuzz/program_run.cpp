#include "fuzz/program_run.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <utility>

#include "shell/screens.h"
#include "tests/support/resource_script.h"
#include "users/backup.h"
#include "users/user_files.h"

namespace velnor {
namespace {

constexpr const char* kBaseFolder = "base";
constexpr int kOpenLogin = 200;
constexpr int kUsers = 700;

std::string ReadAll(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

void Require(bool holds, std::string_view what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %.*s\n", static_cast<int>(what.size()), what.data());
  std::abort();
}

std::string_view InputText(const std::uint8_t* data, std::size_t size) {
  return size == 0 ? std::string_view()
                   : std::string_view(reinterpret_cast<const char*>(data), size);
}

std::string_view TakeUpTo(char divider, std::string_view& rest) {
  const std::size_t end = std::min(rest.find(divider), rest.size());
  const std::string_view taken = rest.substr(0, end);
  rest.remove_prefix(std::min(end + 1, rest.size()));
  return taken;
}

ProgramRun::ProgramRun() : base_folder_(outer_.path() + kBaseFolder + '/') {
  // What the stand-ins do not allow, such as showing a control that does not exist, ends the run.
  testing::GTEST_FLAG(throw_on_failure) = true;
  std::filesystem::create_directory(base_folder_);
  form_.AddMainWindowControls();
  // A box lets the repaints of the window behind it through.
  boxes_.while_open = [this] { Repaint(); };
}

ProgramRun::~ProgramRun() {
  dialogs_.clear();
  Require(outer_.Names() == std::vector<std::string>{kBaseFolder},
          "nothing is written outside of the start-up folder");
}

void ProgramRun::Write(const std::string& name, std::string_view bytes) {
  // Much of what stands in the files is shown as it stands there.
  if (bytes.find("nan") != std::string_view::npos) AllowNoNumbers();
  std::ofstream(Path(name), std::ios::binary) << bytes;
}

std::string ProgramRun::Read(const std::string& name) const { return ReadAll(Path(name)); }

ProgramRun::Files ProgramRun::AllFiles() const {
  Files files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(base_folder_)) {
    const std::string name = entry.path().string().substr(base_folder_.size());
    if (entry.is_directory()) {
      files[name + '/'] = "";
    } else {
      files[name] = ReadAll(entry.path());
    }
  }
  return files;
}

void ProgramRun::RequireUnchanged(const Files& before,
                                  std::initializer_list<std::string_view> but) const {
  Files was = before;
  Files is = AllFiles();
  for (const std::string_view name : but) {
    was.erase(std::string(name));
    is.erase(std::string(name));
  }
  for (const auto& [name, bytes] : is) {
    if (name.starts_with(kCopiesFolder)) continue;
    const auto old = was.find(name);
    if (name.ends_with(kHistoryFile)) {
      Require(bytes.starts_with(old == was.end() ? "" : old->second), "a history only grows");
      if (old != was.end()) was.erase(old);
      continue;
    }
    Require(old != was.end(), "no file comes into being: " + name);
    Require(old->second == bytes, "a file of others stays as it was: " + name);
    was.erase(old);
  }
  std::erase_if(was, [](const auto& file) { return file.first.starts_with(kCopiesFolder); });
  Require(was.empty(), "no file goes");
}

void ProgramRun::MakeUser(const std::string& name, std::string_view profile) {
  std::filesystem::create_directory(Path(name));
  Write("users.ASC", name);
  Write(name + "/info.ASC", profile);
}

void ProgramRun::Start() {
  MainWindow& window = *this;
  program_.emplace(base_folder_, kTestDate, form_, window, boxes_);
  form_.SetListener([this](int id, int notification) { program_->OnCommand(id, notification); });
  program_->Start();
  Settle();
}

void ProgramRun::LogIn(const std::string& name) {
  Choose(kOpenLogin);
  Require(dialog() != nullptr, "the login opens");
  dialog()->Choose(kUsers, name);
  PressInDialog(kOkButton);
  Require(program_->session().user && program_->session().user->name() == name,
          "the chosen user is logged in");
}

void ProgramRun::Choose(int command) {
  const auto item = menu_.find(command);
  if (item != menu_.end() && !item->second) return;
  program_->OnCommand(command, kButtonClicked);
  Settle();
}

RecordingCanvas ProgramRun::Open(int command) {
  program_->OnCommand(command, kButtonClicked);
  return Repaint();
}

void ProgramRun::Press(int id) {
  form_.Press(id);
  Settle();
}

std::string ProgramRun::OneLine(std::string_view text) {
  return std::string(text.substr(0, text.find_first_of(std::string_view("\r\n\0", 3))));
}

void ProgramRun::Settle() {
  if (wants_repaint_) Repaint();
  dialogs_.remove_if([](const OpenedDialog& opened) {
    return std::ranges::find(opened.form.Log(), "close") != opened.form.Log().end();
  });
  boxes_.shown.clear();
}

RecordingCanvas ProgramRun::Repaint() {
  RecordingCanvas canvas;
  wants_repaint_ = false;
  program_->PreparePaint();
  program_->Paint(canvas);
  if (figures_are_numbers_) RequireNumbers(canvas);
  program_->FinishPaint();
  return canvas;
}

void ProgramRun::BringLastDialogToFront() {
  if (dialogs_.size() > 1) dialogs_.splice(dialogs_.end(), dialogs_, dialogs_.begin());
}

void ProgramRun::PressInDialog(int id) {
  if (dialog() == nullptr) return;
  dialog()->Press(id);
  Settle();
}

void ProgramRun::OpenDialog(int resource_id, std::unique_ptr<Dialog> dialog) {
  OpenedDialog& opened = dialogs_.emplace_back();
  opened.resource_id = resource_id;
  opened.dialog = std::move(dialog);
  opened.form.AddDialogControls(resource_id);
  opened.form.SetListener([&opened](int id, int notification) {
    opened.dialog->OnCommand(opened.form, id, notification);
  });
  opened.dialog->OnOpen(opened.form);
}

void ProgramRun::OpenSessionDialog(int resource_id, std::unique_ptr<Dialog> dialog) {
  OpenDialog(resource_id, std::move(dialog));
  dialogs_.back().is_of_session = true;
}

void ProgramRun::CloseSessionDialogs() {
  for (OpenedDialog& opened : dialogs_) {
    if (opened.is_of_session) opened.form.Press(kCancelButton);
  }
}

void ProgramRun::RunDialog(int, Dialog& dialog) {
  FakeForm window;
  dialog.OnOpen(window);
  dialog.OnCommand(window, kOkButton, kButtonClicked);
}

void ProgramRun::RequireNumbers(const RecordingCanvas& canvas) const {
  const auto is_no_number = [](std::string_view text) { return text.ends_with("nan"); };
  for (const DrawnText& drawn : canvas.texts) {
    Require(!is_no_number(drawn.text), "a painted figure is a number: " + drawn.text);
  }
  for (const ControlRow& row : MainWindowControls()) {
    if (row.control_class != ControlClass::kStatic) continue;
    Require(!is_no_number(form_.Text(row.id())), "a shown figure is a number");
  }
}

}  // namespace velnor

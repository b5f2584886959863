#include "tests/faults/scene.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "base/text_file.h"
#include "shell/own_menu.h"
#include "users/backup.h"

namespace velnor {
namespace {

constexpr Scene::StartFile kFilesOfTheFolder[] = {
    {"users.ASC", "Ann\r\nBob"},
    {"data.txt", "fish;smoked;old eel;100;279;19;22;0;\r\nfish;smoked;old carp;100;110;18;4.2;0;"},
};

constexpr Scene::StartFile kFilesOfAPerson[] = {
    {"info.ASC", "35\r\n170\r\nwomen\r\nlow\r\nnone"},
    {"bilans.ASC", "16.11.2026\r\n500.\r\n20.\r\n10.\r\n80."},
    {"z1.ASC", "8."},
    {"z2.ASC", "1.7"},
    {"wykoda.txt", "15.11.2026;1800.;70.;60.;200.;\r\n16.11.2026;500.;20.;10.;80.;\r\n"},
    {"wykwag.txt", "15.11.2026;71;24.56;\r\n16.11.2026;70.5;24.39;\r\n"},
    {"waga.ASC", "date: 16.11.2026\tbody weight[kg]: 70.5\tBMI: 24.39\tother: \t\r\nby hand"},
    {"whr.ASC", "by hand"},
    {"mirvo.ASC", "by hand"},
    {"zestaw.ASC", "by hand"},
    {"cwiczenia.ASC", "by hand"},
    {"zapot.ASC", "1\r\n2000\r\n2500\r\n60\r\n80\r\n50\r\n70\r\n200\r\n300\r\n"},
    {"erg.txt", "16.11.2026;250.;"},
};

// Below `folder`, which ends with a separator.
Files FilesBelow(const std::string& folder) {
  Files files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    const std::string name = entry.path().string().substr(folder.size());
    if (entry.is_directory()) {
      files[name] = "folder";
      continue;
    }
    std::ifstream file(entry.path(), std::ios::binary);
    files[name].assign(std::istreambuf_iterator<char>(file), {});
  }
  return files;
}

}  // namespace

const std::string& Snapshot::At(const std::string& path) const {
  static const std::string kMissing = "(missing)";
  const auto found = files.find(path);
  return found == files.end() ? kMissing : found->second;
}

void Scene::Arrange() {
  WriteStartFiles(kFilesOfTheFolder, "");
  ArrangePerson("Ann");
}

void Scene::ArrangePerson(const std::string& name) {
  std::filesystem::create_directory(folder_.path() + name);
  WriteStartFiles(kFilesOfAPerson, name + '/');
}

void Scene::WriteStartFiles(std::span<const StartFile> files, const std::string& folder) {
  for (const auto& [name, bytes] : files) {
    folder_.Write(folder + name, bytes);
    folder_.Write(TemporaryPath(folder + name), kLeftover);
  }
}

void Scene::Restart() {
  window_.opened.reset();
  program_.reset();
  form_ = FakeForm();
  form_.AddMainWindowControls();
  dialog_ = FakeForm();
  boxes_.TakeTexts();
  window_.log.clear();
  Start();
}

FakeForm& Scene::Dialog(int command) {
  OpenDialog(command, dialog_);
  return dialog_;
}

FakeForm& Scene::OwnDialog(int item) {
  RunOwnMenuItem(program_->parts(), item);
  window_.UseForm(dialog_);
  window_.opened->OnOpen(dialog_);
  return dialog_;
}

void Scene::LogIn(const std::string& name) {
  FakeForm& login = Dialog(200);
  if (std::ranges::find(login.Items(700), name) == login.Items(700).end()) return;
  login.Choose(700, name);
  login.Press(1);
}

void Scene::CountBmi(const std::string& weight) {
  Open(221);
  form_.Type(101, weight);
  form_.Press(102);
  Repaint();
}

Snapshot Scene::Look() const {
  Snapshot snapshot;
  for (const auto& [name, bytes] : FilesBelow(folder_.path())) {
    if (name.starts_with(kCopiesFolder)) continue;
    (name.ends_with(".new") ? snapshot.temporaries : snapshot.files)[name] = bytes;
  }
  const std::filesystem::path copies = folder_.path() + std::string(kCopiesFolder);
  if (!std::filesystem::exists(copies)) return snapshot;
  for (const auto& copy : std::filesystem::directory_iterator(copies)) {
    if (copy.path().extension() == ".part") continue;
    snapshot.copies[copy.path().filename()] = FilesBelow(copy.path().string() + '/');
  }
  return snapshot;
}

void Scene::RemoveFile(const std::string& name) const {
  std::filesystem::remove(folder_.path() + name);
}

}  // namespace velnor

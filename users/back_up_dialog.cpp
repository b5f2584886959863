#include "users/back_up_dialog.h"

#include <optional>
#include <string>

#include "base/file_calls.h"
#include "base/path_field.h"
#include "users/backup.h"

namespace velnor {
namespace {

constexpr std::string_view kTitleOfChoice = "Choose the folder for the copy";
constexpr std::string_view kNoPath = "Choose the folder for the copy first.";
constexpr std::string_view kNoFolder = "There is no such folder:\n";
constexpr std::string_view kNotMade =
    "The copy could not be made; nothing is left of it.\n"
    "Is the disk full or write-protected? The folder:\n";

std::string Done(const CopySize& size, const std::string& path) {
  return std::to_string(size.files) + (size.files == 1 ? " file was" : " files were") +
         " copied and read back. The copy is in\n" + path;
}

}  // namespace

void BackUpDialog::OnOpen(Form& form) {
  form.LimitText(kPathField, kPathLimit);
  form.Focus(kPathField);
}

void BackUpDialog::OnCommand(Form& form, int id, int notification) {
  if (id == kBrowseButton && notification == kButtonClicked) Browse(form);
  if (id == kOkButton && notification == kButtonClicked) BackUp(form);
  if (id == kCancelButton) form.Close();
}

void BackUpDialog::Browse(Form& form) {
  const std::optional<std::string> folder = window_.ChooseFolder(kTitleOfChoice);
  if (folder) form.SetText(kPathField, *folder);
}

void BackUpDialog::BackUp(Form& form) {
  const std::string typed = PathIn(form);
  if (typed.empty()) {
    Say(kNoPath);
    return;
  }
  const std::string folder = WithSeparator(typed);
  if (!HasFolder(folder)) {
    Say(std::string(kNoFolder) + typed);
    return;
  }
  const std::optional<NewCopy> copy =
      MakeCopyIn(session_.base_folder, folder, session_.clock->Now().date);
  if (!copy) {
    Say(std::string(kNotMade) + typed);
    return;
  }
  Say(Done(copy->size, copy->path));
  form.Close();
}

void BackUpDialog::Say(std::string_view text) {
  message_boxes_.Show({.text = text, .owner = MessageOwner::kDialog});
}

}  // namespace velnor

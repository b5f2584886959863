#include "users/restore_dialog.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>
#include <string>
#include <utility>

#include "base/path_field.h"
#include "res/ids.h"
#include "users/restore.h"

namespace velnor {
namespace {

constexpr int kCopies = ID_RESTORE_COPIES;

constexpr std::string_view kTitleOfChoice = "Choose the folder that is a copy";
constexpr std::string_view kNoPath = "Choose a copy first.";
constexpr std::string_view kNoCopy = "This folder is no copy that can be read:\n";
constexpr std::string_view kBehindQuestion =
    "\n\nEverything is copied before as it is now,\n"
    "and can be restored in the same way. Restore?";

constexpr std::uint64_t kBytesOfKilobyte = 1024;

// In the order of the answers.
constexpr std::string_view kAnswers[] = {
    "The copy is restored. Please log in.",
    "The state of now could not be copied, so nothing was restored.\n"
    "Is the disk full, or the folder \"kopie zapasowe\" write-protected?",
    "The list of users would be too long. Nothing was restored.\n"
    "Remove some user first.",
    "The files could not be written. Nothing was restored.",
};

// "2026-11-21 13:05:09" for a moment; the day alone for the copy of a day.
std::string ShownName(std::string name) {
  constexpr std::size_t kHourEnd = 13;
  constexpr std::size_t kMinuteEnd = 16;
  if (name.size() <= kHourEnd) return name;
  return name.insert(kHourEnd, ":").insert(kMinuteEnd, ":");
}

std::string Line(const ListedCopy& copy) {
  std::string line = ShownName(copy.name) + "   " + copy.people + "   " +
                     std::to_string((copy.size.bytes + kBytesOfKilobyte - 1) / kBytesOfKilobyte) +
                     " kB";
  if (!copy.about.empty()) line += "   before: " + copy.about;
  return line;
}

std::string QuestionAbout(const ReadCopy& copy) {
  std::string text = "The files of " + PeopleOf(copy);
  if (copy.people.empty()) text = "The list of users";
  if (!copy.people.empty() && !copy.shared.empty()) text += ", the list of users";
  if (!copy.shared.empty()) text += " and the products of your own";
  return text + "\nare replaced by those of the copy." + std::string(kBehindQuestion);
}

}  // namespace

RestoreDialog::RestoreDialog(const SessionState& session, MainWindow& window,
                             MessageBoxes& message_boxes, std::function<void()> on_restored)
    : session_(session),
      window_(window),
      message_boxes_(message_boxes),
      on_restored_(std::move(on_restored)) {}

void RestoreDialog::OnOpen(Form& form) {
  form.LimitText(kPathField, kPathLimit);
  copies_ = ListCopies(session_.base_folder);
  std::vector<std::string> lines;
  std::ranges::transform(copies_, std::back_inserter(lines), Line);
  form.FillItems(kCopies, Views(lines));
  form.Focus(kCopies);
}

void RestoreDialog::OnCommand(Form& form, int id, int notification) {
  if (id == kCopies && notification == kSelectionChanged) {
    const std::optional<int> chosen = form.SelectedItem(kCopies);
    if (chosen) form.SetText(kPathField, copies_[static_cast<std::size_t>(*chosen)].path);
  }
  if (id == kBrowseButton && notification == kButtonClicked) Browse(form);
  if (id == kOkButton && notification == kButtonClicked) BringBack(form);
  if (id == kCancelButton) form.Close();
}

void RestoreDialog::Browse(Form& form) {
  const std::optional<std::string> folder = window_.ChooseFolder(kTitleOfChoice);
  if (folder) form.SetText(kPathField, *folder);
}

void RestoreDialog::BringBack(Form& form) {
  const std::string typed = PathIn(form);
  if (typed.empty()) {
    Say(kNoPath);
    return;
  }
  const std::optional<ReadCopy> copy = ReadCopyIn(WithSeparator(typed));
  if (!copy) {
    Say(std::string(kNoCopy) + typed);
    return;
  }
  const Answer answer = message_boxes_.Show({.text = QuestionAbout(*copy),
                                             .buttons = MessageButtons::kYesNo,
                                             .icon = MessageIcon::kQuestion,
                                             .owner = MessageOwner::kDialog});
  if (answer != Answer::kYes) return;
  const RestoreAnswer result = Restore(session_, *copy);
  if (result == RestoreAnswer::kRestored) on_restored_();
  Say(kAnswers[static_cast<std::size_t>(result)]);
  if (result == RestoreAnswer::kRestored) form.Close();
}

void RestoreDialog::Say(std::string_view text) {
  message_boxes_.Show({.text = text, .owner = MessageOwner::kDialog});
}

}  // namespace velnor

#include "users/users_dialog.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "base/file_calls.h"
#include "base/transaction.h"
#include "res/ids.h"
#include "users/profile.h"
#include "users/user_files.h"
#include "users/user_registry.h"

namespace velnor {
namespace {

constexpr int kUsers = ID_USER_LIST;
constexpr int kName = ID_USERS_NAME;
constexpr int kAdd = ID_USERS_ADD;
constexpr int kRemove = ID_USERS_REMOVE;

constexpr std::size_t kTypedLimit = 127;

constexpr std::string_view kNoName = "The name of the user must\ncontain at least 1 sign";
constexpr std::string_view kForbidden =
    "The name contain forbidden signs\n"
    "         space + -  / . ; ~ ` > < | : tab ! @ # $ % ^ & * ( ) \"";
constexpr std::string_view kTooLong = "The name of the user can\ncontain at most 99 signs";
constexpr std::string_view kSameFolder =
    "The name differs only in small and capital\nletters from ";
constexpr std::string_view kListFull = "The list of users is full\nRemove some user first";
constexpr std::string_view kNotWritten = "The list of users could not be written";

UserRegistry Listed(const Form& form) {
  UserRegistry registry;
  for (int i = 0; i < form.ItemCount(kUsers); ++i) {
    registry.names.push_back(form.ItemText(kUsers, i));
  }
  return registry;
}

// The names without as many of each as there are in `taken`.
std::vector<std::string> Without(std::vector<std::string> names,
                                 const std::vector<std::string>& taken) {
  for (const std::string& name : taken) {
    const auto found = std::ranges::find(names, name);
    if (found != names.end()) names.erase(found);
  }
  return names;
}

// Users added behind a box move the entries below them. -1: the name is not listed any more.
int IndexOf(const Form& form, std::string_view name) {
  int index = form.ItemCount(kUsers) - 1;
  while (index >= 0 && form.ItemText(kUsers, index) != name) --index;
  return index;
}

}  // namespace

UsersDialog::UsersDialog(SessionState& session, SafetyCopies& copies, MainWindow& window,
                         MessageBoxes& message_boxes, std::function<void()> on_removed)
    : session_(session),
      copies_(copies),
      window_(window),
      message_boxes_(message_boxes),
      on_removed_(std::move(on_removed)) {}

void UsersDialog::OnOpen(Form& form) {
  opened_ = ReadUserRegistry(session_.BaseFile(kRegistryFile));
  form.LimitText(kName, kTypedLimit);
  form.Focus(kName);
  if (opened_) form.FillItems(kUsers, Views(opened_->names));
}

void UsersDialog::OnCommand(Form& form, int id, int notification) {
  if (id == kUsers && notification == kSelectionChanged) {
    form.SetText(kName, form.SelectedText(kUsers).value_or(""));
  }
  if (id == kName) ChooseDefaultButton(form, notification);
  if (id == kAdd && notification == kButtonClicked) Add(form);
  if (id == kRemove && notification == kButtonClicked) Remove(form);
  if (id == kOkButton && notification == kButtonClicked) Confirm(form);
  if (id == kCancelButton) form.Close();
}

// Enter in the name adds it, elsewhere it is OK. A selection in the list fills the name, too, and
// must not be added again.
void UsersDialog::ChooseDefaultButton(Form& form, int notification) {
  if (notification == kEditEntered) is_in_name_ = true;
  if (notification == kEditLeft) is_in_name_ = false;
  const bool adds = is_in_name_ && !form.ReadText(kName, 1).empty();
  form.SetDefaultButton(adds ? kAdd : kOkButton);
}

// A name that is listed already is taken all the same, and its files become empty.
void UsersDialog::Add(Form& form) {
  const std::string name = form.ReadText(kName, kTypedLimit);
  if (!Accept(form, name)) return;
  form.AddItem(kUsers, name);
  copies_.MakeBefore("add user", name);
  CreateUserFiles(session_, name);
  form.SetText(kName, "");
}

bool UsersDialog::Accept(const Form& form, const std::string& name) {
  if (name.empty()) {
    Complain(kNoName);
    return false;
  }
  const std::size_t forbidden = CountForbiddenSigns(name);
  for (std::size_t i = 0; i < forbidden; ++i) Complain(kForbidden);
  if (forbidden > 0) return false;
  if (name.size() > kUserNameLimit) {
    Complain(kTooLong);
    return false;
  }
  // Signs that are not on the list of forbidden ones but in no folder name of the platform either.
  if (!IsFolderName(name)) {
    Complain(kForbidden);
    return false;
  }
  UserRegistry registry = Listed(form);
  if (const std::optional<std::string> other = FindNamesake(session_, registry.names, name)) {
    Complain(std::string(kSameFolder) + *other);
    return false;
  }
  registry.names.push_back(name);
  if (RegistryBytes(registry).size() > kRegistryLimit) {
    Complain(kListFull);
    return false;
  }
  return true;
}

void UsersDialog::Remove(Form& form) {
  // The question leaves the dialog usable: what it is about is settled before it is asked.
  const std::string name = form.ReadText(kName, kTypedLimit);
  const std::optional<std::string> entry = form.SelectedText(kUsers);
  const Answer answer = message_boxes_.Show({.text = "Delete user??",
                                             .caption = "CAUTION",
                                             .buttons = MessageButtons::kYesNo,
                                             .icon = MessageIcon::kQuestion,
                                             .owner = MessageOwner::kNone});
  if (answer != Answer::kYes) return;
  // Nothing outside the start-up folder is ever deleted. Without a name the files of the start-up
  // folder itself are meant.
  if (!name.empty() && !IsFolderName(name)) {
    Complain(kForbidden);
    return;
  }
  if (entry) form.RemoveItem(kUsers, IndexOf(form, *entry));
  copies_.MakeBefore("remove user", name);
  DeleteUserFiles(session_, name);
  form.SetText(kName, "");

  // The names are taken for one another when length and first letter agree.
  if (!session_.user) return;
  const std::string& user = session_.user->name();
  if (name.size() != user.size() || name[0] != user[0]) return;
  on_removed_();
  session_.user.reset();
  session_.screen = kHomeScreen;
  window_.PaintNow();
}

void UsersDialog::Confirm(Form& form) {
  if (Write(form)) {
    form.Close();
  } else {
    Complain(kNotWritten);
  }
}

// What another program has done to the list since the dialog opened stays done. A list that could
// not be read is not overwritten with the little that is known of it.
bool UsersDialog::Write(const Form& form) const {
  Transaction deed(session_.base_folder);
  const std::string path = session_.BaseFile(kRegistryFile);
  // One that somebody else has open for a moment is waited for before it is read.
  if (!opened_ || !CanBeChanged(path)) return false;
  std::optional<UserRegistry> registry = ReadUserRegistry(path);
  if (!registry) return false;
  std::vector<std::string> names = Listed(form).names;
  for (const std::string& name : Without(registry->names, opened_->names)) names.push_back(name);
  for (const std::string& name : Without(opened_->names, registry->names)) {
    // Who has a profile still was not removed: somebody has spoilt the list.
    const std::optional<UserFolder> folder = UserFolder::In(session_.base_folder, name);
    if (!folder || !IsThere(folder->File(kProfileFile))) names = Without(names, {name});
  }
  registry->names = std::move(names);
  deed.Replace(path, RegistryBytes(*registry));
  return deed.Commit();
}

void UsersDialog::Complain(std::string_view text) {
  message_boxes_.Show({.text = text, .caption = "ERROR!", .owner = MessageOwner::kNone});
}

}  // namespace velnor

#include "users/login_dialog.h"

#include <string>
#include <utility>

#include "res/ids.h"
#include "users/user_files.h"
#include "users/user_registry.h"

namespace velnor {
namespace {

constexpr int kUsers = ID_USER_LIST;

constexpr std::string_view kNobody =
    "CAUTION!!\nThere`s no users\nIf You want to log in\nfirst have add at least 1 user.";
constexpr std::string_view kFillUp = "CAUTION!!\nFill up Your profile!";
constexpr std::string_view kIncorrect =
    "CAUTION!!\nIt seems some of Your data are incorrect\nCheck them!";

}  // namespace

LoginDialog::LoginDialog(SessionState& session, UserProfile& profile, MainWindow& window,
                         MessageBoxes& message_boxes, Events events)
    : session_(session),
      profile_(profile),
      window_(window),
      message_boxes_(message_boxes),
      events_(std::move(events)) {}

void LoginDialog::OnOpen(Form& form) {
  SetUser("");
  const UserRegistry registry =
      ReadUserRegistry(session_.BaseFile(kRegistryFile)).value_or(UserRegistry());
  form.FillItems(kUsers, Views(registry.names));
}

void LoginDialog::OnCommand(Form& form, int id, int notification) {
  if (id == kUsers && notification == kSelectionChanged) {
    SetUser(form.SelectedText(kUsers).value_or(""));
  }
  if (id == kOkButton && notification == kButtonClicked) LogIn(form);
  if (id == kCancelButton) form.Close();
}

void LoginDialog::SetUser(const std::string& name) {
  session_.user = UserFolder::In(session_.base_folder, name);
  events_.on_user_changed();
}

void LoginDialog::LogIn(Form& form) {
  if (!session_.user) {
    message_boxes_.Show({.text = kNobody, .owner = MessageOwner::kDialog});
    return;
  }
  const UserFolder user = *session_.user;
  events_.on_login();
  LoadProfile(user);
  // The menu could be used behind the boxes, and has been when the user is another: they logged
  // out.
  if (session_.user != user) {
    form.Close();
    return;
  }
  session_.screen = kHomeScreen;
  events_.start_day();
  window_.PaintNow();
  form.Close();
}

void LoginDialog::LoadProfile(const UserFolder& user) {
  profile_ = ProfileOf(ReadProfileLines(user.File(kProfileFile)));
  if (!IsComplete(profile_)) {
    message_boxes_.Show({.text = kFillUp, .owner = MessageOwner::kDialog});
  }
  // The profile dialog refuses suckling men too; here only pregnant ones are noticed.
  if (profile_.IsMan() && profile_.IsPregnant()) {
    message_boxes_.Show({.text = kIncorrect, .owner = MessageOwner::kDialog});
    profile_.other = "0";
  }
}

}  // namespace velnor

// The dialog in which a user logs in.

#ifndef VELNOR_USERS_LOGIN_DIALOG_H_
#define VELNOR_USERS_LOGIN_DIALOG_H_

#include <functional>
#include <string>

#include "base/dialog.h"
#include "base/main_window.h"
#include "base/message_boxes.h"
#include "base/session.h"
#include "res/ids.h"
#include "users/profile.h"

namespace velnor {

inline constexpr int kLoginResource = ID_LOGIN_DIALOG;

class LoginDialog final : public Dialog {
 public:
  // What a login does outside of this dialog: opening the menu, starting the user's day (files
  // and screens that keep something of the day), and leaving nothing open of whoever was the user
  // before the name of the session changed.
  struct Events {
    std::function<void()> on_login;
    std::function<void()> start_day;
    std::function<void()> on_user_changed;
  };

  // Opening it empties the name of the session; a selection fills it, a login the profile.
  LoginDialog(SessionState& session, UserProfile& profile, MainWindow& window,
              MessageBoxes& message_boxes, Events events);

  void OnOpen(Form& form) override;
  void OnCommand(Form& form, int id, int notification) override;

 private:
  void SetUser(const std::string& name);
  void LogIn(Form& form);
  void LoadProfile(const UserFolder& user);

  SessionState& session_;
  UserProfile& profile_;
  MainWindow& window_;
  MessageBoxes& message_boxes_;
  Events events_;
};

}  // namespace velnor

#endif  // VELNOR_USERS_LOGIN_DIALOG_H_

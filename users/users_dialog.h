// The dialog that adds and removes users.

#ifndef VELNOR_USERS_USERS_DIALOG_H_
#define VELNOR_USERS_USERS_DIALOG_H_

#include <functional>
#include <optional>
#include <string>

#include "base/dialog.h"
#include "base/main_window.h"
#include "base/message_boxes.h"
#include "base/session.h"
#include "res/ids.h"
#include "users/safety_copies.h"
#include "users/user_registry.h"

namespace velnor {

inline constexpr int kUsersResource = ID_USERS_DIALOG;

class UsersDialog final : public Dialog {
 public:
  // `on_removed` greys the menu when the user who is logged in was removed.
  UsersDialog(SessionState& session, SafetyCopies& copies, MainWindow& window,
              MessageBoxes& message_boxes, std::function<void()> on_removed);

  void OnOpen(Form& form) override;
  void OnCommand(Form& form, int id, int notification) override;

 private:
  void ChooseDefaultButton(Form& form, int notification);
  void Add(Form& form);
  void Remove(Form& form);
  void Confirm(Form& form);
  bool Write(const Form& form) const;
  // Whether the name can be a user's; a box says why not.
  bool Accept(const Form& form, const std::string& name);
  void Complain(std::string_view text);

  SessionState& session_;
  SafetyCopies& copies_;
  MainWindow& window_;
  MessageBoxes& message_boxes_;
  std::function<void()> on_removed_;
  bool is_in_name_ = false;  // the focus
  // The list as the file held it when the dialog opened; nothing when it could not be read.
  std::optional<UserRegistry> opened_;
};

}  // namespace velnor

#endif  // VELNOR_USERS_USERS_DIALOG_H_

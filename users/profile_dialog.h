// The dialog in which users fill in their profile.

#ifndef VELNOR_USERS_PROFILE_DIALOG_H_
#define VELNOR_USERS_PROFILE_DIALOG_H_

#include "base/dialog.h"
#include "base/main_window.h"
#include "base/message_boxes.h"
#include "base/session.h"
#include "res/ids.h"
#include "users/profile.h"

namespace velnor {

inline constexpr int kProfileResource = ID_PROFILE_DIALOG;

class ProfileDialog final : public Dialog {
 public:
  // Saving writes the file of the user who is logged in and `profile`.
  ProfileDialog(SessionState& session, UserProfile& profile, MainWindow& window,
                MessageBoxes& message_boxes);

  void OnOpen(Form& form) override;
  void OnCommand(Form& form, int id, int notification) override;

 private:
  void Save(Form& form);
  void Close(Form& form);
  bool WouldLoseWhatWasNotRead() const;

  bool was_read_ = false;  // what the file held
  bool is_closed_ = false;
  SessionState& session_;
  UserProfile& profile_;
  MainWindow& window_;
  MessageBoxes& message_boxes_;
};

}  // namespace velnor

#endif  // VELNOR_USERS_PROFILE_DIALOG_H_

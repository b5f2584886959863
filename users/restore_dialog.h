// The dialog that brings a copy back: one of those the program has made by itself, or any other
// whose folder is given.

#ifndef VELNOR_USERS_RESTORE_DIALOG_H_
#define VELNOR_USERS_RESTORE_DIALOG_H_

#include <functional>
#include <string_view>
#include <vector>

#include "base/dialog.h"
#include "base/main_window.h"
#include "base/message_boxes.h"
#include "base/session.h"
#include "res/ids.h"
#include "users/backup.h"

namespace velnor {

inline constexpr int kRestoreResource = ID_RESTORE_DIALOG;

class RestoreDialog final : public Dialog {
 public:
  // `on_restored` is called when the files are those of the copy: what the program knows of the old
  // ones is to be forgotten.
  RestoreDialog(const SessionState& session, MainWindow& window, MessageBoxes& message_boxes,
                std::function<void()> on_restored);

  void OnOpen(Form& form) override;
  void OnCommand(Form& form, int id, int notification) override;

 private:
  void Browse(Form& form);
  void BringBack(Form& form);
  void Say(std::string_view text);

  const SessionState& session_;
  MainWindow& window_;
  MessageBoxes& message_boxes_;
  std::function<void()> on_restored_;
  std::vector<ListedCopy> copies_;  // in the order of the list
};

}  // namespace velnor

#endif  // VELNOR_USERS_RESTORE_DIALOG_H_

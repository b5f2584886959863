// The dialog that copies everything there is to a folder of the person's choice.

#ifndef VELNOR_USERS_BACK_UP_DIALOG_H_
#define VELNOR_USERS_BACK_UP_DIALOG_H_

#include <string_view>

#include "base/dialog.h"
#include "base/main_window.h"
#include "base/message_boxes.h"
#include "base/session.h"
#include "res/ids.h"

namespace velnor {

inline constexpr int kBackUpResource = ID_BACK_UP_DIALOG;

class BackUpDialog final : public Dialog {
 public:
  BackUpDialog(const SessionState& session, MainWindow& window, MessageBoxes& message_boxes)
      : session_(session), window_(window), message_boxes_(message_boxes) {}

  void OnOpen(Form& form) override;
  void OnCommand(Form& form, int id, int notification) override;

 private:
  void Browse(Form& form);
  void BackUp(Form& form);
  void Say(std::string_view text);

  const SessionState& session_;
  MainWindow& window_;
  MessageBoxes& message_boxes_;
};

}  // namespace velnor

#endif  // VELNOR_USERS_BACK_UP_DIALOG_H_

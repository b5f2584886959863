// The About box: what the program is called and which version it is.

#ifndef VELNOR_SHELL_ABOUT_BOX_H_
#define VELNOR_SHELL_ABOUT_BOX_H_

#include "base/dialog.h"
#include "res/ids.h"

namespace velnor {

inline constexpr int kAboutBoxResource = ID_ABOUT_DIALOG;

class AboutBox final : public Dialog {
 public:
  void OnOpen(Form& form) override;
  // Either button closes the box.
  void OnCommand(Form& form, int id, int notification) override;
};

}  // namespace velnor

#endif  // VELNOR_SHELL_ABOUT_BOX_H_

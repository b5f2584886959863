// The About box: what the program is called and which version it is.

#ifndef VELNOR_SHELL_ABOUT_BOX_H_
#define VELNOR_SHELL_ABOUT_BOX_H_

#include "base/dialog.h"

namespace velnor {

inline constexpr int kAboutBoxResource = 10000;

class AboutBox final : public Dialog {
 public:
  void OnOpen(Form& form) override;
  // Either button closes the box.
  void OnCommand(Form& form, int id, int notification) override;
};

}  // namespace velnor

#endif  // VELNOR_SHELL_ABOUT_BOX_H_

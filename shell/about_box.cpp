#include "shell/about_box.h"

namespace velnor {

void AboutBox::OnOpen(Form& /*form*/) {}

void AboutBox::OnCommand(Form& form, int id, int /*notification*/) {
  if (id == kOkButton || id == kCancelButton) form.Close();
}

}  // namespace velnor

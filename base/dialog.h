// One dialog: what it does when it opens and when one of its controls says something. A dialog is
// an object over a Form; the window system hosts every one of them with a single procedure.

#ifndef VELNOR_BASE_DIALOG_H_
#define VELNOR_BASE_DIALOG_H_

#include "base/form.h"
#include "res/ids.h"

namespace velnor {

// The ids of a dialog's default button and of its cancel button; Enter and Escape send them too.
inline constexpr int kOkButton = ID_OK;
inline constexpr int kCancelButton = ID_CANCEL;

// The keys that a dialog may take before the platform does, wherever they mean something of their
// own in it.
enum class Key { kEnter, kUp, kDown, kPageUp, kPageDown };

class Dialog {
 public:
  virtual ~Dialog() = default;

  // Called once, when the controls exist and nothing is shown yet. A control that it gives the
  // keyboard focus keeps it. If it gives the focus to none, the first control that takes it gets
  // it.
  virtual void OnOpen(Form& form) = 0;

  // Called for every notification of a control. Unknown ids are ignored.
  virtual void OnCommand(Form& form, int id, int notification) = 0;

  // Called when a key is pressed in the control `id`. Returns false if the platform is to do with
  // it what it does everywhere: Enter presses the default button, arrows move within a list.
  virtual bool OnKey(Form& /*form*/, int /*id*/, Key /*key*/) { return false; }
};

}  // namespace velnor

#endif  // VELNOR_BASE_DIALOG_H_

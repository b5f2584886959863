// The dialog that saves waist, hip and their ratio into the report.

#ifndef VELNOR_BODY_WHR_RECORD_DIALOG_H_
#define VELNOR_BODY_WHR_RECORD_DIALOG_H_

#include "base/dialog.h"
#include "base/session.h"
#include "body/whr.h"
#include "res/ids.h"

namespace velnor {

inline constexpr int kWhrRecordResource = ID_WHR_RECORD_DIALOG;

class WhrRecordDialog final : public Dialog {
 public:
  // Opens with `whr`; saves for the user who is logged in by then.
  WhrRecordDialog(const SessionState& session, const WhrResult& whr);

  void OnOpen(Form& form) override;
  void OnCommand(Form& form, int id, int notification) override;

 private:
  void Save(Form& form);

  const SessionState& session_;
  const WhrResult& whr_;
};

}  // namespace velnor

#endif  // VELNOR_BODY_WHR_RECORD_DIALOG_H_

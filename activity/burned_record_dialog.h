// The dialog that saves what an activity burned as a record of the burned calories report.

#ifndef VELNOR_ACTIVITY_BURNED_RECORD_DIALOG_H_
#define VELNOR_ACTIVITY_BURNED_RECORD_DIALOG_H_

#include <string>

#include "activity/burned_record.h"
#include "base/dialog.h"
#include "base/session.h"
#include "res/ids.h"

namespace velnor {

inline constexpr int kBurnedRecordResource = ID_BURNED_RECORD_DIALOG;

class BurnedRecordDialog final : public Dialog {
 public:
  // Opens with the texts of `shown`. `counted_activity` outlives the dialog: the record names the
  // activity that was counted last when it is saved.
  BurnedRecordDialog(const SessionState& session, BurnedRecord shown,
                     const std::string& counted_activity);

  void OnOpen(Form& form) override;
  void OnCommand(Form& form, int id, int notification) override;

 private:
  void Save(Form& form);

  const SessionState& session_;
  BurnedRecord shown_;
  const std::string& counted_activity_;
};

}  // namespace velnor

#endif  // VELNOR_ACTIVITY_BURNED_RECORD_DIALOG_H_

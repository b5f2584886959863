// The dialog that saves a body weight with its BMI: into the report and into the chart series.

#ifndef VELNOR_BODY_WEIGHT_RECORD_DIALOG_H_
#define VELNOR_BODY_WEIGHT_RECORD_DIALOG_H_

#include "base/dialog.h"
#include "base/session.h"
#include "body/bmi.h"
#include "body/weight_record.h"
#include "body/weight_text.h"
#include "res/ids.h"

namespace velnor {

inline constexpr int kWeightRecordResource = ID_WEIGHT_RECORD_DIALOG;

class WeightRecordDialog final : public Dialog {
 public:
  // Opens with `weight` and `bmi`; saves for the user who is logged in by then.
  WeightRecordDialog(const SessionState& session, const WeightText& weight, const BmiResult& bmi);

  void OnOpen(Form& form) override;
  void OnCommand(Form& form, int id, int notification) override;

 private:
  void Save(Form& form);
  // What cannot be written is not reported.
  void Write(const UserFolder& user, const WeightRecord& record);

  const SessionState& session_;
  const WeightText& weight_;
  const BmiResult& bmi_;
};

}  // namespace velnor

#endif  // VELNOR_BODY_WEIGHT_RECORD_DIALOG_H_

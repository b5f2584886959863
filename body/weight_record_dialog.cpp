#include "body/weight_record_dialog.h"

#include <cstddef>
#include <string>
#include <utility>

#include "base/number_text.h"
#include "base/transaction.h"
#include "body/record_fields.h"
#include "body/weight_record.h"
#include "charts/chart_file.h"
#include "res/ids.h"
#include "users/history.h"
#include "users/user_files.h"

namespace velnor {
namespace {

constexpr int kWeight = ID_WEIGHT_RECORD_WEIGHT;
constexpr int kBmi = ID_WEIGHT_RECORD_BMI;

constexpr std::size_t kOtherLimit = 127;

}  // namespace

WeightRecordDialog::WeightRecordDialog(const SessionState& session, const WeightText& weight,
                                       const BmiResult& bmi)
    : session_(session), weight_(weight), bmi_(bmi) {}

void WeightRecordDialog::OnOpen(Form& form) {
  for (const int id : {kRecordDate, kWeight, kBmi}) form.LimitText(id, kRecordTextLimit);
  form.LimitText(kRecordOther, kOtherLimit);
  for (const int id : {kWeight, kBmi}) form.TakeNumbers(id);
  form.SetText(kRecordDate, session_.date_text);
  form.SetText(kWeight, weight_.text);
  if (bmi_.value > 0) form.SetText(kBmi, FormatNumber(bmi_.value, kRecordDigits));
}

void WeightRecordDialog::OnCommand(Form& form, int id, int notification) {
  if (id == kOkButton && notification == kButtonClicked) Save(form);
  if (id == kCancelButton) form.Close();
}

void WeightRecordDialog::Save(Form& form) {
  const WeightRecord record = {.date = form.ReadText(kRecordDate, kRecordTextLimit),
                               .weight = form.ReadText(kWeight, kRecordTextLimit),
                               .bmi = ReadTwoDecimals(form, kBmi),
                               .other = form.ReadText(kRecordOther, kOtherLimit)};
  if (session_.user) Write(*session_.user, record);
  form.Close();
}

void WeightRecordDialog::Write(const UserFolder& user, const WeightRecord& record) {
  Transaction deed(session_.base_folder);
  deed.Append(user.File(kWeightReportFile), WeightRecordLine(record));
  // The chart goes by the days of the calendar, whatever date the report was given.
  const std::string fields[] = {record.weight, record.bmi};
  HistoryEntry entry = {
      .kind = HistoryKind::kWeight, .amount = ParseNumber(record.weight), .unit = "kg"};
  if (TellHistory(deed, session_, user, std::move(entry)) &&
      UpdateChartFile(deed, user.File(kWeightSeriesFile), session_.date_text, fields)) {
    deed.CommitUnreported();
  }
}

}  // namespace velnor

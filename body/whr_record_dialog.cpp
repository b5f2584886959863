#include "body/whr_record_dialog.h"

#include <cstddef>
#include <utility>

#include "base/number_text.h"
#include "base/transaction.h"
#include "body/record_fields.h"
#include "body/whr_record.h"
#include "res/ids.h"
#include "users/history.h"
#include "users/user_files.h"

namespace velnor {
namespace {

constexpr int kWaist = ID_WHR_RECORD_WAIST;
constexpr int kHip = ID_WHR_RECORD_HIP;
constexpr int kWhr = ID_WHR_RECORD_WHR;

constexpr std::size_t kOtherLimit = 99;

}  // namespace

WhrRecordDialog::WhrRecordDialog(const SessionState& session, const WhrResult& whr)
    : session_(session), whr_(whr) {}

void WhrRecordDialog::OnOpen(Form& form) {
  for (const int id : {kRecordDate, kWaist, kHip, kWhr}) form.LimitText(id, kRecordTextLimit);
  form.LimitText(kRecordOther, kOtherLimit);
  for (const int id : {kWaist, kHip, kWhr}) form.TakeNumbers(id);
  form.SetText(kRecordDate, session_.date_text);
  form.SetText(kWaist, whr_.waist);
  form.SetText(kHip, whr_.hip);
  if (whr_.value > 0) form.SetText(kWhr, FormatNumber(whr_.value, kRecordDigits));
}

void WhrRecordDialog::OnCommand(Form& form, int id, int notification) {
  if (id == kOkButton && notification == kButtonClicked) Save(form);
  if (id == kCancelButton) form.Close();
}

void WhrRecordDialog::Save(Form& form) {
  const WhrRecord record = {.date = form.ReadText(kRecordDate, kRecordTextLimit),
                            .waist = ReadTwoDecimals(form, kWaist),
                            .hip = ReadTwoDecimals(form, kHip),
                            .whr = ReadTwoDecimals(form, kWhr),
                            .other = form.ReadText(kRecordOther, kOtherLimit)};
  // Whether the record could be written is not reported.
  if (session_.user) {
    Transaction deed(session_.base_folder);
    deed.Append(session_.user->File(kWhrReportFile), WhrRecordLine(record));
    HistoryEntry entry = {.kind = HistoryKind::kWaistHip, .amount = ParseNumber(record.whr)};
    if (TellHistory(deed, session_, *session_.user, std::move(entry))) deed.CommitUnreported();
  }
  form.Close();
}

}  // namespace velnor

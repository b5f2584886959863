#include "activity/burned_record_dialog.h"

#include <cstddef>
#include <utility>

#include "base/transaction.h"
#include "res/ids.h"
#include "users/user_files.h"

namespace velnor {
namespace {

constexpr int kDate = ID_RECORD_DATE;
constexpr int kActivity = ID_BURNED_RECORD_ACTIVITY;
constexpr int kMinutes = ID_BURNED_RECORD_MINUTES;
constexpr int kCalories = ID_BURNED_RECORD_CALORIES;
constexpr int kFat = ID_BURNED_RECORD_FAT;
constexpr int kOther = ID_BURNED_RECORD_OTHER;

constexpr std::size_t kTextLimit = 26;

}  // namespace

BurnedRecordDialog::BurnedRecordDialog(const SessionState& session, BurnedRecord shown,
                                       const std::string& counted_activity)
    : session_(session), shown_(std::move(shown)), counted_activity_(counted_activity) {}

void BurnedRecordDialog::OnOpen(Form& form) {
  for (const int id : {kDate, kOther}) form.LimitText(id, kTextLimit);
  form.SetText(kDate, shown_.date);
  form.SetText(kMinutes, shown_.minutes);
  form.SetText(kCalories, shown_.kcal);
  form.SetText(kFat, shown_.fat);
  form.SetText(kActivity, shown_.activity);
}

void BurnedRecordDialog::OnCommand(Form& form, int id, int notification) {
  if (id == kOkButton && notification == kButtonClicked) Save(form);
  if (id == kCancelButton) form.Close();
}

void BurnedRecordDialog::Save(Form& form) {
  if (const auto path = session_.UserFile(kBurnedReportFile)) {
    Transaction deed(session_.base_folder);
    deed.Append(*path, BurnedRecordText({.date = form.ReadText(kDate, kTextLimit),
                                         .activity = counted_activity_,
                                         .minutes = form.ReadText(kMinutes, kRecordFigureLimit),
                                         .kcal = form.ReadText(kCalories, kRecordFigureLimit),
                                         .fat = form.ReadText(kFat, kRecordFigureLimit),
                                         .other = form.ReadText(kOther, kTextLimit)}));
    deed.CommitUnreported();
  }
  form.Close();
}

}  // namespace velnor

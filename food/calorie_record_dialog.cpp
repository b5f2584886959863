#include "food/calorie_record_dialog.h"

#include "base/transaction.h"
#include "res/ids.h"
#include "users/user_files.h"

namespace velnor {
namespace {

constexpr int kDate = ID_RECORD_DATE;
constexpr int kProtein = ID_CALORIE_RECORD_PROTEIN;
constexpr int kFat = ID_CALORIE_RECORD_FAT;
constexpr int kCarbohydrate = ID_CALORIE_RECORD_CARBOHYDRATE;
constexpr int kWeight = ID_CALORIE_RECORD_WEIGHT;
constexpr int kKcal = ID_CALORIE_RECORD_KCAL;
constexpr int kOther = ID_CALORIE_RECORD_OTHER;
constexpr int kCarbohydrateExchange = ID_CALORIE_RECORD_CARBOHYDRATE_EXCHANGE;
constexpr int kProteinFatExchange = ID_CALORIE_RECORD_PROTEIN_FAT_EXCHANGE;

constexpr std::size_t kTextLimit = 99;

// The least exchange of each kind that the dialog shows; the record holds smaller ones too.
constexpr double kLeastCarbohydrate = 0.01;
constexpr double kLeastProteinFat = 0.1;

}  // namespace

void CalorieRecordDialog::OnOpen(Form& form) {
  for (const int id : {kDate, kOther}) form.LimitText(id, kTextLimit);
  form.SetText(kDate, session_.date_text);
  form.SetText(kWeight, totals_.weight);
  form.SetText(kKcal, totals_.kcal);
  form.SetText(kProtein, totals_.protein);
  form.SetText(kFat, totals_.fat);
  form.SetText(kCarbohydrate, totals_.carbohydrate);
  form.SetText(kCarbohydrateExchange,
               ShownExchange(exchanges_.last_carbohydrate(), kLeastCarbohydrate));
  form.SetText(kProteinFatExchange, ShownExchange(exchanges_.last_protein_fat(), kLeastProteinFat));
}

void CalorieRecordDialog::OnCommand(Form& form, int id, int notification) {
  const bool save = id == kOkButton && notification == kButtonClicked;
  if (save) Save(form);
  if (save || id == kCancelButton) form.Close();
}

// Whether the record could be written is not reported.
void CalorieRecordDialog::Save(const Form& form) const {
  const std::optional<std::string> path = session_.UserFile(kCalorieReportFile);
  if (!path) return;
  Transaction deed(session_.base_folder);
  deed.Append(*path, CalorieRecordText(
                         {form.ReadText(kDate, kTextLimit), totals_, exchanges_.last_carbohydrate(),
                          exchanges_.last_protein_fat(), form.ReadText(kOther, kTextLimit)}));
  deed.CommitUnreported();
}

}  // namespace velnor

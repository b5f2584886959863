// The dialog that saves a record of eaten calories.

#ifndef VELNOR_FOOD_CALORIE_RECORD_DIALOG_H_
#define VELNOR_FOOD_CALORIE_RECORD_DIALOG_H_

#include "base/dialog.h"
#include "base/session.h"
#include "food/calorie_record.h"
#include "food/nutrition.h"
#include "res/ids.h"

namespace velnor {

inline constexpr int kCalorieRecordResource = ID_CALORIE_RECORD_DIALOG;

// Characters of a total that the record takes.
inline constexpr std::size_t kCalorieTotalLimit = 29;

class CalorieRecordDialog final : public Dialog {
 public:
  // `totals`: of the food list, as shown. The exchanges are the last ones counted, when it opens
  // and again when it saves.
  CalorieRecordDialog(const SessionState& session, const Exchanges& exchanges,
                      const TotalTexts& totals)
      : session_(session), exchanges_(exchanges), totals_(CutForRecord(totals)) {}

  void OnOpen(Form& form) override;
  void OnCommand(Form& form, int id, int notification) override;

 private:
  void Save(const Form& form) const;

  const SessionState& session_;
  const Exchanges& exchanges_;
  TotalTexts totals_;
};

}  // namespace velnor

#endif  // VELNOR_FOOD_CALORIE_RECORD_DIALOG_H_

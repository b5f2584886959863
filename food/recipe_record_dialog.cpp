#include "food/recipe_record_dialog.h"

#include "base/transaction.h"
#include "food/recipe_record.h"
#include "res/ids.h"
#include "users/user_files.h"

namespace velnor {
namespace {

constexpr int kDate = ID_RECORD_DATE;
constexpr int kName = ID_RECIPE_RECORD_NAME;
constexpr int kRecipe = ID_RECIPE_RECORD_RECIPE;

constexpr std::size_t kNameLimit = 99;
constexpr std::size_t kRecipeLimit = 499;
constexpr std::size_t kTotalLimit = 14;

}  // namespace

void RecipeRecordDialog::OnOpen(Form& form) {
  form.LimitText(kName, kNameLimit);
  form.LimitText(kRecipe, kRecipeLimit);
  form.Focus(kRecipe);
  form.SetText(kDate, session_.date_text);
}

void RecipeRecordDialog::OnCommand(Form& form, int id, int notification) {
  const bool save = id == kOkButton && notification == kButtonClicked;
  if (save) Save(form);
  if (save || id == kCancelButton) form.Close();
}

// Whether the record could be written is not reported.
void RecipeRecordDialog::Save(const Form& form) const {
  const std::optional<std::string> path = session_.UserFile(kRecipeReportFile);
  if (!path) return;
  Transaction deed(session_.base_folder);
  deed.Append(*path, RecipeRecordText({session_.date_text, form.ReadText(kName, kNameLimit),
                                       list_.Totals(kTotalLimit), composition_,
                                       form.ReadText(kRecipe, kRecipeLimit)}));
  deed.CommitUnreported();
}

}  // namespace velnor

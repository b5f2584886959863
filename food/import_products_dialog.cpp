#include "food/import_products_dialog.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "base/path_field.h"
#include "base/text_file.h"
#include "base/transaction.h"
#include "food/product_rules.h"
#include "food/user_product_file.h"
#include "res/ids.h"

namespace velnor {
namespace {

constexpr int kMainCategory = ID_IMPORT_MAIN_CATEGORY;
constexpr int kSubcategory = ID_IMPORT_SUBCATEGORY;

// The category that is chosen when the dialog opens: the one for what belongs to no other.
constexpr std::string_view kUsualMainCategory = "other";
constexpr std::string_view kUsualSubcategory = "no category";

constexpr FileKind kTables = {"Tables (*.csv; *.tsv; *.txt)", "*.csv;*.tsv;*.txt"};

constexpr std::string_view kNoPath = "Choose the table first.";
constexpr std::string_view kNotOpened =
    "This table could not be opened.\nCheck its name and try again.";
constexpr std::string_view kNotWritten =
    "The products could not be saved. Nothing was added.\nCheck the folder of Your data and try "
    "again.";

void Select(Form& form, int id, std::string_view item) {
  for (int i = 0; i < form.ItemCount(id); ++i) {
    if (form.ItemText(id, i) == item) form.SelectItem(id, i);
  }
}

std::optional<std::string> ReadTable(const std::string& path) {
  if (!FileExists(path)) return std::nullopt;
  return ReadFileToRewrite(path, kImportLimit + 1);
}

}  // namespace

ImportProductsDialog::ImportProductsDialog(FoodTable& food, const SessionState& session,
                                           MainWindow& window, MessageBoxes& message_boxes,
                                           std::function<void()> on_changed)
    : food_(food),
      session_(session),
      window_(window),
      message_boxes_(message_boxes),
      on_changed_(std::move(on_changed)) {}

void ImportProductsDialog::OnOpen(Form& form) {
  form.FillItems(kMainCategory, ListMainCategories(food_));
  Select(form, kMainCategory, kUsualMainCategory);
  OfferSubcategories(form);
  Select(form, kSubcategory, kUsualSubcategory);
}

void ImportProductsDialog::OnCommand(Form& form, int id, int notification) {
  if (id == kMainCategory && notification == kSelectionChanged) OfferSubcategories(form);
  if (id == kBrowseButton && notification == kButtonClicked) Browse(form);
  if (id == kOkButton && notification == kButtonClicked) Import(form);
  if (id == kCancelButton) form.Close();
}

// One of them is always chosen: products without a category would be in no list.
void ImportProductsDialog::OfferSubcategories(Form& form) {
  const std::string main_category = form.SelectedText(kMainCategory).value_or("");
  form.FillItems(kSubcategory, ListSubcategories(food_, Matching::kCounter, main_category));
  form.SelectItem(kSubcategory, 0);
}

void ImportProductsDialog::Browse(Form& form) {
  const std::optional<std::string> path = window_.ChooseFile(kTables);
  if (path) form.SetText(kPathField, *path);
}

void ImportProductsDialog::Import(Form& form) {
  const std::string path = PathIn(form);
  if (path.empty()) {
    Say(kNoPath);
    return;
  }
  const std::optional<std::string> bytes = ReadTable(path);
  if (!bytes) {
    Say(kNotOpened);
    return;
  }
  food_.user_products.Load(
      session_.BaseFile(kUserProductsFile));  // what another program has added since counts too
  const ImportPlan plan = PlanImport(*bytes, food_,
                                     {form.SelectedText(kMainCategory).value_or(""),
                                      form.SelectedText(kSubcategory).value_or("")});
  if (!plan.problem.empty()) {
    Say(plan.problem);
  } else if (Confirm(plan)) {
    CarryOut(plan);
  }
}

bool ImportProductsDialog::Confirm(const ImportPlan& plan) {
  if (plan.fitting == plan.products.size()) return true;
  const std::string text = TooManyProducts(plan);
  if (plan.fitting == 0) {
    Say(text);
    return false;
  }
  return message_boxes_.Show({.text = text,
                              .buttons = MessageButtons::kYesNo,
                              .icon = MessageIcon::kQuestion,
                              .owner = MessageOwner::kDialog}) == Answer::kYes;
}

void ImportProductsDialog::CarryOut(const ImportPlan& plan) {
  std::vector<ProductRecord> records;
  records.reserve(plan.fitting);
  for (const ImportedProduct& product : plan.products) {
    if (records.size() < plan.fitting) records.push_back(product.AsRecord());
  }
  const bool written = records.empty() || Write(records);
  food_.user_products.Load(session_.BaseFile(kUserProductsFile));
  on_changed_();
  Say(written ? ImportReport(plan, records.size()) : std::string(kNotWritten));
}

bool ImportProductsDialog::Write(std::span<const ProductRecord> records) const {
  Transaction deed(session_.base_folder);
  return AddUserProducts(deed, session_.BaseFile(kUserProductsFile), records) && deed.Commit();
}

void ImportProductsDialog::Say(std::string_view text) {
  message_boxes_.Show({.text = text, .owner = MessageOwner::kDialog});
}

}  // namespace velnor

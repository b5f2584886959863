#include "food/add_product_dialog.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/code_page.h"
#include "base/transaction.h"
#include "food/product_rules.h"
#include "food/user_product_file.h"
#include "res/ids.h"

namespace velnor {
namespace {

constexpr int kMainCategory = ID_ADD_PRODUCT_MAIN_CATEGORY;
constexpr int kSubcategory = ID_ADD_PRODUCT_SUBCATEGORY;
constexpr int kName = ID_ADD_PRODUCT_NAME;
constexpr int kMass = ID_ADD_PRODUCT_MASS;
constexpr int kProtein = ID_ADD_PRODUCT_PROTEIN;
constexpr int kFat = ID_ADD_PRODUCT_FAT;
constexpr int kCarbohydrate = ID_ADD_PRODUCT_CARBOHYDRATE;
constexpr int kCalories = ID_ADD_PRODUCT_CALORIES;

constexpr std::size_t kNameLimit = 149;
constexpr std::size_t kNumberLimit = 29;

// The system's own texts, as they stand.
constexpr std::string_view kNameTooShort =
    "ATTENTION! The name of product must be 4-signs long miniumum!";
constexpr std::string_view kIncomplete =
    "Product wasn`t added to database\nSome data are incorrect";
constexpr std::string_view kNotNumbers =
    "New product was NOT added to database\nCheck your data. There might be letters instead of "
    "numbers";
constexpr std::string_view kAdded = "New product was added to database";

bool BeginsWithDigit(const std::string& text) {
  return !text.empty() && text[0] >= '0' && text[0] <= '9';
}

}  // namespace

AddProductDialog::AddProductDialog(FoodTable& food, const SessionState& session,
                                   MessageBoxes& message_boxes, std::function<void()> on_changed)
    : food_(food),
      session_(session),
      message_boxes_(message_boxes),
      on_changed_(std::move(on_changed)) {}

void AddProductDialog::OnOpen(Form& form) {
  form.LimitText(kName, kRemovableNameLimit);
  for (const int id : {kMass, kCalories, kProtein, kFat, kCarbohydrate}) {
    form.LimitText(id, kNumberLimit);
    form.TakeNumbers(id);
  }
  form.SetText(kMass, kUsualProductMass);
  if (form.ItemCount(kMainCategory) > 0) return;
  form.FillItems(kMainCategory, ListMainCategories(food_));
}

void AddProductDialog::OnCommand(Form& form, int id, int notification) {
  if (id == kMainCategory && notification == kSelectionChanged) OfferSubcategories(form);
  if (id == kOkButton && notification == kButtonClicked) Add(form);
  if (id == kCancelButton) form.Close();
}

void AddProductDialog::OfferSubcategories(Form& form) {
  const std::string main_category = form.SelectedText(kMainCategory).value_or("");
  // The row is found as on the overview, but names too short to be one are left out.
  std::vector<std::string_view> names =
      ListSubcategories(food_, Matching::kOverview, main_category);
  std::erase_if(names, [](std::string_view name) { return name.size() <= 1; });
  form.FillItems(kSubcategory, names);
}

void AddProductDialog::Add(Form& form) {
  const std::string name = ToLowerCase(form.ReadText(kName, kNameLimit));
  const std::string mass = form.ReadText(kMass, kNumberLimit);
  const std::string kcal = form.ReadText(kCalories, kNumberLimit);
  const std::string protein = form.ReadText(kProtein, kNumberLimit);
  const std::string fat = form.ReadText(kFat, kNumberLimit);
  const std::string carbohydrate = form.ReadText(kCarbohydrate, kNumberLimit);
  const std::string main_category = form.SelectedText(kMainCategory).value_or("");
  const std::string subcategory = form.SelectedText(kSubcategory).value_or("");
  const std::array needed = {&mass,         &kcal,          &protein,    &fat,
                             &carbohydrate, &main_category, &subcategory};
  const bool incomplete =
      std::ranges::any_of(needed, [](const auto* text) { return text->empty(); });

  // Mass and calories are taken as they come, and of the nutrients only the first character is
  // looked at. A file that cannot be written is not reported; the entries stay for another try.
  if (name.size() < kShortestProductName) {
    message_boxes_.Show({.text = kNameTooShort});
    message_boxes_.Show({.text = kIncomplete});
  } else if (incomplete) {
    message_boxes_.Show({.text = kIncomplete});
  } else if (!BeginsWithDigit(protein) || !BeginsWithDigit(fat) || !BeginsWithDigit(carbohydrate)) {
    message_boxes_.Show({.text = kNotNumbers});
  } else if (Write({main_category, subcategory, name, mass, kcal, protein, fat, carbohydrate})) {
    message_boxes_.Show({.text = kAdded});
    form.SetText(kMass, kUsualProductMass);
    for (const int id : {kName, kProtein, kFat, kCarbohydrate, kCalories}) form.SetText(id, "");
  }
  food_.user_products.Load(session_.BaseFile(kUserProductsFile));
  on_changed_();
}

bool AddProductDialog::Write(const ProductRecord& product) const {
  Transaction deed(session_.base_folder);
  return AddUserProduct(deed, session_.BaseFile(kUserProductsFile), product) && deed.Commit();
}

}  // namespace velnor

#include "shell/program.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

#include "activity/burned_record_dialog.h"
#include "base/text_file.h"
#include "base/transaction.h"
#include "body/weight_record_dialog.h"
#include "body/whr_record_dialog.h"
#include "diary/diary_command.h"
#include "food/add_product_dialog.h"
#include "food/calorie_record_dialog.h"
#include "food/import_products_dialog.h"
#include "food/quick_add_dialog.h"
#include "food/recipe_record_dialog.h"
#include "food/remove_product_dialog.h"
#include "food/search_dialog.h"
#include "food/user_product_file.h"
#include "shell/commands.h"
#include "shell/header.h"
#include "shell/menu_states.h"
#include "shell/screens.h"
#include "users/backup.h"
#include "users/history.h"
#include "users/login_dialog.h"
#include "users/profile_dialog.h"
#include "users/user_files.h"
#include "users/users_dialog.h"

namespace velnor {
namespace {

struct ControlEvent {
  int id;
  int notification;
  void (*run)(Program& program);
};

constexpr std::string_view kNoCopy =
    "Today's copy of your data could not be made.\n"
    "Is the disk full, or the folder \"kopie zapasowe\" write-protected?";

constexpr ControlEvent kControlEvents[] = {
    {102, kButtonClicked, [](Program& p) { p.bmi().Count(); }},
    {103, kButtonClicked, [](Program& p) { p.OpenWeightRecord(); }},
    {106, kButtonClicked, [](Program& p) { p.whr().Count(); }},
    {107, kButtonClicked, [](Program& p) { p.OpenWhrRecord(); }},
    {108, kSelectionChanged, [](Program& p) { p.overview().OnMainCategoryChosen(); }},
    {110, kSelectionChanged, [](Program& p) { p.overview().OnSubcategoryChosen(); }},
    {109, kSelectionChanged, [](Program& p) { p.overview().OnProductChosen(); }},
    {111, kEditUpdated, [](Program& p) { p.overview().OnWeightChanged(); }},
    {124, kSelectionChanged, [](Program& p) { p.counter().OnMainCategoryChosen(); }},
    {125, kSelectionChanged, [](Program& p) { p.counter().OnSubcategoryChosen(); }},
    {126, kSelectionChanged, [](Program& p) { p.counter().OnProductChosen(); }},
    {149, kButtonClicked, [](Program& p) { p.OpenSearch(); }},
    {128, kEditUpdated, [](Program& p) { p.counter().OnWeightChanged(); }},
    {161, kButtonClicked, [](Program& p) { p.burned().Count(); }},
    {162, kButtonClicked, [](Program& p) { p.OpenBurnedRecord(); }},
    {177, kButtonClicked, [](Program& p) { p.burned().Add(); }},
    {179, kButtonClicked, [](Program& p) { p.burned().Clear(); }},
    {182, kButtonClicked, [](Program& p) { p.energy().Count(); }},
    {127, kButtonClicked, [](Program& p) { p.food_list().Add(p.counter().chosen_name()); }},
    {136, kButtonClicked, [](Program& p) { p.food_list().Remove(); }},
    {146, kButtonClicked, [](Program& p) { p.food_list().ClearList(); }},
    {145, kButtonClicked, [](Program& p) { p.OpenCalorieRecord(); }},
    {147, kButtonClicked, [](Program& p) { p.OpenRecipeRecord(); }},
    {165, kButtonClicked, [](Program& p) { p.ClearDay(); }},
    {151, kButtonClicked, [](Program& p) { p.reports().Clear(); }},
    {152, kButtonClicked, [](Program& p) { p.reports().Save(); }},
    {153, kButtonClicked, [](Program& p) { p.reports().Scroll(ScrollStep::kLineDown, 5); }},
    {154, kButtonClicked, [](Program& p) { p.reports().Scroll(ScrollStep::kLineUp, 5); }},
    {155, kButtonClicked, [](Program& p) { p.reports().Scroll(ScrollStep::kLineDown, 12); }},
    {156, kButtonClicked, [](Program& p) { p.reports().Scroll(ScrollStep::kLineUp, 12); }},
    {157, kButtonClicked, [](Program& p) { p.reports().Scroll(ScrollStep::kPageDown, 1); }},
    {158, kButtonClicked, [](Program& p) { p.reports().Scroll(ScrollStep::kPageUp, 1); }},
    {174, kButtonClicked, [](Program& p) { p.requirement().Activate(); }},
    {175, kButtonClicked, [](Program& p) { p.requirement().Clear(); }},
    {176, kButtonClicked, [](Program& p) { p.bmr().Count(); }},
};

}  // namespace

Program::Program(std::string base_folder, std::string date_text, Form& form, MainWindow& window,
                 MessageBoxes& message_boxes, const Clock& clock)
    : session_{.base_folder = std::move(base_folder),
               .date_text = std::move(date_text),
               .clock = &clock},
      form_(form),
      window_(window),
      message_boxes_(message_boxes),
      day_(session_),
      counter_(food_, form),
      food_list_(food_, day_, exchanges_, form, message_boxes),
      overview_(food_, exchanges_, form),
      requirement_(session_, profile_, form, window, message_boxes),
      charts_(session_),
      bmi_(profile_, weight_, form, window),
      whr_(profile_, form, window),
      bmr_(profile_, weight_, form, window),
      reports_(session_, form, window, message_boxes),
      burned_total_(session_),
      burned_(burned_total_, form, window, message_boxes),
      energy_(day_, burned_total_, form, window, message_boxes) {}

void Program::Start() {
  OpenDataFolder(session_.base_folder);
  ApplyMenuState(MenuState::kLoggedOut, window_);
  food_.user_products.Load(session_.BaseFile(kUserProductsFile));
}

void Program::OnCommand(int id, int notification) {
  FinishWhatWasBegun(session_.base_folder);
  if (RunCommand(*this, id)) return;
  for (const ControlEvent& event : kControlEvents) {
    if (event.id == id && event.notification == notification) event.run(*this);
  }
}

bool Program::OnMouseWheel(std::int32_t movement) { return reports_.OnMouseWheel(movement < 0); }

void Program::HideControls() { form_.HideAll(); }

void Program::Paint(Canvas& canvas) {
  FinishWhatWasBegun(session_.base_folder);
  const auto screen = std::ranges::find(Screens(), session_.screen, &ScreenRow::id);
  if (screen == Screens().end()) return;
  canvas.CopyBackground(screen->background);
  PaintHeader(canvas, session_);
  if (screen->paint != nullptr) screen->paint(*this, canvas);
  for (const int key : screen->controls) form_.Show(key);
}

void Program::FinishPaint() {
  const std::optional<Message> refusal = charts_.TakeRefusal();
  if (!refusal || refusal_open_) return;
  refusal_open_ = true;
  message_boxes_.Show(*refusal);
  refusal_open_ = false;
  ShowScreen(kHomeScreen);
}

void Program::ShowScreen(ScreenId screen) {
  session_.screen = screen;
  window_.Invalidate();
}

void Program::LogOut() {
  message_boxes_.Show({.text = "BYE, SEE YOU SOON!"});
  ApplyMenuState(MenuState::kAfterLogout, window_);
  window_.CloseSessionDialogs();
  session_.user.reset();
  session_.screen = kHomeScreen;
  window_.PaintNow();
}

void Program::OpenLogin() {
  window_.OpenDialog(
      kLoginResource,
      std::make_unique<LoginDialog>(
          session_, profile_, window_, message_boxes_,
          LoginDialog::Events{.on_login = [this] { ApplyMenuState(MenuState::kLoggedIn, window_); },
                              .start_day = [this] { StartUserDay(); },
                              .on_user_changed = [this] { window_.CloseSessionDialogs(); }}));
}

void Program::OpenUsers() {
  window_.OpenDialog(kUsersResource,
                     std::make_unique<UsersDialog>(session_, window_, message_boxes_, [this] {
                       ApplyMenuState(MenuState::kUserRemoved, window_);
                       window_.CloseSessionDialogs();
                     }));
}

void Program::OpenProfile() {
  window_.OpenSessionDialog(kProfileResource, std::make_unique<ProfileDialog>(
                                                  session_, profile_, window_, message_boxes_));
}

void Program::OpenAddProduct() {
  window_.OpenDialog(kAddProductResource,
                     std::make_unique<AddProductDialog>(food_, session_, message_boxes_,
                                                        [this] { OnProductsChanged(); }));
}

void Program::OpenImportProducts() {
  window_.OpenDialog(kImportProductsResource, std::make_unique<ImportProductsDialog>(
                                                  food_, session_, window_, message_boxes_,
                                                  [this] { OnProductsChanged(); }));
}

void Program::OpenQuickAdd() {
  if (!session_.user) return;
  window_.OpenSessionDialog(kQuickAddResource,
                            std::make_unique<QuickAddDialog>(food_, food_list_, *session_.clock,
                                                             session_.user->File(kHistoryFile)));
}

void Program::OpenDiary() {
  requirement_.Update();
  DiaryCommand(session_, window_, message_boxes_).Run(profile_, requirement_.DayBounds());
}

void Program::OpenRemoveProduct() {
  window_.OpenDialog(kRemoveProductResource,
                     std::make_unique<RemoveProductDialog>(food_, session_, message_boxes_,
                                                           [this] { OnProductsChanged(); }));
}

void Program::OnProductsChanged() {
  counter_.OnProductsChanged();
  overview_.OnProductsChanged();
}

void Program::OpenSearch() {
  window_.OpenDialog(kSearchResource, std::make_unique<SearchDialog>(food_));
}

void Program::OpenCalorieRecord() {
  window_.OpenSessionDialog(kCalorieRecordResource,
                            std::make_unique<CalorieRecordDialog>(
                                session_, exchanges_, food_list_.Totals(kCalorieTotalLimit)));
}

void Program::OpenRecipeRecord() {
  window_.OpenSessionDialog(kRecipeRecordResource,
                            std::make_unique<RecipeRecordDialog>(session_, food_list_));
}

void Program::ClearDay() {
  food_list_.ClearDay();
  window_.Invalidate();
}

void Program::OpenWeightRecord() {
  window_.OpenSessionDialog(kWeightRecordResource,
                            std::make_unique<WeightRecordDialog>(session_, weight_, bmi_.result()));
}

void Program::OpenWhrRecord() {
  window_.OpenSessionDialog(kWhrRecordResource,
                            std::make_unique<WhrRecordDialog>(session_, whr_.result()));
}

void Program::OpenBurnedRecord() {
  window_.OpenSessionDialog(
      kBurnedRecordResource,
      std::make_unique<BurnedRecordDialog>(session_, burned_.RecordOf(session_.date_text),
                                           burned_.counted_activity()));
}

// The copy shows the day before: it comes first.
void Program::StartUserDay() {
  MakeCopyOfTheDay();
  BeginHistory(session_, *session_.user);
  PassOver(day_.StartDayIfNew());
  requirement_.OnLogin();
  food_list_.Empty("");
}

// A copy that cannot be made hinders nothing, and is said once.
void Program::MakeCopyOfTheDay() {
  if (MakeDailyCopy(session_.base_folder, IsoDate(session_.date_text)) || missing_copy_is_said_) {
    return;
  }
  missing_copy_is_said_ = true;
  message_boxes_.Show({.text = kNoCopy});
}

}  // namespace velnor

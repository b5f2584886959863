#include "shell/program.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

#include "activity/burned_record.h"
#include "activity/burned_record_dialog.h"
#include "food/add_product_dialog.h"
#include "food/balance_file.h"
#include "food/remove_product_dialog.h"
#include "food/search_dialog.h"
#include "food/user_product_file.h"
#include "shell/commands.h"
#include "shell/header.h"
#include "shell/menu_states.h"
#include "shell/screens.h"
#include "users/login_dialog.h"
#include "users/profile_dialog.h"
#include "users/users_dialog.h"

namespace velnor {
namespace {

constexpr int kReportEdit = 119;
constexpr ScreenId kReportScreens[] = {4, 5, 8, 9, 11};

struct ControlEvent {
  int id;
  int notification;
  void (*run)(Program& program);
};

constexpr ControlEvent kControlEvents[] = {
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
    {174, kButtonClicked, [](Program& p) { p.requirement().Activate(); }},
    {175, kButtonClicked, [](Program& p) { p.requirement().Clear(); }},
};

}  // namespace

Program::Program(std::string base_folder, std::string date_text, Form& form, MainWindow& window,
                 MessageBoxes& message_boxes)
    : session_{.base_folder = std::move(base_folder), .date_text = std::move(date_text)},
      form_(form),
      window_(window),
      message_boxes_(message_boxes),
      counter_(food_, form),
      overview_(food_, exchanges_, form),
      requirement_(session_, profile_, form, window, message_boxes),
      burned_total_(session_),
      burned_(burned_total_, form, window, message_boxes) {}

void Program::Start() {
  ApplyMenuState(MenuState::kLoggedOut, window_);
  food_.user_products.Load(session_.BaseFile(kUserProductsFile));
}

void Program::OnCommand(int id, int notification) {
  if (RunCommand(*this, id)) return;
  for (const ControlEvent& event : kControlEvents) {
    if (event.id == id && event.notification == notification) event.run(*this);
  }
}

void Program::OnMouseWheel(std::int32_t movement) {
  if (std::ranges::find(kReportScreens, session_.screen) == std::end(kReportScreens)) return;
  form_.ScrollLine(kReportEdit, movement < 0);
}

void Program::HideControls() { form_.HideAll(); }

void Program::Paint(Canvas& canvas) {
  const auto screen = std::ranges::find(Screens(), session_.screen, &ScreenRow::id);
  if (screen == Screens().end()) return;
  canvas.CopyBackground(screen->background);
  PaintHeader(canvas, session_);
  if (screen->paint != nullptr) screen->paint(*this, canvas);
  for (const int key : screen->controls) form_.Show(key);
}

void Program::ShowScreen(ScreenId screen) {
  session_.screen = screen;
  window_.Invalidate();
}

void Program::LogOut() {
  message_boxes_.Show({.text = "BYE, SEE YOU SOON!"});
  ApplyMenuState(MenuState::kAfterLogout, window_);
  session_.user_name.clear();
  session_.screen = kHomeScreen;
  window_.PaintNow();
}

void Program::OpenLogin() {
  window_.OpenDialog(
      kLoginResource,
      std::make_unique<LoginDialog>(
          session_, profile_, window_, message_boxes_,
          LoginDialog::Events{.on_login = [this] { ApplyMenuState(MenuState::kLoggedIn, window_); },
                              .start_day = [this] { StartUserDay(); }}));
}

void Program::OpenUsers() {
  window_.OpenDialog(kUsersResource,
                     std::make_unique<UsersDialog>(session_, window_, message_boxes_, [this] {
                       ApplyMenuState(MenuState::kUserRemoved, window_);
                     }));
}

void Program::OpenProfile() {
  window_.OpenDialog(kProfileResource,
                     std::make_unique<ProfileDialog>(session_, profile_, window_, message_boxes_));
}

void Program::OpenAddProduct() {
  window_.OpenDialog(kAddProductResource,
                     std::make_unique<AddProductDialog>(food_, session_.BaseFile(kUserProductsFile),
                                                        message_boxes_));
}

void Program::OpenRemoveProduct() {
  window_.OpenDialog(kRemoveProductResource,
                     std::make_unique<RemoveProductDialog>(
                         food_, session_.BaseFile(kUserProductsFile), message_boxes_));
}

void Program::OpenSearch() {
  window_.OpenDialog(kSearchResource, std::make_unique<SearchDialog>(food_));
}

void Program::OpenBurnedRecord() {
  window_.OpenDialog(kBurnedRecordResource,
                     std::make_unique<BurnedRecordDialog>(session_.UserFile(kBurnedReportFile),
                                                          burned_.RecordOf(session_.date_text),
                                                          burned_.counted_activity()));
}

void Program::StartUserDay() {
  StartDayIfNew(session_.UserFile(kBalanceFile), session_.date_text);
  requirement_.OnLogin();
}

}  // namespace velnor

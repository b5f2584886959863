#include "shell/commands.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <string_view>

#include "base/text_file.h"
#include "food/add_product_dialog.h"
#include "food/remove_product_dialog.h"
#include "res/ids.h"
#include "shell/about_box.h"
#include "shell/parts.h"
#include "shell/screens.h"
#include "users/history.h"
#include "users/login_dialog.h"
#include "users/profile_dialog.h"
#include "users/users_dialog.h"

namespace velnor {
namespace {

constexpr std::string_view kHelpFile = "Velnor CALORIES COUNTER V 2.6 PORADNIK.HLP";

// What begins with the login of a user: the day's balance, the user's limits, an empty list. The
// copy shows the day before, so it comes first.
void StartUserDay(Parts& parts) {
  const bool copy_is_made = parts.copies.MakeOfTheDay();
  BeginHistory(parts.session, *parts.session.user);
  PassOver(parts.day.StartDayIfNew());
  parts.requirement.OnLogin();
  parts.food_list.Empty("");
  parts.copies.SayIfMissing(copy_is_made);
}

void OpenLogin(Parts& parts) {
  const LoginDialog::Events events = {
      .on_login = [&parts] { ApplyMenuState(MenuState::kLoggedIn, parts.window); },
      .start_day = [&parts] { StartUserDay(parts); },
      .on_user_changed = [&parts] { parts.window.CloseSessionDialogs(); }};
  parts.window.OpenDialog(kLoginResource,
                          std::make_unique<LoginDialog>(parts.session, parts.profile, parts.window,
                                                        parts.message_boxes, events));
}

void LogOut(Parts& parts) {
  parts.message_boxes.Show({.text = "BYE, SEE YOU SOON!"});
  EndSession(parts);
}

void OpenUsers(Parts& parts) {
  const auto on_removed = [&parts] {
    ApplyMenuState(MenuState::kUserRemoved, parts.window);
    parts.window.CloseSessionDialogs();
  };
  parts.window.OpenDialog(kUsersResource,
                          std::make_unique<UsersDialog>(parts.session, parts.copies, parts.window,
                                                        parts.message_boxes, on_removed));
}

void OpenProfile(Parts& parts) {
  parts.window.OpenSessionDialog(
      kProfileResource, std::make_unique<ProfileDialog>(parts.session, parts.profile, parts.window,
                                                        parts.message_boxes));
}

void Exit(Parts& parts) { parts.window.Close(); }

void OpenAddProduct(Parts& parts) {
  parts.window.OpenDialog(kAddProductResource, std::make_unique<AddProductDialog>(
                                                   parts.food, parts.session, parts.message_boxes,
                                                   [&parts] { parts.OnProductsChanged(); }));
}

void OpenRemoveProduct(Parts& parts) {
  parts.window.OpenDialog(
      kRemoveProductResource,
      std::make_unique<RemoveProductDialog>(parts.food, parts.session, parts.message_boxes,
                                            [&parts] { parts.OnProductsChanged(); }));
}

void OpenAboutBox(Parts& parts) {
  AboutBox about_box;
  parts.window.RunDialog(kAboutBoxResource, about_box);
}

void OpenHelp(Parts& parts) { parts.window.OpenHelp(kHelpFile); }

void SayNotAvailable(Parts& parts) {
  parts.message_boxes.Show({.text = "Function not yet available"});
}

// A command that is a bare number has no menu item.
// clang-format off
constexpr CommandRow kCommands[] = {
    {ID_LOGIN,          OpenLogin,         kWithoutUser},
    {ID_LOGOUT,         LogOut,            kWithUser},
    {ID_USERS,          OpenUsers,         kAlways},
    {ID_EXIT,           Exit,              kAlways},
    {ID_PROFILE,        OpenProfile,       kWithUser},
    {211,               SayNotAvailable,   kWithUser},
    {220,               SayNotAvailable,   kWithUser},
    {222,               SayNotAvailable,   kWithUser},
    {223,               SayNotAvailable,   kWithUser},
    {230,               SayNotAvailable,   kWithUser},
    {234,               SayNotAvailable,   kWithUser},
    {235,               SayNotAvailable,   kWithUser},
    {237,               SayNotAvailable,   kWithUserAndAfterLogout},
    {ID_ADD_PRODUCT,    OpenAddProduct,    kAlwaysButKeptAtLogout},
    {ID_REMOVE_PRODUCT, OpenRemoveProduct, kAlwaysButKeptAtLogout},
    {ID_ABOUT,          OpenAboutBox,      kAlways},
    {251,               OpenHelp,          kAlways},
};
// clang-format on

}  // namespace

std::span<const CommandRow> Commands() { return kCommands; }

void EndSession(Parts& parts) {
  ApplyMenuState(MenuState::kAfterLogout, parts.window);
  parts.window.CloseSessionDialogs();
  parts.session.user.reset();
  parts.session.screen = kHomeScreen;
  parts.window.PaintNow();
}

bool RunCommand(Parts& parts, int id) {
  if (id == 0) return false;  // screens without a command
  const auto screen = std::ranges::find(Screens(), id, &ScreenRow::command);
  if (screen != Screens().end()) {
    screen->screen(parts).OnChosen();
    ShowScreen(parts, screen->id);
    return true;
  }
  const auto* const command = std::ranges::find(kCommands, id, &CommandRow::id);
  if (command == std::end(kCommands)) return false;
  command->run(parts);
  return true;
}

}  // namespace velnor

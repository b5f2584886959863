#include "tests/desktop/working_day.h"

#include <string>
#include <utility>
#include <vector>

namespace velnor::desktop {
namespace {

using Texts = std::vector<std::string>;
using Fields = std::vector<std::pair<int, const char*>>;

constexpr const char* kUsersNotWritten = "The list of users could not be written";
constexpr const char* kDayNotSaved =
    "The daily balance could not be saved.\nCheck the folder of Your data and try again.";
constexpr const char* kProductAdded = "New product was added to database";

Window OpenDialog(const App& app, int command) {
  app.main().Command(command);
  return app.WaitForPopup();
}

void FillIn(const Window& window, const Fields& fields) {
  for (const auto& [id, text] : fields) window.SetText(id, text);
}

// Presses OK; a dialog that stays open is cancelled.
Texts Confirm(const App& app, const Window& dialog) {
  Texts texts = app.CommandAndAnswer(dialog, IDOK);
  if (IsWindow(dialog.handle()) != 0) dialog.Command(IDCANCEL);
  WaitUntilGone(dialog.handle());
  return texts;
}

// Opens the dialog of a button or menu item, fills it in and confirms it.
Texts FillInDialog(const App& app, int command, const Fields& fields) {
  const Window dialog = OpenDialog(app, command);
  FillIn(dialog, fields);
  return Confirm(app, dialog);
}

void Show(const App& app, int screen) {
  app.main().Command(screen);
  app.Settle();
}

Texts AddUser(const App& app) {
  const Window users = OpenDialog(app, 202);
  if (users.Items(700).empty()) {
    users.SetText(701, "Ann");
    users.Command(702);
  }
  return Confirm(app, users);
}

Texts RemoveUser(const App& app) {
  const Window users = OpenDialog(app, 202);
  users.Choose(700, "Ann");
  users.SetText(701, "Ann");
  Texts texts = app.CommandAndAnswer(users, 703);
  for (std::string& text : Confirm(app, users)) texts.push_back(std::move(text));
  return texts;
}

Texts LogIn(const App& app) {
  const Window login = OpenDialog(app, 200);
  login.Choose(700, "Ann");
  return Confirm(app, login);
}

Texts FillInProfile(const App& app) {
  const Window profile = OpenDialog(app, 204);
  FillIn(profile, {{704, "35"}, {705, "170"}});
  profile.Choose(706, "women");
  profile.Choose(707, "low");
  profile.Choose(708, "none");
  return Confirm(app, profile);
}

Texts SetLimits(const App& app) {
  Show(app, 232);
  FillIn(app.main(), {{166, "2000"},
                      {167, "2500"},
                      {168, "60"},
                      {169, "80"},
                      {170, "50"},
                      {171, "70"},
                      {172, "200"},
                      {173, "300"}});
  return app.CommandAndAnswer(app.main(), 174);
}

Texts AddFood(const App& app) {
  Show(app, 231);
  app.main().Choose(124, "fruits");
  app.main().Choose(125, "frozen");
  app.main().Choose(126, "frozen strawberries");
  app.main().SetText(128, "250");
  return app.CommandAndAnswer(app.main(), 127);
}

Texts AddProduct(const App& app) {
  const Window dialog = OpenDialog(app, 240);
  FillIn(dialog, {{734, "Apple Pie"}, {740, "237"}, {736, "1.9"}, {737, "11.0"}, {738, "34.0"}});
  dialog.Choose(732, "sweets");
  dialog.Choose(733, "cake");
  return Confirm(app, dialog);
}

Texts RemoveProduct(const App& app) {
  const Window dialog = OpenDialog(app, 241);
  dialog.Choose(739, "apple pie");
  return Confirm(app, dialog);
}

Texts SaveCalories(const App& app) {
  Show(app, 231);
  return FillInDialog(app, 145, {{723, "a good day"}});
}

Texts SaveRecipe(const App& app) {
  Show(app, 231);
  return FillInDialog(app, 147, {{724, "breakfast"}, {725, "Mix."}});
}

Texts ClearList(const App& app) {
  Show(app, 231);
  return app.CommandAndAnswer(app.main(), 146);
}

Texts SaveWeight(const App& app) {
  Show(app, 221);
  app.main().SetText(101, "70");
  app.main().Command(102);
  return FillInDialog(app, 103, {{716, "at noon"}});
}

Texts SaveWhr(const App& app) {
  Show(app, 224);
  FillIn(app.main(), {{104, "80"}, {105, "100"}});
  app.main().Command(106);
  return FillInDialog(app, 107, {{716, "at noon"}});
}

void CountBurned(const App& app) {
  Show(app, 238);
  app.main().Choose(159, "cooking");
  app.main().SetText(160, "45");
  app.main().Command(161);
}

Texts AddBurned(const App& app) {
  CountBurned(app);
  return app.CommandAndAnswer(app.main(), 177);
}

Texts SaveBurned(const App& app) {
  CountBurned(app);
  return FillInDialog(app, 162, {});
}

Texts ChangeReport(const App& app) {
  Show(app, 210);
  app.main().SetText(119, "corrected by hand");
  return app.CommandAndAnswer(app.main(), 152);
}

Texts ClearReport(const App& app) {
  Show(app, 210);
  return app.CommandAndAnswer(app.main(), 151);
}

Texts ClearBurned(const App& app) {
  Show(app, 238);
  return app.CommandAndAnswer(app.main(), 179);
}

Texts ClearDay(const App& app) {
  Show(app, 233);
  return app.CommandAndAnswer(app.main(), 165);
}

}  // namespace

std::span<const Deed> WorkingDay() {
  static const std::vector<std::string_view> kUsers = {"users.ASC"};
  static const std::vector<std::string_view> kBalance = {"Ann\\bilans.ASC", "Ann\\z1.ASC",
                                                         "Ann\\z2.ASC"};
  static const Deed kDay[] = {
      {.name = "add a user", .act = AddUser, .refused = kUsersNotWritten, .about = kUsers},
      {.name = "log in", .act = LogIn},
      {.name = "fill in the profile", .act = FillInProfile},
      {.name = "set limits", .act = SetLimits},
      {.name = "add a food",
       .act = AddFood,
       .refused = kDayNotSaved,
       .about = kBalance,
       .emptied_first = {"Ann\\z1.ASC", "Ann\\z2.ASC"}},
      {.name = "add a product", .act = AddProduct, .done = kProductAdded, .about = {"data.txt"}},
      {.name = "save the eaten calories", .act = SaveCalories},
      {.name = "save a recipe", .act = SaveRecipe},
      {.name = "clear the list", .act = ClearList, .refused = kDayNotSaved, .about = kBalance},
      {.name = "add the food again", .act = AddFood, .refused = kDayNotSaved, .about = kBalance},
      {.name = "save a weight", .act = SaveWeight},
      {.name = "save a waist-hip ratio", .act = SaveWhr},
      {.name = "add burned calories", .act = AddBurned, .emptied_first = {"Ann\\erg.txt"}},
      {.name = "save the burned calories", .act = SaveBurned},
      {.name = "change a report", .act = ChangeReport},
      {.name = "clear a report", .act = ClearReport},
      {.name = "clear the burned calories", .act = ClearBurned},
      {.name = "clear the day", .act = ClearDay, .refused = kDayNotSaved, .about = kBalance},
      {.name = "remove the product", .act = RemoveProduct},
      {.name = "remove the user", .act = RemoveUser, .refused = kUsersNotWritten, .about = kUsers},
  };
  return kDay;
}

}  // namespace velnor::desktop

// Walks through the program and saves a picture of every screen and dialog, named for what it
// shows. Usage: velnor_tour.exe FOLDER

#include <cstdio>
#include <exception>
#include <string>

#include "tests/desktop/driver.h"

namespace velnor::desktop {
namespace {

class Tour {
 public:
  explicit Tour(std::string folder) : pictures_(std::move(folder)) {}

  void Walk() const {
    Take("home");
    app_.main().Command(231);
    Take("counter-empty");
    app_.main().Choose(124, "fruits");
    Take("counter-category-chosen");
    app_.main().Choose(125, "frozen");
    app_.main().Choose(126, "frozen strawberries");
    Take("counter-product-chosen");
    app_.main().SetText(128, "250");
    Take("counter-weight-typed");
    ClickOn(app_.main().Control(124));
    Take("counter-categories-dropped-down");
    PressKey(VK_ESCAPE);

    app_.main().Command(236);
    app_.main().Choose(108, "milk preserves");
    app_.main().Choose(110, "milk");
    app_.main().Choose(109, "milk 3,5%");
    app_.main().SetText(111, "250");
    Take("overview");

    for (const auto& [command, name] : kOtherScreens) {
      app_.main().Command(command);
      Take(name);
    }

    WalkProductDialogs();
    WalkUserDialogs();
    WalkActivities();

    app_.main().PostCommand(250);
    const Window about = app_.WaitForPopup();
    TakeWindow(about, "about");
    about.PostCommand(IDOK);
    WaitUntilGone(about.handle());

    app_.main().PostCommand(211);
    const MessageBoxSeen box = app_.WaitForMessageBox();
    TakeWindow(Window(box.handle), "not-yet-available");
    Answer(box, IDOK);
  }

 private:
  void WalkProductDialogs() const {
    app_.main().Command(240);
    const Window add = app_.WaitForPopup();
    TakeWindow(add, "add-product-empty");
    add.SetText(734, "Apple Pie");
    add.Choose(732, "sweets");
    add.Choose(733, "cake");
    add.SetText(740, "237");
    add.SetText(736, "1.9");
    add.SetText(737, "11.0");
    add.SetText(738, "34.0");
    TakeWindow(add, "add-product-filled");
    add.PostCommand(IDOK);
    const MessageBoxSeen added = app_.WaitForMessageBox(add);
    TakeWindow(Window(added.handle), "product-added");
    Answer(added, IDOK);
    add.Command(IDCANCEL);

    app_.main().Command(149);
    const Window search = app_.WaitForPopup();
    search.SetText(728, "apple");
    search.Command(730);
    TakeWindow(search, "search");
    search.SetText(728, "Apple");
    search.Command(731);
    search.SetText(728, "Apple");
    search.Command(730);
    TakeWindow(search, "search-not-found");
    search.Command(IDCANCEL);

    app_.main().Command(241);
    const Window remove = app_.WaitForPopup();
    remove.Choose(739, "apple pie");
    TakeWindow(remove, "remove-product");
    remove.PostCommand(IDOK);
    const MessageBoxSeen sure = app_.WaitForMessageBox(remove);
    TakeWindow(Window(sure.handle), "remove-product-sure");
    Answer(sure, IDYES);
    remove.Command(IDCANCEL);
  }

  void WalkUserDialogs() const {
    app_.main().Command(202);
    const Window users = app_.WaitForPopup();
    for (const char* const name : {"Zoe", "Adam"}) {
      users.SetText(701, name);
      users.Command(702);
    }
    users.Choose(700, "Zoe");
    TakeWindow(users, "users");
    users.Command(IDOK);

    app_.main().Command(200);
    const Window login = app_.WaitForPopup();
    login.Choose(700, "Zoe");
    TakeWindow(login, "login");
    login.PostCommand(IDOK);
    const MessageBoxSeen fill_up = app_.WaitForMessageBox(login);
    TakeWindow(Window(fill_up.handle), "login-fill-up-profile");
    Answer(fill_up, IDOK);

    app_.main().Command(204);
    const Window profile = app_.WaitForPopup();
    profile.SetText(704, "35");
    profile.SetText(705, "170");
    profile.Choose(706, "women");
    profile.Choose(707, "low");
    profile.Choose(708, "athlete");
    TakeWindow(profile, "profile");
    profile.Command(IDOK);
    Take("home-logged-in");
    app_.main().Command(232);
    Take("requirement-athlete");
  }

  void WalkActivities() const {
    app_.main().Command(238);
    Take("activities");
    app_.main().Choose(159, "running fast ~1km/3,40 min");
    app_.main().SetText(160, "12.34");
    app_.main().Command(161);
    Take("activities-counted");
    app_.main().Command(177);
    Take("activities-added");
    app_.main().Command(162);
    const Window record = app_.WaitForPopup();
    record.SetText(745, "in the park");
    TakeWindow(record, "burned-record");
    record.Command(IDOK);
    app_.main().PostCommand(179);
    const MessageBoxSeen cleared = app_.WaitForMessageBox();
    TakeWindow(Window(cleared.handle), "balance-cleared");
    Answer(cleared, IDOK);
  }

  struct ScreenName {
    int command;
    const char* name;
  };
  static constexpr ScreenName kOtherScreens[] = {
      {221, "bmi"},          {224, "whr"}, {210, "weight-report"},  {233, "balance"},
      {270, "weight-chart"}, {225, "bmr"}, {239, "energy-balance"}, {252, "exchanges"},
  };

  void Take(const std::string& name) const { TakeWindow(app_.main(), name); }

  void TakeWindow(const Window& window, const std::string& name) const {
    app_.Settle();
    Sleep(200);  // the display draws a moment after the program has finished
    window.SavePicture(pictures_ + '\\' + name + ".bmp");
  }

  std::string pictures_;
  WorkFolder folder_;
  App app_{folder_};
};

}  // namespace
}  // namespace velnor::desktop

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: velnor_tour FOLDER\n", stderr);
    return 2;
  }
  try {
    velnor::desktop::Tour(argv[1]).Walk();
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "velnor_tour: %s\n", failure.what());
    return 1;
  }
  return 0;
}

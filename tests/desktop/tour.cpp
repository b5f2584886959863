// Walks through the program and saves a picture of every screen and dialog, named for what it
// shows. Usage: velnor_tour.exe FOLDER

#include <cstdio>
#include <exception>
#include <string>
#include <utility>

#include "tests/desktop/driver.h"
#include "tests/desktop/tour_own_menu.h"

namespace velnor::desktop {
namespace {

class Tour {
 public:
  explicit Tour(std::string folder) : camera_(std::move(folder)) {}

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
    WalkDay();
    WalkFoodAtHand(app_, folder_, camera_);
    WalkBodyScreens();
    WalkReports();
    WalkActivities();
    WalkEnergy();
    WalkOtherSex();
    WalkLimits();
    WalkCopies(app_, camera_);

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

    app_.main().Command(231);
    app_.main().Command(149);
    const Window search = app_.WaitForPopup();
    search.SetText(728, "apple");
    search.Command(730);
    TakeWindow(app_.main(), "search");
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
    WalkCharts();
  }

  // With a series as long as a chart can show.
  void WalkCharts() const {
    app_.main().PostCommand(270);
    const MessageBoxSeen refusal = app_.WaitForMessageBox();
    Take("chart-refused");
    Answer(refusal, IDOK);
    std::string weights;
    std::string nutrients;
    for (int day = 1; day <= 21; ++day) {
      const std::string date = std::to_string(day) + ".11.2026;";
      const int wave = (day * 7) % 10;
      weights += date + std::to_string(72 + wave / 3) + ".5;24.5;\r\n";
      nutrients += date + std::to_string(1700 + 150 * wave) + ".;" + std::to_string(60 + 7 * wave) +
                   ".5;" + std::to_string(50 + 6 * wave) + ".;" + std::to_string(220 + 40 * wave) +
                   ".;\r\n";
    }
    folder_.Write("Zoe\\wykwag.txt", weights);
    folder_.Write("Zoe\\wykoda.txt", nutrients);
    for (const auto& [command, name] : kCharts) {
      app_.main().Command(command);
      Take(name);
    }
  }

  void AddFood(const char* main_category, const char* subcategory, const char* product,
               const char* weight) const {
    app_.main().Choose(124, main_category);
    app_.main().Choose(125, subcategory);
    app_.main().Choose(126, product);
    app_.main().SetText(128, weight);
    app_.main().Command(127);
  }

  void WalkDay() const {
    app_.main().Command(233);
    Take("balance-nothing-eaten");
    app_.main().Command(231);
    AddFood("fruits", "frozen", "frozen strawberries", "250");
    AddFood("milk preserves", "milk", "milk 3,5%", "500");
    AddFood("dairy products", "cottage cheese", "cottage cheese 2%", "350");
    AddFood("fats", "animal fats", "butter", "60");
    Take("counter-list");
    app_.main().Command(145);
    const Window report = app_.WaitForPopup();
    TakeWindow(report, "save-calories");
    report.Command(IDCANCEL);
    app_.main().Command(147);
    const Window recipe = app_.WaitForPopup();
    recipe.SetText(724, "strawberry shake");
    recipe.SetText(725, "Mix everything.\r\nServe cold.");
    TakeWindow(recipe, "save-recipe");
    recipe.Command(IDCANCEL);
    AddFood("dairy products", "cottage cheese", "cottage cheese 2%", "300");
    app_.main().Command(233);
    Take("balance-below-and-inside");
    folder_.Write("Zoe\\bilans.ASC", Today() + "\r\n3400\r\n290\r\n120\r\n380");
    app_.main().Command(233);
    Take("balance-above-and-out-of-scale");
  }

  void WalkBodyScreens() const {
    app_.main().Command(221);
    Take("bmi-before-counting");
    for (const auto& [weight, name] :
         {std::pair{"65", "bmi-standard"}, {"49", "bmi-attention"}, {"140", "bmi-third-level"}}) {
      app_.main().SetText(101, weight);
      app_.main().Command(102);
      Take(name);
    }
    TakeAndClose(103, "save-weight");
    app_.main().Command(224);
    app_.main().SetText(104, "81");
    app_.main().SetText(105, "100");
    app_.main().Command(106);
    Take("whr-apple");
    TakeAndClose(107, "save-whr");
    app_.main().Command(225);
    app_.main().Command(176);
    Take("bmr");
  }

  // Presses a button of the main window that opens a dialog.
  void TakeAndClose(int button, const std::string& name) const {
    app_.main().Command(button);
    const Window dialog = app_.WaitForPopup();
    TakeWindow(dialog, name);
    dialog.Command(IDCANCEL);
  }

  void WalkReports() const {
    for (const ReportPicture& report : kReports) {
      std::string records;
      for (int i = 0; i < report.records; ++i) records += report.record;
      folder_.Write(std::string("Zoe\\") + report.file_name, records);
      app_.main().Command(report.command);
      Take(report.name);
    }
    app_.main().PostCommand(152);
    const MessageBoxSeen save = app_.WaitForMessageBox();
    TakeWindow(app_.main(), "report-save-changes");
    Answer(save, IDYES);
    Take("report-cut");
    app_.main().PostCommand(151);
    const MessageBoxSeen clear = app_.WaitForMessageBox();
    TakeWindow(app_.main(), "report-clear");
    Answer(clear, IDNO);
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

  void WalkEnergy() const {
    folder_.Write("Zoe\\bilans.ASC", Today() + "\r\n2150\r\n70\r\n75\r\n320");
    for (const auto& [bmr, name] :
         {std::pair{"1439", "energy-balance-counted"}, {"9000", "energy-balance-out-of-scale"}}) {
      app_.main().Command(239);
      app_.main().SetText(181, bmr);
      app_.main().Command(182);
      Take(name);
    }
  }

  // Only a man's scale is shown beyond its end.
  void WalkOtherSex() const {
    app_.main().Command(204);
    const Window profile = app_.WaitForPopup();
    profile.Choose(706, "men");
    profile.Choose(708, "none");
    profile.Command(IDOK);
    app_.main().Command(221);
    app_.main().SetText(101, "180");
    app_.main().Command(102);
    Take("bmi-out-of-scale");
    app_.main().Command(224);
    app_.main().Command(106);
    Take("whr-norm");
  }

  void WalkLimits() const {
    folder_.Write("Zoe\\zapot.ASC", "1\r\n2000\r\n2500\r\n60\r\n80\r\n50\r\n70\r\n200\r\n300\r\n");
    app_.main().Command(200);
    const Window login = app_.WaitForPopup();
    login.Choose(700, "Zoe");
    login.Command(IDOK);
    app_.main().Command(232);
    Take("requirement-limits");
  }

  struct ScreenName {
    int command;
    const char* name;
  };
  static constexpr ScreenName kOtherScreens[] = {
      {210, "weight-report"},  {238, "activities"}, {233, "balance"},
      {239, "energy-balance"}, {252, "exchanges"},
  };

  static constexpr ScreenName kCharts[] = {
      {270, "chart-weight"}, {271, "chart-calories"},      {272, "chart-proteins"},
      {273, "chart-fat"},    {274, "chart-carbohydrates"},
  };

  struct ReportPicture {
    int command;
    const char* name;
    const char* file_name;
    int records;
    const char* record;
  };
  static constexpr ReportPicture kReports[] = {
      {210, "report-weight", "waga.ASC", 1,
       "date: 26.10.2026\tbody weight[kg]: 67.5\tBMI: 23.35\tother: after the holidays\t\r\n"
       "date: 2.11.2026\tbody weight[kg]: 66.8\tBMI: 23.11\tother: \t\r\n"
       "date: 9.11.2026\tbody weight[kg]: 66\tBMI: 22.83\tother: swam twice\t\r\n"
       "date: 16.11.2026\tbody weight[kg]: 65\tBMI: 22.49\tother: \t\r\n"},
      {214, "report-whr", "whr.ASC", 4,
       "date: 16.11.2026\twaist[cm]: 70\thip[cm]: 95\tWHR: 0.73\tother: \r\n"},
      {212, "report-calorie", "mirvo.ASC", 25,
       "16.11.2026  food weight[g]: 250.  K[kcal]: 70.  P[g]: 1.75  F[g]: 1.  C[g]: 13.5  ||\r\n"
       "--------------------------------------------------------------------------------\r\n"},
      {213, "report-recipes", "zestaw.ASC", 4,
       "\t****************************************************************\r\n"
       "DATE: 16.11.2026\r\nNAME:  dessert\r\nCOMPOSITION:\r\nfrozen strawberries  250.0g\r\n"
       "RECIPE:  \r\nthaw and serve\r\n\r\n"},
      {215, "report-burned", "cwiczenia.ASC", 800,
       "16.11.2026  swimming  60 min  burned: 412.5 kcal\r\n"},
  };

  void Take(const std::string& name) const { TakeWindow(app_.main(), name); }

  void TakeWindow(const Window& window, const std::string& name) const {
    camera_.Take(app_, window, name);
  }

  Camera camera_;
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

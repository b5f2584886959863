// The program: its state, and what it does when it starts, when a menu item is chosen, when a
// control says something, and when a screen is to be painted. Knows no window system; the entry
// point gives it the interfaces it works through and calls it for every event.

#ifndef VELNOR_SHELL_PROGRAM_H_
#define VELNOR_SHELL_PROGRAM_H_

#include <cstdint>
#include <string>

#include "activity/burned_calories.h"
#include "activity/burned_screen.h"
#include "activity/requirement_screen.h"
#include "base/canvas.h"
#include "base/clock.h"
#include "base/form.h"
#include "base/main_window.h"
#include "base/message_boxes.h"
#include "base/session.h"
#include "body/bmi_screen.h"
#include "body/bmr_screen.h"
#include "body/weight_text.h"
#include "body/whr_screen.h"
#include "charts/chart_screen.h"
#include "food/counter_screen.h"
#include "food/day_balance.h"
#include "food/energy_screen.h"
#include "food/food_list_panel.h"
#include "food/food_table.h"
#include "food/overview_screen.h"
#include "reports/report_screen.h"
#include "users/profile.h"

namespace velnor {

class Program {
 public:
  // `base_folder`: the start-up directory with a separator at its end. `date_text`: today. `form`
  // holds the controls of the main window; nothing is asked of the interfaces before Start.
  Program(std::string base_folder, std::string date_text, Form& form, MainWindow& window,
          MessageBoxes& message_boxes, const Clock& clock = kStoppedClock);

  // The menu as it is when nobody is logged in, and the user's products. Called once, when the main
  // window and its controls exist.
  void Start();

  // A menu item was chosen, or the control `id` announced `notification`.
  void OnCommand(int id, int notification);

  // The wheel was turned; `movement` is negative when it was turned towards the user. Report
  // screens scroll one line, whatever the distance; other screens do nothing and give false.
  bool OnMouseWheel(std::int32_t movement);

  // The two steps of every repaint: all controls are hidden, then the current screen is painted and
  // shows its own. An unknown screen number paints and shows nothing.
  void HideControls();
  void Paint(Canvas& canvas);
  // What follows when the repaint has ended and can be seen: a chart that had too little to draw
  // says so, once, and gives way to the home screen. May wait for the user and be entered again.
  void FinishPaint();

  // What the commands and screens of the tables work with.
  void ShowScreen(ScreenId screen);
  void LogOut();
  void OpenLogin();
  void OpenUsers();
  void OpenProfile();
  void OpenAddProduct();
  void OpenImportProducts();
  void OpenQuickAdd();
  void OpenDiary();
  void OpenRemoveProduct();
  void OpenSearch();
  void OpenCalorieRecord();
  void OpenRecipeRecord();
  void ClearDay();
  void OpenWeightRecord();
  void OpenWhrRecord();
  void OpenBurnedRecord();
  CounterScreen& counter() { return counter_; }
  FoodListPanel& food_list() { return food_list_; }
  OverviewScreen& overview() { return overview_; }
  RequirementScreen& requirement() { return requirement_; }
  ChartScreen& charts() { return charts_; }
  BmiScreen& bmi() { return bmi_; }
  WhrScreen& whr() { return whr_; }
  BmrScreen& bmr() { return bmr_; }
  ReportScreen& reports() { return reports_; }
  BurnedScreen& burned() { return burned_; }
  EnergyScreen& energy() { return energy_; }
  MainWindow& window() { return window_; }
  MessageBoxes& message_boxes() { return message_boxes_; }
  DayBalance& day() { return day_; }
  const SessionState& session() const { return session_; }

 private:
  // What begins with the login of a user: the day's balance, the user's limits.
  void StartUserDay();
  void MakeCopyOfTheDay();
  // After a product of the user's own came or went.
  void OnProductsChanged();

  SessionState session_;
  bool missing_copy_is_said_ = false;
  Form& form_;
  MainWindow& window_;
  MessageBoxes& message_boxes_;
  UserProfile profile_;
  FoodTable food_;
  Exchanges exchanges_;
  DayBalance day_;
  CounterScreen counter_;
  FoodListPanel food_list_;
  OverviewScreen overview_;
  RequirementScreen requirement_;
  ChartScreen charts_;
  bool refusal_open_ = false;  // the box of a chart that refused
  WeightText weight_;
  BmiScreen bmi_;
  WhrScreen whr_;
  BmrScreen bmr_;
  ReportScreen reports_;
  BurnedTotal burned_total_;
  BurnedScreen burned_;
  EnergyScreen energy_;
};

}  // namespace velnor

#endif  // VELNOR_SHELL_PROGRAM_H_

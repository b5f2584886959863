// What the program is made of: the session, what several screens share, and one object a screen.
// Each gets by reference what stands above it. The commands and the keys work with the parts.

#ifndef VELNOR_SHELL_PARTS_H_
#define VELNOR_SHELL_PARTS_H_

#include <string>

#include "activity/burned_calories.h"
#include "activity/burned_screen.h"
#include "activity/day_requirement.h"
#include "activity/exchanges_screen.h"
#include "activity/requirement_screen.h"
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
#include "food/balance_screen.h"
#include "food/counter_screen.h"
#include "food/day_balance.h"
#include "food/energy_screen.h"
#include "food/food_list_panel.h"
#include "food/food_table.h"
#include "food/nutrition.h"
#include "food/overview_screen.h"
#include "reports/report_screen.h"
#include "shell/home_screen.h"
#include "users/profile.h"
#include "users/safety_copies.h"

namespace velnor {

struct Parts {
  // `base_folder`: the start-up directory with a separator at its end. `date_text`: today.
  Parts(std::string base_folder, std::string date_text, Form& main_form, MainWindow& main_window,
        MessageBoxes& boxes, const Clock& clock);
  Parts(const Parts&) = delete;
  Parts& operator=(const Parts&) = delete;

  // A product of the user's own came or went: the lists of products show it.
  void OnProductsChanged();

  Form& form;
  MainWindow& window;
  MessageBoxes& message_boxes;

  SessionState session;
  UserProfile profile;
  FoodTable food;
  Exchanges exchanges;
  DayBalance day;
  FoodListPanel food_list;
  DayRequirement requirement;
  BurnedTotal burned_total;
  WeightText weight;
  SafetyCopies copies;

  HomeScreen home_screen;
  BmiScreen bmi_screen;
  WhrScreen whr_screen;
  OverviewScreen overview_screen;
  ReportScreen report_screen;
  RequirementScreen requirement_screen;
  CounterScreen counter_screen;
  BurnedScreen burned_screen;
  BalanceScreen balance_screen;
  ChartScreen weight_chart;
  ChartScreen calorie_chart;
  ChartScreen protein_chart;
  ChartScreen fat_chart;
  ChartScreen carbohydrate_chart;
  BmrScreen bmr_screen;
  EnergyScreen energy_screen;
  ExchangesScreen exchanges_screen;
};

}  // namespace velnor

#endif  // VELNOR_SHELL_PARTS_H_

// The daily balance: what has been eaten today against the daily requirement, on four scales.

#ifndef VELNOR_FOOD_BALANCE_SCREEN_H_
#define VELNOR_FOOD_BALANCE_SCREEN_H_

#include <span>

#include "activity/day_requirement.h"
#include "base/control.h"
#include "base/main_window.h"
#include "base/screen.h"
#include "food/day_balance.h"
#include "food/food_list_panel.h"
#include "users/safety_copies.h"

namespace velnor {

class BalanceScreen final : public Screen {
 public:
  BalanceScreen(DayBalance& day, FoodListPanel& food_list, DayRequirement& requirement,
                SafetyCopies& copies, MainWindow& window)
      : day_(day),
        food_list_(food_list),
        requirement_(requirement),
        copies_(copies),
        window_(window) {}

  static std::span<const ControlRow> Controls();
  void OnChosen() override;
  // Takes the day as its files hold it now, after starting them afresh when they are of another
  // day. A day that cannot be read is drawn as nothing eaten.
  void Refresh() override;
  void Paint(Canvas& canvas) const override;
  bool OnControl(int id, int notification) override;

  // The button: nothing has been eaten today. The day as it was is copied before.
  void ClearDay();

 private:
  DayBalance& day_;
  FoodListPanel& food_list_;
  DayRequirement& requirement_;
  SafetyCopies& copies_;
  MainWindow& window_;
  DayTotals totals_;
  DayExchanges exchanges_;
};

}  // namespace velnor

#endif  // VELNOR_FOOD_BALANCE_SCREEN_H_

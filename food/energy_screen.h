// The energy balance: what was given out and what was eaten, as figures and as arrows on two
// scales, from a basal metabolic rate that the person types.

#ifndef VELNOR_FOOD_ENERGY_SCREEN_H_
#define VELNOR_FOOD_ENERGY_SCREEN_H_

#include "activity/burned_calories.h"
#include "base/canvas.h"
#include "base/form.h"
#include "base/main_window.h"
#include "base/message_boxes.h"
#include "food/day_balance.h"
#include "food/energy_balance.h"

namespace velnor {

class EnergyScreen {
 public:
  EnergyScreen(const DayBalance& day, BurnedTotal& burned, Form& form, MainWindow& window,
               MessageBoxes& message_boxes);

  // Draws what the day's files hold now. What stands in the field of the basal metabolic rate gives
  // way to the last one counted with.
  void Paint(Canvas& canvas);

  // The button: counts the difference with the typed rate. Text that is no number, or 0, is
  // answered with a message and changes nothing.
  void Count();

 private:
  EnergyFigures Figures() const;

  const DayBalance& day_;
  BurnedTotal& burned_;
  Form& form_;
  MainWindow& window_;
  MessageBoxes& message_boxes_;
  float bmr_ = 0;         // kcal, the last one counted with
  float difference_ = 0;  // kcal, the last one counted
};

}  // namespace velnor

#endif  // VELNOR_FOOD_ENERGY_SCREEN_H_

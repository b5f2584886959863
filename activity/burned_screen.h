// The activities screen: choose an activity, type minutes, read the calories and the fat burned,
// and keep the day's total.

#ifndef VELNOR_ACTIVITY_BURNED_SCREEN_H_
#define VELNOR_ACTIVITY_BURNED_SCREEN_H_

#include <string>

#include "activity/burned_calories.h"
#include "activity/burned_record.h"
#include "base/canvas.h"
#include "base/form.h"
#include "base/main_window.h"
#include "base/message_boxes.h"

namespace velnor {

class BurnedScreen {
 public:
  BurnedScreen(BurnedTotal& total, Form& form, MainWindow& window, MessageBoxes& message_boxes);

  // Draws the texts, offers the activities and brings the day's total up to date.
  void Paint(Canvas& canvas);

  // The buttons.
  void Count();
  void Add();
  void Clear();

  // The activity of the last count; empty when none was chosen for it or nothing was counted yet.
  const std::string& counted_activity() const { return counted_activity_; }
  // What the last count shows, as the record that it would make on `date`.
  BurnedRecord RecordOf(const std::string& date) const;

 private:
  BurnedTotal& total_;
  Form& form_;
  MainWindow& window_;
  MessageBoxes& message_boxes_;
  std::string counted_activity_;
  std::string counted_minutes_;
};

}  // namespace velnor

#endif  // VELNOR_ACTIVITY_BURNED_SCREEN_H_

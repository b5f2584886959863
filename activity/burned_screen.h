// The activities screen: choose an activity, type minutes, read the calories and the fat burned,
// and keep the day's total.

#ifndef VELNOR_ACTIVITY_BURNED_SCREEN_H_
#define VELNOR_ACTIVITY_BURNED_SCREEN_H_

#include <span>
#include <string>

#include "activity/burned_calories.h"
#include "activity/burned_record.h"
#include "base/control.h"
#include "base/form.h"
#include "base/main_window.h"
#include "base/message_boxes.h"
#include "base/screen.h"
#include "base/session.h"

namespace velnor {

class BurnedScreen final : public Screen {
 public:
  BurnedScreen(const SessionState& session, BurnedTotal& total, Form& form, MainWindow& window,
               MessageBoxes& message_boxes);

  static std::span<const ControlRow> Controls();
  // Offers the activities and brings the day's total up to date.
  void Refresh() override;
  void Paint(Canvas& canvas) const override;
  bool OnControl(int id, int notification) override;

  // The buttons.
  void Count();
  void OpenRecord();
  void Add();
  void Clear();

 private:
  // What the last count shows, as the record that it would make today.
  BurnedRecord RecordOfToday() const;

  const SessionState& session_;
  BurnedTotal& total_;
  Form& form_;
  MainWindow& window_;
  MessageBoxes& message_boxes_;
  // Of the last count; empty when none was chosen for it or nothing was counted yet.
  std::string counted_activity_;
  std::string counted_minutes_;
};

}  // namespace velnor

#endif  // VELNOR_ACTIVITY_BURNED_SCREEN_H_

// The chart screens: one plotting procedure for all five charts. A chart that has too little to
// draw refuses.

#ifndef VELNOR_CHARTS_CHART_SCREEN_H_
#define VELNOR_CHARTS_CHART_SCREEN_H_

#include <optional>
#include <span>

#include "activity/day_requirement.h"
#include "base/control.h"
#include "base/message_boxes.h"
#include "base/screen.h"
#include "base/session.h"
#include "charts/chart.h"

namespace velnor {

class ChartScreen final : public Screen {
 public:
  // `requirement`: drawn behind the nutrient charts.
  ChartScreen(const SessionState& session, DayRequirement& requirement, ChartId chart)
      : session_(session), requirement_(requirement), chart_(FindChart(chart)) {}

  static std::span<const ControlRow> Controls() { return {}; }
  void OnChosen() override;
  // Reads the chart's series anew; a file that is missing is made.
  void Refresh() override;
  void Paint(Canvas& canvas) const override;
  // What the chart says when it has too little to draw, since the last Refresh.
  std::optional<Message> TakeRefusal() override;

 private:
  const SessionState& session_;
  DayRequirement& requirement_;
  const Chart& chart_;
  ChartSeries series_;
  std::optional<Message> refusal_;
  bool is_drawn_ = false;
};

}  // namespace velnor

#endif  // VELNOR_CHARTS_CHART_SCREEN_H_

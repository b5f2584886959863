// The chart screens: one plotting procedure for all five charts. A chart that has too little to
// draw refuses: it leaves the message that is to be shown once its painting has ended.

#ifndef VELNOR_CHARTS_CHART_SCREEN_H_
#define VELNOR_CHARTS_CHART_SCREEN_H_

#include <optional>

#include "activity/requirement.h"
#include "base/canvas.h"
#include "base/message_boxes.h"
#include "base/session.h"

namespace velnor {

struct Chart;

class ChartScreen {
 public:
  explicit ChartScreen(const SessionState& session) : session_(session) {}

  // Reads the chart's series anew and draws it; a file that is missing is made. `bounds`: the day's
  // requirement, drawn behind the nutrient charts.
  void Paint(Canvas& canvas, const Chart& chart, const RequirementBounds& bounds);

  // The refusal of the last painting, once; nothing when it drew its chart.
  std::optional<Message> TakeRefusal();

 private:
  const SessionState& session_;
  std::optional<Message> refusal_;
};

}  // namespace velnor

#endif  // VELNOR_CHARTS_CHART_SCREEN_H_

#include "charts/chart_screen.h"

#include <string>
#include <utility>
#include <vector>

#include "base/file_calls.h"
#include "base/text_file.h"
#include "base/transaction.h"
#include "charts/chart.h"

namespace velnor {
namespace {

constexpr Font kAxisFont{11, 0, false};
constexpr Font kDayFont{10, 0, false};
constexpr Pen kAxisPen{kBlack, 1};
constexpr Pen kGridPen{{160, 160, 160}, 1};
constexpr Pen kBandPen{{0, 255, 0}, 1};
constexpr int kDataWidth = 3;

constexpr Point kAxes[] = {
    {kChartLeft, 100}, {kChartLeft, kChartBottom}, {kChartRight, kChartBottom}, {kChartRight, 100}};
constexpr Point kLeftArrow[] = {{46, 110}, {50, 100}, {54, 110}};
constexpr Point kRightArrow[] = {{746, 110}, {750, 100}, {754, 110}};

constexpr int kColumns = (kChartRight - kChartLeft) / kChartColumn;
constexpr int kTopRow = 150;
constexpr int kRowHeight = 25;
constexpr int kTick = 2;  // pixels on either side of the axis

// Where the lines across the plot begin and end: beside the ticks.
constexpr int kInnerLeft = kChartLeft + kTick;
constexpr int kInnerRight = kChartRight - kTick;

// From the point of an entry to its label's corner.
constexpr Point kDayLabel{-10, -15};

constexpr std::size_t kFewestEntries = 3;

constexpr std::string_view kTooFew =
    "Not enought data to draw graph.\nNeed at least 3 savings (from 3 different days).";

void PaintTexts(Canvas& canvas, const Chart& chart) {
  canvas.SetFont(kTitleFont);
  canvas.WriteText({10, 30}, chart.title);
  canvas.SetFont(kBodyFont);
  canvas.WriteText({13, 50}, chart.note);
  canvas.WriteText({10, 75}, chart.unit);
}

void PaintAxes(Canvas& canvas, const Chart& chart) {
  canvas.SetPen(kAxisPen);
  canvas.DrawPolyline(kAxes);
  canvas.DrawPolyline(kLeftArrow);
  canvas.DrawPolyline(kRightArrow);
  canvas.SetFont(kAxisFont);
  for (int column = 0; column <= kColumns; ++column) {
    const int x = kChartLeft + column * kChartColumn;
    canvas.DrawLine({x, kChartBottom - kTick}, {x, kChartBottom + kTick});
    canvas.WriteText({x - 3, 458}, std::to_string(kColumns - column));
  }
  int label = chart.top;
  for (int y = kTopRow; y < kChartBottom; y += kRowHeight) {
    canvas.DrawLine({kChartLeft - kTick, y}, {kChartLeft + kTick, y});
    canvas.DrawLine({kChartRight - kTick, y}, {kChartRight + kTick, y});
    canvas.WriteText({27, y - 5}, std::to_string(label));
    label -= chart.step;
  }
}

void PaintAcross(Canvas& canvas, int y) { canvas.DrawLine({kInnerLeft, y}, {kInnerRight, y}); }

void PaintGrid(Canvas& canvas) {
  canvas.SetPen(kGridPen);
  for (int y = kTopRow; y < kChartBottom; y += kRowHeight) PaintAcross(canvas, y);
  for (int x = kChartLeft + kChartColumn; x < kChartRight; x += kChartColumn) {
    canvas.DrawLine({x, kChartBottom - kTick}, {x, kTopRow});
  }
}

void PaintBand(Canvas& canvas, const Chart& chart, Limit lower, const RequirementBounds& bounds) {
  canvas.SetPen(kBandPen);
  PaintAcross(canvas, ChartY(chart, bounds[lower]));
  PaintAcross(canvas, ChartY(chart, bounds[lower + 1]));
}

// The labels come last: the line would cross those of its steep pieces.
void Plot(Canvas& canvas, const Chart& chart, const ChartSeries& series) {
  const std::vector<ChartPoint> points = ChartPoints(chart, series);
  std::vector<Point> line;
  line.reserve(points.size());
  for (const ChartPoint& point : points) line.push_back(point.at);
  canvas.SetPen({chart.colour, kDataWidth});
  canvas.DrawPolyline(line);
  canvas.SetFont(kDayFont);
  for (const auto& [at, label] : points) {
    if (!label.empty()) canvas.WriteText({at.x + kDayLabel.x, at.y + kDayLabel.y}, label);
  }
}

ChartSeries LoadSeries(const Chart& chart, const SessionState& session) {
  // Without a user there is no folder that a series could lie in.
  if (!session.user) return {};
  const std::string path = session.user->File(chart.file);
  ChartSeries series = LoadChartFile(path);
  if (series.file_is_empty && !IsThere(path)) {
    Transaction deed(session.base_folder);
    deed.Append(path, "");
    deed.CommitUnreported();
  }
  return series;
}

std::optional<Message> RefusalOf(const Chart& chart, const ChartSeries& series) {
  if (series.file_is_empty) return Message{.text = chart.no_data, .caption = "Caution"};
  if (series.last + 1 < kFewestEntries) return Message{.text = kTooFew, .caption = "ATTENTION"};
  return std::nullopt;
}

}  // namespace

void ChartScreen::Paint(Canvas& canvas, const Chart& chart, const RequirementBounds& bounds) {
  PaintTexts(canvas, chart);
  PaintAxes(canvas, chart);
  PaintGrid(canvas);
  if (chart.lower_bound) PaintBand(canvas, chart, *chart.lower_bound, bounds);
  const ChartSeries series = LoadSeries(chart, session_);
  refusal_ = RefusalOf(chart, series);
  if (!refusal_) Plot(canvas, chart, series);
  canvas.SetPen(kAxisPen);
}

std::optional<Message> ChartScreen::TakeRefusal() { return std::exchange(refusal_, std::nullopt); }

}  // namespace velnor

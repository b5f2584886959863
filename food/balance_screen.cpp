#include "food/balance_screen.h"

#include <string>

#include "base/number_text.h"
#include "food/balance_scale.h"
#include "food/nutrition.h"

namespace velnor {
namespace {

constexpr int kClear = 165;

constexpr ControlRow kControls[] = {Button(kClear, "Clear", {705, 23, 80, 25})};

constexpr ControlEvent<BalanceScreen> kEvents[] = {
    {kClear, kButtonClicked, &BalanceScreen::ClearDay}};

constexpr Colour kGrey{79, 79, 79};
constexpr Colour kLightGrey{205, 205, 205};
constexpr Colour kGreen{0, 205, 0};
constexpr Colour kOrange{229, 171, 31};
constexpr Colour kYellow{246, 255, 86};

constexpr Pen kAxisPen{kGrey, 3};
constexpr Pen kTickPen{kGrey, 2};
constexpr int kBandWidth = 7;
constexpr int kMarkWidth = 3;

// Small and narrow, for each label to end before its figure begins.
constexpr Font kHeadFont{12, 0, false};
constexpr Font kEatenFont{11, 0, false, true};

constexpr int kHeadY = 23;
constexpr int kTickDistance = 100;
constexpr int kTickHalf = 4;
constexpr int kLabelledTicks = 6;
constexpr int kAxisAboveLabels = 9;

// A pointer on the axis: its tip, its head and its shaft, in pixels above the axis.
constexpr int kTip = 6;
constexpr int kHead = 11;
constexpr int kHeadHalf = 5;
constexpr int kShaftTop = 21;

Colour ColourOf(Standing standing) {
  switch (standing) {
    case Standing::kBelow:
      return kOrange;
    case Standing::kAbove:
      return kRed;
    case Standing::kInside:
      return kGreen;
    case Standing::kUnknown:
      break;
  }
  return kGrey;
}

std::string ShownNumber(double number) { return FormatNumber(number, kShownDigits); }

void PaintHead(Canvas& canvas, const DayExchanges& exchanges) {
  canvas.SetFont(kTitleFont);
  canvas.SetTextColour(kBlack);
  canvas.WriteText({10, kHeadY}, "Daily balance");
  canvas.SetFont(kHeadFont);
  canvas.SetTextColour(kYellow);
  canvas.WriteText({300, kHeadY}, "Factors +/- 0.1");
  canvas.WriteText({400, kHeadY}, "Carb Exch: ");
  canvas.WriteText({460, kHeadY}, ShownNumber(exchanges.carbohydrate));
  canvas.WriteText({510, kHeadY}, "Protein-Fat Exch: ");
  canvas.WriteText({600, kHeadY}, ShownNumber(exchanges.protein_fat));
}

// The norm lies on the axis as a band, between the paler bands of the tolerance.
void PaintNorm(Canvas& canvas, const BalanceScale& scale, int axis_y, const Range& norm) {
  const auto band = [&](Colour colour, double from, double to) {
    canvas.SetPen({colour, kBandWidth});
    canvas.DrawLine({ScaleX(scale, from), axis_y}, {ScaleX(scale, to), axis_y});
  };
  band(kLightGrey, norm.lower - scale.range, norm.upper + scale.range);
  band(kGreen, norm.lower, norm.upper);
}

void PaintAxis(Canvas& canvas, const BalanceScale& scale, int axis_y) {
  canvas.SetPen(kAxisPen);
  canvas.DrawLine({kScaleLeft, axis_y}, {kScaleRight, axis_y});
  canvas.SetPen(kTickPen);
  for (int x = kScaleLeft; x <= kScaleRight; x += kTickDistance) {
    canvas.DrawLine({x, axis_y - kTickHalf}, {x, axis_y + kTickHalf});
  }
  canvas.SetTextColour(kBlack);
  for (int tick = 1; tick <= kLabelledTicks; ++tick) {
    const std::string label = std::to_string(tick * scale.unit_per_tick);
    const int left_of_tick = label.size() > 3 ? 10 : label.size() > 2 ? 8 : 5;
    canvas.WriteText({kScaleLeft + tick * kTickDistance - left_of_tick, scale.label_y}, label);
  }
}

void PaintMark(Canvas& canvas, int x, int axis_y, Colour colour) {
  canvas.SetPen({colour, kMarkWidth});
  const Point tip = {x, axis_y - kTip};
  canvas.DrawLine({x, axis_y - kShaftTop}, tip);
  const Point head[] = {{x - kHeadHalf, axis_y - kHead}, tip, {x + kHeadHalf, axis_y - kHead}};
  canvas.DrawPolyline(head);
}

void PaintScale(Canvas& canvas, const BalanceScale& scale, double eaten,
                const DailyRequirement& requirement) {
  const int axis_y = scale.label_y - kAxisAboveLabels;
  const Standing standing = StandingOf(scale, eaten, requirement);
  canvas.SetFont(kBodyFont);
  canvas.SetTextColour(kGreen);
  canvas.WriteText({65, scale.norm_y}, kNorm);
  canvas.SetTextColour(kBlack);
  canvas.WriteText({125, scale.norm_y}, scale.range_text);
  if (requirement.IsKnown()) PaintNorm(canvas, scale, axis_y, requirement.*scale.norm);
  PaintAxis(canvas, scale, axis_y);
  PaintMark(canvas, ScaleX(scale, eaten), axis_y, ColourOf(standing));
  if (IsOutOfScale(scale, eaten)) {
    canvas.SetTextColour(kRed);
    canvas.WriteText({650, scale.out_of_scale_y}, "OUT OF SCALE");
    canvas.SetTextColour(kBlack);
  }
  canvas.SetFont(kEatenFont);
  canvas.WriteText({60, scale.eaten_y}, scale.eaten_label);
  canvas.SetFont(kBodyFont);
  canvas.WriteText({110, scale.eaten_y}, ShownNumber(eaten));
  canvas.WriteText({160, scale.eaten_y}, "balance:");
  if (standing == Standing::kInside) canvas.SetTextColour(kGreen);
  canvas.WriteText({210, scale.eaten_y}, StandingText(scale, eaten, requirement));
}

}  // namespace

std::span<const ControlRow> BalanceScreen::Controls() { return kControls; }

void BalanceScreen::OnChosen() { requirement_.Update(); }

bool BalanceScreen::OnControl(int id, int notification) {
  return RunEvent<BalanceScreen>(*this, kEvents, id, notification);
}

void BalanceScreen::ClearDay() {
  copies_.MakeBefore("Clear (daily balance)");
  food_list_.ClearDay();
  window_.Invalidate();
}

void BalanceScreen::Refresh() {
  day_.MakeExchangeFiles();
  totals_ = day_.ReadTotals().value_or(DayTotals{});
  exchanges_ = day_.ReadExchanges();
}

void BalanceScreen::Paint(Canvas& canvas) const {
  PaintHead(canvas, exchanges_);
  for (const BalanceScale& scale : BalanceScales()) {
    PaintScale(canvas, scale, totals_.*scale.eaten, requirement_.requirement());
  }
}

}  // namespace velnor

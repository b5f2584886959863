#include "food/energy_screen.h"

#include <cmath>
#include <string>

#include "base/number_text.h"

namespace velnor {
namespace {

constexpr int kBmr = 181;

// The system's own text, as it stands.
constexpr std::string_view kNoBmr =
    "Put the value of Your BMR factor!\nIf You don`t know it use our built-in calculator.";

// Small, for a label to end before its figure, and narrow, for a remark to end before the edge of
// the window.
constexpr Font kLabelFont{12, 0, false};
constexpr Font kRemarkFont{11, 0, false, true};

constexpr Colour kWhite{255, 255, 255};

constexpr PlacedText kIntroduction[] = {
    {{10, 65}, "Energy balance contain:"},
    {{10, 80}, "- BMR coeficient (Basal Metabolic Rate)"},
    {{10, 95},
     "- burned calories as a result of a physical effort - only the ones written by the user"},
    {{10, 110}, "- eaten calories (using daily balance)"},
    {{10, 125}, "- presumption that digestion equals 10% of BMR"},
    {{10, 153}, "Put Your BMR value [kcal]"},
    {{10, 530}, "Energy balance never can be replaced with specialist (eg. nutritionist) view!"},
};

constexpr int kAxisLeft = 50;
constexpr int kAxisRight = 750;
constexpr int kTickDistance = 50;
constexpr int kKcalPerTick = 500;
constexpr int kTickHalf = 3;

struct Scale {
  std::string_view label;
  int label_y;
  int axis_y;
  int out_of_scale_y;
};

constexpr Scale kOut = {"burned energy + BMR + digestion [kcal]", 250, 300, 270};
constexpr Scale kEaten = {"eaten energy [kcal]", 350, 400, 370};

// Significant digits at most.
constexpr int kDifferenceDigits = 11;
constexpr int kScaleDigits = 8;
constexpr int kBmrDigits = 6;

// The next whole number, as every figure of the screen is shown.
std::string Rounded(double kcal, int digits) { return FormatNumber(std::ceil(kcal), digits); }

void PaintAxis(Canvas& canvas, const Scale& scale) {
  canvas.SetPen({kBlack, 3});
  canvas.DrawLine({kAxisLeft, scale.axis_y}, {kAxisRight, scale.axis_y});
  canvas.SetPen({kBlack, 1});
  int kcal = 0;
  for (int x = kAxisLeft; x <= kAxisRight; x += kTickDistance, kcal += kKcalPerTick) {
    canvas.DrawLine({x, scale.axis_y - kTickHalf}, {x, scale.axis_y + kTickHalf});
    canvas.WriteText({x - 7, scale.axis_y + 6}, std::to_string(kcal));
  }
}

void PaintArrow(Canvas& canvas, const Scale& scale, double kcal) {
  const Point tip = {EnergyScaleX(kcal), scale.axis_y - 2};
  canvas.SetPen({kWhite, 1});
  canvas.DrawLine(tip, {tip.x, tip.y - 33});
  canvas.DrawLine(tip, {tip.x - 5, tip.y - 18});
  canvas.DrawLine(tip, {tip.x + 5, tip.y - 18});
}

void PaintFigure(Canvas& canvas, const Scale& scale, double kcal) {
  canvas.SetFont(kLabelFont);
  canvas.WriteText({10, scale.label_y}, scale.label);
  canvas.SetFont(kBodyFont);
  canvas.WriteText({220, scale.label_y}, Rounded(kcal, kScaleDigits));
}

void PaintScales(Canvas& canvas, double out, double eaten) {
  PaintFigure(canvas, kOut, out);
  PaintFigure(canvas, kEaten, eaten);
  PaintAxis(canvas, kOut);
  PaintAxis(canvas, kEaten);
  // An amount beyond its scale takes both arrows with it.
  const bool out_fits = out < kEnergyScaleEnd;
  const bool eaten_fits = eaten < kEnergyScaleEnd;
  if (out_fits && eaten_fits) {
    PaintArrow(canvas, kOut, out);
    PaintArrow(canvas, kEaten, eaten);
  }
  canvas.SetFont(kRemarkFont);
  if (!out_fits) canvas.WriteText({720, kOut.out_of_scale_y}, "OUT OF SCALE");
  if (!eaten_fits) canvas.WriteText({720, kEaten.out_of_scale_y}, "OUT OF SCALE");
}

}  // namespace

EnergyScreen::EnergyScreen(const DayBalance& day, BurnedTotal& burned, Form& form,
                           MainWindow& window, MessageBoxes& message_boxes)
    : day_(day), burned_(burned), form_(form), window_(window), message_boxes_(message_boxes) {}

EnergyFigures EnergyScreen::Figures() const {
  return {bmr_, burned_.kcal(), static_cast<float>(day_.ReadKcalOfAnyDay())};
}

void EnergyScreen::Paint(Canvas& canvas) {
  burned_.Refresh();
  const EnergyFigures figures = Figures();
  canvas.SetFont(kTitleFont);
  canvas.WriteText({10, 30}, "Energy balance");
  canvas.WriteText({300, 470}, "DIFFERENCE [kcal] = ");
  canvas.WriteText({470, 470}, Rounded(difference_, kDifferenceDigits));
  canvas.DrawLine({5, 55}, {695, 55});
  canvas.SetFont(kBodyFont);
  WriteTexts(canvas, kIntroduction);
  PaintScales(canvas, ShownOut(figures), ShownEaten(figures));
  form_.SetText(kBmr, Rounded(bmr_, kBmrDigits));
}

void EnergyScreen::Count() {
  const auto typed = static_cast<float>(ParseNumber(form_.ReadText(kBmr, kBmrTextLimit)));
  if (typed == 0) {
    message_boxes_.Show({.text = kNoBmr});
    return;
  }
  bmr_ = typed;
  difference_ = EnergyDifference(Figures());
  window_.Invalidate();
}

}  // namespace velnor

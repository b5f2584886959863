#include "body/bmi_scale.h"

#include <array>
#include <cstddef>
#include <string_view>

#include "body/bmi.h"

namespace velnor {
namespace {

constexpr float kEnd = 57.0F;  // BMI

constexpr int kLeft = 50;
constexpr int kRight = 750;
constexpr int kAxisY = 450;
constexpr int kLabelY = 460;

constexpr Colour kGrey{79, 79, 79};
constexpr Colour kGreen{0, 255, 0};
constexpr Pen kAxisPen{kGrey, 3};
constexpr int kEndTickReach = 6;  // above and below the axis

constexpr Pen kMarkerPen{{205, 205, 205}, 2};
constexpr int kMarkerHalfWidth = 20;
constexpr int kMarkerTop = 420;

constexpr Font kLabelFont{12, 0, false};
constexpr Font kLevelFont{12, 0, true};
constexpr Font kObesityFont{13, 0, true};

constexpr Font kOutOfScaleFont{22, 700, true};
constexpr Colour kOutOfScaleColour{200, 0, 0};
constexpr PlacedText kOutOfScale = {{630, 415}, "OUT OF SCALE"};

struct Tick {
  Pen pen;
  int reach;  // pixels above and below the axis; 0: no tick
};
constexpr Tick kMajor = {{kGrey, 2}, 5};
constexpr Tick kMinor = {{kGrey, 1}, 3};
constexpr Tick kNoTick = {};

// Places differ by sex: the first of each pair is for men, the second for women.
using Places = std::array<int, 2>;
constexpr std::size_t kMan = 0;
constexpr std::size_t kWoman = 1;

struct ScaleItem {
  Tick tick;
  Places tick_x;
  std::string_view label;
  Places label_x;
  int label_y = kLabelY;
  Font font = kLabelFont;
  Colour colour = kBlack;
};

// clang-format off
constexpr ScaleItem kItems[] = {
    {kMajor,  {260, 260}, "DANGER",      {135, 135}, kLabelY, kLabelFont, kRed},
    {kMajor,  {299, 279}, "underweight", {258, 248}},
    {kMajor,  {368, 360}, "standard",    {320, 305}, kLabelY, kLabelFont, kGreen},
    {kMinor,  {383, 378}, "",            {}},
    {kMajor,  {422, 438}, "overweight",  {380, 382}},
    {kNoTick, {},         "OBESITY",     {515, 515}, 470, kObesityFont},
    {kMinor,  {470, 470}, "I",           {440, 440}, kLabelY, kLevelFont},
    {kMinor,  {530, 530}, "II",          {500, 500}, kLabelY, kLevelFont},
    {kMajor,  {650, 650}, "III",         {573, 573}, kLabelY, kLevelFont},
    {kNoTick, {},         "DANGER",      {680, 680}, kLabelY, kLabelFont, kRed},
};
// clang-format on

void DrawTick(Canvas& canvas, int x, int reach) {
  canvas.DrawLine({x, kAxisY + reach}, {x, kAxisY - reach});
}

void DrawGraduation(Canvas& canvas, std::size_t sex) {
  canvas.SetPen(kAxisPen);
  canvas.DrawLine({kLeft, kAxisY}, {kRight, kAxisY});
  DrawTick(canvas, kLeft, kEndTickReach);
  DrawTick(canvas, kRight, kEndTickReach);
  for (const ScaleItem& item : kItems) {
    if (item.tick.reach != 0) {
      canvas.SetPen(item.tick.pen);
      DrawTick(canvas, item.tick_x[sex], item.tick.reach);
    }
    if (item.label.empty()) continue;
    canvas.SetFont(item.font);
    canvas.SetTextColour(item.colour);
    canvas.WriteText({item.label_x[sex], item.label_y}, item.label);
  }
}

void DrawMarker(Canvas& canvas, float bmi) {
  const int x = kLeft + BmiMarkerOffset(bmi);
  const Point tip = {x, kAxisY};
  const Point triangle[] = {
      tip, {x - kMarkerHalfWidth, kMarkerTop}, {x + kMarkerHalfWidth, kMarkerTop}, tip};
  canvas.SetPen(kMarkerPen);
  canvas.DrawPolyline(triangle);
}

void DrawOutOfScale(Canvas& canvas) {
  canvas.SetFont(kOutOfScaleFont);
  canvas.SetTextColour(kOutOfScaleColour);
  canvas.WriteText(kOutOfScale.at, kOutOfScale.text);
}

}  // namespace

void DrawBmiScale(Canvas& canvas, float bmi, const UserProfile& profile) {
  const bool inside = bmi > 0 && bmi < kEnd;
  const bool beyond = bmi > kEnd;
  if (inside && (profile.IsMan() || profile.IsWoman())) {
    DrawGraduation(canvas, profile.IsMan() ? kMan : kWoman);
    DrawMarker(canvas, bmi);
  } else if (beyond && profile.IsMan()) {
    DrawGraduation(canvas, kMan);
    DrawOutOfScale(canvas);
  }
  canvas.SetPen({kBlack, 1});
  canvas.SetTextColour(kBlack);
}

}  // namespace velnor

// How well everything the screens draw can be read: each text, line and mark of every state is held
// against the pixels of the picture under it.

#include "tests/support/legibility.h"

#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>
#include <iostream>
#include <map>
#include <string>
#include <vector>

#include "shell/controls.h"
#include "shell/screens.h"
#include "tests/support/painted_states.h"

namespace velnor {
namespace {

// What a mark must reach. The first row that fits counts.
struct Bound {
  MarkKind kind;
  Colour colour;
  const char* background;  // "": any
  Point from, to;          // where the mark begins; corners included
  double least;
};

constexpr Point kCorner{0, 0};
constexpr Point kEnd{800, 550};
constexpr Point kVerdictFrom{350, 50};
constexpr Point kVerdictTo{350, 205};
constexpr Point kBmiNamesFrom{305, 460};
constexpr Point kBmiNamesTo{320, 460};
constexpr Point kBalanceResultFrom{210, 140};
constexpr Point kBalanceResultTo{210, 530};

constexpr Colour kGreen{0, 255, 0};
constexpr Colour kBrown{183, 101, 20};
constexpr Colour kDarkRed{200, 0, 0};
constexpr Colour kLeafGreen{0, 205, 0};
constexpr Colour kOrange{229, 171, 31};
constexpr Colour kDarkBlue{0, 0, 165};
constexpr Colour kYellow{246, 255, 86};
constexpr Colour kWhite{255, 255, 255};
constexpr Colour kAxisGrey{79, 79, 79};
constexpr Colour kLightGrey{205, 205, 205};
constexpr Colour kGrid{160, 160, 160};
constexpr Colour kWeightLine{0, 0, 188};
constexpr Colour kCalorieLine{255, 139, 137};
constexpr Colour kFatLine{255, 255, 71};

constexpr double kBlackText = 7.0;
constexpr double kLoneText = 3.0;
constexpr double kSharedText = 1.6;
constexpr double kLine = 1.5;

// clang-format off
constexpr Bound kBounds[] = {
    {MarkKind::kText, kBlack, "", kCorner, kEnd, kBlackText},
    // The line of factors above the daily balance.
    {MarkKind::kText, kYellow, "BILANS", kCorner, kEnd, 4.5},
    // Black, red, green and brown stand in one place, by result.
    {MarkKind::kText, kRed, "BMI2", kVerdictFrom, kVerdictTo, kSharedText},
    {MarkKind::kText, kGreen, "BMI2", kVerdictFrom, kVerdictTo, kSharedText},
    {MarkKind::kText, kBrown, "BMI2", kVerdictFrom, kVerdictTo, kSharedText},
    // "standard" between black names that reach into its place.
    {MarkKind::kText, kGreen, "BMI2", kBmiNamesFrom, kBmiNamesTo, kSharedText},
    // "NORM" as a result, where black figures stand on other days.
    {MarkKind::kText, kLeafGreen, "BILANS", kBalanceResultFrom, kBalanceResultTo, kSharedText},
    // The calorie line would need a field on which black labels stand out by 6.2 only.
    {MarkKind::kLine, kCalorieLine, "BCG", kCorner, kEnd, 1.3},
    // The grid is to be seen last, but to be seen.
    {MarkKind::kLine, kGrid, "BCG", kCorner, kEnd, 1.1},
    {MarkKind::kLine, {}, "", kCorner, kEnd, kLine},
};
// clang-format on

bool Fits(const Bound& bound, const Mark& mark, const std::string& background) {
  const bool any_colour = bound.kind == MarkKind::kLine && bound.colour == Colour{};
  return bound.kind == mark.kind && (any_colour || bound.colour == mark.colour) &&
         (*bound.background == '\0' || bound.background == background) &&
         mark.at.x >= bound.from.x && mark.at.x <= bound.to.x && mark.at.y >= bound.from.y &&
         mark.at.y <= bound.to.y;
}

// A coloured text that no row knows stands alone.
double LeastOf(const Mark& mark, const std::string& background) {
  const auto* const bound =
      std::ranges::find_if(kBounds, [&](const Bound& row) { return Fits(row, mark, background); });
  return bound == std::end(kBounds) ? kLoneText : bound->least;
}

std::string HexOf(Colour colour) {
  char text[8];
  std::snprintf(text, sizeof text, "#%02x%02x%02x", colour.red, colour.green, colour.blue);
  return text;
}

std::string NameOf(Colour colour) {
  struct Named {
    Colour colour;
    const char* name;
  };
  static constexpr Named kNames[] = {
      {kBlack, "black"},         {kRed, "red"},
      {kGreen, "green"},         {kBrown, "brown"},
      {kDarkRed, "dark red"},    {kLeafGreen, "leaf green"},
      {kOrange, "orange"},       {kDarkBlue, "dark blue"},
      {kYellow, "light yellow"}, {kWhite, "white"},
      {kAxisGrey, "dark grey"},  {kLightGrey, "light grey"},
      {kGrid, "grid grey"},      {kWeightLine, "blue"},
      {kCalorieLine, "rose"},    {kFatLine, "yellow"},
  };
  const auto* const named = std::ranges::find(kNames, colour, &Named::colour);
  return named == std::end(kNames) ? HexOf(colour) : named->name;
}

std::string SurfaceOf(Colour colour) {
  for (const char* const name : {"band", "paper", "card", "slate", "haze", "mist", "pine"}) {
    if (PaletteColour(name) == colour) return name;
  }
  return HexOf(colour);
}

struct Measured {
  Mark mark;
  double least;
  std::string state;
};

std::string RowOf(const Measured& row) {
  char figures[32];
  std::snprintf(figures, sizeof figures, "%.2f | %.1f", row.mark.contrast, row.least);
  return "| " + NameOf(row.mark.colour) + " `" + HexOf(row.mark.colour) + "` " +
         (row.mark.kind == MarkKind::kText ? "text" : "line") + " | `" + SurfaceOf(row.mark.under) +
         "` | " + figures + " | ";
}

std::string RowWithPlace(const Measured& row) {
  return RowOf(row) + row.state + ": " + row.mark.what + " |\n";
}

class LegibilityTest : public PaintedStatesTest {
 protected:
  void MeasureAll() {
    WalkAll();
    std::map<std::string, Picture> pictures;
    for (const auto& [name, canvas] : states_) {
      const std::string& background = canvas.backgrounds.front();
      const Picture& picture =
          pictures.try_emplace(background, PictureFile(background)).first->second;
      for (const Mark& mark : MeasureMarks(canvas, picture)) {
        measured_.push_back({mark, LeastOf(mark, background), name});
      }
    }
  }

  // Of all marks that share kind, colour, surface and bound one, the least first.
  std::vector<Measured> Table() const {
    std::vector<Measured> rows = measured_;
    std::ranges::stable_sort(rows, {}, [](const Measured& row) { return row.mark.contrast; });
    std::vector<Measured> table;
    for (const Measured& row : rows) {
      if (std::ranges::find(table, RowOf(row), RowOf) == table.end()) table.push_back(row);
    }
    return table;
  }

  std::vector<Measured> measured_;
};

TEST_F(LegibilityTest, EverythingStandsOutFromThePicture) {
  MeasureAll();
  for (const Measured& row : measured_) {
    EXPECT_GE(row.mark.contrast, row.least) << RowWithPlace(row);
  }
  std::string table;
  int printed = 0;
  std::cout << "the ten that stand out least:\n";
  for (const Measured& row : Table()) {
    if (printed++ < 10) std::cout << RowWithPlace(row);
    table += RowWithPlace(row);
  }
  EXPECT_NE(ReadResource("../docs/look.md").find(table), std::string::npos)
      << "docs/look.md should show this table:\n"
      << table;
}

// Smaller letters cannot be read. The day labels of a chart are prescribed.
TEST_F(LegibilityTest, NothingIsDrawnInSmallerFontsThanCanBeRead) {
  constexpr int kSmallest = 11;
  constexpr Font kDayFont{10, 0, false};
  WalkAll();
  for (const auto& [name, canvas] : states_) {
    for (const DrawnText& drawn : canvas.texts) {
      const bool is_day_label = canvas.backgrounds.front() == "BCG" && drawn.font == kDayFont;
      EXPECT_TRUE(is_day_label || drawn.font.height >= kSmallest) << name << ": " << drawn.text;
    }
  }
  for (const ControlRow& control : MainWindowControls()) {
    EXPECT_GE(ControlFont(control).height, kSmallest) << control.id;
  }
}

TEST_F(LegibilityTest, ChartLinesStandApartFromTheGrid) {
  WalkAllCharts();
  ASSERT_FALSE(states_.empty());
  for (const auto& [name, canvas] : states_) {
    for (const DrawnLine& line : canvas.lines) {
      const Colour colour = line.pen.colour;
      if (colour == kGrid) continue;
      // Light rose is apart from grey by its hue, and three pixels wide.
      EXPECT_GE(Contrast(colour, kGrid), colour == kCalorieLine ? 1.1 : kLine) << name;
      EXPECT_GE(ColourDifference(colour, kGrid), 30.0) << name << ' ' << NameOf(colour);
      EXPECT_GE(ColourDifference(colour, PaletteColour("slate")), 30.0) << name;
    }
  }
}

TEST(MeasureTest, TakesTheWorstPixelUnderATextAndALine) {
  // The header's band ends at y 20; what reaches over the edge of a sheet meets its brown outline.
  const Picture picture("bmi2.bmp");
  RecordingCanvas canvas;
  canvas.SetFont({14, 0, false});
  canvas.WriteText({10, 2}, "on the band");
  canvas.WriteText({290, 100}, "over the edge of a sheet");
  canvas.WriteText({790, 100}, "outside");
  canvas.WriteText({810, 100}, "outside");
  canvas.WriteText({10, 100}, "  ");
  canvas.WriteText({10, 9}, "over the edge of the band");
  canvas.DrawLine({10, 100}, {300, 100});
  canvas.DrawLine({10, 100}, {330, 100});
  const std::vector<Mark> marks = MeasureMarks(canvas, picture);
  ASSERT_EQ(marks.size(), 7U);
  EXPECT_EQ(marks[0].under, PaletteColour("band"));
  EXPECT_LT(marks[1].contrast, 7.0);
  EXPECT_GT(marks[2].contrast, 1.0);
  EXPECT_EQ(marks[3].contrast, 1.0);
  EXPECT_LT(marks[4].contrast, marks[0].contrast);
  EXPECT_EQ(marks[5].under, PaletteColour("paper"));
  EXPECT_LT(marks[6].contrast, marks[5].contrast);
}

TEST(MeasureTest, APenReachesAsFarAsItIsWide) {
  const Picture picture("bmi2.bmp");
  RecordingCanvas canvas;
  // The band ends above y 21.
  for (const int width : {1, 3}) {
    canvas.SetPen({kBlack, width});
    canvas.DrawLine({10, 20}, {10, 20});
    canvas.DrawLine({400, 20}, {410, 20});
  }
  const std::vector<Mark> marks = MeasureMarks(canvas, picture);
  ASSERT_EQ(marks.size(), 4U);
  EXPECT_EQ(marks[0].under, PaletteColour("band"));
  EXPECT_EQ(marks[1].under, PaletteColour("band"));
  EXPECT_LT(marks[3].contrast, marks[1].contrast);
}

// Extents of whole lines that the platform gave for its face, in pixels.
TEST(MeasureTest, ExtentsAreNeverTooSmallAndHardlyTooLarge) {
  struct Line {
    Font font;
    const char* text;
    int width;
  };
  constexpr Line kLines[] = {
      {{11, 0, false}, "OUT OF SCALE", 75},
      {{11, 0, false, true}, "OUT OF SCALE", 65},
      {{11, 0, false, true}, "eaten[kcal]", 45},
      {{12, 0, false}, "They`ll help You define proper relation between fat and body weight.", 327},
      {{14, 0, false}, "They`ll help You define proper relation between fat and body weight.", 371},
      {{14, 0, false}, "SCORE: OUT OF SCALE!!! - IT`S NOT ENOUGHT TO SAY YOU`RE FAT...!!!", 407},
      {{16, 0, false}, "They`ll help You define proper relation between fat and body weight.", 433},
      {{18, 700, true}, "Daily balance", 102},
      {{22, 700, true}, "OUT OF SCALE", 148},
  };
  for (const auto& [font, text, width] : kLines) {
    EXPECT_GE(WidestExtent(font, text), width) << font.height << ' ' << text;
    EXPECT_LE(WidestExtent(font, text), width * 111 / 100 + 1) << font.height << ' ' << text;
  }
}

}  // namespace
}  // namespace velnor

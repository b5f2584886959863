// The five charts: everything that is painted.

#include <span>
#include <string>
#include <vector>

#include "shell/screens.h"
#include "tests/screens/chart_fixture.h"

namespace velnor {
namespace {

constexpr Pen kBlackPen{{0, 0, 0}, 1};
constexpr Pen kGrid{{160, 160, 160}, 1};
constexpr Pen kBand{{0, 255, 0}, 1};
constexpr Font kTitle{18, 700, true};
constexpr Font kBody{14, 0, false};
constexpr Font kAxis{11, 0, false};
constexpr Font kDay{10, 0, false};

const std::string kLimits = "1\r\n2000.\r\n2500\r\n60.5\r\n80\r\n50\r\n70\r\n200\r\n300\r\n";

// Scale labels from the top down.
using Scale = std::vector<const char*>;
const Scale kWeightScale = {"180", "165", "150", "135", "120", "105",
                            "90",  "75",  "60",  "45",  "30",  "15"};
const Scale kCalorieScale = {"4800", "4400", "4000", "3600", "3200", "2800",
                             "2400", "2000", "1600", "1200", "800",  "400"};
const Scale kGramScale = {"240", "220", "200", "180", "160", "140",
                          "120", "100", "80",  "60",  "40",  "20"};
const Scale kCarbohydrateScale = {"2400", "2200", "2000", "1800", "1600", "1400",
                                  "1200", "1000", "800",  "600",  "400",  "200"};

std::vector<DrawnText> FrameTexts(const char* title, const char* note, const char* unit,
                                  const Scale& scale) {
  std::vector<DrawnText> texts = {{title, {10, 30}, kTitle, kBlack},
                                  {note, {13, 50}, kBody, kBlack},
                                  {unit, {10, 75}, kBody, kBlack}};
  for (int n = 20; n >= 0; --n) {
    texts.push_back({std::to_string(n), {747 - 35 * n, 458}, kAxis, kBlack});
  }
  for (int row = 0; row < 12; ++row) {
    texts.push_back({scale.at(static_cast<std::size_t>(row)), {27, 145 + 25 * row}, kAxis, kBlack});
  }
  return texts;
}

std::vector<DrawnLine> FrameLines() {
  std::vector<DrawnLine> lines = {
      {{{50, 100}, {50, 450}, {750, 450}, {750, 100}}, kBlackPen},
      {{{46, 110}, {50, 100}, {54, 110}}, kBlackPen},
      {{{746, 110}, {750, 100}, {754, 110}}, kBlackPen},
  };
  for (int x = 50; x <= 750; x += 35) lines.push_back({{{x, 448}, {x, 452}}, kBlackPen});
  for (int y = 150; y <= 425; y += 25) {
    lines.push_back({{{48, y}, {52, y}}, kBlackPen});
    lines.push_back({{{748, y}, {752, y}}, kBlackPen});
  }
  for (int y = 150; y <= 425; y += 25) lines.push_back({{{52, y}, {748, y}}, kGrid});
  for (int x = 85; x <= 715; x += 35) lines.push_back({{{x, 448}, {x, 150}}, kGrid});
  return lines;
}

// What was drawn after the header.
std::vector<DrawnLine> Lines(const RecordingCanvas& canvas) {
  return {canvas.lines.begin() + 1, canvas.lines.end()};
}

// The line of the data: these heights from the right, and the bottom axis further left.
DrawnLine DataLine(const std::vector<int>& heights, Colour colour) {
  DrawnLine line = {{}, {colour, 3}};
  for (int i = 0; i < 21; ++i) {
    const auto index = static_cast<std::size_t>(i);
    line.points.push_back({750 - 35 * i, index < heights.size() ? heights[index] : 450});
  }
  return line;
}

template <typename T>
std::vector<T> Joined(std::vector<T> first, const std::vector<T>& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

std::vector<DrawnLine> LinesOf(const RecordingCanvas& canvas, const Pen& pen) {
  std::vector<DrawnLine> lines;
  for (const DrawnLine& line : canvas.lines) {
    if (line.pen == pen) lines.push_back(line);
  }
  return lines;
}

// The heights of the two lines of the requirement.
std::vector<int> BandOf(const RecordingCanvas& canvas) {
  std::vector<int> heights;
  for (const DrawnLine& line : LinesOf(canvas, kBand)) {
    EXPECT_EQ(line.points.size(), 2U);
    EXPECT_EQ(line.points[0].x, 52);
    EXPECT_EQ(line.points[1].x, 748);
    EXPECT_EQ(line.points[0].y, line.points[1].y);
    heights.push_back(line.points[0].y);
  }
  return heights;
}

TEST_F(ChartScreenTest, TheWeightChartLineByLine) {
  LogIn();
  folder_.Write("Ann/wykwag.txt", kThreeWeights);
  RecordingCanvas canvas = Open(kWeightChart);
  EXPECT_EQ(
      Texts(canvas),
      Joined(FrameTexts("WEIGHT CHART - last 20 entries",
                        "Entries are making by writing the report at calculating the BMI rate",
                        "weight[kg]", kWeightScale),
             {{"17.11", {705, 315}, kDay, kBlack}, {"16.11", {670, 318}, kDay, kBlack}}));
  EXPECT_EQ(Lines(canvas), Joined(FrameLines(), {DataLine({334, 330, 333}, {0, 0, 188})}));
  canvas.DrawLine({0, 0}, {1, 1});
  EXPECT_EQ(canvas.lines.back().pen, kBlackPen) << "the black pen comes back";
  EXPECT_TRUE(boxes_.shown.empty());
  EXPECT_EQ(program_->session().screen, 13);
  EXPECT_TRUE(form_.ShownKeys().empty());
  EXPECT_EQ(folder_.Read("Ann/wykwag.txt"), kThreeWeights);
}

TEST_F(ChartScreenTest, TheCalorieChartLineByLine) {
  LogIn();
  folder_.Write("Ann/wykoda.txt", kThreeDays);
  Open(kOpenRequirement);
  const RecordingCanvas canvas = Open(kCalorieChart);
  EXPECT_EQ(Texts(canvas),
            Joined(FrameTexts("CALORIE CHART - last 20 entries",
                              "Graph created automatically basing on data from daily balance",
                              "[kcal]", kCalorieScale),
                   {{"15.11", {705, 135}, kDay, kBlack}, {"14.11", {670, 319}, kDay, kBlack}}));
  const std::vector<DrawnLine> band = {{{{52, 300}, {748, 300}}, kBand},
                                       {{{52, 287}, {748, 287}}, kBand}};
  EXPECT_EQ(Lines(canvas),
            Joined(Joined(FrameLines(), band), {DataLine({325, 150, 334}, {255, 139, 137})}));
  EXPECT_EQ(program_->session().screen, 14);
}

TEST_F(ChartScreenTest, TheOtherNutrientsHaveTheirOwnScaleFieldAndPen) {
  LogIn();
  folder_.Write("Ann/wykoda.txt", kThreeDays);
  Open(kOpenRequirement);
  struct Expected {
    int command;
    ScreenId screen;
    const char* title;
    Scale scale;
    std::vector<int> band;
    std::vector<int> heights;
    Colour colour;
  };
  const std::vector<Expected> charts = {
      {kProteinsChart,
       15,
       "PROTEINS CHART - last 20 entries",
       kGramScale,
       {356, 356},
       {325, 150, 359},
       {255, 255, 255}},
      {kFatChart,
       16,
       "FAT CHART - last 20 entries",
       kGramScale,
       {356, 325},
       {350, 150, 374},
       {255, 255, 71}},
      {kCarbohydratesChart,
       17,
       "CARBOHYDRATES CHART - last 20 entries",
       kCarbohydrateScale,
       {406, 398},
       {412, 150, 421},
       {0, 0, 0}},
  };
  for (const Expected& chart : charts) {
    const RecordingCanvas canvas = Open(chart.command);
    EXPECT_EQ(program_->session().screen, chart.screen);
    const std::vector<DrawnText> days = {{"15.11", {705, chart.heights[1] - 15}, kDay, kBlack},
                                         {"14.11", {670, chart.heights[2] - 15}, kDay, kBlack}};
    EXPECT_EQ(Texts(canvas),
              Joined(FrameTexts(chart.title,
                                "Graph created automatically basing on data from daily balance",
                                "[g]", chart.scale),
                     days));
    const std::vector<DrawnLine> band = {{{{52, chart.band[0]}, {748, chart.band[0]}}, kBand},
                                         {{{52, chart.band[1]}, {748, chart.band[1]}}, kBand}};
    EXPECT_EQ(Lines(canvas),
              Joined(Joined(FrameLines(), band), {DataLine(chart.heights, chart.colour)}));
  }
}

TEST_F(ChartScreenTest, AFullSeriesReachesFromAxisToAxis) {
  LogIn();
  std::string lines;
  for (int day = 1; day <= 22; ++day) {
    lines += std::to_string(day) + ".11.2026;" + std::to_string(60 + day) + ";20.;\r\n";
  }
  folder_.Write("Ann/wykwag.txt", lines);
  const RecordingCanvas canvas = Open(kWeightChart);
  const std::vector<DrawnLine> data = LinesOf(canvas, {{0, 0, 188}, 3});
  ASSERT_EQ(data.size(), 1U);
  const std::vector<Point>& points = data[0].points;
  ASSERT_EQ(points.size(), 21U);
  EXPECT_EQ(points[0], (Point{750, 313}));
  EXPECT_EQ(points[1], (Point{715, 314}));
  EXPECT_EQ(points[19], (Point{85, 344}));
  EXPECT_EQ(points[20], (Point{50, 346}));
  std::vector<std::string> labels;
  for (const DrawnText& text : canvas.texts) {
    if (text.font == kDay) labels.push_back(text.text);
  }
  ASSERT_EQ(labels.size(), 20U) << "every entry drawn but the newest";
  EXPECT_EQ(labels.front(), "21.11");
  EXPECT_EQ(labels.back(), "2.11");
}

// Tells whether a day's label was drawn before the line of the data was.
class OrderCanvas final : public Canvas {
 public:
  void CopyBackground(std::string_view) override {}
  void SetFont(const Font& font) override { font_ = font; }
  void SetTextColour(Colour) override {}
  void SetPen(const Pen& pen) override { pen_ = pen; }
  void WriteText(Point, std::string_view) override { order += font_ == kDay ? "d" : ""; }
  void DrawPolyline(std::span<const Point>) override { order += pen_.width == 3 ? "L" : ""; }

  std::string order;

 private:
  Font font_;
  Pen pen_;
};

TEST_F(ChartScreenTest, TheLineNeverCoversALabel) {
  LogIn();
  folder_.Write("Ann/wykwag.txt", kThreeWeights);
  ShowScreen(program_->parts(), 13);
  OrderCanvas canvas;
  program_->PreparePaint();
  program_->Paint(canvas);
  EXPECT_EQ(canvas.order, "Ldd");
}

TEST_F(ChartScreenTest, EveryPaintReadsTheFileAnew) {
  LogIn();
  folder_.Write("Ann/wykwag.txt", kThreeWeights);
  Open(kWeightChart);
  folder_.Write("Ann/wykwag.txt", kThreeWeights + "19.11.2026;60;20.;\r\n");
  EXPECT_EQ(LinesOf(Repaint(), {{0, 0, 188}, 3}).front().points.front(), (Point{750, 349}));
}

// It is worked out when the chart is chosen, so that it is never that of the user before.
TEST_F(ChartScreenTest, TheBandIsTheRequirement) {
  LogIn();
  folder_.Write("Ann/wykoda.txt", kThreeDays);
  EXPECT_EQ(BandOf(Open(kCalorieChart)), (std::vector<int>{300, 287}));
  // Limits that are in force count, whether or not they are shown as active yet.
  folder_.Write("Ann/zapot.ASC", kLimits);
  EXPECT_EQ(BandOf(Repaint()), (std::vector<int>{300, 287}));
  EXPECT_EQ(BandOf(Open(kCalorieChart)), (std::vector<int>{325, 293}));
  EXPECT_EQ(BandOf(Open(kProteinsChart)), (std::vector<int>{375, 350}));
}

TEST_F(ChartScreenTest, ActiveLimitsAreTheBandWithTheirDecimals) {
  LogIn();
  folder_.Write("Ann/wykoda.txt", kThreeDays);
  folder_.Write("Ann/zapot.ASC", kLimits);
  LogIn();
  EXPECT_EQ(BandOf(Open(kCalorieChart)), (std::vector<int>{325, 293}));
  EXPECT_EQ(BandOf(Open(kProteinsChart)), (std::vector<int>{374, 350}));
  EXPECT_EQ(BandOf(Open(kFatChart)), (std::vector<int>{387, 362}));
  EXPECT_EQ(BandOf(Open(kCarbohydratesChart)), (std::vector<int>{425, 412}));
  // Cleared, the group's requirement counts again.
  Open(kOpenRequirement);
  form_.Press(175);
  Open(kOpenRequirement);
  EXPECT_EQ(BandOf(Open(kCalorieChart)), (std::vector<int>{300, 287}));
}

TEST_F(ChartScreenTest, TheWeightChartHasNoBand) {
  LogIn();
  folder_.Write("Ann/wykwag.txt", kThreeWeights);
  Open(kOpenRequirement);
  EXPECT_EQ(BandOf(Open(kWeightChart)), std::vector<int>{});
}

TEST_F(ChartScreenTest, JunkIsDrawnAsNothing) {
  LogIn();
  std::string junk;
  for (std::size_t i = 0; i < 300; ++i) junk += "\xFF;\xFE;-;e9;." + std::string(i % 7, '.') + "\n";
  junk.insert(40, 1, '\0');
  folder_.Write("Ann/wykoda.txt", junk);
  for (const int command : {kCalorieChart, kProteinsChart, kFatChart, kCarbohydratesChart}) {
    const RecordingCanvas canvas = Open(command);
    for (const DrawnLine& line : canvas.lines) {
      if (line.pen.width != 3) continue;
      for (const Point& point : line.points) EXPECT_EQ(point.y, 450);
    }
  }
  EXPECT_TRUE(boxes_.shown.empty());
  EXPECT_EQ(folder_.Read("Ann/wykoda.txt"), junk);
}

}  // namespace
}  // namespace velnor

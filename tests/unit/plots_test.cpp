#include "diary/plots.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace velnor {
namespace {

const PlotShape& kWide = kPlotShapes.front();
const PlotHead kHead = {.id = "p", .title = "Title", .description = "Description"};

// What stands between the quotes of the d of the first path of the class.
std::string PathOf(const std::string& svg, const std::string& css_class) {
  const std::size_t path = svg.find("<path class=\"" + css_class + "\"");
  if (path == std::string::npos) return "(none)";
  const std::size_t begin = svg.find(" d=\"", path) + 4;
  return svg.substr(begin, svg.find('"', begin) - begin);
}

std::size_t Count(const std::string& text, std::string_view piece) {
  std::size_t count = 0;
  for (std::size_t at = text.find(piece); at != std::string::npos; at = text.find(piece, at + 1)) {
    ++count;
  }
  return count;
}

std::vector<DiaryDay> Days(std::initializer_list<std::pair<int, double>> eaten) {
  std::vector<DiaryDay> days;
  for (const auto& [day, kcal] : eaten) {
    days.push_back(
        {.day = day,
         .totals = {.kcal = kcal, .protein = kcal / 16, .fat = kcal / 36, .carbohydrate = kcal / 8},
         .has_food = true});
  }
  return days;
}

TEST(SvgTest, HasATitleThatIsRead) {
  SvgDrawing drawing({.id = "p",
                      .css_class = "wide",
                      .width = 10,
                      .height = 20.5,
                      .title = "A",
                      .description = "B"});
  drawing.Text({1, 2.25}, TextAnchor::kEnd, "x", "label");
  EXPECT_EQ(drawing.Finish(),
            "<svg id=\"p\" class=\"wide\" viewBox=\"0 0 10 20.5\" role=\"img\" "
            "aria-labelledby=\"p-t p-d\"><title id=\"p-t\">A</title><desc id=\"p-d\">B</desc>\n"
            "<text class=\"label\" x=\"1\" y=\"2.2\" text-anchor=\"end\">x</text>\n</svg>\n");
}

TEST(CaloriePlotTest, AMissingDayIsAGap) {
  const std::string svg =
      DrawCaloriePlot({kWide, kHead, {1, 4}}, Days({{1, 1000}, {2, 2000}, {4, 1500}}), {});
  EXPECT_EQ(Count(PathOf(svg, "bar"), "M"), 3U);
  EXPECT_EQ(PathOf(svg, "bar"), "M153.5 258V144M348.5 258V30M738.5 258V87");
  EXPECT_EQ(svg.find("\"band\""), std::string::npos);
}

TEST(CaloriePlotTest, TheMeanNeedsFourDaysOfSeven) {
  const auto days = Days({{-2, 1000}, {-1, 1000}, {0, 1000}, {1, 2000}, {2, 2000}});
  const std::string svg = DrawCaloriePlot({kWide, kHead, {1, 10}}, days, {});
  EXPECT_EQ(Count(PathOf(svg, "smooth"), "M"), 1U);
  EXPECT_EQ(Count(PathOf(svg, "smooth"), "L"), 4U);  // until four of them are a week old
  EXPECT_EQ(Count(PathOf(svg, "bar"), "M"), 2U);     // those before the range have no bar
}

TEST(CaloriePlotTest, TheRequirementIsABand) {
  const std::string svg = DrawCaloriePlot({kWide, kHead, {1, 4}}, Days({{1, 1000}}), {2000, 2500});
  EXPECT_NE(svg.find("<rect class=\"band\" x=\"56\" y=\"68\" width=\"780\" height=\"38\"/>"),
            std::string::npos);
}

TEST(CaloriePlotTest, ASlipOfTypingIsMarkedAndLeavesTheAxisAlone) {
  const std::string plain = DrawCaloriePlot({kWide, kHead, {1, 4}}, Days({{1, 1000}}), {});
  const std::string slip =
      DrawCaloriePlot({kWide, kHead, {1, 4}}, Days({{1, 1000}, {2, 1e30}}), {});
  EXPECT_EQ(PathOf(slip, "bar"), PathOf(plain, "bar"));
  EXPECT_EQ(PathOf(plain, "beyond"), "(none)");
  EXPECT_EQ(Count(PathOf(slip, "beyond"), "z"), 1U);
}

TEST(CaloriePlotTest, ADayFarAboveTheOthersIsCutAtTheTop) {
  const std::string svg = DrawCaloriePlot({kWide, kHead, {1, 4}},
                                          Days({{1, 1000}, {2, 1000}, {3, 1000}, {4, 15000}}), {});
  EXPECT_NE(PathOf(svg, "bar").find("V30"), std::string::npos);
  EXPECT_EQ(Count(PathOf(svg, "beyond"), "z"), 1U);
}

TEST(CaloriePlotTest, WithoutADaySaysSo) {
  const std::string svg = DrawCaloriePlot({kWide, kHead, {1, 30}}, {}, {2000, 2500});
  EXPECT_NE(svg.find("Nothing was entered"), std::string::npos);
}

TEST(CaloriePlotTest, ACenturyHasNoMoreBarsThanRoom) {
  std::vector<DiaryDay> days;
  days.reserve(36500);
  for (int day = 0; day < 36500; ++day) {
    days.push_back({.day = day, .totals = {.kcal = 2000}, .has_food = true});
  }
  for (const PlotShape& shape : kPlotShapes) {
    const std::string svg = DrawCaloriePlot({shape, kHead, {0, 36499}}, days, {});
    EXPECT_LE(Count(PathOf(svg, "bar"), "M"), static_cast<std::size_t>(shape.most_buckets));
    EXPECT_LT(svg.size(), 15000U);
  }
}

TEST(SharePlotTest, GramsCountFourNineAndFour) {
  const auto shares = SharesOf({.protein = 25, .fat = 100, .carbohydrate = 0});
  ASSERT_TRUE(shares);
  EXPECT_DOUBLE_EQ(shares->protein, 0.1);
  EXPECT_DOUBLE_EQ(shares->fat, 0.9);
  EXPECT_FALSE(SharesOf({.kcal = 100}));
  EXPECT_DOUBLE_EQ(SharesOf({.protein = -9, .fat = -1, .carbohydrate = 5})->carbohydrate, 1);
}

TEST(SharePlotTest, PartsStandOnEachOther) {
  // 1600 kcal: a quarter, a quarter and a half of it.
  const std::string svg = DrawSharePlot({kWide, kHead, {1, 1}}, Days({{1, 1600}}));
  EXPECT_EQ(PathOf(svg, "bar protein"), "M446 258V201");
  EXPECT_EQ(PathOf(svg, "bar fat"), "M446 199.8V144");
  EXPECT_EQ(PathOf(svg, "bar carbohydrate"), "M446 142.8V30");
}

TEST(WeightPlotTest, HasPointsAndTheIndexBesideThem) {
  const std::vector<DayValue> weights = {{1, 70}, {3, 72}};
  const std::string with = DrawWeightPlot({kWide, kHead, {1, 4}}, weights, {}, 1.7);
  EXPECT_EQ(Count(PathOf(with, "points"), "h0"), 2U);
  EXPECT_NE(with.find("BMI"), std::string::npos);
  EXPECT_NE(with.find(">24.6</text>"), std::string::npos);  // 71.1 kg at 1.7 m
  const std::string without = DrawWeightPlot({kWide, kHead, {1, 4}}, weights, {}, {});
  EXPECT_EQ(without.find("BMI"), std::string::npos);
}

TEST(WeightPlotTest, WeightsFarFromTheTrendAreMarkedAtTheEnds) {
  const std::vector<DayValue> trend = {{1, 70}, {2, 70}, {3, 70}};
  const std::vector<DayValue> weights = {{1, 95}, {2, 70}, {3, 40}};
  const std::string svg = DrawWeightPlot({kWide, kHead, {1, 4}}, weights, trend, {});
  EXPECT_EQ(Count(PathOf(svg, "points"), "h0"), 1U);
  EXPECT_EQ(Count(PathOf(svg, "beyond"), "z"), 2U);
}

TEST(WeightPlotTest, WithoutAWeightSaysSo) {
  const std::vector<DayValue> weights = {{1, 70}};
  const std::string svg = DrawWeightPlot({kWide, kHead, {2, 4}}, weights, weights, 1.7);
  EXPECT_NE(svg.find("No weight was saved"), std::string::npos);
}

TEST(DeficitPlotTest, IsPartedWhereDaysAreMissing) {
  const std::vector<DayValue> sums = {{1, 100}, {2, 300}, {5, 400}, {6, 600}, {9, 700}};
  const std::string svg = DrawDeficitPlot({kWide, kHead, {1, 10}}, sums, {});
  EXPECT_EQ(Count(PathOf(svg, "sum"), "M"), 3U);
  EXPECT_EQ(Count(PathOf(svg, "sum"), "L"), 2U);
  EXPECT_EQ(Count(PathOf(svg, "sum"), "h0"), 1U);
  EXPECT_NE(svg.find("Too few weights"), std::string::npos);
}

TEST(WeekdayPlotTest, OnlyDaysThatCountHaveABar) {
  std::vector<WeekdayMean> means(7);
  means[0] = {.days = 3, .kcal = 1800};
  means[6] = {.days = 1, .kcal = 2400};
  const std::string svg = DrawWeekdayPlot(kWide, kHead, means, {});
  EXPECT_EQ(Count(PathOf(svg, "bar"), "M"), 2U);
  EXPECT_NE(svg.find(">1\u202F800</text>"), std::string::npos);
  EXPECT_NE(svg.find(">Wed</text>"), std::string::npos);
}

}  // namespace
}  // namespace velnor

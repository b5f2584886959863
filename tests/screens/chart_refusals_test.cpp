// The charts with too little to draw: their boxes, and the way back to the home screen.

#include <string>
#include <vector>

#include "shell/screens.h"
#include "tests/screens/chart_fixture.h"

namespace velnor {
namespace {

constexpr const char* kTooFew =
    "Not enought data to draw graph.\nNeed at least 3 savings (from 3 different days).";

// The frame is there behind the box, but no data.
void ExpectFrameOnly(const RecordingCanvas& canvas) {
  EXPECT_EQ(Texts(canvas).size(), 3U + 21U + 12U);
  for (const DrawnLine& line : canvas.lines) EXPECT_EQ(line.pen.width, 1);
}

TEST_F(ChartScreenTest, AnEmptyFileRefusesAndGoesHome) {
  LogIn();
  for (const int command :
       {kWeightChart, kCalorieChart, kProteinsChart, kFatChart, kCarbohydratesChart}) {
    folder_.Write("Ann/wykwag.txt", "");
    folder_.Write("Ann/wykoda.txt", "");
    window_.log.clear();
    ExpectFrameOnly(Open(command));
    ASSERT_EQ(boxes_.shown.size(), 1U) << command;
    EXPECT_EQ(boxes_.shown[0].text, command == kWeightChart ? "No datas to draw this chart"
                                                            : "No data to draw this chart");
    EXPECT_EQ(boxes_.shown[0].caption, "Caution");
    EXPECT_EQ(boxes_.shown[0].buttons, MessageButtons::kOk);
    EXPECT_EQ(boxes_.shown[0].icon, MessageIcon::kInformation);
    EXPECT_EQ(boxes_.shown[0].owner, MessageOwner::kMainWindow);
    EXPECT_EQ(program_->session().screen, kHomeScreen);
    EXPECT_EQ(window_.log, (std::vector<std::string>{"invalidate", "invalidate"}));
    EXPECT_EQ(Repaint().backgrounds, std::vector<std::string>{"TLO"});
    EXPECT_EQ(boxes_.TakeTexts().size(), 1U) << "the home screen says nothing";
  }
}

TEST_F(ChartScreenTest, TwoEntriesAreNotEnough) {
  LogIn();
  const std::vector<std::string> files = {
      "16.11.2026;70;22;1;1;\r\n17.11.2026;71;22;1;1;\r\n", "16.11.2026;70;22;1;1;\r\n", "\r\n",
      "16.11.2026;70;22;1;1;\r\n17.11.2026;71;22;1;1;\r\n12345\r\n\r\n"};
  for (const std::string& file : files) {
    for (const int command :
         {kWeightChart, kCalorieChart, kProteinsChart, kFatChart, kCarbohydratesChart}) {
      folder_.Write("Ann/wykwag.txt", file);
      folder_.Write("Ann/wykoda.txt", file);
      ExpectFrameOnly(Open(command));
      ASSERT_EQ(boxes_.shown.size(), 1U) << command << file;
      EXPECT_EQ(boxes_.shown[0].caption, "ATTENTION");
      EXPECT_EQ(boxes_.shown[0].icon, MessageIcon::kInformation);
      EXPECT_EQ(boxes_.TakeTexts()[0], kTooFew);
      EXPECT_EQ(program_->session().screen, kHomeScreen);
    }
    EXPECT_EQ(folder_.Read("Ann/wykwag.txt"), file);
  }
}

// Moving the box, or whatever uncovers the window, repaints the chart behind it.
TEST_F(ChartScreenTest, RepaintsBehindTheBoxShowNoSecondOne) {
  LogIn();
  int repaints = 0;
  boxes_.while_open = [this, &repaints] {
    ASSERT_EQ(boxes_.shown.size(), 1U) << "a second box";
    EXPECT_EQ(program_->session().screen, 13);
    for (; repaints < 3; ++repaints) ExpectFrameOnly(Repaint());
  };
  Open(kWeightChart);
  EXPECT_EQ(repaints, 3);
  EXPECT_EQ(boxes_.TakeTexts().size(), 1U);
  EXPECT_EQ(program_->session().screen, kHomeScreen);
  boxes_.while_open = nullptr;
  Repaint();
  EXPECT_TRUE(boxes_.shown.empty()) << "nothing is left to be said";
  Open(kWeightChart);
  EXPECT_EQ(boxes_.TakeTexts().size(), 1U) << "every visit has its own box";
}

TEST_F(ChartScreenTest, TheBoxComesWhenThePaintingHasEnded) {
  LogIn();
  program_->OnCommand(kWeightChart, kButtonClicked);
  RecordingCanvas canvas;
  program_->PreparePaint();
  program_->Paint(canvas);
  EXPECT_TRUE(boxes_.shown.empty());
  EXPECT_EQ(program_->session().screen, 13);
  program_->FinishPaint();
  EXPECT_EQ(boxes_.shown.size(), 1U);
}

TEST_F(ChartScreenTest, AMissingFileIsMadeAndRefused) {
  LogIn();
  Open(kWeightChart);
  EXPECT_EQ(boxes_.TakeTexts(), (std::vector<std::string>{"No datas to draw this chart"}));
  EXPECT_EQ(folder_.Read("Ann/wykwag.txt"), "");
  EXPECT_EQ(folder_.Read("Ann/wykoda.txt"), "(missing)");
  Open(kFatChart);
  EXPECT_EQ(boxes_.TakeTexts(), (std::vector<std::string>{"No data to draw this chart"}));
  EXPECT_EQ(folder_.Read("Ann/wykoda.txt"), "");
}

TEST_F(ChartScreenTest, WithoutAUserNothingIsMadeAndTheChartRefuses) {
  folder_.Write("wykwag.txt", kThreeWeights);
  Start();
  Open(kWeightChart);
  Open(kCalorieChart);
  EXPECT_EQ(boxes_.TakeTexts(), (std::vector<std::string>{"No datas to draw this chart",
                                                          "No data to draw this chart"}));
  EXPECT_EQ(folder_.Names(), (std::vector<std::string>{"wykwag.txt"}));
}

}  // namespace
}  // namespace velnor

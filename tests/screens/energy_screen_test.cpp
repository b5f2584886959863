// The energy balance: counting, and every text, tick and arrow it draws.

#include <algorithm>
#include <string>
#include <vector>

#include "tests/support/day_fixture.h"
#include "tests/support/legibility.h"

namespace velnor {
namespace {

using Texts = std::vector<std::string>;
using Points = std::vector<Point>;

constexpr int kOpenEnergy = 239;
constexpr int kBmr = 181;
constexpr int kCount = 182;

constexpr Font kTitle{18, 700, true};
constexpr Font kBody{14, 0, false};
constexpr Font kLabel{12, 0, false};
constexpr Font kRemark{11, 0, false, true};
constexpr Pen kWhitePen{{255, 255, 255}, 1};

const Texts kNoBmr = {
    "Put the value of Your BMR factor!\nIf You don`t know it use our built-in calculator."};

class EnergyScreenTest : public DayTest {
 protected:
  // The screen after counting with that rate.
  RecordingCanvas Count(const std::string& bmr, const std::string& burned,
                        const std::string& eaten) {
    LogIn("Ann", "35\r\n170\r\nwomen\r\nlow\r\nnone");
    Write("erg.txt", burned);
    Write("bilans.ASC", eaten);
    Open(kOpenEnergy);
    form_.Type(kBmr, bmr);
    form_.Press(kCount);
    return Repaint();
  }
  static std::string At(const RecordingCanvas& canvas, Point at) {
    std::string texts;
    for (const DrawnText& drawn : canvas.texts) {
      if (drawn.at == at) texts += drawn.text + '|';
    }
    return texts;
  }
  static std::vector<Points> Arrows(const RecordingCanvas& canvas) {
    std::vector<Points> lines;
    for (const DrawnLine& drawn : canvas.lines) {
      if (drawn.pen == kWhitePen) lines.push_back(drawn.points);
    }
    return lines;
  }
  static std::vector<Points> Arrow(int x, int y) {
    return {{{x, y}, {x, y - 33}}, {{x, y}, {x - 5, y - 18}}, {{x, y}, {x + 5, y - 18}}};
  }
};

TEST_F(EnergyScreenTest, PaintsItsTexts) {
  const RecordingCanvas canvas = Count("1500", "16.11.2026;300;", "16.11.2026\r\n2000.\r\n1.");
  EXPECT_EQ(canvas.backgrounds, Texts{"SPAL"});
  std::vector<DrawnText> expected = {
      {"Energy balance", {10, 30}, kTitle, kBlack},
      {"DIFFERENCE [kcal] = ", {300, 470}, kTitle, kBlack},
      {"-50.", {470, 470}, kTitle, kBlack},
      {"Energy balance contain:", {10, 65}, kBody, kBlack},
      {"- BMR coeficient (Basal Metabolic Rate)", {10, 80}, kBody, kBlack},
      {"- burned calories as a result of a physical effort - only the ones written by the user",
       {10, 95},
       kBody,
       kBlack},
      {"- eaten calories (using daily balance)", {10, 110}, kBody, kBlack},
      {"- presumption that digestion equals 10% of BMR", {10, 125}, kBody, kBlack},
      {"Put Your BMR value [kcal]", {10, 153}, kBody, kBlack},
      {"Energy balance never can be replaced with specialist (eg. nutritionist) view!",
       {10, 530},
       kBody,
       kBlack},
      {"burned energy + BMR + digestion [kcal]", {10, 250}, kLabel, kBlack},
      {"1950.", {220, 250}, kBody, kBlack},
      {"eaten energy [kcal]", {10, 350}, kLabel, kBlack},
      {"2000.", {220, 350}, kBody, kBlack},
  };
  for (const int y : {306, 406}) {
    for (int i = 0; i <= 14; ++i) {
      expected.push_back({std::to_string(500 * i), {43 + 50 * i, y}, kBody, kBlack});
    }
  }
  EXPECT_EQ(std::vector<DrawnText>(canvas.texts.begin() + 3, canvas.texts.end()), expected);
  EXPECT_EQ(form_.Text(kBmr), "1500.");
  EXPECT_EQ(form_.ShownKeys(), (std::set<int>{kBmr, kCount}));
}

TEST_F(EnergyScreenTest, DrawsTwoScalesAndTheirArrows) {
  const RecordingCanvas canvas = Count("1500", "16.11.2026;300;", "16.11.2026\r\n2000.\r\n1.");
  const Pen thin = {kBlack, 1};
  const Pen thick = {kBlack, 3};
  std::vector<DrawnLine> expected = {{{{4, 20}, {790, 20}}, thin}, {{{5, 55}, {695, 55}}, thin}};
  for (const int y : {300, 400}) {
    expected.push_back({{{50, y}, {750, y}}, thick});
    for (int x = 50; x <= 750; x += 50) expected.push_back({{{x, y - 3}, {x, y + 3}}, thin});
  }
  for (const Points& line : Arrow(245, 298)) expected.push_back({line, kWhitePen});
  for (const Points& line : Arrow(250, 398)) expected.push_back({line, kWhitePen});
  EXPECT_EQ(canvas.lines, expected);
}

TEST_F(EnergyScreenTest, TheRemarkEndsBeforeTheEdgeOfTheWindow) {
  constexpr int kClientWidth = 794;  // of a window of 800 with borders of 3
  const RecordingCanvas canvas = Count("7000", "", "");
  ASSERT_EQ(canvas.texts.back().text, "OUT OF SCALE");
  EXPECT_LE(720 + WidestExtent(canvas.texts.back().font, "OUT OF SCALE"), kClientWidth);
}

TEST_F(EnergyScreenTest, BeforeTheFirstCountThereIsNoRate) {
  LogIn("Ann", "35\r\n170\r\nwomen\r\nlow\r\nnone");
  Write("erg.txt", "16.11.2026;300;");
  const RecordingCanvas canvas = Open(kOpenEnergy);
  EXPECT_EQ(At(canvas, {470, 470}), "0.|");
  EXPECT_EQ(At(canvas, {220, 250}), "300.|");
  EXPECT_EQ(At(canvas, {220, 350}), "0.|");
  EXPECT_EQ(form_.Text(kBmr), "0.");
}

TEST_F(EnergyScreenTest, EitherAmountBeyondItsScaleTakesBothArrows) {
  RecordingCanvas canvas = Count("1500", "", "16.11.2026\r\n7000.");
  EXPECT_EQ(At(canvas, {720, 370}), "OUT OF SCALE|");
  EXPECT_EQ(At(canvas, {720, 270}), "");
  EXPECT_EQ(Arrows(canvas), std::vector<Points>{});
  canvas = Count("6000", "16.11.2026;400;", "16.11.2026\r\n2000.");
  EXPECT_EQ(At(canvas, {720, 270}), "OUT OF SCALE|");
  EXPECT_EQ(At(canvas, {720, 370}), "");
  EXPECT_EQ(Arrows(canvas), std::vector<Points>{});
  canvas = Count("7000", "", "16.11.2026\r\n8000.");
  EXPECT_EQ(At(canvas, {720, 270}) + At(canvas, {720, 370}), "OUT OF SCALE|OUT OF SCALE|");
  EXPECT_EQ(canvas.texts.back(), (DrawnText{"OUT OF SCALE", {720, 370}, kRemark, kBlack}));
  canvas = Count("6000", "16.11.2026;399;", "16.11.2026\r\n6999.");
  EXPECT_EQ(At(canvas, {720, 270}) + At(canvas, {720, 370}), "");
  EXPECT_EQ(Arrows(canvas).front().front(), (Point{749, 298}));
}

TEST_F(EnergyScreenTest, ANegativeBurnedTotalIsShownAsNothing) {
  const RecordingCanvas canvas = Count("1500", "16.11.2026;-300;", "16.11.2026\r\n2000.");
  EXPECT_EQ(At(canvas, {220, 250}), "1650.|");
  EXPECT_EQ(At(canvas, {470, 470}), "-650.|");
}

TEST_F(EnergyScreenTest, FiguresAreRoundedUp) {
  const RecordingCanvas canvas = Count("1234.5", "16.11.2026;0.25;", "16.11.2026\r\n1000.01");
  EXPECT_EQ(At(canvas, {220, 250}), "1359.|");
  EXPECT_EQ(At(canvas, {220, 350}), "1001.|");
  EXPECT_EQ(At(canvas, {470, 470}), "359.|");
  EXPECT_EQ(form_.Text(kBmr), "1235.");
}

TEST_F(EnergyScreenTest, WithoutARateThereIsAMessageAndNothingChanges) {
  Count("1500", "16.11.2026;300;", "16.11.2026\r\n2000.");
  for (const char* const typed : {"0", "", "much", "-0", ".", "0.0 1500"}) {
    form_.Type(kBmr, typed);
    window_.log.clear();
    form_.Press(kCount);
    EXPECT_EQ(boxes_.shown.at(0).caption, "Velnor calorie counter");
    EXPECT_EQ(boxes_.shown.at(0).buttons, MessageButtons::kOk);
    EXPECT_EQ(boxes_.TakeTexts(), kNoBmr) << typed;
    EXPECT_EQ(window_.log, Texts{}) << typed;
  }
  const RecordingCanvas canvas = Repaint();
  EXPECT_EQ(At(canvas, {470, 470}), "-50.|");
  EXPECT_EQ(form_.Text(kBmr), "1500.");
}

TEST_F(EnergyScreenTest, CountingRepaints) {
  Count("1500", "16.11.2026;300;", "16.11.2026\r\n2000.");
  window_.log.clear();
  form_.Press(kCount);
  EXPECT_EQ(window_.log, Texts{"invalidate"});
}

TEST_F(EnergyScreenTest, ARepaintReplacesWhatWasTyped) {
  Count("1500", "16.11.2026;300;", "16.11.2026\r\n2000.");
  form_.Type(kBmr, "1800");
  Repaint();
  EXPECT_EQ(form_.Text(kBmr), "1500.");
}

TEST_F(EnergyScreenTest, TenCharactersOfTheRateCount) {
  Count("0000001500.9", "16.11.2026;300;", "16.11.2026\r\n2000.");
  EXPECT_EQ(form_.Text(kBmr), "1500.");
}

// What was eaten and burned is read at every paint, whatever day it is of; the difference is that
// of the last count.
TEST_F(EnergyScreenTest, FilesAreReadAtEveryPaint) {
  Count("1500", "16.11.2026;300;", "16.11.2026\r\n2000.");
  Write("erg.txt", "1.1.2020;100;");
  Write("bilans.ASC", "1.1.2020\r\n500.");
  const RecordingCanvas canvas = Repaint();
  EXPECT_EQ(At(canvas, {220, 250}), "1750.|");
  EXPECT_EQ(At(canvas, {220, 350}), "500.|");
  EXPECT_EQ(At(canvas, {470, 470}), "-50.|");
  EXPECT_EQ(Read("bilans.ASC"), "1.1.2020\r\n500.");
}

TEST_F(EnergyScreenTest, MissingFilesCountAsNothing) {
  LogIn("Ann", "35\r\n170\r\nwomen\r\nlow\r\nnone");
  std::filesystem::remove(folder_.path() + "Ann/bilans.ASC");
  const RecordingCanvas canvas = Open(kOpenEnergy);
  EXPECT_EQ(At(canvas, {220, 250}), "0.|");
  EXPECT_EQ(At(canvas, {220, 350}), "0.|");
  EXPECT_EQ(Read("erg.txt"), "") << "made, as when something is burned";
  EXPECT_EQ(Read("bilans.ASC"), "(missing)");
}

TEST_F(EnergyScreenTest, HugeRatesAreOutOfScale) {
  const RecordingCanvas canvas = Count("1e39", "", "16.11.2026\r\n-5");
  EXPECT_EQ(At(canvas, {720, 270}), "OUT OF SCALE|");
  EXPECT_EQ(At(canvas, {220, 250}), "inf|");
  EXPECT_EQ(At(Count("-1e30", "", ""), {720, 270}), "");
}

}  // namespace
}  // namespace velnor

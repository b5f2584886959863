// The daily balance: everything it draws, and its button.

#include <algorithm>
#include <string>
#include <vector>

#include "tests/support/day_fixture.h"
#include "tests/support/legibility.h"

namespace velnor {
namespace {

using namespace std::string_literals;
using Texts = std::vector<std::string>;
using Points = std::vector<Point>;

constexpr int kOpenBalance = 233;
constexpr int kClear = 165;

constexpr Font kTitle{18, 700, true};
constexpr Font kBody{14, 0, false};
constexpr Font kHead{12, 0, false};
constexpr Font kEaten{11, 0, false, true};
constexpr Colour kGrey{79, 79, 79};
constexpr Colour kLightGrey{205, 205, 205};
constexpr Colour kGreen{0, 205, 0};
constexpr Colour kOrange{229, 171, 31};
constexpr Colour kYellow{246, 255, 86};

class BalanceScreenTest : public DayTest {
 protected:
  // The screen of a woman of 35 with little activity: 2100-2300 kcal, 75 g of protein, 65-70 g of
  // fat, 290-330 g of carbohydrates.
  RecordingCanvas Paint(const std::string& eaten, const std::string& limits = "") {
    LogIn("Ann", "35\r\n170\r\nwomen\r\nlow\r\nnone");
    Write("zapot.ASC", limits);
    Write("bilans.ASC", "16.11.2026" + eaten);
    return Open(kOpenBalance);
  }
  static Texts At(const RecordingCanvas& canvas, Point at) {
    Texts texts;
    for (const DrawnText& drawn : canvas.texts) {
      if (drawn.at == at) texts.push_back(drawn.text);
    }
    return texts;
  }
  static DrawnText TextAt(const RecordingCanvas& canvas, Point at) {
    const auto drawn = std::ranges::find(canvas.texts, at, &DrawnText::at);
    return drawn == canvas.texts.end() ? DrawnText{} : *drawn;
  }
  // The lines of that colour and width, by their ends.
  static std::vector<Points> Lines(const RecordingCanvas& canvas, Colour colour, int width) {
    std::vector<Points> lines;
    for (const DrawnLine& drawn : canvas.lines) {
      if (drawn.pen == Pen{colour, width}) lines.push_back(drawn.points);
    }
    return lines;
  }
  static std::vector<Points> Mark(int x, int axis_y) {
    return {{{x, axis_y - 21}, {x, axis_y - 6}},
            {{x - 5, axis_y - 11}, {x, axis_y - 6}, {x + 5, axis_y - 11}}};
  }
  static constexpr const char* kLimits =
      "1\r\n2000\r\n2500\r\n60\r\n80\r\n50\r\n70\r\n200\r\n300\r\n";
};

TEST_F(BalanceScreenTest, PaintsItsTexts) {
  LogIn("Ann", "35\r\n170\r\nwomen\r\nlow\r\nnone");
  Write("zapot.ASC", kLimits);
  Write("bilans.ASC", "16.11.2026\r\n1850.5\r\n72.5\r\n60.25\r\n330.75");
  Write("z1.ASC", "23.075");
  Write("z2.ASC", "8.3225");
  const RecordingCanvas canvas = Open(kOpenBalance);
  EXPECT_EQ(canvas.backgrounds, Texts{"BILANS"});
  std::vector<DrawnText> expected = {
      {"Daily balance", {10, 23}, kTitle, kBlack},
      {"Factors +/- 0.1", {300, 23}, kHead, kYellow},
      {"Carb Exch: ", {400, 23}, kHead, kYellow},
      {"23.075", {460, 23}, kHead, kYellow},
      {"Protein-Fat Exch: ", {510, 23}, kHead, kYellow},
      {"8.3225", {600, 23}, kHead, kYellow},
  };
  struct Scale {
    int norm_y;
    const char* range;
    int label_y;
    std::vector<const char*> labels;
    int left_of_tick;
    int row_y;
    const char* unit;
    const char* eaten;
    const char* balance;
    Colour balance_colour;
  };
  const Scale scales[] = {
      {70,
       "RANGE +/- 100kcal",
       117,
       {"1000", "2000", "3000", "4000", "5000", "6000"},
       10,
       145,
       "eaten[kcal]",
       "1850.5",
       "-149.5",
       kBlack},
      {200,
       "RANGE +/- 8g",
       247,
       {"40", "80", "120", "160", "200", "240"},
       5,
       270,
       "eaten[g]",
       "72.5",
       "NORM",
       kGreen},
      {330,
       "RANGE +/- 8g",
       377,
       {"40", "80", "120", "160", "200", "240"},
       5,
       402,
       "eaten[g]",
       "60.25",
       "NORM",
       kGreen},
      {458,
       "RANGE +/- 20g",
       507,
       {"200", "400", "600", "800", "1000", "1200"},
       8,
       530,
       "eaten[g]",
       "330.75",
       "+30.75",
       kBlack},
  };
  for (const Scale& scale : scales) {
    expected.push_back({"NORM", {65, scale.norm_y}, kBody, kGreen});
    expected.push_back({scale.range, {125, scale.norm_y}, kBody, kBlack});
    for (int i = 0; i < 6; ++i) {
      const std::string label = scale.labels[static_cast<std::size_t>(i)];
      const int left = label.size() == 4 ? 10 : label.size() == 3 ? 8 : 5;
      expected.push_back({label, {150 + 100 * i - left, scale.label_y}, kBody, kBlack});
    }
    expected.push_back({scale.unit, {60, scale.row_y}, kEaten, kBlack});
    expected.push_back({scale.eaten, {110, scale.row_y}, kBody, kBlack});
    expected.push_back({"balance:", {160, scale.row_y}, kBody, kBlack});
    expected.push_back({scale.balance, {210, scale.row_y}, kBody, scale.balance_colour});
  }
  EXPECT_EQ(std::vector<DrawnText>(canvas.texts.begin() + 3, canvas.texts.end()), expected);
  EXPECT_EQ(form_.ShownKeys(), (std::set<int>{kClear}));
}

TEST_F(BalanceScreenTest, LabelsEndBeforeTheirFigures) {
  const RecordingCanvas canvas = Paint("\r\n1850.5\r\n72.5\r\n60.25\r\n330.75");
  for (const int y : {145, 270, 402, 530}) {
    const DrawnText label = TextAt(canvas, {60, y});
    EXPECT_LE(60 + WidestExtent(label.font, label.text), 110) << label.text;
  }
}

TEST_F(BalanceScreenTest, DrawsFourScalesWithTheirNormsAndMarks) {
  const RecordingCanvas canvas = Paint("\r\n1850.5\r\n72.5\r\n60.25\r\n330.75", kLimits);
  const int axes[] = {108, 238, 368, 498};
  const Points axis_ends[] = {{{50, 108}, {750, 108}},
                              {{50, 238}, {750, 238}},
                              {{50, 368}, {750, 368}},
                              {{50, 498}, {750, 498}}};
  EXPECT_EQ(Lines(canvas, kGrey, 3), std::vector<Points>(axis_ends, axis_ends + 4));
  std::vector<Points> ticks;
  for (const int y : axes) {
    for (int x = 50; x <= 750; x += 100) ticks.push_back({{x, y - 4}, {x, y + 4}});
  }
  EXPECT_EQ(Lines(canvas, kGrey, 2), ticks);
  EXPECT_EQ(Lines(canvas, kLightGrey, 7),
            (std::vector<Points>{{{240, 108}, {310, 108}},     // 1900 to 2600 kcal
                                 {{180, 238}, {270, 238}},     // 52 to 88 g
                                 {{155, 368}, {245, 368}},     // 42 to 78 g
                                 {{140, 498}, {210, 498}}}));  // 180 to 320 g
  EXPECT_EQ(Lines(canvas, kGreen, 7), (std::vector<Points>{{{250, 108}, {300, 108}},
                                                           {{200, 238}, {250, 238}},
                                                           {{175, 368}, {225, 368}},
                                                           {{150, 498}, {200, 498}}}));
  EXPECT_EQ(Lines(canvas, kOrange, 3), Mark(235, 108));
  std::vector<Points> inside = Mark(231, 238);
  std::ranges::copy(Mark(200, 368), std::back_inserter(inside));
  EXPECT_EQ(Lines(canvas, kGreen, 3), inside);
  EXPECT_EQ(Lines(canvas, kRed, 3), Mark(215, 498));
}

TEST_F(BalanceScreenTest, TheNormLiesUnderItsAxis) {
  const RecordingCanvas canvas = Paint("");
  const auto first = [&](const Pen& pen) {
    return std::ranges::find(canvas.lines, pen, &DrawnLine::pen);
  };
  EXPECT_LT(first({kLightGrey, 7}), first({kGreen, 7}));
  EXPECT_LT(first({kGreen, 7}), first({kGrey, 3}));
}

TEST_F(BalanceScreenTest, NothingEatenIsMissingAltogether) {
  const RecordingCanvas canvas = Paint("", kLimits);
  EXPECT_EQ(At(canvas, {110, 145}), Texts{"0."});
  EXPECT_EQ(At(canvas, {210, 145}), Texts{"-2000."});
  EXPECT_EQ(At(canvas, {210, 270}), Texts{"-60."});
  EXPECT_EQ(At(canvas, {210, 402}), Texts{"-50."});
  EXPECT_EQ(At(canvas, {210, 530}), Texts{"-200."});
  EXPECT_EQ(Lines(canvas, kOrange, 3).size(), 8U);
  EXPECT_EQ(At(canvas, {460, 23}), Texts{"0."});
  EXPECT_EQ(At(canvas, {600, 23}), Texts{"0."});
}

// On the last pixel of a scale an amount is still on it.
TEST_F(BalanceScreenTest, BeyondTheEndIsOutOfScale) {
  RecordingCanvas canvas = Paint("\r\n7000\r\n280\r\n280\r\n1400");
  for (const int y : {75, 205, 335, 465}) EXPECT_EQ(At(canvas, {650, y}), Texts{});
  canvas = Paint("\r\n7011\r\n281\r\n281\r\n1403");
  for (const int y : {75, 205, 335, 465}) {
    const DrawnText drawn = TextAt(canvas, {650, y});
    EXPECT_EQ(drawn.text, "OUT OF SCALE");
    EXPECT_EQ(drawn.colour, kRed);
    EXPECT_EQ(drawn.font, kBody);
  }
  std::vector<Points> marks;
  for (const int y : {108, 238, 368, 498})
    std::ranges::copy(Mark(750, y), std::back_inserter(marks));
  EXPECT_EQ(Lines(canvas, kRed, 3), marks);
  EXPECT_EQ(TextAt(canvas, {60, 145}).colour, kBlack) << "the red went on";
}

TEST_F(BalanceScreenTest, WithoutARequirementOnlyTheMarkIsDrawn) {
  LogIn("Ann", "2\r\n90\r\nwomen\r\nlow\r\nnone");
  Write("bilans.ASC", "16.11.2026\r\n1850.5\r\n72.5\r\n60.25\r\n330.75");
  const RecordingCanvas canvas = Open(kOpenBalance);
  for (const int y : {145, 270, 402, 530}) EXPECT_EQ(At(canvas, {210, y}), Texts{"unavailable"});
  EXPECT_EQ(Lines(canvas, kGreen, 7).size(), 0U);
  EXPECT_EQ(Lines(canvas, kLightGrey, 7).size(), 0U);
  EXPECT_EQ(Lines(canvas, kGrey, 3).size(), 4U + 8U);
  EXPECT_EQ(TextAt(canvas, {210, 145}).colour, kBlack);
}

// The requirement is that of the user who looks, not of the one who looked at it last.
TEST_F(BalanceScreenTest, TheRequirementIsThatOfTheUser) {
  EXPECT_EQ(At(Paint("", kLimits), {210, 145}), Texts{"-2000."});
  LogIn("Bob", "35\r\n180\r\nmen\r\nlow\r\nnone");
  const RecordingCanvas canvas = Open(kOpenBalance);
  EXPECT_NE(At(canvas, {210, 145}), Texts{"-2000."});
  EXPECT_EQ(At(canvas, {210, 145}).size(), 1U);
}

TEST_F(BalanceScreenTest, EveryPaintReadsTheFilesAfresh) {
  Paint("", kLimits);
  Write("bilans.ASC", "16.11.2026\r\n1234.5678\r\n1\r\n2\r\n3");
  Write("z1.ASC", "1.5");
  const RecordingCanvas canvas = Repaint();
  EXPECT_EQ(At(canvas, {110, 145}), Texts{"1234.57"});
  EXPECT_EQ(At(canvas, {460, 23}), Texts{"1.5"});
}

TEST_F(BalanceScreenTest, PaintingMakesTheExchangeFilesAndStartsANewDay) {
  Paint("");
  EXPECT_EQ(Read("z1.ASC"), "");
  EXPECT_EQ(Read("z2.ASC"), "");
  Write("bilans.ASC", "15.11.2026\r\n500.\r\n20.\r\n10.\r\n80.");
  Write("z1.ASC", "8.");
  Write("z2.ASC", "1.7");
  const RecordingCanvas canvas = Repaint();
  EXPECT_EQ(Read("bilans.ASC"), "16.11.2026");
  EXPECT_EQ(Read("z1.ASC"), "");
  EXPECT_EQ(Read("z2.ASC"), "");
  EXPECT_EQ(At(canvas, {110, 145}), Texts{"0."});
  EXPECT_EQ(At(canvas, {460, 23}), Texts{"0."});
}

TEST_F(BalanceScreenTest, HostileBalancesAreDrawn) {
  for (const std::string& eaten :
       {"\r\n1e30\r\n-5\r\nabc\r\n1e999"s, "\r\n"s + std::string(100'000, '9'), "\0\0"s}) {
    const RecordingCanvas canvas = Paint(eaten, kLimits);
    EXPECT_EQ(canvas.texts.size(), Paint("\r\n1e30", kLimits).texts.size() +
                                       static_cast<std::size_t>(std::ranges::count(
                                           canvas.texts, "OUT OF SCALE", &DrawnText::text)) -
                                       1);
    for (const DrawnLine& line : canvas.lines) {
      for (const Point& point : line.points) {
        EXPECT_GE(point.x, 4);
        EXPECT_LE(point.x, 790);
      }
    }
  }
}

TEST_F(BalanceScreenTest, ClearStartsTheDayAfresh) {
  OpenCounter();
  AddStrawberries("250");
  Write("wykoda.txt", "15.11.2026;500.;20.;10.;80.;\r\n16.11.2026;70.;1.75;1.;13.5;\r\n");
  Open(kOpenBalance);
  window_.log.clear();
  form_.Press(kClear);
  EXPECT_EQ(window_.log, Texts{"invalidate"});
  EXPECT_EQ(Read("bilans.ASC"), "16.11.2026");
  EXPECT_EQ(Read("z1.ASC"), "0");
  EXPECT_EQ(Read("z2.ASC"), "0");
  EXPECT_EQ(Read("wykoda.txt"), "15.11.2026;500.;20.;10.;80.;\r\n16.11.2026;0.;0.;0.;0.;\r\n");
  EXPECT_EQ(form_.ItemCount(kList), 0);
  EXPECT_EQ(Totals(), (Texts{"0", "0", "0", "0", "0"}));
  EXPECT_EQ(Ratio(), (Texts{"0", "0", "0"}));
  EXPECT_EQ(ShownExchanges(), (Texts{"0", "0"}));
  EXPECT_EQ(At(Repaint(), {110, 145}), Texts{"0."});
}

// The list and the chart go with the day, or stay with it.
TEST_F(BalanceScreenTest, ADayThatCannotBeClearedStaysWhole) {
  OpenCounter();
  AddStrawberries("250");
  Open(kOpenBalance);
  const Texts names = {"bilans.ASC", "z1.ASC", "z2.ASC", "wykoda.txt"};
  for (const std::string& name : names) {
    const std::filesystem::path path = folder_.path() + "Ann/" + name;
    std::filesystem::permissions(path, std::filesystem::perms{0444});
    form_.Press(kClear);
    EXPECT_EQ(boxes_.TakeTexts(),
              Texts{"The daily balance could not be saved.\nCheck the folder of "
                    "Your data and try again."});
    EXPECT_EQ(Balance(), "16.11.2026 70. 1.75 1. 13.5") << name;
    EXPECT_EQ(Read("z1.ASC"), "1.35") << name;
    EXPECT_EQ(Read("z2.ASC"), "0.16") << name;
    EXPECT_EQ(Read("wykoda.txt"), "16.11.2026;70.;1.75;1.;13.5;\r\n") << name;
    EXPECT_EQ(form_.ItemCount(kList), 1) << name;
    std::filesystem::permissions(path, std::filesystem::perms{0644});
  }
}

}  // namespace
}  // namespace velnor

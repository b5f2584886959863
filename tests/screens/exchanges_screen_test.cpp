// The page of weight exchanges, text by text.

#include <algorithm>
#include <string>
#include <vector>

#include "tests/support/program_fixture.h"

namespace velnor {
namespace {

using ExchangesScreenTest = ProgramTest;

constexpr int kOpenExchanges = 252;
constexpr Font kTitle{18, 700, true};
constexpr Font kBody{14, 0, false};

TEST_F(ExchangesScreenTest, PaintsItsThreeColumns) {
  Start();
  const RecordingCanvas canvas = Open(kOpenExchanges);
  std::vector<DrawnText> expected = {
      {"WEIGHT EXCHANGERS", {10, 30}, kTitle, {0, 0, 0}},
      {"ATTENTION!!", {330, 50}, kTitle, {255, 0, 0}},
      {">>If You want to know precisely weight of Your products use kitchen balance<<",
       {130, 65},
       kTitle,
       {255, 0, 0}},
  };
  struct Row {
    const char* measure;
    const char* amount;
  };
  const auto expect_column = [&expected](int measure_x, int amount_x,
                                         const std::vector<Row>& rows) {
    for (std::size_t i = 0; i < rows.size(); ++i) {
      const int y = 120 + 20 * static_cast<int>(i);
      expected.push_back({rows[i].measure, {measure_x, y}, kBody, kBlack});
      expected.push_back({rows[i].amount, {amount_x, y}, kBody, kBlack});
    }
  };
  // clang-format off
  expect_column(20, 210,
                {{"roll - 1 piece", "50g"},
                 {"crunchy (dry) bread - 1 slice", "10g"},
                 {"wholemeal bread - 1 slice", "25g"},
                 {"(dry) groats - 1 spoon", "15g"},
                 {"porridge (cooked groats) - 1 spoon", "17g"},
                 {"dry noodles - 1 spoon", "8g"},
                 {"cooked noodles - 1 spoon", "25g"},
                 {"dry rice - 1 spoon", "15g"},
                 {"cooked rice - 1 spoon", "15g"},
                 {"wheat flour - 1 spoon", "10g"},
                 {"cracker - 1 piece", "5g"},
                 {"salted stick - 1 piece", "2g"},
                 {"corn flakes - 1 spoon", "4g"},
                 {"thiny ham - 1 slice", "35g"},
                 {"loin - 1 slice", "35g"},
                 {"sausage - 1 piece", "45g"},
                 {"poultry ham - 1 slice", "33g"},
                 {"salted herring - 1 slice", "50g"}});
  expect_column(270, 460,
                {{"1 glass", "250ml"},
                 {"1/2 glass", "125ml"},
                 {"1/3 glass", "80ml"},
                 {"thin cottage cheese - 1 spoon", "33g"},
                 {"fat cottage cheese - 1 spoon", "30g"},
                 {"hard cheese - 1 slice", "15g"},
                 {"butter - 1 spoon", "5g"},
                 {"oil - 1 spoon", "5g"},
                 {"plant butter - 1 spoon", "5g"},
                 {"mayonnaise - 1 spoon", "5g"},
                 {"sour cream 18% - 1 spoon", "13g"},
                 {"tinned green peas - 1 glass", "160g"},
                 {"tinned corn - 1 spoon", "12g"},
                 {"corn - 1 cob", "300g"},
                 {"dry bean - 10 pieces", "20g"},
                 {"dry peas - 1 spoon", "20g"}});
  expect_column(550, 750,
                {{"banana - 1 piece", "140g"},
                 {"peach - 1 average fruit", "100g"},
                 {"grapefruit - 1 average fruit", "480g"},
                 {"mandarin - 1 fruit", "57g"},
                 {"orange - 1 fruit", "140g"},
                 {"strawberry - 1 glass", "200g"},
                 {"wild strawberries - 1 glass", "150g"},
                 {"pear - 1 average fruit", "150g"},
                 {"in cream - 1 average fruit", "13g"},
                 {"cherry - 1 fruit", "4g"}});
  // clang-format on
  ASSERT_EQ(expected.size(), 3U + 2U * (18 + 16 + 10));
  EXPECT_EQ(std::vector<DrawnText>(canvas.texts.begin() + 2, canvas.texts.end()), expected);
  EXPECT_EQ(canvas.lines.size(), 1U) << "more than the line of the header";
}

TEST_F(ExchangesScreenTest, TheLongestColumnEndsAt460) {
  Start();
  const RecordingCanvas canvas = Open(kOpenExchanges);
  int lowest = 0;
  for (const DrawnText& text : canvas.texts) lowest = std::max(lowest, text.at.y);
  EXPECT_EQ(lowest, 460);
}

TEST_F(ExchangesScreenTest, ShowsNoControlAndAsksNothing) {
  Start();
  Open(231);
  Open(kOpenExchanges);
  EXPECT_TRUE(form_.ShownKeys().empty());
  EXPECT_TRUE(boxes_.shown.empty());
  EXPECT_TRUE(folder_.Names().empty());
}

}  // namespace
}  // namespace velnor

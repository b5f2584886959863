#include "activity/exchanges_screen.h"

#include <span>
#include <string_view>

namespace velnor {
namespace {

// A household measure of a food and what it weighs.
struct Exchange {
  std::string_view measure;
  std::string_view amount;
};

constexpr Exchange kFirstColumn[] = {
    {"roll - 1 piece", "50g"},
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
    {"salted herring - 1 slice", "50g"},
};

constexpr Exchange kSecondColumn[] = {
    {"1 glass", "250ml"},
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
    {"dry peas - 1 spoon", "20g"},
};

constexpr Exchange kThirdColumn[] = {
    {"banana - 1 piece", "140g"},
    {"peach - 1 average fruit", "100g"},
    {"grapefruit - 1 average fruit", "480g"},
    {"mandarin - 1 fruit", "57g"},
    {"orange - 1 fruit", "140g"},
    {"strawberry - 1 glass", "200g"},
    {"wild strawberries - 1 glass", "150g"},
    {"pear - 1 average fruit", "150g"},
    {"in cream - 1 average fruit", "13g"},
    {"cherry - 1 fruit", "4g"},
};

struct Column {
  int measure_x;
  int amount_x;
  std::span<const Exchange> rows;
};

constexpr Column kColumns[] = {
    {20, 210, kFirstColumn}, {270, 460, kSecondColumn}, {550, 750, kThirdColumn}};

constexpr int kFirstRow = 120;
constexpr int kRowHeight = 20;

constexpr PlacedText kWarning[] = {
    {{330, 50}, "ATTENTION!!"},
    {{130, 65}, ">>If You want to know precisely weight of Your products use kitchen balance<<"},
};

}  // namespace

void PaintWeightExchanges(Canvas& canvas) {
  canvas.SetFont(kTitleFont);
  canvas.WriteText({10, 30}, "WEIGHT EXCHANGERS");
  canvas.SetTextColour(kRed);
  WriteTexts(canvas, kWarning);
  canvas.SetTextColour(kBlack);
  canvas.SetFont(kBodyFont);
  for (const Column& column : kColumns) {
    int y = kFirstRow;
    for (const auto& [measure, amount] : column.rows) {
      canvas.WriteText({column.measure_x, y}, measure);
      canvas.WriteText({column.amount_x, y}, amount);
      y += kRowHeight;
    }
  }
}

}  // namespace velnor

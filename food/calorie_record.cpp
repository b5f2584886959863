#include "food/calorie_record.h"

#include "base/number_text.h"

namespace velnor {
namespace {

constexpr int kDigits = 6;
constexpr std::size_t kRuleLength = 120;
constexpr std::string_view kGap = "  ";

std::string Cut(const std::string& number) { return RecordNumber(TruncateTwoDecimals(number)); }

}  // namespace

TotalTexts CutForRecord(const TotalTexts& totals) {
  return {Cut(totals.weight), Cut(totals.kcal), Cut(totals.protein), Cut(totals.fat),
          Cut(totals.carbohydrate)};
}

std::string CalorieRecordText(const CalorieRecord& record) {
  struct Item {
    std::string_view label;
    std::string text;
  };
  const Item items[] = {
      {"", record.date},
      {"food weight[g]: ", record.totals.weight},
      {"K[kcal]: ", record.totals.kcal},
      {"P[g]: ", record.totals.protein},
      {"F[g]: ", record.totals.fat},
      {"C[g]: ", record.totals.carbohydrate},
      {"CE: ", RecordNumber(record.carbohydrate_exchange)},
      {"PFE: ", RecordNumber(record.protein_fat_exchange)},
  };
  std::string text;
  for (const Item& item : items) {
    text += item.label;
    text += item.text;
    text += kGap;
  }
  text += "||";
  text += record.other;
  text += '\n';
  text += std::string(kRuleLength, '-');
  text += '\n';
  return text;
}

std::string ShownExchange(float exchange, double least) {
  return exchange >= least ? RecordNumber(exchange) : "0";
}

std::string RecordNumber(float number) { return FormatNumber(number, kDigits); }

}  // namespace velnor

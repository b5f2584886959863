#include "diary/spreadsheet.h"

#include <optional>

#include "base/code_page.h"

namespace velnor {
namespace {

constexpr std::string_view kByteOrderMark = "\uFEFF";
constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kDaysHeader =
    "date,kcal,protein,fat,carbohydrate,burned,weight,waist_hip";
constexpr std::string_view kDeedsHeader =
    "date,time,what,name,amount,unit,kcal,protein,fat,carbohydrate";
constexpr std::string_view kFormulaStarts = "=+-@\t\r";

std::string Heading(std::string_view header) {
  return std::string(kByteOrderMark) + std::string(header) + std::string(kLineEnd);
}

}  // namespace

std::string SpreadsheetField(std::string_view text) {
  std::string field = ToUtf8(text);
  if (!field.empty() && kFormulaStarts.find(field.front()) != std::string_view::npos) {
    field.insert(field.begin(), '\'');
  }
  if (field.find_first_of(",\"\r\n") == std::string::npos) return field;
  std::string quoted = "\"";
  for (const char c : field) {
    if (c == '"') quoted += '"';
    quoted += c;
  }
  return quoted + '"';
}

std::string DaysSpreadsheet(const DayTable& table) {
  std::string text = Heading(kDaysHeader);
  for (const DiaryDay& day : table.days) {
    text += IsoDateOfDay(day.day);
    const Nutrients& totals = day.totals;
    for (const double figure : {totals.kcal, totals.protein, totals.fat, totals.carbohydrate}) {
      text += ',';
      if (day.has_food) text += HistoryFigure(figure);
    }
    for (const std::optional<double>& figure : {day.burned, day.weight, day.waist_hip}) {
      text += ',' + HistoryFigure(figure);
    }
    text += kLineEnd;
  }
  return text;
}

std::string DeedsSpreadsheet(const DayTable& table) {
  std::string text = Heading(kDeedsHeader);
  for (const HistoryEntry& entry : table.entries) {
    text += entry.date + ',' + entry.time + ',';
    text += HistoryWord(entry.kind);
    text += ',' + SpreadsheetField(entry.name) + ',' + HistoryFigure(entry.amount) + ',' +
            SpreadsheetField(entry.unit);
    for (const std::optional<double>& figure :
         {entry.kcal, entry.protein, entry.fat, entry.carbohydrate}) {
      text += ',' + HistoryFigure(figure);
    }
    text += kLineEnd;
  }
  return text;
}

}  // namespace velnor

#include "food/day_balance.h"

#include <array>
#include <cmath>
#include <vector>

#include "base/number_text.h"
#include "base/text_file.h"
#include "charts/chart_file.h"

namespace velnor {
namespace {

constexpr std::size_t kLineLimit = 99;
constexpr std::size_t kLines = 5;  // the date and four totals
constexpr std::size_t kExchangeLimit = 8;
constexpr std::size_t kReadLimit = kLines * (kLineLimit + 1);

constexpr int kStoredDigits = 8;
constexpr int kSeriesDigits = 6;

// What taking off leaves of what was added, because figures are written with eight digits. No food
// counts for so little, and the eight characters that are read of an exchange file would take the
// digits of a figure such as 1.2345678e-05 for the whole of it.
constexpr double kRoundingRest = 1e-4;

constexpr std::array kExchangeFiles = {kCarbohydrateExchangeFile, kProteinFatExchangeFile};

using BalanceLines = std::array<std::string, kLines>;

std::optional<BalanceLines> ReadLines(const std::string& path) {
  const std::optional<std::string> text = ReadFileToRewrite(path, kReadLimit);
  if (!text) return std::nullopt;
  LineReader reader(*text, kLineLimit);
  BalanceLines lines;
  for (std::string& line : lines) line = reader.Next().value_or("");
  return lines;
}

// A total beyond the range of its type is written as what it would be read as.
double Total(double figure, double change) {
  const double total = figure + change;
  return std::isfinite(total) && total > kRoundingRest ? total : 0;
}

std::string Stored(double figure) { return FormatNumber(figure, kStoredDigits); }

std::optional<double> ReadExchange(const std::string& path) {
  const std::optional<std::string> text = ReadFileToRewrite(path, kExchangeLimit);
  if (!text) return std::nullopt;
  return ParseNumber(LineReader(*text, kExchangeLimit).Next().value_or(""));
}

bool EmptyFile(const std::string& path) {
  const std::optional<std::string> text = ReadFileToRewrite(path, 1);
  return text && (text->empty() || ReplaceFile(path, ""));
}

// The balance of today: a new day is started when it is not.
std::optional<BalanceLines> LinesOfToday(const SessionState& session) {
  const std::string path = session.UserFile(kBalanceFile);
  std::optional<BalanceLines> lines = ReadLines(path);
  if (!lines || lines->front().starts_with(session.date_text)) return lines;
  // The date comes last: when it stands, the day has been started whole.
  for (const std::string_view file : kExchangeFiles) {
    if (!EmptyFile(session.UserFile(file))) return std::nullopt;
  }
  if (!ReplaceFile(path, session.date_text)) return std::nullopt;
  return BalanceLines{session.date_text};
}

}  // namespace

bool DayBalance::StartDayIfNew() const { return LinesOfToday(session_).has_value(); }

void DayBalance::MakeExchangeFiles() const {
  for (const std::string_view file : kExchangeFiles) AppendToFile(session_.UserFile(file), "");
}

std::optional<DayTotals> DayBalance::ReadTotals() const {
  const std::optional<BalanceLines> lines = LinesOfToday(session_);
  if (!lines) return std::nullopt;
  const auto number = [&](std::size_t line) { return ParseNumber((*lines)[line]); };
  return DayTotals{number(1), number(2), number(3), number(4)};
}

double DayBalance::ReadKcalOfAnyDay() const {
  return ParseNumber(ReadLines(BalancePath()).value_or(BalanceLines{})[1]);
}

DayExchanges DayBalance::ReadExchanges() const {
  return {ReadExchange(session_.UserFile(kCarbohydrateExchangeFile)).value_or(0),
          ReadExchange(session_.UserFile(kProteinFatExchangeFile)).value_or(0)};
}

bool DayBalance::Change(const DayTotals& totals,
                        const std::optional<DayExchanges>& exchanges) const {
  const std::optional<DayTotals> before = ReadTotals();
  if (!before) return false;
  const DayTotals after = {Total(before->kcal, totals.kcal), Total(before->protein, totals.protein),
                           Total(before->fat, totals.fat),
                           Total(before->carbohydrate, totals.carbohydrate)};
  const std::string text = session_.date_text + '\n' + Stored(after.kcal) + '\n' +
                           Stored(after.protein) + '\n' + Stored(after.fat) + '\n' +
                           Stored(after.carbohydrate);
  // One after the other and not together, a failure would leave the day half changed, and a person
  // who tries again would count the other half twice.
  std::vector<FileBytes> files = {{BalancePath(), WithCrLf(text)}};
  if (exchanges) {
    const double changes[] = {exchanges->carbohydrate, exchanges->protein_fat};
    for (std::size_t i = 0; i < kExchangeFiles.size(); ++i) {
      const std::string path = session_.UserFile(kExchangeFiles[i]);
      const std::optional<double> exchange = ReadExchange(path);
      if (!exchange) return false;
      files.push_back({path, Stored(Total(*exchange, changes[i]))});
    }
  }
  if (!ReplaceFiles(files)) return false;
  UpdateSeries(after);
  return true;
}

bool DayBalance::Clear() const {
  bool cleared = true;
  for (const std::string_view file : kExchangeFiles) {
    cleared = ReplaceFile(session_.UserFile(file), "0") && cleared;
  }
  cleared = ReplaceFile(BalancePath(), session_.date_text) && cleared;
  UpdateSeries({});
  return cleared;
}

// The series is for the charts only; nobody is told when it cannot be written.
bool DayBalance::UpdateSeries(const DayTotals& totals) const {
  const auto text = [](double figure) {
    return FormatNumber(static_cast<float>(figure), kSeriesDigits);
  };
  return UpdateChartFile(session_.UserFile(kNutrientSeriesFile), session_.date_text,
                         std::array{text(totals.kcal), text(totals.protein), text(totals.fat),
                                    text(totals.carbohydrate)});
}

}  // namespace velnor

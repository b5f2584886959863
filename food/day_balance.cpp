#include "food/day_balance.h"

#include <array>

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

double Total(double figure, double change) {
  const double total = figure + change;
  return total > kRoundingRest ? total : 0;
}

std::string Stored(double figure) { return FormatNumber(figure, kStoredDigits); }

std::optional<double> ReadExchange(const std::string& path) {
  const std::optional<std::string> text = ReadFileToRewrite(path, kExchangeLimit);
  if (!text) return std::nullopt;
  return ParseNumber(LineReader(*text, kExchangeLimit).Next().value_or(""));
}

bool ChangeExchange(const std::string& path, double change) {
  const std::optional<double> before = ReadExchange(path);
  return before && ReplaceFile(path, Stored(Total(*before, change)));
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

bool DayBalance::ChangeTotals(const DayTotals& change) const {
  const std::optional<DayTotals> before = ReadTotals();
  if (!before) return false;
  const DayTotals totals = {Total(before->kcal, change.kcal),
                            Total(before->protein, change.protein), Total(before->fat, change.fat),
                            Total(before->carbohydrate, change.carbohydrate)};
  const std::string text = session_.date_text + '\n' + Stored(totals.kcal) + '\n' +
                           Stored(totals.protein) + '\n' + Stored(totals.fat) + '\n' +
                           Stored(totals.carbohydrate);
  if (!ReplaceFile(BalancePath(), WithCrLf(text))) return false;
  UpdateSeries(totals);
  return true;
}

bool DayBalance::ChangeExchanges(const DayExchanges& change) const {
  if (!StartDayIfNew()) return false;
  const bool carbohydrate =
      ChangeExchange(session_.UserFile(kCarbohydrateExchangeFile), change.carbohydrate);
  const bool protein_fat =
      ChangeExchange(session_.UserFile(kProteinFatExchangeFile), change.protein_fat);
  return carbohydrate && protein_fat;
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

#include "food/day_balance.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

#include "base/number_text.h"
#include "charts/chart_file.h"
#include "users/user_files.h"

namespace velnor {
namespace {

constexpr std::size_t kLineLimit = 99;
constexpr std::size_t kLines = 5;  // the date and four totals
constexpr std::size_t kExchangeLimit = 8;
constexpr std::size_t kReadLimit = kLines * (kLineLimit + 1);

constexpr int kStoredDigits = 8;
constexpr int kSeriesDigits = 6;

// What taking off may leave of what was added, because figures are written with eight digits: in a
// day of thousands, less than 0.0001 with each change. No food counts for so little.
constexpr double kTotalRest = 1e-3;
constexpr double kExchangeRest = 1e-4;
constexpr double kRestDigits = kStoredDigits - 1;  // a rest is no unit of the last of these

// The eight characters that are read of an exchange file would take the digits of a figure such as
// 1.2345678e-05 for the whole of it.
constexpr double kLeastExchange = 1e-4;

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

// A figure beyond the range of its type is written as what it would be read as.
double Sum(double figure, double added) {
  const double sum = figure + added;
  return std::isfinite(sum) ? sum : 0;
}

// `least`: what is not more than this is a rest, whatever the figure was.
double Difference(double figure, double taken, double least) {
  const double difference = figure - taken;
  const double unit =
      figure > 0 ? std::pow(10, std::floor(std::log10(figure)) + 1 - kRestDigits) : 0;
  return std::isfinite(difference) && difference > std::max(least, unit) ? difference : 0;
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
  if (!session.user) return std::nullopt;
  const std::string path = session.user->File(kBalanceFile);
  std::optional<BalanceLines> lines = ReadLines(path);
  if (!lines || lines->front().starts_with(session.date_text)) return lines;
  // The date comes last: when it stands, the day has been started whole.
  for (const std::string_view file : kExchangeFiles) {
    if (!EmptyFile(session.user->File(file))) return std::nullopt;
  }
  if (!ReplaceFile(path, session.date_text)) return std::nullopt;
  return BalanceLines{session.date_text};
}

}  // namespace

bool DayBalance::StartDayIfNew() { return LinesOfToday(session_).has_value(); }

void DayBalance::MakeExchangeFiles() {
  if (!session_.user) return;
  for (const std::string_view file : kExchangeFiles) {
    PassOver(AppendToFile(session_.user->File(file), ""));
  }
}

std::optional<DayTotals> DayBalance::ReadTotals() {
  const std::optional<BalanceLines> lines = LinesOfToday(session_);
  if (!lines) return std::nullopt;
  const auto number = [&](std::size_t line) { return ParseNumber((*lines)[line]); };
  return DayTotals{number(1), number(2), number(3), number(4)};
}

double DayBalance::ReadKcalOfAnyDay() const {
  if (!session_.user) return 0;
  return ParseNumber(ReadLines(session_.user->File(kBalanceFile)).value_or(BalanceLines{})[1]);
}

DayExchanges DayBalance::ReadExchanges() const {
  if (!session_.user) return {};
  return {ReadExchange(session_.user->File(kCarbohydrateExchangeFile)).value_or(0),
          ReadExchange(session_.user->File(kProteinFatExchangeFile)).value_or(0)};
}

bool DayBalance::Add(const DayTotals& totals, const std::optional<DayExchanges>& exchanges) {
  return Make(Change::kAdd, totals, exchanges);
}

bool DayBalance::TakeOff(const DayTotals& totals, const std::optional<DayExchanges>& exchanges) {
  return Make(Change::kTakeOff, totals, exchanges);
}

bool DayBalance::Make(Change change, const DayTotals& totals,
                      const std::optional<DayExchanges>& exchanges) {
  const auto changed = [change](double figure, double by, double rest) {
    return change == Change::kAdd ? Sum(figure, by) : Difference(figure, by, rest);
  };
  const std::optional<DayTotals> before = ReadTotals();
  if (!before) return false;
  const UserFolder& user = *session_.user;  // whose totals those are
  DayTotals after;
  for (double DayTotals::*const figure :
       {&DayTotals::kcal, &DayTotals::protein, &DayTotals::fat, &DayTotals::carbohydrate}) {
    after.*figure = changed(*before.*figure, totals.*figure, kTotalRest);
  }
  std::vector<FileBytes> exchange_files;
  if (exchanges) {
    const double changes[] = {exchanges->carbohydrate, exchanges->protein_fat};
    for (std::size_t i = 0; i < kExchangeFiles.size(); ++i) {
      const std::string path = user.File(kExchangeFiles[i]);
      const std::optional<double> exchange = ReadExchange(path);
      if (!exchange) return false;
      const double figure = changed(*exchange, changes[i], kExchangeRest);
      exchange_files.push_back({path, Stored(std::abs(figure) < kLeastExchange ? 0 : figure)});
    }
  }
  return Write(user,
               session_.date_text + '\n' + Stored(after.kcal) + '\n' + Stored(after.protein) +
                   '\n' + Stored(after.fat) + '\n' + Stored(after.carbohydrate),
               after, exchange_files);
}

bool DayBalance::Clear() {
  if (!session_.user) return false;
  std::vector<FileBytes> exchange_files;
  for (const std::string_view file : kExchangeFiles) {
    exchange_files.push_back({session_.user->File(file), "0"});
  }
  return Write(*session_.user, session_.date_text, {}, exchange_files);
}

// One after the other and not together, a failure would leave the day half changed, and a person
// who tries again would count the other half twice.
bool DayBalance::Write(const UserFolder& user, std::string_view balance, const DayTotals& totals,
                       std::span<const FileBytes> exchange_files) {
  const auto text = [](double figure) {
    return FormatNumber(static_cast<float>(figure), kSeriesDigits);
  };
  std::optional<FileBytes> series =
      UpdatedChartFile(user.File(kNutrientSeriesFile), session_.date_text,
                       std::array{text(totals.kcal), text(totals.protein), text(totals.fat),
                                  text(totals.carbohydrate)});
  if (!series) return false;
  std::vector<FileBytes> files = {{user.File(kBalanceFile), WithCrLf(balance)}};
  files.insert(files.end(), exchange_files.begin(), exchange_files.end());
  files.push_back(std::move(*series));
  return ReplaceFiles(files);
}

}  // namespace velnor

#include "food/day_balance.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "base/file_calls.h"
#include "base/number_text.h"
#include "base/text_file.h"
#include "charts/chart_file.h"
#include "users/history.h"
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
constexpr int kRestDigits = kStoredDigits - 1;  // a rest is less than a unit of the last of these

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

bool IsToday(const BalanceLines& lines, const SessionState& session) {
  return lines.front().starts_with(session.date_text);
}

// The balance of today as the deed finds it, or as it begins it.
struct Today {
  BalanceLines lines;
  bool is_new;
};

std::optional<Today> BeginToday(Transaction& deed, const SessionState& session,
                                const UserFolder& user) {
  const std::string path = user.File(kBalanceFile);
  const std::optional<BalanceLines> lines = ReadLines(path);
  if (!lines) return std::nullopt;
  if (IsToday(*lines, session)) return Today{*lines, false};
  for (const std::string_view file : kExchangeFiles) {
    const std::string exchange_path = user.File(file);
    const std::optional<std::string> text = ReadFileToRewrite(exchange_path, 1);
    if (!text) return std::nullopt;
    if (!text->empty()) deed.Replace(exchange_path, "");
  }
  deed.Replace(path, session.date_text);
  if (!TellNewDay(deed, session, user)) return std::nullopt;
  return Today{{session.date_text}, true};
}

// The balance of today: a new day is started when it is not.
std::optional<BalanceLines> LinesOfToday(const SessionState& session) {
  if (!session.user) return std::nullopt;
  std::optional<BalanceLines> lines = ReadLines(session.user->File(kBalanceFile));
  if (!lines || IsToday(*lines, session)) return lines;
  Transaction deed(session.base_folder);
  const std::optional<Today> today = BeginToday(deed, session, *session.user);
  if (!today || !deed.Commit()) return std::nullopt;
  return today->lines;
}

DayTotals TotalsIn(const BalanceLines& lines) {
  const auto number = [&](std::size_t line) { return ParseNumber(lines[line]); };
  return {number(1), number(2), number(3), number(4)};
}

// The totals as the balance file holds them: the history adds up to these.
double AsStored(double figure) { return ParseNumber(Stored(figure)); }

bool Tell(Transaction& deed, const SessionState& session, const UserFolder& user,
          HistoryEntry entry, const DayTotals& before, const DayTotals& after) {
  const auto change = [&](double DayTotals::*figure) {
    return AsStored(after.*figure) - AsStored(before.*figure);
  };
  entry.kcal = change(&DayTotals::kcal);
  entry.protein = change(&DayTotals::protein);
  entry.fat = change(&DayTotals::fat);
  entry.carbohydrate = change(&DayTotals::carbohydrate);
  return TellHistory(deed, session, user, std::move(entry));
}

}  // namespace

bool DayBalance::StartDayIfNew() { return LinesOfToday(session_).has_value(); }

void DayBalance::MakeExchangeFiles() {
  if (!session_.user) return;
  const auto is_there = [this](std::string_view file) {
    return IsThere(session_.user->File(file));
  };
  if (std::ranges::all_of(kExchangeFiles, is_there)) return;
  Transaction deed(session_.base_folder);
  for (const std::string_view file : kExchangeFiles) deed.Append(session_.user->File(file), "");
  deed.CommitUnreported();
}

std::optional<DayTotals> DayBalance::ReadTotals() {
  const std::optional<BalanceLines> lines = LinesOfToday(session_);
  if (!lines) return std::nullopt;
  return TotalsIn(*lines);
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

bool DayBalance::Add(const DayTotals& totals, const std::optional<DayExchanges>& exchanges,
                     const FoodOfDeed& food) {
  return Change(HistoryKind::kFood, totals, exchanges, food);
}

bool DayBalance::TakeOff(const DayTotals& totals, const std::optional<DayExchanges>& exchanges,
                         const FoodOfDeed& food) {
  return Change(HistoryKind::kRemoved, totals, exchanges, food);
}

bool DayBalance::ClearList(const DayTotals& totals, const DayExchanges& exchanges) {
  return Change(HistoryKind::kListCleared, totals, exchanges, {});
}

bool DayBalance::Change(HistoryKind kind, const DayTotals& totals,
                        const std::optional<DayExchanges>& exchanges, const FoodOfDeed& food) {
  const auto changed = [kind](double figure, double by, double rest) {
    return kind == HistoryKind::kFood ? Sum(figure, by) : Difference(figure, by, rest);
  };
  if (!session_.user) return false;
  const UserFolder& user = *session_.user;
  Transaction deed(session_.base_folder);
  const std::optional<Today> today = BeginToday(deed, session_, user);
  if (!today) return false;
  const DayTotals before = TotalsIn(today->lines);
  DayTotals after;
  for (double DayTotals::*const figure :
       {&DayTotals::kcal, &DayTotals::protein, &DayTotals::fat, &DayTotals::carbohydrate}) {
    after.*figure = changed(before.*figure, totals.*figure, kTotalRest);
  }
  const std::string text = session_.date_text + '\n' + Stored(after.kcal) + '\n' +
                           Stored(after.protein) + '\n' + Stored(after.fat) + '\n' +
                           Stored(after.carbohydrate);
  deed.Replace(user.File(kBalanceFile), WithCrLf(text));
  if (exchanges) {
    const double changes[] = {exchanges->carbohydrate, exchanges->protein_fat};
    for (std::size_t i = 0; i < kExchangeFiles.size(); ++i) {
      const std::string path = user.File(kExchangeFiles[i]);
      const std::optional<double> exchange = today->is_new ? 0 : ReadExchange(path);
      if (!exchange) return false;
      const double figure = changed(*exchange, changes[i], kExchangeRest);
      deed.Replace(path, Stored(std::abs(figure) < kLeastExchange ? 0 : figure));
    }
  }
  HistoryEntry entry = {
      .kind = kind, .name = food.name, .amount = food.weight, .unit = food.weight ? "g" : ""};
  return Tell(deed, session_, user, std::move(entry), before, after) &&
         UpdateSeries(deed, user, after) && deed.Commit();
}

bool DayBalance::Clear() {
  if (!session_.user) return false;
  const UserFolder& user = *session_.user;
  Transaction deed(session_.base_folder);
  const std::optional<Today> today = BeginToday(deed, session_, user);
  if (!today ||
      !Tell(deed, session_, user, {.kind = HistoryKind::kDayCleared}, TotalsIn(today->lines), {})) {
    return false;
  }
  for (const std::string_view file : kExchangeFiles) deed.Replace(user.File(file), "0");
  deed.Replace(user.File(kBalanceFile), session_.date_text);
  return UpdateSeries(deed, user, {}) && deed.Commit();
}

bool DayBalance::UpdateSeries(Transaction& deed, const UserFolder& user,
                              const DayTotals& totals) const {
  const auto text = [](double figure) {
    return FormatNumber(static_cast<float>(figure), kSeriesDigits);
  };
  return UpdateChartFile(deed, user.File(kNutrientSeriesFile), session_.date_text,
                         std::array{text(totals.kcal), text(totals.protein), text(totals.fat),
                                    text(totals.carbohydrate)});
}

}  // namespace velnor

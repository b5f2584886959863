// What a history adds up to, and whether that is what the day's files hold. Used by every test that
// looks at a history after people have done something.

#ifndef VELNOR_TESTS_SUPPORT_HISTORY_SUMS_H_
#define VELNOR_TESTS_SUPPORT_HISTORY_SUMS_H_

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/number_text.h"
#include "users/history_file.h"

namespace velnor {

// A figure of many lines, and what of it is due to their being written with eight digits: each line
// is off by no more than half a unit of the eighth, which is 5e-8 of itself.
struct ToldFigure {
  double sum = 0;
  double moved = 0;  // the lines' figures without their signs

  void Add(std::optional<double> figure) {
    sum += figure.value_or(0);
    moved += std::abs(figure.value_or(0));
  }
  double Tolerance() const { return 5.001e-8 * moved; }
};

struct ToldDay {
  std::array<ToldFigure, 4> totals;  // kcal, protein, fat, carbohydrate
  ToldFigure burned;
  std::vector<double> weights;
  int entries = 0;
};

// By date, as "2026-11-21".
inline std::map<std::string, ToldDay> DaysOfHistory(std::string_view history) {
  std::map<std::string, ToldDay> days;
  HistoryReader reader(history);
  while (const std::optional<HistoryEntry> entry = reader.Next()) {
    ToldDay& day = days[entry->date];
    ++day.entries;
    if (CountsInDay(entry->kind)) {
      day.totals[0].Add(entry->kcal);
      day.totals[1].Add(entry->protein);
      day.totals[2].Add(entry->fat);
      day.totals[3].Add(entry->carbohydrate);
    } else if (entry->kind == HistoryKind::kWeight) {
      day.weights.push_back(entry->amount.value_or(0));
    } else {
      day.burned.Add(entry->kcal);
    }
  }
  return days;
}

// The history has its header and nothing but whole lines that its reader takes.
inline void ExpectWellFormedHistory(std::string_view history) {
  EXPECT_TRUE(history.starts_with(std::string(kHistoryHeader) + "\r\n")) << history.substr(0, 100);
  EXPECT_TRUE(history.ends_with("\r\n")) << history.substr(history.size() - history.size() % 100);
  EXPECT_EQ(history.find('\0'), std::string_view::npos);
  for (std::size_t at = history.find('\n'); at != std::string_view::npos;
       at = history.find('\n', at + 1)) {
    EXPECT_EQ(history[at - 1], '\r') << "at byte " << at;
  }
  HistoryReader reader(history);
  while (reader.Next()) {
  }
  EXPECT_EQ(reader.skipped(), 0U);
}

// The sums of the day of `balance`, a balance file as it stands on disk, are its totals.
inline void ExpectToldTotals(std::string_view history, std::string_view balance) {
  std::vector<std::string> lines;
  for (std::size_t at = 0; at <= balance.size();) {
    const std::size_t end = std::min(balance.find("\r\n", at), balance.size());
    lines.emplace_back(balance.substr(at, end - at));
    at = end + 2;
  }
  lines.resize(5);
  const std::string date = IsoDate(lines[0]);
  ASSERT_NE(date, "") << balance;
  const ToldDay day = DaysOfHistory(history)[date];
  for (std::size_t i = 0; i < day.totals.size(); ++i) {
    EXPECT_NEAR(day.totals[i].sum, ParseNumber(lines[i + 1]), day.totals[i].Tolerance())
        << "figure " << i << " of " << date << "\n"
        << balance;
  }
}

}  // namespace velnor

#endif  // VELNOR_TESTS_SUPPORT_HISTORY_SUMS_H_

// What a person has eaten on one day, kept in three small files of their folder: the balance with
// the date and the day's totals, and a file each for the day's carbohydrate and protein-fat
// exchanges. The day's line of the chart series follows the totals. Written by the food list and
// the balance screen, read by the latter and by the energy balance.

#ifndef VELNOR_FOOD_DAY_BALANCE_H_
#define VELNOR_FOOD_DAY_BALANCE_H_

#include <optional>
#include <string>
#include <string_view>

#include "base/session.h"
#include "base/transaction.h"

namespace velnor {

inline constexpr std::string_view kBalanceFile = "bilans.ASC";
inline constexpr std::string_view kCarbohydrateExchangeFile = "z1.ASC";
inline constexpr std::string_view kProteinFatExchangeFile = "z2.ASC";

struct DayTotals {
  double kcal = 0;
  double protein = 0;       // g
  double fat = 0;           // g
  double carbohydrate = 0;  // g

  DayTotals operator-() const { return {-kcal, -protein, -fat, -carbohydrate}; }
  bool operator==(const DayTotals&) const = default;
};

struct DayExchanges {
  double carbohydrate = 0;
  double protein_fat = 0;

  DayExchanges operator-() const { return {-carbohydrate, -protein_fat}; }
  bool operator==(const DayExchanges&) const = default;
};

// Where the logged-in user's day is kept, and which day it is. Every operation is sure that the
// files are of that day first: files of another day, or without a date, are started afresh. Nothing
// is lost when a file cannot be read or written: it keeps what it held, and the operation says so.
class DayBalance {
 public:
  explicit DayBalance(const SessionState& session) : session_(session) {}

  // Starts a new day when the balance is not of today, its first line compared over the length of
  // today's date: the balance then holds the date alone and the exchange files, where there are
  // any, nothing. False when that is needed and cannot be done.
  bool StartDayIfNew() const;

  // Makes the exchange files that are missing. One that cannot be made counts as 0 all the same.
  void MakeExchangeFiles() const;

  // The day's totals; nothing eaten yet gives zeros, and a line without a number counts as 0.
  // Nothing when the files are of another day and cannot be started afresh, or cannot be read.
  std::optional<DayTotals> ReadTotals() const;

  // The energy in the balance as it stands there, whatever day it is of, in kcal: the second line.
  // A missing or empty file gives 0. Changes no file.
  double ReadKcalOfAnyDay() const;

  // The day's exchanges, of each file the first eight characters. Missing files count as 0.
  DayExchanges ReadExchanges() const;

  // Adds to the totals and, where they are given, to the exchanges, and brings the day's line of
  // the chart series up to date. Figures may be negative; a total that would fall below 0, or that
  // is a mere rest of rounding, becomes 0. False when all files keep what they held.
  bool Change(const DayTotals& totals, const std::optional<DayExchanges>& exchanges = {}) const;

  // Nothing has been eaten today: the balance holds the date alone, the exchange files "0", the
  // day's line of the chart series zeros. False when all four files keep what they
  // held.
  bool Clear() const;

 private:
  std::string BalancePath() const { return session_.UserFile(kBalanceFile); }
  bool UpdateSeries(Transaction& deed, const DayTotals& totals) const;

  const SessionState& session_;
};

}  // namespace velnor

#endif  // VELNOR_FOOD_DAY_BALANCE_H_

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
#include "users/history_file.h"

namespace velnor {

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

  bool operator==(const DayExchanges&) const = default;
};

// What the history tells of a food that came or went.
struct FoodOfDeed {
  std::string name = {};
  std::optional<double> weight = {};  // g
};

// Where the logged-in user's day is kept, and which day it is. Every operation is sure that the
// files are of that day first: files of another day, or without a date, are started afresh. Nothing
// is lost when a file cannot be read or written: it keeps what it held, and the operation says so.
class DayBalance {
 public:
  explicit DayBalance(const SessionState& session) : session_(session) {}

  // Starts a new day when the balance is not of today, its first line compared over the length of
  // today's date: the balance then holds the date alone and the exchange files, where there are
  // any, nothing. Returns false if that is needed and cannot be done.
  [[nodiscard]] bool StartDayIfNew();

  // Makes the exchange files that are missing. One that cannot be made counts as 0 all the same.
  void MakeExchangeFiles();

  // The day's totals; nothing eaten yet gives zeros, and a line without a number counts as 0.
  // Returns nothing if the files are of another day and cannot be started afresh, or cannot be
  // read.
  std::optional<DayTotals> ReadTotals();

  // The energy in the balance as it stands there, whatever day it is of, in kcal: the second line.
  // A missing or empty file gives 0. Changes no file.
  double ReadKcalOfAnyDay() const;

  // The day's exchanges, of each file the first eight characters. Missing files count as 0.
  DayExchanges ReadExchanges() const;

  // The changes of a day write its files, its line of the chart series and a line of the history
  // together. They return false if all of them keep what they held.

  // Adds food to the totals and, where they are given, to the exchanges. Sums are plain: food of
  // less than nothing takes the day below 0. An exchange nearer to 0 than 0.0001 becomes 0, since
  // the eight characters that are read would not hold it.
  [[nodiscard]] bool Add(const DayTotals& totals, const std::optional<DayExchanges>& exchanges = {},
                         const FoodOfDeed& food = {});

  // Takes food off again. A figure that would fall below 0, or that is a mere rest of rounding,
  // becomes 0. A rest is less than 0.001 (of an exchange, 0.0001), or than ten units in the eighth
  // digit that the figure had before: eight digits are written, and after many changes the last of
  // them is not what was eaten.
  [[nodiscard]] bool TakeOff(const DayTotals& totals,
                             const std::optional<DayExchanges>& exchanges = {},
                             const FoodOfDeed& food = {});

  // Takes all that is on the list off, as TakeOff does with one food.
  [[nodiscard]] bool ClearList(const DayTotals& totals, const DayExchanges& exchanges);

  // Nothing has been eaten today: the balance holds the date alone, the exchange files "0", the
  // day's line of the chart series zeros.
  [[nodiscard]] bool Clear();

 private:
  // `kind`: kFood adds, the others take off.
  bool Change(HistoryKind kind, const DayTotals& totals,
              const std::optional<DayExchanges>& exchanges, const FoodOfDeed& food);
  // Brings the day's line of the chart series to those totals.
  bool UpdateSeries(Transaction& deed, const UserFolder& user, const DayTotals& totals) const;

  const SessionState& session_;
};

}  // namespace velnor

#endif  // VELNOR_FOOD_DAY_BALANCE_H_

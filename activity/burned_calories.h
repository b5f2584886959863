// What an activity burns, and the day's total of what was burned, which is kept in a file of the
// user's. The activities screen adds to the total; the energy balance reads it.

#ifndef VELNOR_ACTIVITY_BURNED_CALORIES_H_
#define VELNOR_ACTIVITY_BURNED_CALORIES_H_

#include <cstddef>
#include <string>
#include <string_view>

#include "base/session.h"

namespace velnor {

// Characters of the typed minutes that count.
inline constexpr std::size_t kMinutesLimit = 8;

struct Burned {
  float kcal = 0;
  float fat = 0;  // g

  // With nine significant digits.
  std::string KcalText() const;
  std::string FatText() const;
};

// What `minutes` of the activity burn: factor times minutes. Sixty per cent of it is taken to come
// from fat, 7000 kcal being the energy of 1000 g of body fat. An unknown activity burns nothing,
// minutes that are not a number count as 0.
Burned CountBurned(std::string_view activity, std::string_view minutes);

// The burned energy of the logged-in user's day. The file is one line without a line end, the date
// of the last change and the total: "7.3.2008;129.;". At most 49 characters of it are read, 14 of
// each field. A line without a second field has a total of 0. A file that cannot be read counts as
// empty and is not overwritten. A failed write is not reported.
class BurnedTotal {
 public:
  explicit BurnedTotal(const SessionState& session) : session_(session) {}

  // kcal, as last read or added to; 0 before. Reading the file is up to the screens.
  float kcal() const { return kcal_; }

  // Takes the total from the file, whatever day it is of. Returns its text as it stands there, or
  // an empty text if there is none. A user without the file gets an empty one.
  std::string Refresh();

  // Takes the total from the file as Refresh does, and then empties a file of another day. The
  // old total stays known until the file is read again. Days are told apart by the first six
  // characters of their dates, so that the same day of another year is the same day.
  std::string RefreshForToday();

  // Adds `burned` kcal, decimal text, to the total in the file and dates the file today, and tells
  // the history of the activity and its minutes. Returns the new total with 15 significant digits.
  std::string Add(std::string_view burned, std::string_view activity = {},
                  std::string_view minutes = {});

  // Empties the file, unless it cannot be read; the total is 0.
  void Clear();

 private:
  struct DayLine {
    std::string date;
    std::string kcal;
    bool is_readable = false;  // never without a user
    bool is_empty = false;     // the file, or there is none
  };

  DayLine Read() const;
  bool IsOfAnotherDay(const DayLine& line) const;
  // Reads, making the file when there is none, and knows the total from then on.
  DayLine Take();

  const SessionState& session_;
  float kcal_ = 0;
};

}  // namespace velnor

#endif  // VELNOR_ACTIVITY_BURNED_CALORIES_H_

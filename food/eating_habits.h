// What a person eats, as their history tells: how often and how lately each food, at which time of
// the day, and how much of it the last time. Read once when the quick way to add a food is opened.

#ifndef VELNOR_FOOD_EATING_HABITS_H_
#define VELNOR_FOOD_EATING_HABITS_H_

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "base/clock.h"
#include "users/history_file.h"

namespace velnor {

struct Habit {
  double liking = 0;               // on `last_day`; see LikingOn
  int last_day = 0;                // days since 1970-01-01
  std::string last_weight = {};    // g, as it would be typed; empty when none is known
  std::array<int, 24> times = {};  // by hour of the day

  // How often and how lately, on that day: every time it was eaten counts 1 on its day and half as
  // much with every 30 days since.
  double LikingOn(int day) const;

  // How often it was eaten around that hour of the day: in it, the one before and the one after.
  // 0 for an hour that is none.
  int TimesAround(int hour) const;
};

class EatingHabits {
 public:
  EatingHabits() = default;
  // Of the bytes of a history.
  explicit EatingHabits(std::string_view history);

  // Notes a food that was eaten; an entry of another kind or without a sound date changes nothing.
  void Note(const HistoryEntry& entry);

  // What is known of the food of that very name; null when it was never eaten. Good until the next
  // Note.
  const Habit* Find(std::string_view name) const;

 private:
  struct Hash : std::hash<std::string_view> {
    using is_transparent = void;
  };

  std::unordered_map<std::string, Habit, Hash, std::equal_to<>> habits_;
};

// The day of a date in days since 1970-01-01, and the hour of a time, as history entries write
// them. -1 for a text that is none.
int DayNumber(std::string_view date);
int HourOf(std::string_view time);

}  // namespace velnor

#endif  // VELNOR_FOOD_EATING_HABITS_H_

#include "food/eating_habits.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <optional>

#include "base/number_text.h"

namespace velnor {
namespace {

constexpr double kHalfLife = 30;  // days
constexpr int kHours = 24;
constexpr int kWeightDigits = 7;  // what the counter weighs with

std::string WeightText(std::optional<double> amount) {
  if (!amount || !(*amount > 0)) return {};
  std::string text = FormatNumber(*amount, kWeightDigits);
  if (text.ends_with('.')) text.pop_back();
  return text;
}

}  // namespace

double Habit::LikingOn(int day) const {
  return liking * std::exp2(-std::max(day - last_day, 0) / kHalfLife);
}

int Habit::TimesAround(int hour) const {
  if (hour < 0 || hour >= kHours) return 0;
  const auto at = [this](int other) {
    return times[static_cast<std::size_t>((other + kHours) % kHours)];
  };
  return at(hour - 1) + at(hour) + at(hour + 1);
}

EatingHabits::EatingHabits(std::string_view history) {
  HistoryReader reader(history);
  while (const std::optional<HistoryEntry> entry = reader.Next()) Note(*entry);
}

void EatingHabits::Note(const HistoryEntry& entry) {
  const int day = DayNumber(entry.date);
  if (entry.kind != HistoryKind::kFood || day < 0) return;
  Habit& habit = habits_[entry.name];
  habit.liking = habit.LikingOn(day) + 1;
  habit.last_day = std::max(habit.last_day, day);
  if (const std::string weight = WeightText(entry.amount); !weight.empty())
    habit.last_weight = weight;
  const int hour = HourOf(entry.time);
  if (hour >= 0) ++habit.times[static_cast<std::size_t>(hour)];
}

const Habit* EatingHabits::Find(std::string_view name) const {
  const auto found = habits_.find(name);
  return found == habits_.end() ? nullptr : &found->second;
}

int DayNumber(std::string_view date) {
  if (!IsIsoDate(date)) return -1;
  const std::chrono::year_month_day day(
      std::chrono::year{ParseInteger(date.substr(0, 4))},
      std::chrono::month(static_cast<unsigned>(ParseInteger(date.substr(5, 2)))),
      std::chrono::day(static_cast<unsigned>(ParseInteger(date.substr(8, 2)))));
  const auto days = std::chrono::sys_days(day).time_since_epoch().count();
  return std::max(static_cast<int>(days), -1);
}

int HourOf(std::string_view time) {
  const bool is_time = time.size() >= 3 && time[2] == ':';
  const int hour = is_time ? ParseInteger(time.substr(0, 2)) : -1;
  return hour < kHours ? hour : -1;
}

}  // namespace velnor

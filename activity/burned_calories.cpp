#include "activity/burned_calories.h"

#include <cmath>
#include <cstddef>
#include <optional>
#include <utility>

#include "activity/activity_table.h"
#include "base/file_calls.h"
#include "base/number_text.h"
#include "base/text_file.h"
#include "base/transaction.h"
#include "users/history.h"
#include "users/user_files.h"

namespace velnor {
namespace {

constexpr std::size_t kLineLimit = 49;
constexpr std::size_t kFieldLimit = 14;
constexpr std::size_t kDayCharacters = 6;
constexpr char kFieldEnd = ';';

constexpr int kShownDigits = 9;
constexpr int kTotalDigits = 15;

// kcal. What taking an entry back with a negative one leaves, because fewer digits are read than
// written. As -8e-11 it would lose its exponent when it is read again, and be -8.
constexpr double kRoundingRest = 1e-4;

constexpr double kBodyFatGrams = 1000.0;  // hold
constexpr double kBodyFatKcal = 7000.0;
constexpr double kShareFromFat = 0.6;

// Takes the next field off the line.
std::string NextField(std::string_view& line) {
  const std::string_view field = line.substr(0, line.find(kFieldEnd));
  line.remove_prefix(field.size() == line.size() ? line.size() : field.size() + 1);
  return std::string(field.substr(0, kFieldLimit));
}

bool IsSameDay(std::string_view a, std::string_view b) {
  return a.substr(0, kDayCharacters) == b.substr(0, kDayCharacters);
}

}  // namespace

std::string Burned::KcalText() const { return FormatNumber(kcal, kShownDigits); }

std::string Burned::FatText() const { return FormatNumber(fat, kShownDigits); }

Burned CountBurned(std::string_view activity, std::string_view minutes) {
  const auto duration = static_cast<float>(ParseNumber(minutes));
  Burned burned;
  burned.kcal = static_cast<float>(ParseNumber(BurnFactor(activity)) * double{duration});
  burned.fat =
      static_cast<float>(double{burned.kcal} * kBodyFatGrams / kBodyFatKcal * kShareFromFat);
  return burned;
}

BurnedTotal::DayLine BurnedTotal::Read() const {
  DayLine result;
  if (!session_.user) return result;
  // On disk a line ends with CR LF, which counts as one character.
  const std::optional<std::string> text =
      ReadFileToRewrite(session_.user->File(kBurnedFile), kLineLimit + 1);
  if (!text) return result;
  std::string_view line = LineReader(*text, kLineLimit).Next().value_or("");
  result.date = NextField(line);
  result.kcal = NextField(line);
  result.is_readable = true;
  result.is_empty = text->empty();
  return result;
}

bool BurnedTotal::IsOfAnotherDay(const DayLine& line) const {
  return line.is_readable && !line.is_empty && !IsSameDay(line.date, session_.date_text);
}

BurnedTotal::DayLine BurnedTotal::Take() {
  DayLine line = Read();
  if (line.is_empty && session_.user && !IsThere(session_.user->File(kBurnedFile))) {
    Transaction deed(session_.base_folder);
    deed.Append(session_.user->File(kBurnedFile), "");
    deed.CommitUnreported();
  }
  kcal_ = static_cast<float>(ParseNumber(line.kcal));
  return line;
}

std::string BurnedTotal::Refresh() { return Take().kcal; }

std::string BurnedTotal::RefreshForToday() {
  const DayLine line = Take();
  if (!session_.user || !IsOfAnotherDay(line)) return line.kcal;
  Transaction deed(session_.base_folder);
  // Another program may have begun the day meanwhile.
  if (IsOfAnotherDay(Read())) deed.Replace(session_.user->File(kBurnedFile), "");
  deed.CommitUnreported();
  return line.kcal;
}

std::string BurnedTotal::Add(std::string_view burned, std::string_view activity,
                             std::string_view minutes) {
  Transaction deed(session_.base_folder);
  const DayLine line = Read();
  kcal_ = static_cast<float>(ParseNumber(burned) + ParseNumber(line.kcal));
  if (std::abs(kcal_) < kRoundingRest) kcal_ = 0;
  std::string total = FormatNumber(kcal_, kTotalDigits);
  if (line.is_readable) {
    const UserFolder& user = *session_.user;
    deed.Replace(user.File(kBurnedFile), session_.date_text + kFieldEnd + total + kFieldEnd);
    HistoryEntry entry = {.kind = HistoryKind::kBurned,
                          .name = std::string(activity),
                          .amount = ParseNumber(minutes),
                          .unit = "min",
                          .kcal = ParseNumber(total) - ParseNumber(line.kcal)};
    if (TellHistory(deed, session_, user, std::move(entry))) deed.CommitUnreported();
  }
  return total;
}

void BurnedTotal::Clear() {
  kcal_ = 0;
  if (!session_.user) return;
  Transaction deed(session_.base_folder);
  const UserFolder& user = *session_.user;
  const DayLine line = Read();
  if (!line.is_readable) return;
  const bool is_of_today = !line.is_empty && !IsOfAnotherDay(line);
  deed.Replace(user.File(kBurnedFile), "");
  HistoryEntry entry = {.kind = HistoryKind::kBurnedCleared,
                        .kcal = is_of_today ? -ParseNumber(line.kcal) : 0};
  if (TellHistory(deed, session_, user, std::move(entry))) deed.CommitUnreported();
}

}  // namespace velnor

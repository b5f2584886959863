#include "users/history.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/file_calls.h"
#include "base/number_text.h"
#include "base/text_file.h"
#include "users/user_files.h"

namespace velnor {
namespace {

constexpr std::size_t kSeriesFields = 5;

using SeriesLine = std::array<std::string_view, kSeriesFields>;

SeriesLine FieldsOf(std::string_view line) {
  SeriesLine fields;
  for (std::string_view& field : fields) {
    const std::size_t end = std::min(line.find(';'), line.size());
    field = line.substr(0, end);
    line.remove_prefix(std::min(end + 1, line.size()));
  }
  return fields;
}

// Adds the entries that `entry_of` makes of the lines of a series. Returns false if the file cannot
// be read; a missing one is an empty one.
bool Import(const std::string& path, std::vector<HistoryEntry>& entries, const auto& entry_of) {
  const std::optional<std::string> text = ReadFileToRewrite(path, kWholeFile);
  if (!text) return false;
  LineReader lines(*text, kWholeFile - 1);
  while (const std::optional<std::string_view> line = lines.Next()) {
    const SeriesLine fields = FieldsOf(*line);
    HistoryEntry entry = entry_of(fields);
    entry.date = IsoDate(fields[0]);
    if (!entry.date.empty()) entries.push_back(std::move(entry));
  }
  return true;
}

HistoryEntry ImportedDay(const SeriesLine& fields) {
  return {.kind = HistoryKind::kImported,
          .kcal = ParseNumber(fields[1]),
          .protein = ParseNumber(fields[2]),
          .fat = ParseNumber(fields[3]),
          .carbohydrate = ParseNumber(fields[4])};
}

HistoryEntry ImportedWeight(const SeriesLine& fields) {
  return {.kind = HistoryKind::kWeight, .amount = ParseNumber(fields[1]), .unit = "kg"};
}

// A series has a day twice when the clock was set back between: its totals are the last ones.
void KeepLastOfEachDay(std::vector<HistoryEntry>& days) {
  std::set<std::string> dates;
  std::vector<HistoryEntry> kept;
  std::ranges::reverse(days);
  for (HistoryEntry& day : days) {
    if (dates.insert(day.date).second) kept.push_back(std::move(day));
  }
  days = std::move(kept);
}

// A history that tells of what was before it. Nothing if a series cannot be read.
std::optional<std::string> HistoryFromSeries(const UserFolder& user) {
  std::vector<HistoryEntry> entries;
  if (!Import(user.File(kNutrientSeriesFile), entries, ImportedDay)) return std::nullopt;
  KeepLastOfEachDay(entries);
  if (!Import(user.File(kWeightSeriesFile), entries, ImportedWeight)) return std::nullopt;
  std::ranges::stable_sort(entries, {}, &HistoryEntry::date);
  std::string text = std::string(kHistoryHeader) + '\n';
  for (const HistoryEntry& entry : entries) text += HistoryLine(entry);
  return text;
}

// What stands before a line that is added. Nothing if that cannot be told.
std::optional<std::string> LeadOf(const UserFolder& user) {
  const std::string path = user.File(kHistoryFile);
  if (!IsThere(path)) return HistoryFromSeries(user);
  // Someone who edited the file by hand may have left its last line open.
  return LastByteOf(path).value_or('\n') == '\n' ? "" : "\n";
}

constexpr std::optional<double> HistoryEntry::*kFigures[] = {
    &HistoryEntry::kcal, &HistoryEntry::protein, &HistoryEntry::fat, &HistoryEntry::carbohydrate};

// A line is written with eight digits: what it says is off by at most so much of itself.
constexpr double kRounding = 5e-8;

// What takes back all that the history tells of the date. Returns nothing if that is nothing.
std::optional<HistoryEntry> TakenBack(std::string_view history, std::string_view date) {
  HistoryEntry entry = {.kind = HistoryKind::kDayCleared};
  double left[std::size(kFigures)] = {};
  double moved[std::size(kFigures)] = {};
  HistoryReader reader(history);
  while (const std::optional<HistoryEntry> told = reader.Next()) {
    if (told->date != date || !CountsInDay(told->kind)) continue;
    for (std::size_t i = 0; i < std::size(kFigures); ++i) {
      const double figure = ((*told).*kFigures[i]).value_or(0);
      left[i] += figure;
      moved[i] += std::abs(figure);
    }
  }
  bool is_anything = false;
  for (std::size_t i = 0; i < std::size(kFigures); ++i) {
    entry.*kFigures[i] = -left[i];
    is_anything = is_anything || std::abs(left[i]) > kRounding * moved[i];
  }
  return is_anything ? std::optional(entry) : std::nullopt;
}

}  // namespace

bool TellHistory(Transaction& deed, const SessionState& session, const UserFolder& user,
                 HistoryEntry entry) {
  const std::optional<std::string> lead = LeadOf(user);
  if (!lead) return false;
  entry.date = IsoDate(session.date_text);
  entry.time = session.clock->Now().time;
  deed.Append(user.File(kHistoryFile), *lead + HistoryLine(entry));
  return true;
}

bool TellNewDay(Transaction& deed, const SessionState& session, const UserFolder& user) {
  const std::optional<std::string> history = ReadFileToRewrite(user.File(kHistoryFile), kWholeFile);
  if (!history) return false;
  const std::string date = IsoDate(session.date_text);
  // To take years of lines apart would delay every first login of a day.
  if (history->find(date) == std::string::npos) return true;
  const std::optional<HistoryEntry> taken_back = TakenBack(*history, date);
  return !taken_back || TellHistory(deed, session, user, *taken_back);
}

void BeginHistory(const SessionState& session, const UserFolder& user) {
  const std::string path = user.File(kHistoryFile);
  if (IsThere(path) || !HasFolder(path)) return;
  Transaction deed(session.base_folder);
  // Another program may have made it meanwhile.
  // cppcheck-suppress knownConditionTrueFalse
  if (IsThere(path)) return;
  const std::optional<std::string> text = HistoryFromSeries(user);
  if (!text) return;
  deed.Append(path, *text);
  deed.CommitUnreported();
}

}  // namespace velnor

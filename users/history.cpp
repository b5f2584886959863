#include "users/history.h"

#include <algorithm>
#include <array>
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

// Header and line ends as they stand before a line that is added.
std::string LeadOf(const std::string& path) {
  if (!IsThere(path)) return std::string(kHistoryHeader) + '\n';
  // Someone who edited the file by hand may have left its last line open.
  return LastByteOf(path).value_or('\n') == '\n' ? "" : "\n";
}

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

}  // namespace

void TellHistory(Transaction& deed, const SessionState& session, const UserFolder& user,
                 HistoryEntry entry) {
  entry.date = IsoDate(session.date_text);
  entry.time = session.clock->Now().time;
  const std::string path = user.File(kHistoryFile);
  deed.Append(path, LeadOf(path) + HistoryLine(entry));
}

void BeginHistory(const SessionState& session, const UserFolder& user) {
  const std::string path = user.File(kHistoryFile);
  if (IsThere(path) || !HasFolder(path)) return;
  Transaction deed(session.base_folder);
  if (IsThere(path)) return;  // another program has made it meanwhile
  std::vector<HistoryEntry> entries;
  if (!Import(user.File(kNutrientSeriesFile), entries, ImportedDay) ||
      !Import(user.File(kWeightSeriesFile), entries, ImportedWeight)) {
    return;
  }
  std::ranges::stable_sort(entries, {}, &HistoryEntry::date);
  std::string text = std::string(kHistoryHeader) + '\n';
  for (const HistoryEntry& entry : entries) text += HistoryLine(entry);
  deed.Append(path, text);
  deed.CommitUnreported();
}

}  // namespace velnor

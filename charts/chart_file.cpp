#include "charts/chart_file.h"

#include "base/text_file.h"

namespace velnor {
namespace {

constexpr std::size_t kLineLimit = 99;
constexpr std::size_t kLongestEmptySlot = 5;
constexpr std::size_t kFullSlot = 20;  // occupied: the series is full
constexpr std::size_t kDayCharacters = 7;

ChartSeries SeriesOf(std::string_view text) {
  ChartSeries series;
  series.file_is_empty = text.empty();
  LineReader lines(text, kLineLimit);
  for (std::size_t i = 0; i < kChartSlots; ++i) {
    const std::optional<std::string_view> line = lines.Next();
    if (!line) break;
    series.slots[i] = *line;
    if (!IsEmptySlot(*line)) series.last = i;
  }
  return series;
}

bool IsOfDay(std::string_view line, std::string_view date) {
  return line.substr(0, kDayCharacters) == date.substr(0, kDayCharacters);
}

// A carriage return at the end would pass for a part of the line end behind it.
std::string_view WithoutReturns(std::string_view slot) {
  return slot.substr(0, slot.find_last_not_of('\r') + 1);
}

}  // namespace

bool IsEmptySlot(std::string_view slot) { return slot.size() <= kLongestEmptySlot; }

ChartSeries LoadChartFile(const std::string& path) {
  // Every slot on disk ends with CR LF.
  return SeriesOf(ReadFile(path, kChartSlots * (kLineLimit + 1)));
}

bool UpdateChartFile(Transaction& deed, const std::string& path, std::string_view date,
                     std::span<const std::string> fields) {
  const std::optional<std::string> text = ReadFileToRewrite(path, kWholeFile);
  if (!text) return false;
  const ChartSeries series = SeriesOf(*text);

  std::string day(date);
  day += ';';
  for (const std::string& field : fields) {
    day += field;
    day += ';';
  }
  day += '\n';

  if (IsOfDay(series.slots[series.last], date)) {
    std::string lines;
    for (std::size_t i = 0; i < series.last; ++i) {
      const std::string_view slot = WithoutReturns(series.slots[i]);
      lines += slot;
      // A full slot is a piece of a line, whose rest, or whose end alone, is the next slot.
      if (slot.size() < kLineLimit) lines += '\n';
    }
    deed.Replace(path, WithCrLf(lines + day));
    return true;
  }
  if (!IsEmptySlot(series.slots[kFullSlot])) {
    deed.Replace(path, WithCrLf(day));
    return true;
  }
  // Someone who edited the file by hand may have left its last line open.
  const bool open = !text->empty() && text->back() != '\n';
  deed.Append(path, open ? '\n' + day : day);
  return true;
}

}  // namespace velnor

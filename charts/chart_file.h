// The chart series: small text files with one line a day, the newest last. A line is a date and the
// day's figures, each closed by a semicolon. Written by the records and by the day's balance, read
// by the charts.

#ifndef VELNOR_CHARTS_CHART_FILE_H_
#define VELNOR_CHARTS_CHART_FILE_H_

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "base/transaction.h"

namespace velnor {

inline constexpr std::size_t kChartSlots = 22;

// The lines of a series in the order of the file, without line ends.
struct ChartSeries {
  std::array<std::string, kChartSlots> slots;
  std::size_t last = 0;       // the highest slot that is not empty; 0 also when all are
  bool file_is_empty = true;  // or missing, or cannot be read
};

// Whether a slot counts as empty: five characters or fewer.
bool IsEmptySlot(std::string_view slot);

// Reads the first 22 lines of the file, or pieces of lines: a piece has at most 99 characters with
// its line end counted. A missing or unreadable file gives empty slots.
ChartSeries LoadChartFile(const std::string& path);

// Writes the day's line into the series: it replaces the newest line when that is of the same day
// (the first seven characters of the dates agree), otherwise it becomes a line of its own. A new
// day that finds 21 lines starts the series again. `date` has at least eight characters. Returns
// false, and changes nothing, if the file cannot be read.
[[nodiscard]] bool UpdateChartFile(Transaction& deed, const std::string& path,
                                   std::string_view date, std::span<const std::string> fields);

}  // namespace velnor

#endif  // VELNOR_CHARTS_CHART_FILE_H_

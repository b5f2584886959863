#include "fuzz/series.h"

#include <algorithm>

#include "base/text_file.h"

namespace velnor {
namespace {

// Beyond it a line leads out of sight.
constexpr int kFarthest = 20'450;

void RequireSane(const DrawnLine& line) {
  for (const Point& point : line.points) {
    Require(point.x >= 0 && point.x <= 800, "a chart stays between its axes");
    Require(point.y >= -kFarthest && point.y <= kFarthest, "a chart's heights are finite");
  }
}

// Bytes before a line end that belong to no text are not kept.
std::string WithoutStrayReturns(std::string slot) {
  while (slot.ends_with('\r')) slot.pop_back();
  return slot;
}

}  // namespace

void LookAtCharts(ProgramRun& run, std::initializer_list<int> commands) {
  for (const int command : commands) {
    const RecordingCanvas canvas = run.Open(command);
    std::ranges::for_each(canvas.lines, RequireSane);
  }
}

SeriesFile::SeriesFile(const ProgramRun& run, const std::string& name)
    : series(LoadChartFile(run.Path(name))) {
  const std::string bytes = run.Read(name);
  LineReader lines(bytes, 99);
  while (lines.Next()) ++line_count;
}

void RequireDayAdded(const SeriesFile& before, const SeriesFile& after, const std::string& line) {
  // Behind the last slot nothing is read; a line that goes there cannot be seen.
  constexpr std::size_t kFull = 20;
  if (before.line_count > kFull) return;
  const auto& [was, was_count] = before;
  const auto& [is, is_count] = after;
  Require(is.slots[is.last] == line, "the newest line is that of the day");
  if (was.file_is_empty) return;
  const bool replaced = was.slots[was.last].substr(0, 7) == line.substr(0, 7);
  const std::size_t kept = was.last + (replaced ? 0 : 1);
  Require(is.last >= kept, "the line stands behind those of the days before");
  for (std::size_t i = 0; i < kept; ++i) {
    Require(WithoutStrayReturns(is.slots[i]) == WithoutStrayReturns(was.slots[i]),
            "the lines of the days before stay");
  }
}

}  // namespace velnor

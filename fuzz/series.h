// What the fuzz targets over the two chart series have in common.

#ifndef VELNOR_FUZZ_SERIES_H_
#define VELNOR_FUZZ_SERIES_H_

#include <cstddef>
#include <initializer_list>
#include <string>

#include "charts/chart_file.h"
#include "fuzz/program_run.h"

namespace velnor {

// Opens the charts of these commands and looks at what they draw.
void LookAtCharts(ProgramRun& run, std::initializer_list<int> commands);

// A series as it stands in its file.
struct SeriesFile {
  // Reads the file `name` of the run.
  SeriesFile(const ProgramRun& run, const std::string& name);

  ChartSeries series;
  std::size_t line_count = 0;  // pieces of lines, those that are not read included
};

// Makes sure that the file, which held `before`, got the line of a day and lost no other, by the
// rules of the series: a line of the same day is replaced, a full series starts again.
void RequireDayAdded(const SeriesFile& before, const SeriesFile& after, const std::string& line);

}  // namespace velnor

#endif  // VELNOR_FUZZ_SERIES_H_

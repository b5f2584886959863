// What the fuzz targets over the five report files have in common.

#ifndef VELNOR_FUZZ_REPORT_H_
#define VELNOR_FUZZ_REPORT_H_

#include <string_view>

#include "fuzz/program_run.h"

namespace velnor {

// A report: where it is viewed and kept, and how a record of it is saved.
struct ReportTarget {
  int view_command;
  const char* file;    // of the user
  int screen_command;  // of the screen whose button saves a record
  int save_button;
};

// Views the report, changes, saves and clears it and adds a record to it. `input` is what the file
// holds. One that begins with a number and "|" is repeated up to so many thousand bytes, so that a
// short input can fill what the viewer shows at most.
void FuzzReport(const ReportTarget& target, std::string_view input);

}  // namespace velnor

#endif  // VELNOR_FUZZ_REPORT_H_

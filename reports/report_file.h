// The report files of a user: which screen shows which, and reading, saving and clearing them. They
// are plain text here, whatever records were appended to them. Used by the report viewer.

#ifndef VELNOR_REPORTS_REPORT_FILE_H_
#define VELNOR_REPORTS_REPORT_FILE_H_

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "base/session.h"
#include "users/user_files.h"

namespace velnor {

struct ReportFile {
  ScreenId screen;  // of the viewer that shows it
  std::string_view title;
  std::string_view file_name;  // in the user's folder
};

std::span<const ReportFile> Reports();

// The report of a screen; null when the screen shows none.
const ReportFile* FindReport(ScreenId screen);

// So many bytes of a report file are shown at most.
inline constexpr std::size_t kReportLimit = 29'999;

// The bytes of the file that are shown: the first kReportLimit ones, up to the first NUL. A file
// that is missing or cannot be read shows nothing.
std::string LoadReport(const std::string& path);

// `folder`, here and below: the start-up folder, with a separator at its end.
//
// Makes the file empty, and makes an empty one when it is missing. What was kept at RestPath goes
// with it. Returns false if both stay as they were, as files do that cannot be read.
[[nodiscard]] bool ClearReport(const std::string& folder, const std::string& path);

// Whether the file holds bytes beside `shown`, which is what LoadReport gave.
bool IsCut(const std::string& path, std::string_view shown);

// Gives the file the bytes of `text` and no others. `shown` is what LoadReport gave when the person
// began to work on the text; bytes of the file that are not in it were never seen by anybody, and
// are added to the file at RestPath first. A missing file is not made. Returns false if the file
// stays as it was.
[[nodiscard]] bool SaveReport(const std::string& folder, const std::string& path,
                              std::string_view shown, std::string_view text);

// Whether anything is kept at RestPath.
bool HasRest(const std::string& path);

}  // namespace velnor

#endif  // VELNOR_REPORTS_REPORT_FILE_H_

#include "reports/report_file.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <optional>

#include "base/file_calls.h"
#include "base/text_file.h"

namespace velnor {
namespace {

constexpr ReportFile kReports[] = {
    {4, "Reports overview - WEIGHT", kWeightReportFile},
    {5, "Reports overview - WHR", kWhrReportFile},
    {8, "Reports overview - CALORIE", kCalorieReportFile},
    {9, "Reports overview - RECIPES", kRecipeReportFile},
    {11, "Reports overview - BURNED CALORIES", kBurnedReportFile},
};

}  // namespace

std::span<const ReportFile> Reports() { return kReports; }

const ReportFile* FindReport(ScreenId screen) {
  const auto* const found = std::ranges::find(kReports, screen, &ReportFile::screen);
  return found == std::end(kReports) ? nullptr : found;
}

std::string LoadReport(const std::string& path) {
  std::string bytes = ReadFile(path, kReportLimit);
  bytes.resize(std::min(bytes.find('\0'), bytes.size()));
  return bytes;
}

bool ClearReport(const std::string& path) {
  // One byte tells a file from what only looks like one.
  const std::optional<std::string> kept = ReadFileToRewrite(RestPath(path), 1);
  if (!kept || !ReadFileToRewrite(path, 1)) return false;
  // What cannot be taken back comes last: an empty file of kept bytes that stays says nothing.
  const FileBytes files[] = {{path, ""}, {RestPath(path), ""}};
  if (kept->empty() ? !ReplaceFile(path, "") : !ReplaceFiles(files)) return false;
  std::remove(RestPath(path).c_str());
  return true;
}

bool SaveReport(const std::string& path, std::string_view shown, std::string_view text) {
  if (!FileExists(path) || IsWriteProtected(path)) return false;
  const std::optional<std::string> old = ReadFileToRewrite(path, kWholeFile);
  if (!old) return false;
  // A record may have been appended since it was shown. A file that has changed altogether was
  // never shown as it is now.
  const std::size_t seen = old->starts_with(shown) ? shown.size() : 0;
  const std::string_view rest = std::string_view{*old}.substr(seen);
  if (rest.empty()) return ReplaceFile(path, text);
  // Added to what earlier saves have kept; what stands there is never lost.
  std::optional<std::string> kept = ReadFileToRewrite(RestPath(path), kWholeFile);
  if (!kept) return false;
  if (!kept->empty() && !kept->ends_with('\n')) *kept += "\r\n";
  const FileBytes files[] = {{RestPath(path), kept->append(rest)}, {path, std::string(text)}};
  return ReplaceFiles(files);
}

bool HasRest(const std::string& path) { return !ReadFile(RestPath(path), 1).empty(); }

}  // namespace velnor

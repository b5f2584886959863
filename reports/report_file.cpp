#include "reports/report_file.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "base/file_calls.h"
#include "base/text_file.h"
#include "base/transaction.h"

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

bool ClearReport(const std::string& folder, const std::string& path) {
  Transaction deed(folder);
  // One byte tells a file from what only looks like one.
  const std::optional<std::string> kept = ReadFileToRewrite(RestPath(path), 1);
  if (!kept || !ReadFileToRewrite(path, 1)) return false;
  deed.Replace(path, "");
  deed.Remove(RestPath(path));
  return deed.Commit();
}

bool IsCut(const std::string& path, std::string_view shown) {
  return ReadFile(path, kWholeFile) != shown;
}

bool SaveReport(const std::string& folder, const std::string& path, std::string_view shown,
                std::string_view text) {
  Transaction deed(folder);
  if (!FileExists(path)) return false;
  const std::optional<std::string> old = ReadFileToRewrite(path, kWholeFile);
  if (!old) return false;
  // A record may have been appended since it was shown. A file that has changed altogether was
  // never shown as it is now.
  const std::size_t seen = old->starts_with(shown) ? shown.size() : 0;
  const std::string_view rest = std::string_view{*old}.substr(seen);
  deed.Replace(path, text);
  if (rest.empty()) return deed.Commit();
  // Added to what earlier saves have kept; what stands there is never lost.
  std::optional<std::string> kept = ReadFileToRewrite(RestPath(path), kWholeFile);
  if (!kept) return false;
  if (!kept->empty() && !kept->ends_with('\n')) *kept += "\r\n";
  deed.Replace(RestPath(path), kept->append(rest));
  return deed.Commit();
}

bool HasRest(const std::string& path) { return !ReadFile(RestPath(path), 1).empty(); }

}  // namespace velnor

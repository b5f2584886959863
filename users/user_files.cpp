#include "users/user_files.h"

namespace velnor {
namespace {

constexpr bool kMade = true;
constexpr bool kLater = false;
constexpr bool kGoes = true;
constexpr bool kStays = false;
constexpr bool kReport = true;
constexpr bool kNoReport = false;

// clang-format off
constexpr UserFile kUserFiles[] = {
    {kWeightReportFile,         kMade,  kGoes,  kReport},
    {kCalorieReportFile,        kMade,  kGoes,  kReport},
    {kProfileFile,              kMade,  kGoes,  kNoReport},
    {kRecipeReportFile,         kMade,  kGoes,  kReport},
    {kWhrReportFile,            kMade,  kGoes,  kReport},
    {kBurnedReportFile,         kMade,  kGoes,  kReport},
    {kLimitsFile,               kLater, kGoes,  kNoReport},
    {kBalanceFile,              kLater, kGoes,  kNoReport},
    {kWeightSeriesFile,         kMade,  kGoes,  kNoReport},
    {kNutrientSeriesFile,       kMade,  kGoes,  kNoReport},
    {kBurnedFile,               kLater, kGoes,  kNoReport},
    {kCarbohydrateExchangeFile, kLater, kStays, kNoReport},
    {kProteinFatExchangeFile,   kLater, kStays, kNoReport},
    {kHistoryFile,              kLater, kGoes,  kNoReport},
    {kDiaryPageFile,            kLater, kGoes,  kNoReport},
    {kDiaryDaysFile,            kLater, kGoes,  kNoReport},
    {kDiaryDeedsFile,           kLater, kGoes,  kNoReport},
};
// clang-format on

}  // namespace

std::span<const UserFile> UserFiles() { return kUserFiles; }

std::string RestPath(const std::string& path) { return path + ".rest.txt"; }

}  // namespace velnor

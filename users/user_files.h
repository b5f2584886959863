// The files of a user: what each is called, which are made with the user and which go with the
// user; and the files that all users share. The one place where their names stand; every subsystem
// takes its own from here.

#ifndef VELNOR_USERS_USER_FILES_H_
#define VELNOR_USERS_USER_FILES_H_

#include <span>
#include <string>
#include <string_view>

namespace velnor {

inline constexpr std::string_view kWeightReportFile = "waga.ASC";
inline constexpr std::string_view kCalorieReportFile = "mirvo.ASC";
inline constexpr std::string_view kProfileFile = "info.ASC";
inline constexpr std::string_view kRecipeReportFile = "zestaw.ASC";
inline constexpr std::string_view kWhrReportFile = "whr.ASC";
inline constexpr std::string_view kBurnedReportFile = "cwiczenia.ASC";
inline constexpr std::string_view kLimitsFile = "zapot.ASC";
inline constexpr std::string_view kBalanceFile = "bilans.ASC";
inline constexpr std::string_view kWeightSeriesFile = "wykwag.txt";    // date;weight;BMI;
inline constexpr std::string_view kNutrientSeriesFile = "wykoda.txt";  // date;kcal;P;F;C;
inline constexpr std::string_view kBurnedFile = "erg.txt";
inline constexpr std::string_view kCarbohydrateExchangeFile = "z1.ASC";
inline constexpr std::string_view kProteinFatExchangeFile = "z2.ASC";
inline constexpr std::string_view kHistoryFile = "dziennik.csv";
inline constexpr std::string_view kDiaryPageFile = "dziennik.html";
inline constexpr std::string_view kDiaryDaysFile = "dziennik-dni.csv";
inline constexpr std::string_view kDiaryDeedsFile = "dziennik-potrawy.csv";

// In the start-up folder: the list of users, a name a line without a line end behind the last; the
// products that users added.
inline constexpr std::string_view kRegistryFile = "users.ASC";
inline constexpr std::string_view kUserProductsFile = "data.txt";
inline constexpr std::string_view kSharedFiles[] = {kRegistryFile, kUserProductsFile};

struct UserFile {
  std::string_view name;
  bool made_with_user;  // empty; the others come into being when something is written to them
  bool goes_with_user;  // the others stay, and the folder with them
  bool is_report;       // what was never shown of a report is kept beside it (RestPath)
};

// In the order in which they are made and deleted.
std::span<const UserFile> UserFiles();

// Where saving the report at `path` keeps what was never shown of it.
std::string RestPath(const std::string& path);

}  // namespace velnor

#endif  // VELNOR_USERS_USER_FILES_H_

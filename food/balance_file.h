// The file of the day's balance. Its first line is the date of the day.

#ifndef VELNOR_FOOD_BALANCE_FILE_H_
#define VELNOR_FOOD_BALANCE_FILE_H_

#include <string>
#include <string_view>

namespace velnor {

inline constexpr std::string_view kBalanceFile = "bilans.ASC";

// Starts a new day when the first line of the file is not `date`, compared over the length of
// `date`: the file then holds the date and nothing else. A missing file counts as another day; one
// that cannot be read stays as it is.
void StartDayIfNew(const std::string& path, std::string_view date);

}  // namespace velnor

#endif  // VELNOR_FOOD_BALANCE_FILE_H_

// The diary as two tables for spreadsheets: UTF-8 with a byte order mark, commas, RFC 4180.

#ifndef VELNOR_DIARY_SPREADSHEET_H_
#define VELNOR_DIARY_SPREADSHEET_H_

#include <string>
#include <string_view>

#include "diary/day_table.h"

namespace velnor {

// A text of the program, code page 1250, as a field: in quotes where it holds a comma, a quote or a
// line end, and with an apostrophe in front where a spreadsheet would take it for a formula: where
// it begins with =, +, -, @, a tab or a carriage return.
std::string SpreadsheetField(std::string_view text);

// A line a day with an entry, the oldest first:
// date,kcal,protein,fat,carbohydrate,burned,weight,waist_hip
// What was not entered on the day is empty.
std::string DaysSpreadsheet(const DayTable& table);

// A line a deed, by day: date,time,what,name,amount,unit,kcal,protein,fat,carbohydrate
std::string DeedsSpreadsheet(const DayTable& table);

}  // namespace velnor

#endif  // VELNOR_DIARY_SPREADSHEET_H_

// A record of the burned calories report: what it says and where it is kept. The report dialog
// writes it, the report viewer shows it.

#ifndef VELNOR_ACTIVITY_BURNED_RECORD_H_
#define VELNOR_ACTIVITY_BURNED_RECORD_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace velnor {

// Characters that a figure of a record has at most; what a longer one has too much is cut off.
inline constexpr std::size_t kRecordFigureLimit = 5;

// Texts as they are shown; any of them may be empty.
struct BurnedRecord {
  std::string date = {};
  std::string activity = {};
  std::string minutes = {};
  std::string kcal = {};
  std::string fat = {};  // g
  std::string other = {};
};

// The record as it stands in the file: two lines, the first of which ends with two blanks, and a
// line of 99 dashes. Lines end with LF here.
std::string BurnedRecordText(const BurnedRecord& record);

}  // namespace velnor

#endif  // VELNOR_ACTIVITY_BURNED_RECORD_H_

// The report of waist-hip ratios: one line a save, each figure behind its label.

#ifndef VELNOR_BODY_WHR_RECORD_H_
#define VELNOR_BODY_WHR_RECORD_H_

#include <string>
#include <string_view>

namespace velnor {

// Texts as they go into the report.
struct WhrRecord {
  std::string date = {};
  std::string waist = {};  // cm
  std::string hip = {};    // cm
  std::string whr = {};
  std::string other = {};
};

// The line of a record, a tab between the texts and, other than in the report of weight, none
// behind the last.
std::string WhrRecordLine(const WhrRecord& record);

}  // namespace velnor

#endif  // VELNOR_BODY_WHR_RECORD_H_

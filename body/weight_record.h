// The report of body weight: one line a save, each figure behind its label.

#ifndef VELNOR_BODY_WEIGHT_RECORD_H_
#define VELNOR_BODY_WEIGHT_RECORD_H_

#include <string>
#include <string_view>

namespace velnor {

// Texts as they go into the report.
struct WeightRecord {
  std::string date = {};
  std::string weight = {};  // kg
  std::string bmi = {};
  std::string other = {};
};

// The line of a record, a tab behind every text, the last one included.
std::string WeightRecordLine(const WeightRecord& record);

}  // namespace velnor

#endif  // VELNOR_BODY_WEIGHT_RECORD_H_

#include "body/weight_record.h"

namespace velnor {

std::string WeightRecordLine(const WeightRecord& record) {
  return "date: " + record.date + "\tbody weight[kg]: " + record.weight + "\tBMI: " + record.bmi +
         "\tother: " + record.other + "\t\n";
}

}  // namespace velnor

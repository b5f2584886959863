#include "body/whr_record.h"

namespace velnor {

std::string WhrRecordLine(const WhrRecord& record) {
  return "date: " + record.date + "\twaist[cm]: " + record.waist + "\thip[cm]: " + record.hip +
         "\tWHR: " + record.whr + "\tother: " + record.other + '\n';
}

}  // namespace velnor

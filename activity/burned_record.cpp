#include "activity/burned_record.h"

#include <cstddef>

#include "base/text_file.h"

namespace velnor {
namespace {

constexpr std::size_t kDashes = 99;

}  // namespace

std::string BurnedRecordText(const BurnedRecord& record) {
  return record.date +                                //
         "  activity: " + record.activity +           //
         "  time[min]: " + record.minutes +           //
         "  calories burned[kcal]: " + record.kcal +  //
         "  fat burned[g]: " + record.fat +           //
         "  \nother: " + record.other +               //
         '\n' + std::string(kDashes, '-') + '\n';
}

bool AppendBurnedRecord(const std::string& path, const BurnedRecord& record) {
  return AppendToFile(path, BurnedRecordText(record));
}

}  // namespace velnor

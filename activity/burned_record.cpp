#include "activity/burned_record.h"

#include <cstddef>

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

}  // namespace velnor

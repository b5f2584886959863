// The 101 activities and what a minute of each burns. The activities screen lists them, the burned
// calories are counted by them.

#ifndef VELNOR_ACTIVITY_ACTIVITY_TABLE_H_
#define VELNOR_ACTIVITY_ACTIVITY_TABLE_H_

#include <span>
#include <string_view>

namespace velnor {

struct ActivityRecord {
  std::string_view name;    // lower case, of at most 79 characters, unique
  std::string_view factor;  // kcal a minute, decimal text; the same for every body weight
};

// All activities, in the order of the table.
std::span<const ActivityRecord> Activities();

// The factor of the activity that `name` stands for; empty when there is none. Names are compared
// at a few positions only; of several matching activities the last counts.
std::string_view BurnFactor(std::string_view name);

}  // namespace velnor

#endif  // VELNOR_ACTIVITY_ACTIVITY_TABLE_H_

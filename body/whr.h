// The waist-hip ratio: the formula, and the shape of body it stands for.

#ifndef VELNOR_BODY_WHR_H_
#define VELNOR_BODY_WHR_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "users/profile.h"

namespace velnor {

// The numbers are those of WhrResult.
inline constexpr int kPearType = 1;
inline constexpr int kAppleType = 2;
inline constexpr int kNormType = 3;

// The last count. It belongs to the run of the program, not to a user, and is not saved.
struct WhrResult {
  static constexpr std::size_t kLimit = 29;

  std::string waist = {};  // cm, as typed, at most kLimit characters
  std::string hip = {};    // cm, likewise
  float value = 0;
  int whr_class = 0;  // kPearType, kAppleType or kNormType; 0: nothing has been classified yet
};

// Waist by hip in single precision. Text that is no number counts as 0. Nothing is guarded: a hip
// of 0 gives infinity, and with a waist of 0 no number.
float ComputeWhr(std::string_view waist, std::string_view hip);

// The class of a ratio for the person's sex; women are never told that they are the norm. Returns
// nothing if the sex is not known or `whr` is no number: then the class stays what it was.
std::optional<int> ClassifyWhr(float whr, const UserProfile& profile);

}  // namespace velnor

#endif  // VELNOR_BODY_WHR_H_

#include "activity/personal_limits.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/text_file.h"

namespace velnor {
namespace {

constexpr std::size_t kLines = 1 + kLimitCount;
constexpr std::size_t kLineLimit = 99;
constexpr std::size_t kSlot = 10;  // bytes that a line's text has before the next one's begins

constexpr double kInForceAbove = 4.0;
constexpr double kActiveAbove = 5.0;

constexpr std::string_view kTooSmall =
    "CAUTION!!\nAt least one of the lower limit is too SMALL!\nChange it";
constexpr std::string_view kTooBig =
    "CAUTION!!\nAt least one of the upper limit is too BIG!\nChange it";
constexpr std::string_view kCrossed =
    "CAUTION!!\nLower limit is bigger then upper limit!\nChange it";

struct Bounds {
  Limit lower, upper;
  float smallest_lower, largest_upper;
};
constexpr Bounds kBounds[] = {
    {kCaloriesLower, kCaloriesUpper, 110, 6999},
    {kProteinLower, kProteinUpper, 10, 239},
    {kFatLower, kFatUpper, 10, 239},
    {kCarbohydrateLower, kCarbohydrateUpper, 25, 1399},
};

}  // namespace

float PersonalLimits::Number(std::size_t limit) const {
  return static_cast<float>(ParseNumber(texts[limit]));
}

bool PersonalLimits::AreInForce() const { return Number(kCaloriesLower) > kInForceAbove; }

bool PersonalLimits::AreUndecided() const { return Number(kCaloriesLower) == kInForceAbove; }

bool PersonalLimits::ShowAsActive() const {
  return kActiveAbove < Number(kCaloriesLower) && kActiveAbove < Number(kCaloriesUpper);
}

PersonalLimits ReadPersonalLimits(const std::string& path) {
  const std::string text = ReadFile(path, kLines * (kLineLimit + 1));
  LineReader reader(text, kLineLimit);
  // One row of slots; room behind it for what the last line has too much.
  std::array<char, kLines* kSlot + kLineLimit + 1> slots = {};
  for (std::size_t line = 0; line < kLines; ++line) {
    const std::optional<std::string_view> read = reader.Next();
    if (!read) break;
    std::string value(*read);
    std::erase(value, '\r');
    char* const slot = slots.data() + line * kSlot;
    *std::ranges::copy(value, slot).out = '\0';
  }
  PersonalLimits limits;
  for (std::size_t limit = 0; limit < kLimitCount; ++limit) {
    limits.texts[limit] = slots.data() + (limit + 1) * kSlot;
  }
  return limits;
}

std::optional<std::string_view> FindFault(const PersonalLimits& limits) {
  const auto any = [](auto is_wrong) { return std::ranges::any_of(kBounds, is_wrong); };
  if (any([&](const Bounds& b) { return limits.Number(b.lower) < b.smallest_lower; })) {
    return kTooSmall;
  }
  if (any([&](const Bounds& b) { return limits.Number(b.upper) > b.largest_upper; })) {
    return kTooBig;
  }
  if (any([&](const Bounds& b) { return limits.Number(b.lower) > limits.Number(b.upper); })) {
    return kCrossed;
  }
  return std::nullopt;
}

void WritePersonalLimits(Transaction& deed, const std::string& path, const PersonalLimits& limits) {
  std::string text = "1\n";
  for (const std::string& limit : limits.texts) text += limit + '\n';
  deed.Replace(path, WithCrLf(text));
}

void WriteNoLimits(Transaction& deed, const std::string& path) {
  deed.Replace(path, WithCrLf("0\n"));
}

}  // namespace velnor

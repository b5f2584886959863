// The fast text comparison of the food tables and the activities: two texts are held for the same
// when they agree at a few chosen positions. Which positions, each rule says for itself.

#ifndef VELNOR_BASE_LOOSE_MATCH_H_
#define VELNOR_BASE_LOOSE_MATCH_H_

#include <algorithm>
#include <initializer_list>
#include <string_view>

namespace velnor {

// Length as the signed number that position arithmetic needs.
constexpr int Length(std::string_view text) { return static_cast<int>(text.size()); }

// The character at `position`; positions before the start or behind the end read as NUL.
constexpr char CharAt(std::string_view text, int position) {
  return position >= 0 && position < Length(text) ? text[static_cast<std::size_t>(position)] : '\0';
}

// Whether both texts have the same character at every one of `positions`.
constexpr bool AgreeAt(std::string_view a, std::string_view b,
                       std::initializer_list<int> positions) {
  return std::all_of(positions.begin(), positions.end(),
                     [=](int position) { return CharAt(a, position) == CharAt(b, position); });
}

// Whether `text` has nothing at `position` or behind it.
constexpr bool EndsBy(std::string_view text, int position) {
  return CharAt(text, position) == '\0';
}

}  // namespace velnor

#endif  // VELNOR_BASE_LOOSE_MATCH_H_

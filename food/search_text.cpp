#include "food/search_text.h"

#include <algorithm>
#include <iterator>

namespace velnor {
namespace {

// The letters of product names, the most common first.
constexpr std::string_view kCommonLetters = "e arstoicnlhdpumfkbgwyv";

// Where in `query` its rarest letter stands: looking for that one finds the fewest false places.
std::size_t RarestLetter(std::string_view query) {
  const auto rarity = [](char letter) {
    return std::min(kCommonLetters.find(letter), kCommonLetters.size());
  };
  return static_cast<std::size_t>(
      std::distance(query.begin(), std::ranges::max_element(query, {}, rarity)));
}

}  // namespace

void SearchText::Clear() {
  text_.clear();
  ends_.clear();
}

void SearchText::Add(std::string_view first, std::string_view second) {
  text_.append(first).append(1, ' ').append(second).append(1, '\0');
  ends_.push_back(text_.size());
}

std::vector<std::size_t> SearchText::Find(std::string_view query) const {
  std::vector<std::size_t> found;
  // With a NUL in it, it could only be found across two texts.
  if (query.empty() || query.find('\0') != std::string_view::npos) return found;
  const std::string_view text = text_;
  const std::size_t before = RarestLetter(query);
  const char letter = query[before];
  auto end = ends_.begin();
  for (std::size_t from = before; (from = text.find(letter, from)) != std::string_view::npos;) {
    if (text.compare(from - before, query.size(), query) != 0) {
      ++from;
      continue;
    }
    while (*end <= from) ++end;
    found.push_back(static_cast<std::size_t>(end - ends_.begin()));
    from = *end;  // one place in a text is enough
  }
  return found;
}

}  // namespace velnor

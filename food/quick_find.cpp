#include "food/quick_find.h"

#include <algorithm>
#include <optional>
#include <tuple>

#include "base/code_page.h"

namespace velnor {
namespace {

constexpr std::string_view kOwnMark = "[B] ";

std::vector<std::string_view> WordsOf(std::string_view text) {
  std::vector<std::string_view> words;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(' '), text.size());
    if (end > 0) words.push_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return words;
}

// Of folded text; what has no plain letter counts as a sign.
bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9'); }

enum class Place { kNowhere, kInside, kBeginning };

Place PlaceOf(std::string_view word, std::string_view name) {
  Place place = Place::kNowhere;
  for (std::size_t at = 0; (at = name.find(word, at)) != std::string_view::npos; ++at) {
    if (at == 0 || !IsLetter(name[at - 1])) return Place::kBeginning;
    place = Place::kInside;
  }
  return place;
}

// How many of the words stand in the middle of one of the name's; nothing when one is missing.
std::optional<int> WordsInside(const std::vector<std::string_view>& words, std::string_view name) {
  int inside = 0;
  for (const std::string_view word : words) {
    const Place place = PlaceOf(word, name);
    if (place == Place::kNowhere) return std::nullopt;
    if (place == Place::kInside) ++inside;
  }
  return inside;
}

}  // namespace

std::string QuickMatch::ListText() const { return is_own ? std::string(kOwnMark) + name : name; }

std::vector<QuickMatch> QuickFind::Find(std::string_view query, int today, std::size_t limit) {
  Update();
  const std::string folded = FoldLetters(std::string(query));
  const std::vector<std::string_view> words = WordsOf(folded);
  std::vector<Ranked> ranked;
  if (words.empty()) return {};
  for (const Entry& entry : entries_) {
    const std::optional<int> inside = WordsInside(words, entry.name);
    if (!inside) continue;
    const Habit* const habit = habits_.Find(entry.product->name);
    ranked.push_back({.entry = &entry,
                      .first = *inside,
                      .second = habit == nullptr ? 0 : -habit->LikingOn(today),
                      .third = entry.name.starts_with(words.front()) ? 0 : 1});
  }
  return Best(ranked, limit);
}

std::vector<QuickMatch> QuickFind::EatenAround(int hour, int today, std::size_t limit) {
  Update();
  std::vector<Ranked> ranked;
  for (const Entry& entry : entries_) {
    const Habit* const habit = habits_.Find(entry.product->name);
    if (habit == nullptr) continue;
    ranked.push_back({.entry = &entry,
                      .first = -habit->TimesAround(hour),
                      .second = -habit->LikingOn(today),
                      .third = 0});
  }
  return Best(ranked, limit);
}

void QuickFind::Update() {
  const UserProductTable& own = food_.user_products;
  if (!entries_.empty() && generation_ == own.generation()) return;
  generation_ = own.generation();
  entries_.clear();
  text_.clear();
  for (const auto products : {food_.products, own.products()}) {
    for (const ProductRecord& product : products) text_ += product.name;
  }
  text_ = FoldLetters(std::move(text_));
  std::string_view rest = text_;
  for (const auto products : {food_.products, own.products()}) {
    for (const ProductRecord& product : products) {
      const bool is_own = products.data() != food_.products.data();
      entries_.push_back({rest.substr(0, product.name.size()), &product, is_own});
      rest.remove_prefix(product.name.size());
    }
  }
}

std::vector<QuickMatch> QuickFind::Best(std::vector<Ranked>& ranked, std::size_t limit) const {
  const auto comes_before = [](const Ranked& a, const Ranked& b) {
    const auto reasons = [](const Ranked& r) {
      return std::tuple(r.first, r.second, r.third, r.entry->name.size(), r.entry->name, r.entry);
    };
    return reasons(a) < reasons(b);
  };
  const std::size_t count = std::min(limit, ranked.size());
  std::ranges::partial_sort(ranked, ranked.begin() + static_cast<std::ptrdiff_t>(count),
                            comes_before);
  std::vector<QuickMatch> matches;
  matches.reserve(count);
  for (std::size_t i = 0; i < count; ++i) {
    const Entry& entry = *ranked[i].entry;
    const Habit* const habit = habits_.Find(entry.product->name);
    matches.push_back({.name = std::string(entry.product->name),
                       .product = SelectedProduct::CopyOf(*entry.product),
                       .is_own = entry.is_own,
                       .last_weight = habit == nullptr ? "" : habit->last_weight});
  }
  return matches;
}

}  // namespace velnor

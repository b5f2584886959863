#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

#include "base/text_file.h"
#include "food/food_table.h"

namespace velnor {
namespace {

// The most bytes that 3000 lines can take: each at most 149 characters, where CR LF is one.
constexpr std::size_t kReadLimit = UserProductTable::kSlots * (UserProductTable::kLineLimit + 1);

// In the order in which a line has them.
constexpr std::array<std::string_view ProductRecord::*, kProductFieldCount> kFields = {
    &ProductRecord::main_category, &ProductRecord::subcategory, &ProductRecord::name,
    &ProductRecord::mass,          &ProductRecord::kcal,        &ProductRecord::protein,
    &ProductRecord::fat,           &ProductRecord::carbohydrate};

constexpr std::size_t kWord = sizeof(std::uint64_t);
constexpr std::size_t kChunk = 64;

// Of eight characters, a bit each from the lowest on: whether it is a semicolon. Bytes that hold
// nothing are NUL.
std::uint64_t SemicolonsOfWord(std::uint64_t word) {
  static_assert(std::endian::native == std::endian::little);  // the first character is the lowest
  constexpr std::uint64_t kSemicolons = 0x3B3B'3B3B'3B3B'3B3B;
  constexpr std::uint64_t kLowBits = 0x7F7F'7F7F'7F7F'7F7F;
  constexpr std::uint64_t kGather = 0x0102'0408'1020'4080;
  const std::uint64_t difference = word ^ kSemicolons;  // a semicolon becomes 0
  const std::uint64_t is_zero = ~(((difference & kLowBits) + kLowBits) | difference | kLowBits);
  return (is_zero >> 7) * kGather >> 56;  // the top bits of the bytes, side by side
}

// The same of at most 64 characters.
std::uint64_t SemicolonsOfChunk(std::string_view chunk) {
  std::uint64_t bits = 0;
  std::size_t at = 0;
  std::uint64_t word = 0;
  for (; at + kWord <= chunk.size(); at += kWord) {
    std::memcpy(&word, chunk.data() + at, kWord);
    bits |= SemicolonsOfWord(word) << at;
  }
  if (at == chunk.size()) return bits;
  word = 0;
  std::memcpy(&word, chunk.data() + at, chunk.size() - at);
  return bits | SemicolonsOfWord(word) << at;
}

// Fields are so short that searching for the end of each would cost more than everything else that
// is done with the line: the ends of all are found first.
void SplitInto(std::string_view line, ProductRecord& product) {
  std::size_t start = 0;
  std::size_t field = 0;
  for (std::size_t chunk = 0; chunk < line.size(); chunk += kChunk) {
    std::uint64_t bits = SemicolonsOfChunk(line.substr(chunk, kChunk));
    for (; bits != 0; bits &= bits - 1) {
      const std::size_t end = chunk + static_cast<std::size_t>(std::countr_zero(bits));
      product.*kFields[field] = line.substr(start, end - start);
      start = end + 1;
      if (++field == kProductFieldCount) return;
    }
  }
  product.*kFields[field] = line.substr(start);  // the last one is open
}

}  // namespace

ProductRecord SplitProductLine(std::string_view line) {
  ProductRecord product;
  SplitInto(line, product);
  return product;
}

SearchText SearchTextOf(std::span<const ProductRecord> products) {
  SearchText text;
  for (const ProductRecord& product : products) text.Add(product.subcategory, product.name);
  return text;
}

void UserProductTable::Load(const std::string& path) {
  products_.clear();
  search_text_.Clear();
  text_ = ReadFile(path, kReadLimit);
  LineReader lines(text_, kLineLimit);
  for (free_slots_ = kSlots; free_slots_ > 0; --free_slots_) {
    const std::optional<std::string_view> line = lines.Next();
    if (!line) break;
    if (line->size() <= kShortLine) continue;
    ProductRecord& product = products_.emplace_back();
    SplitInto(*line, product);
    search_text_.Add(product.subcategory, product.name);
  }
}

}  // namespace velnor

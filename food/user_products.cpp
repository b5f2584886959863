#include <optional>

#include "base/text_file.h"
#include "food/food_table.h"

namespace velnor {
namespace {

// The most bytes that 3000 lines can take: each at most 149 characters, where CR LF is one.
constexpr std::size_t kReadLimit = UserProductTable::kSlots * (UserProductTable::kLineLimit + 1);

}  // namespace

ProductRecord SplitProductLine(std::string_view line) {
  ProductRecord product;
  for (const auto field : kProductFields) {
    const std::size_t end = line.find(';');
    product.*field = line.substr(0, end);
    if (end == std::string_view::npos) break;
    line.remove_prefix(end + 1);
  }
  return product;
}

void UserProductTable::Load(const std::string& path) {
  products_.clear();
  ++generation_;
  text_ = ReadFile(path, kReadLimit);
  LineReader lines(text_, kLineLimit);
  for (free_slots_ = kSlots; free_slots_ > 0; --free_slots_) {
    const std::optional<std::string_view> line = lines.Next();
    if (!line) break;
    if (line->size() > kShortLine) products_.push_back(SplitProductLine(*line));
  }
}

}  // namespace velnor

#include "base/text_file.h"
#include "food/food_table.h"

namespace velnor {
namespace {

// The most bytes that 3000 lines can take: each at most 149 characters, where CR LF is one.
constexpr std::size_t kReadLimit = UserProductTable::kSlots * (UserProductTable::kLineLimit + 1);

}  // namespace

ProductRecord SplitProductLine(std::string_view line) {
  std::array<std::string_view, kProductFieldCount> fields;
  std::size_t start = 0;
  for (std::string_view& field : fields) {
    const std::size_t end = line.find(';', start);
    field = line.substr(start, end - start);
    if (end == std::string_view::npos) break;
    start = end + 1;
  }
  return {fields[0], fields[1], fields[2], fields[3], fields[4], fields[5], fields[6], fields[7]};
}

void UserProductTable::Load(const std::string& path) {
  products_.clear();
  text_ = ReadFile(path, kReadLimit);
  LineReader lines(text_, kLineLimit);
  for (std::size_t slot = 0; slot < kSlots; ++slot) {
    const std::optional<std::string_view> line = lines.Next();
    if (!line) break;
    if (line->size() > kShortLine) products_.push_back(SplitProductLine(*line));
  }
}

}  // namespace velnor

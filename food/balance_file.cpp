#include "food/balance_file.h"

#include <optional>

#include "base/text_file.h"

namespace velnor {
namespace {

constexpr std::size_t kLineLimit = 99;

}  // namespace

void StartDayIfNew(const std::string& path, std::string_view date) {
  const std::optional<std::string> text = ReadFileToRewrite(path, kLineLimit);
  if (!text) return;
  const std::string_view first_line = LineReader(*text, kLineLimit).Next().value_or("");
  if (!first_line.starts_with(date)) ReplaceFile(path, date);
}

}  // namespace velnor

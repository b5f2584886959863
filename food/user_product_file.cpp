#include "food/user_product_file.h"

#include <algorithm>
#include <optional>

#include "base/loose_match.h"
#include "base/text_file.h"

namespace velnor {
namespace {

constexpr std::size_t kListedLines = 1000;
constexpr std::size_t kListedLineLimit = 299;
constexpr std::string_view kLineEnd = "\r\n";

std::optional<std::string_view> NameField(std::string_view line) {
  const std::size_t first = line.find(';');
  if (first == std::string_view::npos) return std::nullopt;
  const std::size_t second = line.find(';', first + 1);
  if (second == std::string_view::npos) return std::nullopt;
  const std::size_t third = line.find(';', second + 1);
  return line.substr(second + 1, third - second - 1);
}

}  // namespace

bool AddUserProduct(Transaction& deed, const std::string& path, const ProductRecord& product) {
  return AddUserProducts(deed, path, {&product, 1});
}

bool AddUserProducts(Transaction& deed, const std::string& path,
                     std::span<const ProductRecord> products) {
  const std::optional<std::string> text = ReadFileToRewrite(path, kWholeFile);
  if (!text) return false;
  std::string lines;
  // Someone who edited the file by hand may have left its last line open.
  if (!text->empty() && text->back() != '\n') lines += '\n';
  for (const ProductRecord& product : products) {
    for (const auto field : kProductFields) {
      lines += product.*field;
      lines += ';';
    }
    lines += '\n';
  }
  deed.Append(path, lines);
  return true;
}

std::vector<std::string> ReadUserProductNames(const std::string& path) {
  const std::string text = ReadFile(path, kListedLines * (kListedLineLimit + 1));
  LineReader lines(text, kListedLineLimit);
  std::vector<std::string> names;
  for (std::size_t i = 0; i < kListedLines; ++i) {
    const std::optional<std::string_view> line = lines.Next();
    if (!line) break;
    if (const std::optional<std::string_view> name = NameField(*line)) names.emplace_back(*name);
  }
  return names;
}

bool IsRemovedWith(std::string_view line, std::string_view name) {
  if (line.size() <= UserProductTable::kShortLine) return false;
  const std::optional<std::string_view> field = NameField(line);
  if (!field || field->substr(0, kRemovableNameLimit).size() != name.size()) return false;
  const int n = Length(name);
  const auto agrees_from = [=](std::size_t start) {
    const std::string_view tail = line.substr(std::min(start, line.size()));
    return AgreeAt(tail, name, {0, 1, 2, 3, (n - 1) / 2, (n - 1) / 3, (n - 1) / 4, n - 1});
  };
  for (std::size_t start = 0; start <= UserProductTable::kLineLimit; ++start) {
    if (agrees_from(start)) return true;
  }
  return false;
}

bool RemoveUserProduct(Transaction& deed, const std::string& path, std::string_view name) {
  const std::optional<std::string> text = ReadFileToRewrite(path, kWholeFile);
  if (!text) return false;
  LineReader lines(*text, UserProductTable::kLineLimit);
  std::string kept;
  bool removed = false;
  for (std::size_t i = 0; i < UserProductTable::kSlots; ++i) {
    const std::optional<std::string_view> line = lines.NextWhole();
    if (!line) break;
    if (IsRemovedWith(line->substr(0, line->find('\0')), name)) {
      removed = true;
    } else if (!line->empty()) {
      kept += *line;
      kept += kLineEnd;
    }
  }
  if (removed) deed.Replace(path, kept.append(lines.rest()));
  return true;
}

}  // namespace velnor

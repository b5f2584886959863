#include "food/product_table_reader.h"

#include <algorithm>
#include <iterator>

#include "base/code_page.h"

namespace velnor {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kLowByteFirstMark = "\xFF\xFE";
constexpr std::string_view kHighByteFirstMark = "\xFE\xFF";
constexpr char kNoBreakSpace = '\xA0';

bool IsBlank(char c) {
  return static_cast<unsigned char>(c) <= ' ' || c == '\x7F' || c == kNoBreakSpace;
}

// Where the quote that closes a field is, counted from behind the opening one; nothing when there
// is none within a row's length.
std::optional<std::size_t> ClosingQuote(std::string_view text) {
  const std::string_view row = text.substr(0, kTableRowLimit);
  for (std::size_t at = 0; (at = row.find('"', at)) != std::string_view::npos; at += 2) {
    if (at + 1 == text.size() || text[at + 1] != '"') return at;
  }
  return std::nullopt;
}

std::string InCodePage(std::string_view bytes) {
  const bool high_byte_first = bytes.starts_with(kHighByteFirstMark);
  if (high_byte_first || bytes.starts_with(kLowByteFirstMark)) {
    return FromUtf16(bytes.substr(kLowByteFirstMark.size()), high_byte_first);
  }
  if (bytes.starts_with(kUtf8Mark)) return FromUtf8(bytes.substr(kUtf8Mark.size()));
  return IsUtf8(bytes) ? FromUtf8(bytes) : std::string(bytes);
}

}  // namespace

bool TableRow::IsEmpty() const {
  return std::ranges::all_of(
      fields, [](const std::string& field) { return std::ranges::all_of(field, IsBlank); });
}

std::optional<TableRow> TableReader::Next() {
  if (rest_.empty()) return std::nullopt;
  TableRow row{.first_line = line_};
  const std::size_t had = rest_.size();
  for (bool ended = false; !ended;) {
    row.fields.push_back(TakeField());
    row.last_line = line_;
    row.is_too_long = had - rest_.size() > kTableRowLimit;
    if (row.is_too_long) SkipLine();
    ended = row.is_too_long || rest_.empty() || rest_.front() != separator_;
    if (!ended) rest_.remove_prefix(1);
  }
  TakeLineEnd();
  if (row.is_too_long) row.fields.clear();
  return row;
}

// Leaves what ends the field: a separator, a line end, or nothing.
std::string TableReader::TakeField() {
  std::string field;
  if (rest_.starts_with('"')) TakeQuoted(field);
  const char ends[] = {separator_, '\r', '\n'};
  const std::size_t end =
      std::min(rest_.find_first_of(std::string_view(ends, std::size(ends))), rest_.size());
  field += rest_.substr(0, std::min(end, kTableRowLimit));
  rest_.remove_prefix(end);
  return field;
}

void TableReader::TakeQuoted(std::string& field) {
  const std::optional<std::size_t> closing = ClosingQuote(rest_.substr(1));
  if (!closing) return;
  const std::string_view quoted = rest_.substr(1, *closing);
  rest_.remove_prefix(*closing + 2);
  for (std::size_t i = 0; i < quoted.size(); ++i) {
    field += quoted[i];
    const bool is_return = quoted[i] == '\r' && quoted.substr(i + 1, 1) != "\n";
    if (quoted[i] == '\n' || is_return) ++line_;
    if (quoted[i] == '"') ++i;  // the second of two
  }
}

void TableReader::TakeLineEnd() {
  for (const std::string_view end : {"\r\n", "\n", "\r"}) {
    if (!rest_.starts_with(end)) continue;
    rest_.remove_prefix(end.size());
    ++line_;
    return;
  }
}

void TableReader::SkipLine() {
  rest_.remove_prefix(std::min(rest_.find_first_of("\r\n"), rest_.size()));
}

std::optional<std::string> TableText(std::string_view bytes) {
  std::string text = InCodePage(bytes);
  if (text.find('\0') != std::string::npos) return std::nullopt;
  return text;
}

std::string TidyText(std::string_view text) {
  std::string tidy;
  for (const char c : text) {
    if (!IsBlank(c)) {
      tidy += c;
    } else if (!tidy.empty() && tidy.back() != ' ') {
      tidy += ' ';
    }
  }
  if (tidy.ends_with(' ')) tidy.pop_back();
  return tidy;
}

}  // namespace velnor

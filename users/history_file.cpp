#include "users/history_file.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <iterator>
#include <system_error>

#include "base/number_text.h"

namespace velnor {
namespace {

constexpr int kDigits = 8;
constexpr std::size_t kFieldCount = 10;
constexpr std::size_t kDateLength = 10;
constexpr std::size_t kMostLineEnds = 8;  // that a name is believed to hold

struct KindRow {
  HistoryKind kind;
  std::string_view word;
  bool counts_in_day;
};

// By HistoryKind.
constexpr KindRow kKinds[] = {
    {HistoryKind::kFood, "food", true},
    {HistoryKind::kRemoved, "removed", true},
    {HistoryKind::kListCleared, "list cleared", true},
    {HistoryKind::kDayCleared, "day cleared", true},
    {HistoryKind::kBurned, "burned", false},
    {HistoryKind::kBurnedCleared, "burned cleared", false},
    {HistoryKind::kWeight, "weight", false},
    {HistoryKind::kWaistHip, "waist-hip", false},
    {HistoryKind::kImported, "imported", true},
};

const KindRow& RowOf(HistoryKind kind) { return kKinds[static_cast<std::size_t>(kind)]; }

std::string FieldText(std::string_view field) {
  if (field.find_first_of(";\"\r\n") == std::string_view::npos) return std::string(field);
  std::string quoted = "\"";
  for (const char c : field) {
    if (c == '"') quoted += '"';
    quoted += c;
  }
  return quoted + '"';
}

bool IsDigits(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

bool IsTime(std::string_view time) {
  return time.empty() ||
         (time.size() == 8 && time[2] == ':' && time[5] == ':' && IsDigits(time.substr(0, 2)) &&
          IsDigits(time.substr(3, 2)) && IsDigits(time.substr(6, 2)));
}

// Whether the field is empty or all of it is a finite number.
bool ReadFigure(std::string_view field, std::optional<double>& figure) {
  figure.reset();
  if (field.empty()) return true;
  double value = 0;
  const char* const end = field.data() + field.size();
  const std::from_chars_result read = std::from_chars(field.data(), end, value);
  if (read.ec != std::errc() || read.ptr != end || !std::isfinite(value)) return false;
  figure = value;
  return true;
}

using Fields = std::array<std::string, kFieldCount>;

// The field at the start of `rest`, which then begins behind its semicolon or line end. The quotes
// of a field that is closed may hold line ends; where none closes it, the quote is a letter.
std::string TakeField(std::string_view& rest) {
  std::string field;
  if (rest.starts_with('"')) {
    std::size_t at = 1;
    while (at < rest.size()) {
      if (rest[at] != '"') {
        field += rest[at++];
      } else if (rest.substr(at + 1).starts_with('"')) {
        field += '"';
        at += 2;
      } else {
        break;
      }
    }
    const std::string_view behind = rest.substr(std::min(at + 1, rest.size()));
    const bool closed = at < rest.size() && (behind.empty() || behind[0] == ';');
    if (closed) {
      rest = behind;
      return field;
    }
  }
  field = rest.substr(0, rest.find(';'));
  rest.remove_prefix(field.size());
  return field;
}

// Exactly ten fields, or nothing.
std::optional<Fields> SplitLine(std::string_view line) {
  Fields fields;
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    fields[i] = TakeField(line);
    const bool last = i + 1 == kFieldCount;
    if (last != line.empty()) return std::nullopt;
    if (!last) line.remove_prefix(1);
  }
  return fields;
}

std::optional<HistoryEntry> EntryOf(std::string_view line) {
  std::optional<Fields> fields = SplitLine(line);
  if (!fields) return std::nullopt;
  auto& [date, time, what, name, amount, unit, kcal, protein, fat, carbohydrate] = *fields;
  const auto* const row = std::ranges::find(kKinds, what, &KindRow::word);
  if (!IsIsoDate(date) || !IsTime(time) || row == std::end(kKinds)) return std::nullopt;
  HistoryEntry entry = {.date = std::move(date),
                        .time = std::move(time),
                        .kind = row->kind,
                        .name = std::move(name),
                        .unit = std::move(unit)};
  if (!ReadFigure(amount, entry.amount) || !ReadFigure(kcal, entry.kcal) ||
      !ReadFigure(protein, entry.protein) || !ReadFigure(fat, entry.fat) ||
      !ReadFigure(carbohydrate, entry.carbohydrate)) {
    return std::nullopt;
  }
  return entry;
}

std::string_view WithoutReturn(std::string_view line) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

// Whatever does not, in quotes or without, is no entry.
bool BeginsWithDate(std::string_view line) {
  return IsIsoDate(line.substr(line.starts_with('"') ? 1 : 0, kDateLength));
}

bool HasOpenQuote(std::string_view line) { return std::ranges::count(line, '"') % 2 != 0; }

std::string TwoDigits(int number) { return (number < 10 ? "0" : "") + std::to_string(number); }

}  // namespace

std::string_view HistoryWord(HistoryKind kind) { return RowOf(kind).word; }

bool CountsInDay(HistoryKind kind) { return RowOf(kind).counts_in_day; }

std::string HistoryFigure(std::optional<double> figure) {
  if (!figure) return {};
  std::string text = FormatNumber(std::isfinite(*figure) ? *figure : 0, kDigits);
  // A mantissa of one digit keeps its point before the exponent, and a whole number at its end.
  const std::size_t point = text.find('.');
  const std::size_t behind = point + 1;
  if (behind == text.size() || text[behind] == 'e') text.erase(point, 1);
  return text == "-0" ? "0" : text;
}

std::string HistoryLine(const HistoryEntry& entry) {
  std::string line = entry.date + ';' + entry.time + ';';
  line += HistoryWord(entry.kind);
  line +=
      ';' + FieldText(entry.name) + ';' + HistoryFigure(entry.amount) + ';' + FieldText(entry.unit);
  for (const std::optional<double>& figure :
       {entry.kcal, entry.protein, entry.fat, entry.carbohydrate}) {
    line += ';' + HistoryFigure(figure);
  }
  return line + '\n';
}

std::string IsoDate(std::string_view date_text) {
  const std::size_t first = date_text.find('.');
  if (first == std::string_view::npos) return {};
  const std::size_t second = date_text.find('.', first + 1);
  if (second == std::string_view::npos) return {};
  const std::string_view day = date_text.substr(0, first);
  const std::string_view month = date_text.substr(first + 1, second - first - 1);
  const std::string_view year = date_text.substr(second + 1);
  const auto is_number = [](std::string_view text, std::size_t digits) {
    return !text.empty() && text.size() <= digits && IsDigits(text);
  };
  if (!is_number(day, 2) || !is_number(month, 2) || year.size() != 4 || !IsDigits(year)) return {};
  std::string date =
      std::string(year) + '-' + TwoDigits(ParseInteger(month)) + '-' + TwoDigits(ParseInteger(day));
  return IsIsoDate(date) ? date : std::string();
}

std::string TimeText(int hour, int minute, int second) {
  return TwoDigits(hour) + ':' + TwoDigits(minute) + ':' + TwoDigits(second);
}

bool IsIsoDate(std::string_view date) {
  if (date.size() != kDateLength || date[4] != '-' || date[7] != '-' ||
      !IsDigits(date.substr(0, 4)) || !IsDigits(date.substr(5, 2)) ||
      !IsDigits(date.substr(8, 2))) {
    return false;
  }
  const int year = ParseInteger(date.substr(0, 4));
  const auto month = static_cast<unsigned>(ParseInteger(date.substr(5, 2)));
  const auto day = static_cast<unsigned>(ParseInteger(date.substr(8, 2)));
  return year > 0 && std::chrono::year_month_day(std::chrono::year(year), std::chrono::month(month),
                                                 std::chrono::day(day))
                         .ok();
}

std::optional<HistoryEntry> HistoryReader::Next() {
  while (!rest_.empty()) {
    const std::size_t first_end = std::min(rest_.find('\n'), rest_.size());
    std::size_t end = first_end;
    // A name may hold line ends; where no entry comes of joining a few lines, the quote that is
    // open costs its own line only.
    for (std::size_t joined = 0; joined <= kMostLineEnds && BeginsWithDate(rest_); ++joined) {
      const std::string_view line = WithoutReturn(rest_.substr(0, end));
      if (std::optional<HistoryEntry> entry = EntryOf(line)) {
        rest_.remove_prefix(std::min(end + 1, rest_.size()));
        return entry;
      }
      if (!HasOpenQuote(line) || end == rest_.size()) break;
      end = std::min(rest_.find('\n', end + 1), rest_.size());
    }
    const std::string_view passed = WithoutReturn(rest_.substr(0, first_end));
    if (!passed.empty() && passed != kHistoryHeader) ++skipped_;
    rest_.remove_prefix(std::min(first_end + 1, rest_.size()));
  }
  return std::nullopt;
}

}  // namespace velnor

// The history of a person: one line a deed, from the first day on, in a table that other programs
// read too. Written by whatever changes the day or saves a measure, read by the diary and by the
// quick way to add a food.

#ifndef VELNOR_USERS_HISTORY_FILE_H_
#define VELNOR_USERS_HISTORY_FILE_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace velnor {

// The file is code page 1250, lines ended by CR LF, fields parted by semicolons; a field that holds
// a semicolon, a quote or a line end stands in quotes, a quote in it twice.

// The first line of the file, without its line end: the names of the ten fields.
inline constexpr std::string_view kHistoryHeader =
    "date;time;what;name;amount;unit;kcal;protein;fat;carbohydrate";

// What a line tells of. The sums of the four figures over kFood, kRemoved, kListCleared,
// kDayCleared and kImported are the totals of their date.
enum class HistoryKind {
  kFood,           // a food was added
  kRemoved,        // a food was taken off; the figures are below zero
  kListCleared,    // likewise
  kDayCleared,     // likewise
  kBurned,         // calories were burned
  kBurnedCleared,  // the burned total was cleared; the calories are below zero
  kWeight,         // a body weight was saved
  kWaistHip,       // a waist-hip ratio was saved
  kImported,       // the totals of a day from before the history
};

// The word by which a line names its kind, as "food" or "day cleared".
std::string_view HistoryWord(HistoryKind kind);

// Whether the four figures of such a line count in the totals of its date.
bool CountsInDay(HistoryKind kind);

struct HistoryEntry {
  std::string date = {};  // "2026-11-21"
  std::string time = {};  // "13:05:09", or empty for a line made from the chart series
  HistoryKind kind = HistoryKind::kFood;
  std::string name = {};                    // the product or the activity
  std::optional<double> amount = {};        // in `unit`
  std::string unit = {};                    // "g", "min", "kg", or empty
  std::optional<double> kcal = {};          // kcal
  std::optional<double> protein = {};       // g
  std::optional<double> fat = {};           // g
  std::optional<double> carbohydrate = {};  // g

  bool operator==(const HistoryEntry&) const = default;
};

// A figure as a line holds it: with a decimal point, at most eight digits and no point at the end.
// One that is not finite is written as 0, a missing one is empty.
std::string HistoryFigure(std::optional<double> figure);

// The line of an entry with its LF.
std::string HistoryLine(const HistoryEntry& entry);

// `date_text`, as DateText writes it ("5.3.2026"), in the order of the calendar: "2026-03-05". What
// is no such date gives empty text.
std::string IsoDate(std::string_view date_text);

// The time of a day as the history has it: "13:05:09". `hour` is from 0 to 23, the others from 0 to
// 59.
std::string TimeText(int hour, int minute, int second);

// Whether `date` is a day of the calendar written as "2026-03-05", from year 1 to 9999.
bool IsIsoDate(std::string_view date);

// Takes the bytes of a history apart into its entries, in the order of the file. What is no entry
// is read past: the header, a line with a date that is none, with an unknown word, without ten
// fields, or with a figure that is no finite number. A line may end with CR LF or LF, the last one
// with nothing. A quote that nothing closes is a letter, so that one spoiled line costs no other.
class HistoryReader {
 public:
  // `bytes` must live as long as the reader.
  explicit HistoryReader(std::string_view bytes) : rest_(bytes) {}

  // The next entry; nothing at the end of the bytes. Every text of the entry is as it was written,
  // quotes taken off.
  std::optional<HistoryEntry> Next();

  // How many lines were read past so far, empty ones and the header not counted.
  std::size_t skipped() const { return skipped_; }

 private:
  std::string_view rest_;
  std::size_t skipped_ = 0;
};

}  // namespace velnor

#endif  // VELNOR_USERS_HISTORY_FILE_H_

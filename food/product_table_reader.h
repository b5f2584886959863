// Takes a table that another program saved apart into its rows: lines of fields with one sign
// between them, as spreadsheets write them. Used by the import of products.

#ifndef VELNOR_FOOD_PRODUCT_TABLE_READER_H_
#define VELNOR_FOOD_PRODUCT_TABLE_READER_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velnor {

// The signs that may stand between two fields.
inline constexpr std::string_view kTableSeparators = ",;\t";

// Bytes of a row; a longer one is none of a table of products.
inline constexpr std::size_t kTableRowLimit = 10'000;

struct TableRow {
  std::size_t first_line = 1;  // of the text, counted from 1
  std::size_t last_line = 1;   // a field in quotes may hold line ends
  bool is_too_long = false;    // beyond kTableRowLimit: the fields are left out
  std::vector<std::string> fields = {};

  // Whether none of the fields holds more than blanks.
  bool IsEmpty() const;
};

// CR LF, LF and CR end a line. A field may stand in quotes, as RFC 4180 has it: then separators and
// line ends belong to it, and a quote in it is written twice. What follows the closing quote is
// added to the field. A quote that nothing closes within the length of a row is a letter.
class TableReader {
 public:
  // `text` must live as long as the reader.
  TableReader(std::string_view text, char separator) : rest_(text), separator_(separator) {}

  // The next row, empty ones included; nothing at the end of the text.
  std::optional<TableRow> Next();

 private:
  std::string TakeField();
  void TakeQuoted(std::string& field);
  void TakeLineEnd();
  void SkipLine();

  std::string_view rest_;
  char separator_;
  std::size_t line_ = 1;
};

// The bytes of a table as text of code page 1250. UTF-8 is known by its mark or by being sound,
// text in units of two bytes by its mark; what is neither is taken for code page 1250 already.
// Returns nothing if it holds a NUL: then it is no text.
std::optional<std::string> TableText(std::string_view bytes);

// `text` without blanks and control characters at its ends, one blank for every row of them within.
std::string TidyText(std::string_view text);

}  // namespace velnor

#endif  // VELNOR_FOOD_PRODUCT_TABLE_READER_H_

// The text files of the program. Nobody else opens one.

#ifndef VELNOR_BASE_TEXT_FILE_H_
#define VELNOR_BASE_TEXT_FILE_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace velnor {

// The first `limit` bytes of a file, as they stand on disk. A file that is missing or cannot be
// read gives empty text, like an empty one: every reader of the program treats them alike.
// `path` is in the machine's own code page.
std::string ReadFile(const std::string& path, std::size_t limit);

// Takes a text apart into lines the way the data files are read: CR LF and LF both end a line, and
// the last line needs no end. A line longer than the limit comes in several pieces, each at most
// `limit` characters with the line end counted as one of them. Within a piece, everything from the
// first NUL on is dropped. The pieces are views into the text.
class LineReader {
 public:
  LineReader(std::string_view text, std::size_t limit) : rest_(text), limit_(limit) {}

  // The next piece without its line end; nothing at the end of the text.
  std::optional<std::string_view> Next();

 private:
  std::string_view rest_;
  std::size_t limit_;
};

}  // namespace velnor

#endif  // VELNOR_BASE_TEXT_FILE_H_

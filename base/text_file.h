// The text files of the program. Nobody else opens one.

#ifndef VELNOR_BASE_TEXT_FILE_H_
#define VELNOR_BASE_TEXT_FILE_H_

#include <cstddef>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace velnor {

// A limit that every file keeps.
inline constexpr std::size_t kWholeFile = static_cast<std::size_t>(-1);

// The first `limit` bytes of a file, as they stand on disk, for a reader that goes on to rewrite
// it. A missing file is an empty one. Returns nothing if the file cannot be read or its folder is
// missing: the folder may come back with the file in it, and a rewrite would destroy that. `path`
// is in the machine's own code page, here and below.
std::optional<std::string> ReadFileToRewrite(const std::string& path, std::size_t limit);

// The first `limit` bytes of a file, for a reader that will not rewrite it. A file that is missing
// or cannot be read gives an empty text.
std::string ReadFile(const std::string& path, std::size_t limit);

// An open file, which is closed with the object.
struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

// Writes the bytes where the file is, brings them to the disk and closes it. Returns false if the
// system could not.
[[nodiscard]] bool WriteAndClose(File file, std::string_view bytes);

// The last byte of a file; nothing when it is empty, missing or cannot be read.
std::optional<char> LastByteOf(const std::string& path);

// Whether there is a file that can be opened for reading.
bool FileExists(const std::string& path);

// Gives the file the bytes of `bytes` and no others. It holds its old bytes or its new ones, never
// anything between: they are written to a file beside it, which then takes its place. A
// write-protected file is not replaced. Returns false if the old ones remain.
[[nodiscard]] bool ReplaceFile(const std::string& path, std::string_view bytes);

// Names a write whose failure is passed over on purpose: nobody is told.
inline void PassOver(bool /*written*/) {}

// Makes a file of these bytes and brings them to the disk. Returns false if the system could not;
// then there is no such file.
[[nodiscard]] bool WriteNewFile(const std::string& path, std::string_view bytes);

// The name of the file that this process writes beside `path` before it takes its place. No other
// process uses that name.
std::string TemporaryPath(const std::string& path);

// Removes from the folder (its path with a separator at the end) what processes that ended in the
// middle of a write have left there. The caller holds the lock of the start-up folder, so no other
// program is writing.
void RemoveLeftovers(const std::string& folder);

// `text` with every line end, LF or CR LF, as CR LF.
std::string WithCrLf(std::string_view text);

// Takes a text apart into lines the way the data files are read: CR LF and LF both end a line, and
// the last line needs no end. A line longer than the limit comes in several pieces, each at most
// `limit` characters with the line end counted as one of them. Within a piece, everything from the
// first NUL on is dropped. The pieces are views into the text.
class LineReader {
 public:
  LineReader(std::string_view text, std::size_t limit)
      : rest_(text), limit_(limit), has_nul_(text.find('\0') != std::string_view::npos) {}

  // Returns the next piece without its line end, or nothing at the end of the text.
  std::optional<std::string_view> Next();
  // Returns the next piece with all its bytes, NULs and what follows them included.
  std::optional<std::string_view> NextWhole();
  // What has not been read yet.
  std::string_view rest() const { return rest_; }

 private:
  std::string_view rest_;
  std::size_t limit_;
  bool has_nul_;  // hardly any text has one, and looking in every piece would cost as much as
                  // finding the pieces
};

}  // namespace velnor

#endif  // VELNOR_BASE_TEXT_FILE_H_

#include "base/text_file.h"

#include <algorithm>
#include <cstdio>
#include <memory>

namespace velnor {

std::string ReadFile(const std::string& path, std::size_t limit) {
  struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };
  const std::unique_ptr<std::FILE, Closer> file(std::fopen(path.c_str(), "rb"));
  std::string text;
  if (!file) return text;
  constexpr std::size_t kBlock = 65'536;
  while (text.size() < limit) {
    const std::size_t had = text.size();
    const std::size_t wanted = std::min(limit - had, kBlock);
    text.resize(had + wanted);
    const std::size_t got = std::fread(text.data() + had, 1, wanted, file.get());
    text.resize(had + got);
    if (got < wanted) break;
  }
  return text;
}

std::optional<std::string_view> LineReader::Next() {
  if (rest_.empty()) return std::nullopt;
  std::size_t end = 0;       // of the piece's own characters
  std::size_t consumed = 0;  // the piece and its line end
  for (std::size_t count = 0; count < limit_ && consumed < rest_.size(); ++count) {
    if (rest_[consumed] == '\n') {
      ++consumed;
      break;
    }
    if (rest_.substr(consumed, 2) == "\r\n") {
      consumed += 2;
      break;
    }
    end = ++consumed;
  }
  const std::string_view piece = rest_.substr(0, end);
  rest_.remove_prefix(consumed);
  return piece.substr(0, piece.find('\0'));
}

}  // namespace velnor

// The history of a person, read by the diary: whatever it holds, three files are made of it that
// other programs can read. The first character chooses how old the history is.

#include <string>
#include <string_view>

#include "diary/diary.h"
#include "diary/page.h"
#include "fuzz/program_run.h"
#include "users/history_file.h"

namespace velnor {
namespace {

constexpr std::string_view kDates[] = {"16.11.2026", "1.1.1970", "31.12.9999", ""};

bool IsUtf8(std::string_view text) {
  std::size_t following = 0;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (following > 0) {
      if ((byte & 0xC0U) != 0x80U) return false;
      --following;
    } else if (byte >= 0x80U) {
      following = byte >= 0xE0U ? 2 : 1;
      if (byte < 0xC2U || byte >= 0xF0U) return false;
    }
  }
  return following == 0;
}

// Every tag of the page is one of the program's own, and is closed before the next begins.
void CheckMarkup(std::string_view page) {
  bool inside = false;
  for (const char c : page.substr(page.find("</style>"))) {
    if (c == '<') Require(!inside, "a tag ends before the next one begins");
    if (c == '<' || c == '>') inside = c == '<';
    Require(c == '\n' || static_cast<unsigned char>(c) >= ' ', "no control sign is on the page");
  }
  Require(!inside, "the last tag ends");
  Require(page.find("<script") == std::string_view::npos, "a name is no script");
  for (std::size_t at = page.find(" d=\"M"); at != std::string_view::npos;
       at = page.find(" d=\"M", at + 1)) {
    const std::string_view path = page.substr(at + 4, page.find('"', at + 4) - at - 4);
    Require(path.find_first_not_of("MLVhz0123456789.- ") == std::string_view::npos,
            "every place of a line is a number");
  }
}

// The number of fields of every line, quotes taken into account.
void CheckTable(std::string_view table) {
  std::size_t fields = 1;
  std::size_t of_header = 0;
  bool quoted = false;
  for (const char c : table) {
    if (c == '"') quoted = !quoted;
    if (quoted) continue;
    if (c == ',') ++fields;
    if (c != '\n') continue;
    if (of_header == 0) of_header = fields;
    Require(fields == of_header, "every line of a table has all its fields");
    fields = 1;
  }
  Require(!quoted, "the last quote is closed");
  Require(table.ends_with("\r\n"), "the last line ends");
}

}  // namespace
}  // namespace velnor

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velnor;  // NOLINT(google-build-using-namespace)
  const std::string_view input = InputText(data, size);
  if (input.empty()) return 0;
  const std::string_view history = input.substr(1);
  const auto first = static_cast<unsigned char>(input[0]);
  const bool is_known = first % 8 < 4;
  const DiaryFiles files =
      MakeDiary({.history = history,
                 .profile = {.height = is_known ? "170" : "0.01"},
                 .requirement = is_known ? RequirementBounds{2100, 2300, 70, 70, 65, 90, 300, 360}
                                         : RequirementBounds{},
                 .date_text = kDates[first % 4],
                 .user_name = history.substr(0, 99)});
  for (const std::string* const file : {&files.page, &files.days, &files.deeds}) {
    Require(IsUtf8(*file), "the files are UTF-8");
  }
  CheckMarkup(files.page);
  CheckTable(files.days);
  CheckTable(files.deeds);
  Require(files.page.size() < 3'000'000 + 10 * history.size(),
          "the page is of a size to be opened");
  return 0;
}

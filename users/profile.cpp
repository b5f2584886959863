#include "users/profile.h"

#include <optional>

#include "base/number_text.h"
#include "base/text_file.h"

namespace velnor {
namespace {

constexpr std::size_t kLineLimit = 99;
constexpr std::size_t kShortestWord = 3;

}  // namespace

ProfileLines ReadProfileLines(const std::string& path) {
  return ReadProfileLinesToRewrite(path).value_or(ProfileLines());
}

std::optional<ProfileLines> ReadProfileLinesToRewrite(const std::string& path) {
  ProfileLines lines;
  const std::optional<std::string> text = ReadFileToRewrite(path, lines.size() * (kLineLimit + 1));
  if (!text) return std::nullopt;
  LineReader reader(*text, kLineLimit);
  for (std::string& line : lines) {
    const std::optional<std::string_view> read = reader.Next();
    if (!read) break;
    line = *read;
    std::erase(line, '\r');
  }
  return lines;
}

UserProfile ProfileOf(const ProfileLines& lines) {
  const auto text = [&lines](std::size_t line) {
    return lines[line].substr(0, UserProfile::kLimit);
  };
  const auto number = [&text](std::size_t line) {
    return ParseInteger(text(line)) != 0 ? text(line) : std::string();
  };
  return {number(0), number(1), text(2), text(3), text(4)};
}

bool IsComplete(const UserProfile& profile) {
  return ParseInteger(profile.age) != 0 && ParseInteger(profile.height) != 0 &&
         profile.sex.size() >= kShortestWord && profile.life_style.size() >= kShortestWord;
}

void WriteProfileLines(Transaction& deed, const std::string& path, const ProfileLines& lines) {
  std::string text;
  for (const std::string& line : lines) {
    if (!text.empty()) text += '\n';
    text += line.empty() ? "0" : line;
  }
  deed.Replace(path, WithCrLf(text));
}

}  // namespace velnor

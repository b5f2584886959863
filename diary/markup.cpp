#include "diary/markup.h"

#include <algorithm>
#include <cmath>

#include "base/code_page.h"
#include "base/number_text.h"

namespace velnor {
namespace {

constexpr double kInPowers = 1e7;  // from here on
constexpr int kPowerDigits = 3;
constexpr std::string_view kMinus = "\u2212";
constexpr std::string_view kThinBlank = "\u202F";
constexpr std::string_view kNoSign = "\uFFFD";

struct Escape {
  char sign;
  std::string_view text;
};

constexpr Escape kEscapes[] = {{'&', "&amp;"},  {'<', "&lt;"}, {'>', "&gt;"}, {'"', "&quot;"},
                               {'\'', "&#39;"}, {'\t', " "},   {'\r', ""},    {'\n', " "}};

bool IsControlSign(char c) { return (c >= 0 && c < ' ') || c == '\x7F'; }

// "1.5e+30" as "1.5e30".
std::string PowerText(double magnitude) {
  std::string text = FormatNumber(magnitude, kPowerDigits);
  const std::size_t e = text.find('e');
  if (e == std::string::npos) return text;
  std::string power = text.substr(e + 1);
  power.erase(0, power.find_first_not_of('+'));
  std::string mantissa = text.substr(0, e);
  if (mantissa.ends_with('.')) mantissa.pop_back();
  return mantissa + 'e' + power;
}

std::string MagnitudeText(double magnitude, int decimals) {
  if (magnitude >= kInPowers) return PowerText(magnitude);
  std::string text = FormatFixed(magnitude, decimals);
  const std::size_t point = std::min(text.find('.'), text.size());
  for (std::size_t at = point; at > 3; at -= 3) text.insert(at - 3, kThinBlank);
  return text;
}

bool IsZero(std::string_view text) {
  return text.find_first_of("123456789") == std::string_view::npos;
}

}  // namespace

std::string EscapedText(std::string_view text) {
  std::string escaped;
  for (const char c : ToUtf8(text)) {
    const auto* const escape = std::ranges::find(kEscapes, c, &Escape::sign);
    if (escape != std::end(kEscapes)) {
      escaped += escape->text;
    } else if (IsControlSign(c)) {
      escaped += kNoSign;
    } else {
      escaped += c;
    }
  }
  return escaped;
}

std::string EscapedText(std::string_view text, std::size_t limit) {
  if (text.size() <= limit) return EscapedText(text);
  return EscapedText(text.substr(0, limit)) + "\u2026";
}

std::string NumberText(double value, int decimals) {
  if (std::isnan(value)) return "\u2013";
  std::string text = MagnitudeText(std::abs(value), decimals);
  return value < 0 && !IsZero(text) ? std::string(kMinus) + text : text;
}

std::string SignedNumberText(double value, int decimals) {
  const std::string text = NumberText(value, decimals);
  return value > 0 && !IsZero(text) ? '+' + text : text;
}

std::string CountText(std::size_t count, std::string_view one, std::string_view several) {
  return NumberText(static_cast<double>(count)) + ' ' + std::string(count == 1 ? one : several);
}

}  // namespace velnor

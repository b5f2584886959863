#include "base/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <system_error>

namespace velnor {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// The white space of the "C" locale.
bool IsSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

struct SignedText {
  bool negative = false;
  std::string_view unsigned_text;
};

// Takes leading white space and the sign off.
SignedText SplitSign(std::string_view text) {
  while (!text.empty() && IsSpace(text.front())) text.remove_prefix(1);
  SignedText result;
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
    result.negative = text.front() == '-';
    text.remove_prefix(1);
  }
  result.unsigned_text = text;
  return result;
}

// A number that does not fit a double is either far too large or far too small: the decimal
// exponent of its first significant digit tells which.
bool IsHuge(std::string_view text) {
  std::int64_t exponent = 0;
  size_t i = 0;
  bool significant = false;
  for (; i < text.size() && IsDigit(text[i]); ++i) {
    significant = significant || text[i] != '0';
    if (significant) ++exponent;
  }
  if (i < text.size() && text[i] == '.') {
    for (++i; i < text.size() && IsDigit(text[i]); ++i) {
      significant = significant || text[i] != '0';
      if (!significant) --exponent;
    }
  }
  if (i < text.size() && (text[i] == 'e' || text[i] == 'E'))
    exponent += ParseInteger(text.substr(i + 1));
  return exponent > 0;
}

}  // namespace

double ParseNumber(std::string_view text) {
  const SignedText split = SplitSign(text);
  const std::string_view digits = split.unsigned_text;
  const bool starts_like_a_number =
      !digits.empty() &&
      (IsDigit(digits[0]) || (digits[0] == '.' && digits.size() > 1 && IsDigit(digits[1])));
  if (!starts_like_a_number) return 0.0;
  double value = 0.0;
  const char* const end = digits.data() + digits.size();
  const std::from_chars_result result = std::from_chars(digits.data(), end, value);
  if (result.ec == std::errc::result_out_of_range) {
    const std::string_view number(digits.data(),
                                  static_cast<std::size_t>(result.ptr - digits.data()));
    value = IsHuge(number) ? std::numeric_limits<double>::infinity() : 0.0;
  }
  return split.negative ? -value : value;
}

int ParseInteger(std::string_view text) {
  const SignedText split = SplitSign(text);
  constexpr std::int64_t kCeiling = std::numeric_limits<int>::max() + std::int64_t{1};
  std::int64_t value = 0;
  for (const char c : split.unsigned_text) {
    if (!IsDigit(c)) break;
    value = std::min(value * 10 + (c - '0'), kCeiling);
  }
  if (split.negative) return static_cast<int>(-value);
  return static_cast<int>(std::min(value, kCeiling - 1));
}

std::string FormatNumber(double value, int digits) {
  if (std::isnan(value)) return "nan";
  if (std::isinf(value)) return value < 0 ? "-inf" : "inf";

  const int significant = std::clamp(digits, 1, 17);
  // d.ddddde-xx with every digit; the longest text is "-d.", 16 digits, "e-308".
  char buffer[32];
  const std::to_chars_result written = std::to_chars(
      buffer, buffer + sizeof buffer, value, std::chars_format::scientific, significant - 1);
  const std::string_view text(buffer, static_cast<size_t>(written.ptr - buffer));

  const bool negative = text.front() == '-';
  const size_t e = text.find('e');
  const std::string_view exponent_text = text.substr(e + 1);  // sign and at least two digits
  const int exponent = ParseInteger(exponent_text);
  std::string mantissa;  // significant digits only, without the zeros at the end
  for (const char c : text.substr(0, e)) {
    if (IsDigit(c)) mantissa += c;
  }
  while (mantissa.size() > 1 && mantissa.back() == '0') mantissa.pop_back();

  std::string result(negative ? "-" : "");
  if (exponent < -4 || exponent >= significant) {
    result += mantissa[0];
    result += '.';
    result.append(mantissa, 1);
    result += 'e';
    result += exponent_text;
    return result;
  }
  if (exponent < 0) {
    result += "0.";
    result.append(static_cast<size_t>(-exponent - 1), '0');
    return result += mantissa;
  }
  const size_t whole_digits = static_cast<size_t>(exponent) + 1;
  if (mantissa.size() < whole_digits) mantissa.append(whole_digits - mantissa.size(), '0');
  result.append(mantissa, 0, whole_digits);
  result += '.';
  return result.append(mantissa, whole_digits);
}

std::string FormatFixed(double value, int decimals) {
  if (std::isnan(value)) return "nan";
  if (std::isinf(value)) return value < 0 ? "-inf" : "inf";
  // 309 digits before the point, the sign, the point and 9 digits behind it.
  char buffer[std::numeric_limits<double>::max_exponent10 + 12];
  const std::to_chars_result written = std::to_chars(
      buffer, buffer + sizeof buffer, value, std::chars_format::fixed, std::clamp(decimals, 0, 9));
  const std::string_view text(buffer, static_cast<std::size_t>(written.ptr - buffer));
  const bool is_zero = text.find_first_of("123456789") == std::string_view::npos;
  return std::string(is_zero && text.front() == '-' ? text.substr(1) : text);
}

float TruncateTwoDecimals(std::string_view text) {
  const auto number = static_cast<float>(ParseNumber(text));
  const float whole = std::floor(number);
  const float fraction = number - whole;
  return std::floor(fraction * 100.0F) / 100.0F + whole;
}

}  // namespace velnor

// Numbers from text and back, against the C library. The first character chooses how many digits.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>
#include <string_view>

#include "base/number_text.h"
#include "fuzz/program_run.h"

namespace velnor {
namespace {

// The C library also reads hexadecimal digits, "inf" and "nan", which nobody means here.
bool IsReadAlike(const std::string& text) {
  const std::size_t sign = std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size());
  std::string_view digits = std::string_view{text}.substr(sign);
  if (!digits.empty() && (digits[0] == '+' || digits[0] == '-')) digits.remove_prefix(1);
  if (digits.starts_with("0x") || digits.starts_with("0X")) return false;
  return digits.empty() || std::string_view("iInN").find(digits[0]) == std::string_view::npos;
}

bool AreSame(double a, double b) { return a == b && std::signbit(a) == std::signbit(b); }

void CheckReading(const std::string& text) {
  if (!IsReadAlike(text)) return;
  const double expected = std::strtod(text.c_str(), nullptr);
  Require(AreSame(ParseNumber(text), expected), "a number is read as the C library reads it");
  constexpr std::int64_t kSmallest = std::numeric_limits<int>::min();
  constexpr std::int64_t kLargest = std::numeric_limits<int>::max();
  const std::int64_t whole = std::strtoll(text.c_str(), nullptr, 10);
  Require(ParseInteger(text) == std::clamp(whole, kSmallest, kLargest),
          "a whole number is read as the C library reads it");
}

void CheckWriting(double value, int digits) {
  const std::string written = FormatNumber(value, digits);
  if (!std::isfinite(value)) return;
  char expected[64];
  std::snprintf(expected, sizeof expected, "%.*g", digits, value);
  Require(AreSame(std::strtod(written.c_str(), nullptr), std::strtod(expected, nullptr)),
          "a number is written with the digits that the C library gives it");
  Require(written.find('.') != std::string::npos, "a written number has a point");
  Require(AreSame(ParseNumber(FormatNumber(value, 17)), value),
          "a number written with all digits is read back");
}

}  // namespace
}  // namespace velnor

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = velnor::InputText(data, size);
  if (input.empty()) return 0;
  // The C library reads on behind a NUL no more than ours does.
  const std::string text(input.substr(1, input.substr(1).find('\0')));
  velnor::CheckReading(text);
  const int digits = 1 + static_cast<unsigned char>(input[0]) % 17;
  velnor::CheckWriting(velnor::ParseNumber(text), digits);
  velnor::TruncateTwoDecimals(text);
  return 0;
}

#include "base/code_page.h"

#include <algorithm>

namespace velnor {
namespace {

struct LetterRange {
  unsigned char first;
  unsigned char last;
  unsigned char distance;  // from a capital letter to its small one
};

constexpr LetterRange kCapitals[] = {
    {'A', 'Z', 0x20},   {0x8A, 0x8A, 0x10},  // S caron
    {0x8C, 0x8F, 0x10},                      // S acute, T caron, Z caron, Z acute
    {0xA3, 0xA3, 0x10},                      // L stroke
    {0xA5, 0xA5, 0x14},                      // A ogonek
    {0xAA, 0xAA, 0x10},                      // S cedilla
    {0xAF, 0xAF, 0x10},                      // Z dot
    {0xBC, 0xBC, 0x02},                      // L caron
    {0xC0, 0xD6, 0x20},                      // R acute to O diaeresis
    {0xD8, 0xDE, 0x20},  // R caron to T cedilla; the multiplication sign lies between
};

char ToLower(char c) {
  const auto byte = static_cast<unsigned char>(c);
  for (const LetterRange& range : kCapitals) {
    if (byte >= range.first && byte <= range.last) return static_cast<char>(byte + range.distance);
  }
  return c;
}

}  // namespace

std::string ToLowerCase(std::string text) {
  std::ranges::transform(text, text.begin(), ToLower);
  return text;
}

}  // namespace velnor

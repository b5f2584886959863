#include "base/code_page.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <optional>

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

// The signs of the bytes from 0x80 on.
// clang-format off
constexpr std::array<char16_t, 128> kSigns = {
    0x20AC, 0xFFFD, 0x201A, 0xFFFD, 0x201E, 0x2026, 0x2020, 0x2021,  // 80
    0xFFFD, 0x2030, 0x0160, 0x2039, 0x015A, 0x0164, 0x017D, 0x0179,  // 88
    0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 90
    0xFFFD, 0x2122, 0x0161, 0x203A, 0x015B, 0x0165, 0x017E, 0x017A,  // 98
    0x00A0, 0x02C7, 0x02D8, 0x0141, 0x00A4, 0x0104, 0x00A6, 0x00A7,  // A0
    0x00A8, 0x00A9, 0x015E, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x017B,  // A8
    0x00B0, 0x00B1, 0x02DB, 0x0142, 0x00B4, 0x00B5, 0x00B6, 0x00B7,  // B0
    0x00B8, 0x0105, 0x015F, 0x00BB, 0x013D, 0x02DD, 0x013E, 0x017C,  // B8
    0x0154, 0x00C1, 0x00C2, 0x0102, 0x00C4, 0x0139, 0x0106, 0x00C7,  // C0
    0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD, 0x00CE, 0x010E,  // C8
    0x0110, 0x0143, 0x0147, 0x00D3, 0x00D4, 0x0150, 0x00D6, 0x00D7,  // D0
    0x0158, 0x016E, 0x00DA, 0x0170, 0x00DC, 0x00DD, 0x0162, 0x00DF,  // D8
    0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7,  // E0
    0x010D, 0x00E9, 0x0119, 0x00EB, 0x011B, 0x00ED, 0x00EE, 0x010F,  // E8
    0x0111, 0x0144, 0x0148, 0x00F3, 0x00F4, 0x0151, 0x00F6, 0x00F7,  // F0
    0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9,  // F8
};
// clang-format on

// Small letters with marks, each before its plain letter.
constexpr std::string_view kPlainLetters =
    "\x9As\x9Cs\x9Dt\x9Ez\x9Fz\xB3l\xB9\x61\xBAs\xBEl\xBFz\xDFs\xE0r\xE1\x61\xE2\x61\xE3\x61"
    "\xE4\x61\xE5l\xE6\x63\xE7\x63\xE8\x63\xE9\x65\xEA\x65\xEB\x65\xEC\x65\xEDi\xEEi\xEF\x64"
    "\xF0\x64\xF1n\xF2n\xF3o\xF4o\xF5o\xF6o\xF8r\xF9u\xFAu\xFBu\xFCu\xFDy\xFEt\xA0 ";

// Plain letters of the code points from U+00C0 to U+017F.
constexpr char32_t kFirstLatin = 0xC0;
constexpr std::string_view kPlainLatin =
    "AAAAAAACEEEEIIIIDNOOOOOxOUUUUYTsaaaaaaaceeeeiiiidnooooo/ouuuuyty"
    "AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIiJjJjKkkLlLlLlLl"
    "LlNnNnNnnNnOoOoOoOoRrRrRrSsSsSsSsTtTtTtUuUuUuUuUuUuWwYyYZzZzZzs";
static_assert(kPlainLatin.size() == 0x180 - kFirstLatin);

struct StandIn {
  char32_t first;
  char32_t last;
  char sign;  // NUL: nothing
};

constexpr StandIn kStandIns[] = {
    {0x00A1, 0x00A1, '!'}, {0x00AA, 0x00AA, 'a'}, {0x00B2, 0x00B2, '2'},  {0x00B3, 0x00B3, '3'},
    {0x00B9, 0x00B9, '1'}, {0x00BA, 0x00BA, 'o'}, {0x0218, 0x0218, 'S'},  {0x0219, 0x0219, 's'},
    {0x021A, 0x021A, 'T'}, {0x021B, 0x021B, 't'}, {0x0300, 0x036F, 0},  // marks that combine
    {0x2000, 0x200A, ' '}, {0x200B, 0x200F, 0},   {0x2010, 0x2015, '-'},  {0x201B, 0x201B, '\''},
    {0x2028, 0x2029, ' '}, {0x202F, 0x202F, ' '}, {0x2032, 0x2032, '\''}, {0x2033, 0x2033, '"'},
    {0x2044, 0x2044, '/'}, {0x2212, 0x2212, '-'}, {0x2215, 0x2215, '/'},  {0x2264, 0x2264, '<'},
    {0x2265, 0x2265, '>'}, {0x3000, 0x3000, ' '}, {0xFEFF, 0xFEFF, 0},
};

constexpr char kUnknownSign = '?';

// Units of which two make a sign beyond the first 65,536: first halves, then second ones.
constexpr char32_t kFirstSurrogate = 0xD800;
constexpr char32_t kFirstLowSurrogate = 0xDC00;
constexpr char32_t kLastSurrogate = 0xDFFF;

constexpr char ToLower(char c) {
  const auto byte = static_cast<unsigned char>(c);
  for (const LetterRange& range : kCapitals) {
    if (byte >= range.first && byte <= range.last) return static_cast<char>(byte + range.distance);
  }
  return c;
}

constexpr std::array<char, 256> FoldedLetters() {
  std::array<char, 256> folded = {};
  for (std::size_t byte = 0; byte < folded.size(); ++byte) {
    folded[byte] = ToLower(static_cast<char>(byte));
    for (std::size_t i = 0; i < kPlainLetters.size(); i += 2) {
      if (kPlainLetters[i] == folded[byte]) {
        folded[byte] = kPlainLetters[i + 1];
        break;
      }
    }
  }
  return folded;
}

// By byte, because names are folded by the thousand.
constexpr std::array<char, 256> kFolded = FoldedLetters();

// The forms of a sequence, by its first byte.
struct Utf8Form {
  unsigned char mask;
  unsigned char mark;     // what the first byte shows under the mask
  std::size_t following;  // bytes behind the first
  char32_t least;         // a smaller one has a shorter form
};
constexpr Utf8Form kUtf8Forms[] = {
    {0x80, 0x00, 0, 0x0}, {0xE0, 0xC0, 1, 0x80}, {0xF0, 0xE0, 2, 0x800}, {0xF8, 0xF0, 3, 0x10000}};

// Takes the sequence at the start of `bytes`, which are not empty, off them. Returns nothing if it
// is not sound; then one byte is taken.
std::optional<char32_t> TakeCodePoint(std::string_view& bytes) {
  constexpr char32_t kLastCodePoint = 0x10FFFF;
  const auto first = static_cast<unsigned char>(bytes.front());
  const std::string_view rest = bytes.substr(1);
  bytes = rest;
  const auto* const form = std::ranges::find_if(
      kUtf8Forms, [first](const Utf8Form& row) { return (first & row.mask) == row.mark; });
  if (form == std::end(kUtf8Forms) || rest.size() < form->following) return std::nullopt;
  char32_t code_point = first & ~form->mask;
  for (const char c : rest.substr(0, form->following)) {
    const auto byte = static_cast<unsigned char>(c);
    if ((byte & 0xC0) != 0x80) return std::nullopt;
    code_point = code_point << 6 | (byte & 0x3F);
  }
  const bool is_surrogate = code_point >= kFirstSurrogate && code_point <= kLastSurrogate;
  if (code_point < form->least || code_point > kLastCodePoint || is_surrogate) return std::nullopt;
  bytes.remove_prefix(form->following);
  return code_point;
}

// NUL where the sign is left out.
char StandInFor(char32_t code_point) {
  if (code_point >= kFirstLatin && code_point - kFirstLatin < kPlainLatin.size()) {
    return kPlainLatin[code_point - kFirstLatin];
  }
  const auto* const row = std::ranges::find_if(kStandIns, [code_point](const StandIn& candidate) {
    return candidate.first <= code_point && code_point <= candidate.last;
  });
  return row == std::end(kStandIns) ? kUnknownSign : row->sign;
}

void AppendInCodePage(char32_t code_point, std::string& text) {
  constexpr char32_t kFirstSign = 0x80;
  constexpr char32_t kNoSign = 0xFFFD;  // what the table has for bytes without a sign
  if (code_point < kFirstSign) {
    text += static_cast<char>(code_point);
    return;
  }
  const auto* const found = std::ranges::find(kSigns, code_point);
  if (found != kSigns.end() && code_point != kNoSign) {
    text += static_cast<char>(kFirstSign + static_cast<char32_t>(found - kSigns.begin()));
  } else if (const char sign = StandInFor(code_point); sign != 0) {
    text += sign;
  }
}

}  // namespace

std::string ToLowerCase(std::string text) {
  std::ranges::transform(text, text.begin(), ToLower);
  return text;
}

std::string FoldLetters(std::string text) {
  std::ranges::transform(text, text.begin(),
                         [](char c) { return kFolded[static_cast<unsigned char>(c)]; });
  return text;
}

bool IsUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    if (!TakeCodePoint(bytes)) return false;
  }
  return true;
}

std::string FromUtf8(std::string_view utf8) {
  std::string text;
  text.reserve(utf8.size());
  while (!utf8.empty()) {
    if (const std::optional<char32_t> code_point = TakeCodePoint(utf8)) {
      AppendInCodePage(*code_point, text);
    } else {
      text += kUnknownSign;
    }
  }
  return text;
}

std::string FromUtf16(std::string_view bytes, bool high_byte_first) {
  constexpr std::size_t kUnit = 2;
  std::string text;
  text.reserve(bytes.size() / kUnit);
  for (std::size_t at = 0; at + kUnit <= bytes.size(); at += kUnit) {
    const auto low = static_cast<unsigned char>(bytes[high_byte_first ? at + 1 : at]);
    const auto high = static_cast<unsigned char>(bytes[high_byte_first ? at : at + 1]);
    const auto unit = static_cast<char32_t>(high << 8 | low);
    // The first half of a pair stands for both: the code page has no sign so far up.
    if (unit >= kFirstLowSurrogate && unit <= kLastSurrogate) continue;
    AppendInCodePage(unit, text);
  }
  return text;
}

std::string ToUtf8(std::string_view text) {
  constexpr unsigned kFollowing = 0x3F;  // of a sign's bits, those in each byte but the first
  std::string utf8;
  utf8.reserve(text.size() + text.size() / 8);
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80) {
      utf8 += c;
      continue;
    }
    const unsigned sign = kSigns[byte - 0x80U];
    if (sign < 0x800) {
      utf8 += static_cast<char>(0xC0U | sign >> 6U);
    } else {
      utf8 += static_cast<char>(0xE0U | sign >> 12U);
      utf8 += static_cast<char>(0x80U | (sign >> 6U & kFollowing));
    }
    utf8 += static_cast<char>(0x80U | (sign & kFollowing));
  }
  return utf8;
}

}  // namespace velnor

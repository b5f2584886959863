#include "shell/win32/list_order.h"

#include <algorithm>
#include <utility>

namespace velnor {
namespace {

// Bytes that compare as the box compares the texts they were made from: words, letters without
// regard to case. They cost one look at each text, comparing the texts some twelve looks at each of
// some thousand. Returns an empty text if the platform gives none.
std::string SortKey(LCID locale, const std::string& text) {
  const int length = static_cast<int>(text.size()) + 1;
  std::wstring wide(text.size() + 1, L'\0');
  MultiByteToWideChar(CP_ACP, 0, text.c_str(), length, wide.data(), length);
  constexpr DWORD kFlags = LCMAP_SORTKEY | NORM_IGNORECASE;
  std::string key(
      static_cast<std::size_t>(LCMapStringW(locale, kFlags, wide.c_str(), -1, nullptr, 0)), '\0');
  LCMapStringW(locale, kFlags, wide.c_str(), -1, reinterpret_cast<wchar_t*>(key.data()),
               static_cast<int>(key.size()));
  return key;
}

struct Keyed {
  std::string key;
  std::string text;
};

}  // namespace

std::optional<std::vector<std::string>> OrderOfList(HWND list,
                                                    std::span<const std::string_view> texts) {
  const auto locale = static_cast<LCID>(SendMessageA(list, LB_GETLOCALE, 0, 0));
  std::vector<Keyed> keyed;
  keyed.reserve(texts.size());
  for (const std::string_view text : texts) {
    std::string item(text.substr(0, text.find('\0')));
    std::string key = SortKey(locale, item);
    if (key.empty()) return std::nullopt;
    keyed.push_back({std::move(key), std::move(item)});
  }
  std::ranges::sort(keyed, [](const Keyed& a, const Keyed& b) { return a.key < b.key; });
  const auto confused = std::ranges::adjacent_find(
      keyed, [](const Keyed& a, const Keyed& b) { return a.key == b.key && a.text != b.text; });
  if (confused != keyed.end()) return std::nullopt;
  std::vector<std::string> ordered;
  ordered.reserve(keyed.size());
  for (Keyed& item : keyed) ordered.push_back(std::move(item.text));
  return ordered;
}

}  // namespace velnor

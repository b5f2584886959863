#include "shell/win32/wide_path.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <string_view>
#include <system_error>

namespace velnor {
namespace {

constexpr std::size_t kEscape = 6;  // characters: "<0141>"
// Folders have the lower of the two classic limits: a name of 8.3 signs must still fit in.
constexpr std::size_t kClassicLimit = MAX_PATH - 12;
constexpr std::wstring_view kUnlimited = L"\\\\?\\";

std::wstring Wide(std::string_view bytes) {
  const int size = static_cast<int>(bytes.size());
  std::wstring wide(bytes.size(), L'\0');  // no code page needs more units than bytes
  wide.resize(static_cast<std::size_t>(
      MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, wide.data(), size)));
  return wide;
}

std::string Narrow(std::wstring_view wide) {
  constexpr std::size_t kMostBytes = 4;  // of a unit, in any code page
  std::string bytes(wide.size() * kMostBytes, '\0');
  bytes.resize(static_cast<std::size_t>(
      WideCharToMultiByte(CP_ACP, 0, wide.data(), static_cast<int>(wide.size()), bytes.data(),
                          static_cast<int>(bytes.size()), nullptr, nullptr)));
  return bytes;
}

std::string Escape(wchar_t unit) {
  std::array<char, kEscape + 1> text = {};
  std::snprintf(text.data(), text.size(), "<%04X>", static_cast<unsigned>(unit));
  return text.data();
}

// The letter whose escape the text begins with. Letters of every code page are never escaped, so
// that nothing escaped can pass for a separator or a point.
std::optional<wchar_t> EscapedUnit(std::string_view text) {
  constexpr std::uint16_t kFirst = 0x80;
  if (text.size() < kEscape || text.front() != '<' || text[kEscape - 1] != '>') return std::nullopt;
  const char* const digits_end = text.data() + kEscape - 1;
  std::uint16_t unit = 0;
  const auto [read_to, error] = std::from_chars(text.data() + 1, digits_end, unit, 16);
  if (error != std::errc() || read_to != digits_end || unit < kFirst) return std::nullopt;
  return static_cast<wchar_t>(unit);
}

bool IsAbsolute(std::wstring_view path) { return path.size() > 2 && path[1] == L':'; }

bool IsOnServer(std::wstring_view path) { return path.starts_with(L"\\\\"); }

}  // namespace

std::string StartUpFolder() {
  constexpr DWORD kLimit = 300;
  std::string folder(kLimit, '\0');
  const DWORD length = GetCurrentDirectoryA(kLimit, folder.data());
  folder.resize(length < kLimit ? length : 0);
  std::wstring wide(GetCurrentDirectoryW(0, nullptr), L'\0');
  wide.resize(GetCurrentDirectoryW(static_cast<DWORD>(wide.size()), wide.data()));
  if (wide.empty()) return ".\\";  // cannot be told: the same folder
  // Letters that the code page lacks have become others, or question marks.
  if (Wide(folder) != wide) folder = NarrowPath(wide);
  return folder.ends_with('\\') ? folder : folder + '\\';
}

std::wstring WideText(std::string_view text) {
  std::wstring wide;
  while (!text.empty()) {
    const std::optional<wchar_t> escaped = EscapedUnit(text);
    const std::size_t length = escaped ? kEscape : text.find('<', 1);
    wide += escaped ? std::wstring(1, *escaped) : Wide(text.substr(0, length));
    text.remove_prefix(std::min(length, text.size()));
  }
  return wide;
}

std::wstring WidePath(const std::string& path) {
  std::wstring wide = WideText(path);
  if (wide.size() < kClassicLimit || wide.starts_with(kUnlimited)) return wide;
  std::ranges::replace(wide, L'/', L'\\');
  if (IsAbsolute(wide)) return std::wstring(kUnlimited) + wide;
  if (IsOnServer(wide)) return std::wstring(kUnlimited) + L"UNC\\" + wide.substr(2);
  return wide;
}

std::string NarrowPath(const std::wstring& path) {
  std::string bytes = Narrow(path);
  if (Wide(bytes) == path) return bytes;
  bytes.clear();
  for (const wchar_t unit : path) {
    const std::string letter = Narrow({&unit, 1});
    bytes += Wide(letter) == std::wstring(1, unit) ? letter : Escape(unit);
  }
  return bytes;
}

}  // namespace velnor

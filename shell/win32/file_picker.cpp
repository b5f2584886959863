#include "shell/win32/file_picker.h"

#include <commdlg.h>
#include <memory>
#include <type_traits>

#include "shell/win32/wide_path.h"

namespace velnor {
namespace {

constexpr DWORD kPathLimit = 1024;

struct LibraryCloser {
  void operator()(HMODULE library) const { FreeLibrary(library); }
};
using Library = std::unique_ptr<std::remove_pointer_t<HMODULE>, LibraryCloser>;

using OpenFileDialog = BOOL(WINAPI*)(OPENFILENAMEW*);

std::wstring Wide(std::string_view text) {
  const auto size = static_cast<int>(text.size());
  std::wstring wide(text.size(), L'\0');
  const int length = MultiByteToWideChar(CP_ACP, 0, text.data(), size, wide.data(), size);
  wide.resize(static_cast<std::size_t>(length));
  return wide;
}

}  // namespace

// The library is loaded here and not with the program, which would start the later for it.
std::optional<std::string> PickFile(HWND owner, const FileKind& kind) {
  const Library library(LoadLibraryExA("comdlg32.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32));
  if (!library) return std::nullopt;
  const auto open_file_dialog = reinterpret_cast<OpenFileDialog>(
      reinterpret_cast<void*>(GetProcAddress(library.get(), "GetOpenFileNameW")));
  if (open_file_dialog == nullptr) return std::nullopt;

  std::wstring filter = Wide(kind.name);
  filter.append(1, L'\0').append(Wide(kind.patterns)).append(2, L'\0');
  std::wstring path(kPathLimit, L'\0');
  OPENFILENAMEW question = {};
  question.lStructSize = sizeof question;
  question.hwndOwner = owner;
  question.lpstrFilter = filter.c_str();
  question.lpstrFile = path.data();
  question.nMaxFile = kPathLimit;
  question.Flags = OFN_EXPLORER | OFN_FILEMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
  if (open_file_dialog(&question) == FALSE) return std::nullopt;
  path.resize(path.find(L'\0'));
  return NarrowPath(path);
}

}  // namespace velnor

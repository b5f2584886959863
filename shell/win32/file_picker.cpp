#include "shell/win32/file_picker.h"

#include <commdlg.h>
#include <memory>
#include <objbase.h>
#include <shlobj.h>
#include <type_traits>

#include "shell/win32/system_library.h"
#include "shell/win32/wide_path.h"

namespace velnor {
namespace {

constexpr DWORD kPathLimit = 1024;

struct LibraryCloser {
  void operator()(HMODULE library) const { FreeLibrary(library); }
};
using Library = std::unique_ptr<std::remove_pointer_t<HMODULE>, LibraryCloser>;

}  // namespace

std::optional<std::string> PickFile(HWND owner, const FileKind& kind) {
  const Library library(LoadSystemLibrary("comdlg32.dll"));
  if (!library) return std::nullopt;
  const auto open_file_dialog =
      FindFunction<decltype(&GetOpenFileNameW)>(library.get(), "GetOpenFileNameW");
  if (open_file_dialog == nullptr) return std::nullopt;

  std::wstring filter = WideText(kind.name);
  filter.append(1, L'\0').append(WideText(kind.patterns)).append(2, L'\0');
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

// The library of the shell stays: what the dialog has started may go on in the background.
std::optional<std::string> PickFolder(HWND owner, std::string_view title) {
  const HMODULE shell = LoadSystemLibrary("shell32.dll");
  const Library memory(LoadSystemLibrary("ole32.dll"));
  if (shell == nullptr || !memory) return std::nullopt;
  const auto browse = FindFunction<decltype(&SHBrowseForFolderW)>(shell, "SHBrowseForFolderW");
  const auto path_of = FindFunction<decltype(&SHGetPathFromIDListW)>(shell, "SHGetPathFromIDListW");
  const auto free_memory = FindFunction<decltype(&CoTaskMemFree)>(memory.get(), "CoTaskMemFree");
  if (browse == nullptr || path_of == nullptr || free_memory == nullptr) return std::nullopt;

  const std::wstring wide_title = WideText(title);
  BROWSEINFOW question = {};
  question.hwndOwner = owner;
  question.lpszTitle = wide_title.c_str();
  question.ulFlags = BIF_RETURNONLYFSDIRS;
  const std::unique_ptr<ITEMIDLIST, decltype(free_memory)> chosen(browse(&question), free_memory);
  std::wstring path(MAX_PATH, L'\0');
  if (!chosen || path_of(chosen.get(), path.data()) == FALSE) return std::nullopt;
  path.resize(path.find(L'\0'));
  return NarrowPath(path);
}

}  // namespace velnor

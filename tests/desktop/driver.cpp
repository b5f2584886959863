#include "tests/desktop/driver.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdio>
#include <cstring>
#include <functional>
#include <stdexcept>
#include <thread>

namespace velnor::desktop {
namespace {

constexpr DWORD kPatience = 20'000;  // ms; far more than anything takes, even on a busy machine
constexpr DWORD kGlance = 10;        // ms between two looks
constexpr DWORD kQuiet = 300;        // ms after which nothing that was started goes on any more

constexpr char kMainWindowClass[] = "Velnor calorie counter";
constexpr char kDialogClass[] = "#32770";  // dialogs and message boxes
constexpr int kMessageTextId = 0xFFFF;     // the static of a message box

std::string FolderOfThisProgram() {
  std::string path(MAX_PATH, '\0');
  path.resize(GetModuleFileNameA(nullptr, path.data(), MAX_PATH));
  return path.substr(0, path.rfind('\\') + 1);
}

std::vector<std::string> NamesIn(const std::string& folder) {
  std::vector<std::string> names;
  WIN32_FIND_DATAA found = {};
  const HANDLE search = FindFirstFileA((folder + "*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return names;
  do {
    const std::string name = found.cFileName;
    if (name != "." && name != "..") names.push_back(name);
  } while (FindNextFileA(search, &found) != 0);
  FindClose(search);
  std::ranges::sort(names);
  return names;
}

// A new one under a name that nobody has; its path, with a separator at the end.
std::string MakeFolder() {
  std::string temporary(MAX_PATH, '\0');
  temporary.resize(GetTempPathA(MAX_PATH, temporary.data()));
  for (int attempt = 0; attempt <= 100; ++attempt) {
    const std::string path = temporary + "velnor-" + std::to_string(GetCurrentProcessId()) + "-" +
                             std::to_string(GetTickCount()) + "-" + std::to_string(attempt);
    if (CreateDirectoryA(path.c_str(), nullptr) != 0) return path + '\\';
  }
  throw std::runtime_error("no folder can be made for the program to run in");
}

// With everything in it; `path` ends with a separator.
void RemoveFolder(const std::string& path) {
  for (const std::string& name : NamesIn(path)) {
    if (DeleteFileA((path + name).c_str()) == 0) RemoveFolder(path + name + '\\');
  }
  RemoveDirectoryA(path.c_str());
}

// The foremost visible top-level window of a process that has the given class and is not `known`;
// null when there is none.
HWND FindTopWindow(DWORD process_id, const char* class_name, HWND known = nullptr) {
  HWND window = nullptr;
  while ((window = FindWindowExA(nullptr, window, class_name, nullptr)) != nullptr) {
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    if (owner == process_id && IsWindowVisible(window) != 0 && window != known) return window;
  }
  return nullptr;
}

std::wstring Wide(const std::string& narrow) {
  const int size = static_cast<int>(narrow.size());
  std::wstring wide(narrow.size(), L'\0');
  wide.resize(static_cast<std::size_t>(
      MultiByteToWideChar(CP_ACP, 0, narrow.data(), size, wide.data(), size)));
  return wide;
}

// Memory inside the program, for as long as the object lives.
class RemoteMemory {
 public:
  RemoteMemory(HANDLE process, std::size_t size, DWORD protection)
      : process_(process),
        address_(VirtualAllocEx(process, nullptr, size, MEM_COMMIT | MEM_RESERVE, protection)) {}
  RemoteMemory(const RemoteMemory&) = delete;
  RemoteMemory& operator=(const RemoteMemory&) = delete;
  ~RemoteMemory() { VirtualFreeEx(process_, address_, 0, MEM_RELEASE); }

  void* address() const { return address_; }
  void Write(const void* bytes, std::size_t size) const {
    WriteProcessMemory(process_, address_, bytes, size, nullptr);
  }
  void Read(void* bytes, std::size_t size) const {
    ReadProcessMemory(process_, address_, bytes, size, nullptr);
  }

 private:
  HANDLE process_;
  void* address_;
};

}  // namespace

WorkFolder::WorkFolder() : Folder(MakeFolder()) {}

WorkFolder::~WorkFolder() { RemoveFolder(path()); }

void Folder::Write(const std::string& name, std::string_view bytes) const {
  std::FILE* const file = std::fopen((path_ + name).c_str(), "wb");
  if (file == nullptr || std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size() ||
      std::fclose(file) != 0) {
    throw std::runtime_error("cannot write " + name);
  }
}

std::optional<std::string> Folder::Read(const std::string& name) const {
  std::FILE* const file = std::fopen((path_ + name).c_str(), "rb");
  if (file == nullptr) return std::nullopt;
  std::string bytes;
  std::array<char, 4096> block;
  while (const std::size_t got = std::fread(block.data(), 1, block.size(), file)) {
    bytes.append(block.data(), got);
  }
  std::fclose(file);
  return bytes;
}

std::vector<std::string> Folder::Names(const std::string& folder) const {
  return NamesIn(path_ + folder + (folder.empty() ? "" : "\\"));
}

App::App(const WorkFolder& folder) : App(ProgramPath(), folder) {}

App::App(const std::string& program, const Folder& folder) : App(program, Wide(folder.path())) {}

App::App(const std::string& program, const std::wstring& folder) {
  std::wstring command_line = L'"' + Wide(program) + L'"';
  STARTUPINFOW start = {};
  start.cb = sizeof start;
  // Wine has been seen to refuse the first start of all in a prefix that had just been made.
  const bool is_started = WaitUntil([&] {
    return CreateProcessW(nullptr, command_line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                          folder.c_str(), &start, &process_) != 0;
  });
  if (!is_started) {
    throw std::runtime_error("cannot start " + program + ", error " +
                             std::to_string(GetLastError()));
  }
  HWND window = nullptr;
  WaitUntil([&] {
    window = FindTopWindow(process_.dwProcessId, kMainWindowClass);
    return window != nullptr || !IsRunning();
  });
  main_ = Window(window);
  Settle();
}

App::~App() {
  if (IsRunning()) Kill();
  CloseHandle(process_.hThread);
  CloseHandle(process_.hProcess);
}

bool App::IsRunning() const { return WaitForSingleObject(process_.hProcess, 0) == WAIT_TIMEOUT; }

void App::Kill() const {
  TerminateProcess(process_.hProcess, 1);
  WaitForSingleObject(process_.hProcess, kPatience);
}

std::optional<DWORD> App::WaitForExit() const {
  if (WaitForSingleObject(process_.hProcess, kPatience) != WAIT_OBJECT_0) return std::nullopt;
  DWORD code = 0;
  GetExitCodeProcess(process_.hProcess, &code);
  return code;
}

DWORD App::CallInside(const char* function, std::vector<ULONG_PTR> arguments) const {
  // Machine code of the call, by the platform's calling convention: four arguments in registers,
  // the fifth on the stack above the callee's home space.
  constexpr std::array<std::array<unsigned char, 2>, 4> kLoadRegister = {
      {{0x48, 0xB9}, {0x48, 0xBA}, {0x49, 0xB8}, {0x49, 0xB9}}};  // mov rcx, rdx, r8, r9
  arguments.resize(kLoadRegister.size() + 1);
  std::vector<unsigned char> code;
  const auto append = [&code](std::initializer_list<unsigned char> bytes) {
    code.insert(code.end(), bytes);
  };
  const auto append_value = [&code](ULONG_PTR value) {
    std::array<unsigned char, sizeof value> bytes;
    std::memcpy(bytes.data(), &value, sizeof value);
    code.insert(code.end(), bytes.begin(), bytes.end());
  };
  for (std::size_t i = 0; i < kLoadRegister.size(); ++i) {
    append({kLoadRegister[i][0], kLoadRegister[i][1]});
    append_value(arguments[i]);
  }
  append({0x48, 0x83, 0xEC, 0x38});  // sub rsp, 0x38
  append({0x48, 0xB8});              // mov rax, fifth argument
  append_value(arguments.back());
  append({0x48, 0x89, 0x44, 0x24, 0x20});  // mov [rsp + 0x20], rax
  append({0x48, 0xB8});                    // mov rax, function
  append_value(reinterpret_cast<ULONG_PTR>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("user32.dll"), function))));
  append({0xFF, 0xD0, 0x48, 0x83, 0xC4, 0x38, 0xC3});  // call rax; add rsp, 0x38; ret

  const RemoteMemory place(process_.hProcess, code.size(), PAGE_EXECUTE_READWRITE);
  place.Write(code.data(), code.size());
  const HANDLE thread = CreateRemoteThread(
      process_.hProcess, nullptr, 0, reinterpret_cast<LPTHREAD_START_ROUTINE>(place.address()),
      nullptr, 0, nullptr);
  DWORD result = 0;
  if (thread == nullptr || WaitForSingleObject(thread, kPatience) != WAIT_OBJECT_0 ||
      GetExitCodeThread(thread, &result) == 0) {
    throw std::runtime_error(std::string("cannot call ") + function + " inside the program");
  }
  CloseHandle(thread);
  return result;
}

std::vector<App::MenuItem> App::ReadMenu() const {
  Settle();
  return ItemsOf(GetMenu(main_.handle()));
}

std::vector<App::MenuItem> App::ItemsOf(HMENU menu) const {
  Sleep(kQuiet);
  std::vector<MenuItem> items;
  AppendMenu(reinterpret_cast<ULONG_PTR>(menu), items);
  return items;
}

RECT App::ItemPlace(HMENU menu, UINT position) const {
  RECT place = {};
  const RemoteMemory buffer(process_.hProcess, sizeof place, PAGE_READWRITE);
  CallInside("GetMenuItemRect", {0, reinterpret_cast<ULONG_PTR>(menu), position,
                                 reinterpret_cast<ULONG_PTR>(buffer.address())});
  buffer.Read(&place, sizeof place);
  return place;
}

void App::AppendMenu(ULONG_PTR menu, std::vector<MenuItem>& items) const {
  constexpr std::size_t kTextLimit = 100;
  const RemoteMemory buffer(process_.hProcess, kTextLimit, PAGE_READWRITE);
  const DWORD count = CallInside("GetMenuItemCount", {menu});
  for (DWORD position = 0; position < count; ++position) {
    std::array<char, kTextLimit> text = {};
    buffer.Write(text.data(), text.size());
    CallInside("GetMenuStringA", {menu, position, reinterpret_cast<ULONG_PTR>(buffer.address()),
                                  kTextLimit, MF_BYPOSITION});
    buffer.Read(text.data(), text.size() - 1);
    const DWORD state = CallInside("GetMenuState", {menu, position, MF_BYPOSITION});
    const DWORD id = CallInside("GetMenuItemID", {menu, position});
    items.push_back({static_cast<int>(id), text.data(), (state & (MF_GRAYED | MF_DISABLED)) == 0});
    const DWORD popup = CallInside("GetSubMenu", {menu, position});
    if (popup != 0) AppendMenu(popup, items);
  }
}

std::map<int, bool> App::MenuStates() const {
  std::map<int, bool> states;
  for (const MenuItem& item : ReadMenu()) {
    if (item.id > 0) states[item.id] = item.enabled;
  }
  return states;
}

App::Icons App::IconsOf(HWND window) const {
  Sleep(kQuiet);
  const auto caption_icon = [&](WPARAM size) {
    return CallInside("SendMessageA", {reinterpret_cast<ULONG_PTR>(window), WM_GETICON, size});
  };
  const auto icon = static_cast<ULONG_PTR>(GCLP_HICON);
  return {CallInside("GetClassLongPtrA", {reinterpret_cast<ULONG_PTR>(main_.handle()), icon}),
          caption_icon(ICON_SMALL), caption_icon(ICON_BIG)};
}

Window App::WaitForPopup(const Window& known) const {
  HWND popup = nullptr;
  WaitUntil([&] {
    popup = FindTopWindow(process_.dwProcessId, kDialogClass, known.handle());
    return popup != nullptr || !IsRunning();
  });
  return Window(popup);
}

MessageBoxSeen App::WaitForMessageBox(const Window& known) const {
  const Window box = WaitForPopup(known);
  if (box.handle() == nullptr) return {};
  return {box.handle(), box.Caption(), box.Text(kMessageTextId)};
}

std::vector<std::string> App::CommandAndAnswer(const Window& window, int id) const {
  const HWND known = window.handle() == main_.handle() ? nullptr : window.handle();
  std::atomic<bool> carried_out = false;
  std::thread sender([&] {
    window.Command(id);
    Settle();
    carried_out = true;
  });
  std::vector<std::string> texts;
  while (!carried_out && IsRunning()) {
    const HWND box = FindTopWindow(process_.dwProcessId, kDialogClass, known);
    if (box == nullptr) {
      Sleep(1);
      continue;
    }
    texts.push_back(Window(box).Text(kMessageTextId));
    Answer({box, {}, {}}, GetDlgItem(box, IDYES) != nullptr ? IDYES : IDOK);
  }
  sender.join();
  return texts;
}

void App::Settle() const {
  // A paint waits until the queue is empty: what is left to paint is painted now.
  UpdateWindow(main_.handle());
  SendMessageA(main_.handle(), WM_NULL, 0, 0);
  WaitUntil([this] { return GetUpdateRect(main_.handle(), nullptr, FALSE) == 0; });
}

bool WaitUntil(const std::function<bool()>& condition) {
  for (DWORD waited = 0; waited < kPatience; waited += kGlance) {
    if (condition()) return true;
    Sleep(kGlance);
  }
  return condition();
}

bool WaitUntilGone(HWND window) {
  return WaitUntil([=] { return IsWindow(window) == 0; });
}

COLORREF PixelAt(const Window& window, int x, int y) {
  POINT point = {x, y};
  ClientToScreen(window.handle(), &point);
  const HDC screen = GetDC(nullptr);
  const COLORREF colour = GetPixel(screen, point.x, point.y);
  ReleaseDC(nullptr, screen);
  return colour;
}

std::string ProgramPath() { return FolderOfThisProgram() + "velnor.exe"; }

std::string Today() {
  SYSTEMTIME now = {};
  GetLocalTime(&now);
  return std::to_string(now.wDay) + '.' + std::to_string(now.wMonth) + '.' +
         std::to_string(now.wYear);
}

void Answer(const MessageBoxSeen& box, int button) {
  Window(box.handle).PostCommand(button);
  WaitUntilGone(box.handle);
}

}  // namespace velnor::desktop

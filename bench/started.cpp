#include "bench/started.h"

#include <psapi.h>
#include <stdexcept>

namespace velnor::bench {
namespace {

// The program answers between two messages: when it answers after nothing was left to paint, the
// last painting has ended.
void WaitUntilWindowPainted(HWND window) {
  do {
    SendMessageA(window, WM_NULL, 0, 0);
  } while (GetUpdateRect(window, nullptr, FALSE) != 0);
  SendMessageA(window, WM_NULL, 0, 0);
}

}  // namespace

double Milliseconds() {
  LARGE_INTEGER frequency;
  LARGE_INTEGER now;
  QueryPerformanceFrequency(&frequency);
  QueryPerformanceCounter(&now);
  return 1000.0 * static_cast<double>(now.QuadPart) / static_cast<double>(frequency.QuadPart);
}

std::string FolderOfThisProgram() {
  std::string path(MAX_PATH, '\0');
  path.resize(GetModuleFileNameA(nullptr, path.data(), MAX_PATH));
  return path.substr(0, path.rfind('\\') + 1);
}

void WaitUntilPainted(HWND window) {
  WaitUntilWindowPainted(window);
  RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  SendMessageA(window, WM_NULL, 0, 0);
}

Started::Started(const std::string& command, const char* window_class, const std::string& folder) {
  std::string command_line = FolderOfThisProgram() + command;
  STARTUPINFOA start = {};
  start.cb = sizeof start;
  const double before = Milliseconds();
  if (CreateProcessA(nullptr, command_line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                     folder.c_str(), &start, &process_) == 0) {
    throw std::runtime_error("cannot start " + command_line);
  }
  // From when it is visible on, the window knows what of it is still to be painted.
  do {
    if (Milliseconds() - before > kPatience) Fail(command + " opens no window");
    Sleep(1);
    window_ = FindWindowA(window_class, nullptr);
  } while (window_ == nullptr || IsWindowVisible(window_) == 0);
  WaitUntilWindowPainted(window_);
  start_ms_ = Milliseconds() - before;
}

double Started::Repaint(What what) const {
  const double before = Milliseconds();
  RedrawWindow(window_, nullptr, nullptr,
               static_cast<UINT>(RDW_INVALIDATE | RDW_ERASE |
                                 (what == What::kWindow ? RDW_NOCHILDREN : RDW_ALLCHILDREN)));
  WaitUntilPainted(window_);
  return Milliseconds() - before;
}

double Started::PeakMegabytes() const {
  constexpr double kMegabyte = 1e6;
  PROCESS_MEMORY_COUNTERS memory = {};
  if (GetProcessMemoryInfo(process_.hProcess, &memory, sizeof memory) == 0) {
    throw std::runtime_error("the memory of a program cannot be read");
  }
  return static_cast<double>(memory.PeakWorkingSetSize) / kMegabyte;
}

void Started::Fail(const std::string& why) {
  End();
  throw std::runtime_error(why);
}

// As a person ends it, and not before the display has dealt with its window: one that is torn away
// while it is being opened can leave its frame behind and cover the next.
void Started::End() {
  Sleep(kCalm);
  PostMessageA(window_, WM_CLOSE, 0, 0);
  if (WaitForSingleObject(process_.hProcess, kPatience) != WAIT_OBJECT_0) {
    TerminateProcess(process_.hProcess, 1);
    WaitForSingleObject(process_.hProcess, kPatience);
  }
  CloseHandle(process_.hThread);
  CloseHandle(process_.hProcess);
  Sleep(kCalm);
}

}  // namespace velnor::bench

// A program of the desktop benchmarks while it runs: velnor.exe or the bare window.

#ifndef VELNOR_BENCH_STARTED_H_
#define VELNOR_BENCH_STARTED_H_

#include <windows.h>

#include <string>

namespace velnor::bench {

inline constexpr const char* kVelnorClass = "Velnor calorie counter";
inline constexpr const char* kBareClass = "bare window";
inline constexpr char kDialogClass[] = "#32770";

inline constexpr DWORD kPatience = 20'000;  // ms
inline constexpr DWORD kCalm = 500;         // ms after which the display has dealt with a window

double Milliseconds();

// With a separator at its end.
std::string FolderOfThisProgram();

// Returns when the program has painted all that needed it of one of its windows, the controls too.
// Only the program itself may paint the window: a paint sent from here would come on top of its
// own.
void WaitUntilPainted(HWND window);

enum class What { kWindow, kWindowAndControls };

// A program from its start on; ended with the object. What goes wrong throws.
class Started {
 public:
  // `command` is the program and its arguments. Returns when its window and all in it has been
  // painted for the first time.
  Started(const std::string& command, const char* window_class, const std::string& folder);
  Started(const Started&) = delete;
  Started& operator=(const Started&) = delete;
  ~Started() { End(); }

  double start_ms() const { return start_ms_; }
  HWND window() const { return window_; }

  // Milliseconds from the need to repaint until all that needs it is painted: the window, as the
  // program asks for it when something has changed, or its controls too, as after something lay
  // over it.
  double Repaint(What what) const;

  double PeakMegabytes() const;

 private:
  [[noreturn]] void Fail(const std::string& why);
  void End();

  PROCESS_INFORMATION process_ = {};
  HWND window_ = nullptr;
  double start_ms_ = 0;
};

}  // namespace velnor::bench

#endif  // VELNOR_BENCH_STARTED_H_

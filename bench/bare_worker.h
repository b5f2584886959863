// The bare window's work: lists filled, texts set, files written, screens and dialogs shown with
// the platform's own calls and nothing of the program.

#ifndef VELNOR_BENCH_BARE_WORKER_H_
#define VELNOR_BENCH_BARE_WORKER_H_

#include <windows.h>

#include <map>
#include <string_view>
#include <vector>

#include "bench/bare_work.h"

namespace velnor::bench {

class BareWorker {
 public:
  // `children` are the controls of the window, by their keys in the program.
  void Begin(HWND window, std::map<int, HWND> children);

  void Learn(std::string_view work) { work_ = Decode(work); }
  // Does what it has learned to do for a command with this id and notification.
  void OnCommand(int id, int notification);

  // The number of the screen that is shown.
  int screen() const { return screen_; }

 private:
  void Perform(const Step& step);
  HWND Control(int id) const;
  static void Fill(HWND list, const std::vector<std::string>& texts, bool replace);
  void ShowScreen(int number);
  void OpenDialog(int resource);

  static INT_PTR CALLBACK DialogProcedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);

  HWND window_ = nullptr;
  HWND dialog_ = nullptr;
  std::map<int, HWND> children_;
  std::vector<HWND> shown_;
  int screen_ = 0;
  Work work_;
};

}  // namespace velnor::bench

#endif  // VELNOR_BENCH_BARE_WORKER_H_

// One of the two programs in the bench's hands, velnor.exe or the working bare window: both have
// the same controls and dialogs and are pressed in the same way.

#ifndef VELNOR_BENCH_STAGE_H_
#define VELNOR_BENCH_STAGE_H_

#include <windows.h>

#include <string>

#include "bench/bare_work.h"
#include "bench/started.h"
#include "tests/desktop/driver.h"

namespace velnor::bench {

enum class Player { kVelnor, kBare };

// Everything throws that does not come about.
class Stage {
 public:
  // `program` is the velnor.exe to measure.
  Stage(Player player, const std::string& program, const desktop::WorkFolder& folder);

  bool is_velnor() const { return player_ == Player::kVelnor; }
  const desktop::WorkFolder& folder() const { return folder_; }
  double start_ms() const { return started_.start_ms(); }

  // What the bare window does from now on; velnor.exe knows it by itself.
  void Learn(const Work& work) const;

  // A command, or a control's notification, of the main window or of the open dialog.
  void Send(int id, int notification = 0) const;
  void SendToDialog(int id, int notification = 0) const;
  // The same for what opens a box that waits for an answer.
  void Post(int id) const;
  void PostToDialog(int id) const;

  // Without telling the program; items of the bare window's lists are none of its work.
  void Select(int id, int index) const;
  void Select(int id, const std::string& item) const;
  void SetText(int id, const std::string& text) const;
  void SelectAll(int id) const;
  // A character into an edit of the main window.
  void Type(int id, char character) const;

  // A control of the open dialog, or of the main window when that has none of this id.
  HWND Control(int id) const;

  void WaitForDialog();
  void WaitForBox();
  void CloseDialog();  // as by its Cancel
  void CloseBox();
  // Notes that the dialog has closed itself.
  void ForgetDialog();

  // Waits until the main window and the open dialog are painted.
  void Settle() const;
  // The display has dealt with windows that came and went.
  static void Calm();

 private:
  static HWND FindPopup(HWND known);

  Player player_;
  const desktop::WorkFolder& folder_;
  Started started_;
  HWND main_;
  HWND dialog_ = nullptr;
  HWND box_ = nullptr;
};

}  // namespace velnor::bench

#endif  // VELNOR_BENCH_STAGE_H_

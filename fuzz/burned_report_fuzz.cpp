// The report of burned calories.

#include "fuzz/report.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  velnor::FuzzReport(
      {.view_command = 215, .file = "cwiczenia.ASC", .screen_command = 238, .save_button = 162},
      velnor::InputText(data, size));
  return 0;
}

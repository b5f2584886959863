// The report of waist-hip ratios.

#include "fuzz/report.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  velnor::FuzzReport(
      {.view_command = 214, .file = "whr.ASC", .screen_command = 224, .save_button = 107},
      velnor::InputText(data, size));
  return 0;
}

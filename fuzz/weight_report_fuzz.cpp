// The report of body weights.

#include "fuzz/report.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  velnor::FuzzReport(
      {.view_command = 210, .file = "waga.ASC", .screen_command = 221, .save_button = 103},
      velnor::InputText(data, size));
  return 0;
}

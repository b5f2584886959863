// The report of eaten calories.

#include "fuzz/report.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  velnor::FuzzReport(
      {.view_command = 212, .file = "mirvo.ASC", .screen_command = 231, .save_button = 145},
      velnor::InputText(data, size));
  return 0;
}

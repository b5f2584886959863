// The report of recipes.

#include "fuzz/report.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  velnor::FuzzReport(
      {.view_command = 213, .file = "zestaw.ASC", .screen_command = 231, .save_button = 147},
      velnor::InputText(data, size));
  return 0;
}
